// Menus, context menu and keys, made of the tables of commands.
#include "window/Menus.h"

#include <algorithm>
#include <string>

namespace kestview {
namespace {

void Append(HMENU menu, const Command& command, const char* text) {
    const std::string whole = *command.key ? std::string(text) + "\t" + command.key : text;
    AppendMenuA(menu, MF_STRING, static_cast<UINT_PTR>(command.id), whole.c_str());
}

HMENU MakePopup(std::span<const Command> entries) {
    const HMENU menu = CreatePopupMenu();
    for (const Command& entry : entries) {
        if (!entry.submenu.empty())
            AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(MakePopup(entry.submenu)), entry.text);
        else if (entry.id == 0)
            AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
        else if (entry.last == 0)
            Append(menu, entry, entry.text);
    }
    return menu;
}

struct NamedKey {
    std::string_view name;
    std::vector<WORD> keys;
};
const NamedKey namedKeys[] = {
    {"+", {VK_ADD, VK_OEM_PLUS}}, {"-", {VK_SUBTRACT, VK_OEM_MINUS}}, {"Tab", {VK_TAB}}, {"Del", {VK_DELETE}}};

std::vector<WORD> KeysNamed(std::string_view name) {
    for (const NamedKey& named : namedKeys)
        if (named.name == name) return named.keys;
    const auto isIn = [&](char first, char last) { return name.back() >= first && name.back() <= last; };
    if (name.size() == 1 && (isIn('A', 'Z') || isIn('0', '9'))) return {static_cast<WORD>(name[0])};
    if (name.size() == 2 && name[0] == 'F' && isIn('1', '9')) return {static_cast<WORD>(VK_F1 + name[1] - '1')};
    return {};
}

/// The system's own keys, and those that belong to whatever has the focus, are only shown in the menu.
bool IsHandledElsewhere(const ACCEL& key) { return (key.fVirt & FALT) || key.key == VK_DELETE; }

}  // namespace

std::vector<ACCEL> KeysOf(std::string_view text) {
    struct Modifier {
        std::string_view name;
        BYTE flag;
    };
    BYTE flags = FVIRTKEY;
    for (const Modifier& modifier : {Modifier{"Ctrl+", FCONTROL}, {"Alt+", FALT}, {"Shift+", FSHIFT}})
        if (text.starts_with(modifier.name)) {
            flags |= modifier.flag;
            text.remove_prefix(modifier.name.size());
        }
    std::vector<ACCEL> keys;
    for (const WORD key : KeysNamed(text)) keys.push_back({flags, key, 0});
    return keys;
}

Menus::Menus(std::span<const Menu> newBar, std::span<const ContextEntry> newRoiMenu)
    : bar(newBar), roiMenu(newRoiMenu) {
    for (const Menu& menu : bar) Collect(menu.commands);
}

void Menus::Collect(std::span<const Command> entries) {
    for (const Command& entry : entries) {
        if (entry.id) commands.push_back(&entry);
        Collect(entry.submenu);
    }
}

const Command* Menus::CommandOf(int id) const {
    const auto found = std::find_if(commands.begin(), commands.end(), [id](const Command* command) {
        return id >= command->id && id <= std::max(command->id, command->last);
    });
    return found == commands.end() ? nullptr : *found;
}

HMENU Menus::MakeBar() const {
    const HMENU made = CreateMenu();
    for (const Menu& menu : bar)
        AppendMenuA(made, MF_POPUP, reinterpret_cast<UINT_PTR>(MakePopup(menu.commands)), menu.title);
    return made;
}

HMENU Menus::MakeRoiMenu() const {
    const HMENU menu = CreatePopupMenu();
    for (const ContextEntry& entry : roiMenu) {
        if (const Command* command = CommandOf(entry.command))
            Append(menu, *command, entry.text ? entry.text : command->text);
        else
            AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
    }
    return menu;
}

HACCEL Menus::MakeKeys() const {
    std::vector<ACCEL> all;
    for (const Command* command : commands)
        for (ACCEL key : KeysOf(command->key)) {
            if (IsHandledElsewhere(key)) continue;
            key.cmd = static_cast<WORD>(command->id);
            all.push_back(key);
        }
    return CreateAcceleratorTableA(all.data(), static_cast<int>(all.size()));
}

void Menus::OnOpen(int position, HMENU menu) const {
    const Menu& opened = bar[static_cast<std::size_t>(position)];
    if (opened.onOpen) opened.onOpen(menu);
}

}  // namespace kestview
