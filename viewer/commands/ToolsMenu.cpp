// The Tools menu.
#include "commands/AllMenus.h"
#include "commands/Conditions.h"
#include "res/Resource.h"

namespace kestview {
namespace {

void ToolsRun(MainWindow& main, int id) {
    // Tools work on the picture's own pixels, not on the colours of bands.
    if (main.Active() && main.Active()->IsPreviewing()) main.ShowPane(ID_MEASURE_HISTOGRAM);
    main.LoadedTools().Run(id, main);
}

bool HasTool(MainWindow& main, int id) { return id - ID_TOOLS_FIRST < main.LoadedTools().Count(); }

constexpr Command toolsEntries[] = {
    {ID_TOOLS_NONE, "No tools in the folder \"tools\"", "", "Libraries in this folder have their entries here",
     ToolsRun, Never},
    FilledIn(ID_TOOLS_FIRST, ID_TOOLS_LAST, ToolsRun, HasTool),
};

}  // namespace

Menu ToolsMenu() { return {"&Tools", toolsEntries}; }

}  // namespace kestview
