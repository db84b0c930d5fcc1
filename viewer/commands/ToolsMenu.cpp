// The Tools menu.
#include "MainWindow.h"
#include "Resource.h"
#include "commands/Commands.h"

namespace kestview {

void ToolsRun(MainWindow& main, int id) {
    main.LoadedTools().Run(id, main);
}

bool HasTool(MainWindow& main, int id) {
    return id - ID_TOOLS_FIRST < main.LoadedTools().Count();
}

}  // namespace kestview
