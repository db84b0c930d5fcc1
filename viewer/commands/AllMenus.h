// All menus, in the order of the menu bar. A menu's entries and what they do stand in the file of its name.
#pragma once

#include "window/Menus.h"

namespace kestview {

Menu FileMenu();
Menu EditMenu();
Menu ViewMenu();
Menu ImageMenu();
Menu RoiMenu();
Menu MeasureMenu();
Menu CalibrateMenu();
Menu DisplayMenu();
Menu ToolsMenu();
Menu HelpMenu();

Menus AllMenus();

}  // namespace kestview
