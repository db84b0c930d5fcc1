// The Help menu.
#include "commands/AllMenus.h"
#include "commands/Conditions.h"
#include "dialogs/AboutDialog.h"
#include "dialogs/KeysDialog.h"
#include "res/Resource.h"

namespace kestview {
namespace {

void HelpKeys(MainWindow& main, int) { ShowKeys(main); }

void HelpAbout(MainWindow& main, int) { ShowAbout(main); }

constexpr Command helpEntries[] = {
    {ID_HELP_KEYS, "&Keys and Mouse", "F1", "What keys and mouse do", HelpKeys, Always},
    {ID_HELP_ABOUT, "&About KestView", "", "Version of the program", HelpAbout, Always},
};

}  // namespace

Menu HelpMenu() { return {"&Help", helpEntries}; }

}  // namespace kestview
