// What a menu entry is: its texts, its key, and what it does. The entries themselves stand in commands/, a file a menu.
#pragma once

#include <windows.h>

#include <span>
#include <string_view>
#include <vector>

namespace kestview {

class MainWindow;

struct Command {
    int id = 0;             ///< its number; 0: a line between entries, or a submenu
    const char* text = "";  ///< as the menu shows it
    const char* key = "";   ///< "Ctrl+Shift+S", as the menu shows it and as it works; empty for none
    const char* tip = "";   ///< what it does, in a line: for the status bar and the toolbar
    void (*run)(MainWindow& main, int id) = nullptr;
    bool (*isEnabled)(MainWindow& main, int id) = nullptr;
    bool (*isChecked)(MainWindow& main, int id) = nullptr;  ///< whether it bears a mark; null: never
    std::span<const Command> submenu = {};
    int last = 0;  ///< of a row of entries that are filled in while the program runs: the last number
};

constexpr Command line = {};

constexpr Command Submenu(const char* text, std::span<const Command> entries) {
    Command command;
    command.text = text;
    command.submenu = entries;
    return command;
}

/// A row of entries that are filled in while the program runs.
constexpr Command FilledIn(int first, int last, void (*run)(MainWindow&, int), bool (*isEnabled)(MainWindow&, int)) {
    Command command;
    command.id = first;
    command.last = last;
    command.run = run;
    command.isEnabled = isEnabled;
    return command;
}

struct Menu {
    const char* title;
    std::span<const Command> commands;
    void (*onOpen)(HMENU menu) = nullptr;  ///< fills entries in
};

/// An entry of a context menu: a command, or 0 for a line.
struct ContextEntry {
    int command = 0;
    const char* text = nullptr;  ///< null: that of the menu
};

/// All menus, and what is made of them.
class Menus {
public:
    Menus(std::span<const Menu> newBar, std::span<const ContextEntry> newRoiMenu);

    /// Every command once.
    const std::vector<const Command*>& Commands() const { return commands; }
    /// Null for a number of no command.
    const Command* CommandOf(int id) const;
    /// The menu bar; the caller destroys it, or the window that it is given to.
    HMENU MakeBar() const;
    /// The menu for a right click on a ROI; the caller destroys it.
    HMENU MakeRoiMenu() const;
    /// The keys of all commands, for the message loop; the caller destroys them.
    HACCEL MakeKeys() const;
    /// To be called before the menu at this position of the bar opens.
    void OnOpen(int position, HMENU menu) const;

private:
    void Collect(std::span<const Command> entries);

    std::span<const Menu> bar;
    std::span<const ContextEntry> roiMenu;
    std::vector<const Command*> commands;
};

/// The keys that a menu's text means: "Ctrl+Shift+S", "F2", "Ctrl++" (two, one of them on the number pad). None where
/// it means nothing.
std::vector<ACCEL> KeysOf(std::string_view text);

}  // namespace kestview
