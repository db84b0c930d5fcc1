// The Help menu.
#include "commands/Commands.h"
#include "dialogs/AboutDialog.h"
#include "dialogs/KeysDialog.h"
#include "window/MainWindow.h"

namespace kestview {

void HelpKeys(MainWindow& main, int) {
    ShowKeys(main);
}

void HelpAbout(MainWindow& main, int) {
    ShowAbout(main);
}

}  // namespace kestview
