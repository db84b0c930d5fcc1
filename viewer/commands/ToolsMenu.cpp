// The Tools menu.
#include "commands/Commands.h"
#include "res/Resource.h"
#include "window/MainWindow.h"

namespace kestview {

void ToolsRun(MainWindow& main, int id) {
    // Tools work on the picture's own pixels, not on the colours of bands.
    if (main.Active() && main.Active()->IsPreviewing()) main.ShowPane(ID_MEASURE_HISTOGRAM);
    main.LoadedTools().Run(id, main);
}

bool HasTool(MainWindow& main, int id) {
    return id - ID_TOOLS_FIRST < main.LoadedTools().Count();
}

}  // namespace kestview
