// The menus as they are shown: every entry does something, tells what, and its key is a key of its own.
#include "commands/AllMenus.h"
#include "panes/SidePanes.h"
#include "platform/Guards.h"
#include "support/ClassTests.h"

namespace test {
namespace {

struct Walk {
    const kestview::Menus menus = kestview::AllMenus();
    std::set<int> seen;
    std::map<std::pair<int, int>, std::string> keys;  ///< the entry of each key

    void CheckEntry(int id, const std::string& text) {
        const kestview::Command* command = menus.CommandOf(id);
        ASSERT_TRUE(command && command->run && command->isEnabled) << "does nothing";
        EXPECT_TRUE(seen.insert(id).second) << "is the second one with its number";
        EXPECT_STRNE(command->tip, "");
        const std::size_t tab = text.find('\t');
        if (tab == std::string::npos) return;
        const std::vector<ACCEL> meant = kestview::KeysOf(text.substr(tab + 1));
        EXPECT_FALSE(meant.empty()) << "what is behind the tab is no key";
        for (const ACCEL& key : meant) {
            const auto [place, isNew] = keys.insert({{key.fVirt, key.key}, text});
            EXPECT_TRUE(isNew) << "has the key of " << place->second;
        }
    }

    void CheckMenu(HMENU menu) {
        for (int i = 0; i < GetMenuItemCount(menu); ++i) {
            char text[128] = {};
            GetMenuStringA(menu, static_cast<UINT>(i), text, sizeof text, MF_BYPOSITION);
            SCOPED_TRACE(text);
            if (const HMENU popup = GetSubMenu(menu, i))
                CheckMenu(popup);
            else if (const UINT id = GetMenuItemID(menu, i))
                CheckEntry(static_cast<int>(id), text);
        }
    }
};

TEST(Menus, EveryEntryHasACommandATipAndItsOwnKey) {
    Walk walk;
    const kestview::HeldMenu bar(walk.menus.MakeBar());
    walk.CheckMenu(bar);
    EXPECT_EQ(walk.seen.size() + 2, walk.menus.Commands().size()) << "all but recent files and tools";
    // Keys that the menu only shows are left to others: Del to the part with the focus, Alt+F4 to the system.
    const kestview::HeldKeys keys(walk.menus.MakeKeys());
    EXPECT_EQ(CopyAcceleratorTableA(keys, nullptr, 0) + 2, static_cast<int>(walk.keys.size()));

    Walk roiMenu;
    const kestview::HeldMenu menu(roiMenu.menus.MakeRoiMenu());
    roiMenu.CheckMenu(menu);
    EXPECT_GT(roiMenu.seen.size(), 0u);

    for (const kestview::SidePane& pane : kestview::SidePanes())
        EXPECT_TRUE(walk.seen.contains(pane.command)) << pane.title << " is in no menu";
}

}  // namespace
}  // namespace test
