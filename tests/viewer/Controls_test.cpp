// Controls of KestView's windows that follow what they show and where they are.
#include <windows.h>

#include <commctrl.h>

#include "platform/ListView.h"
#include "support/ClassTests.h"
#include "window/Toolbar.h"

namespace test {
namespace {

class Controls : public testing::Test {
protected:
    Controls() { InitCommonControls(); }
    ~Controls() override { DestroyWindow(parent); }
    HWND parent = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 400, 300, nullptr, nullptr, nullptr, nullptr);
};

TEST_F(Controls, ANarrowColumnStaysUntilItsTextsNeedMoreThanEver) {
    const HWND list =
        CreateWindowExA(0, WC_LISTVIEWA, "", WS_CHILD | LVS_REPORT, 0, 0, 400, 300, parent, nullptr, nullptr, nullptr);
    const kestview::ListView view(list);
    std::vector<int> widest;
    view.AddColumn("Area", 10);
    view.SetRowCount(1);
    const auto fittedTo = [&](const char* text) {
        view.SetText(0, 0, text);
        view.FitColumns(widest);
        return SendMessageA(list, LVM_GETCOLUMNWIDTH, 0, 0);
    };
    const LRESULT first = fittedTo("123456");
    EXPECT_GT(first, 30);
    SendMessageA(list, LVM_SETCOLUMNWIDTH, 0, 20);
    EXPECT_EQ(fittedTo("654321"), 20);
    EXPECT_GT(fittedTo("123456789012"), first);
}

TEST_F(Controls, TheToolbarTakesTheRowsThatItsButtonsNeed) {
    kestview::Toolbar toolbar;
    ASSERT_TRUE(toolbar.Create(parent));
    const int oneRow = toolbar.Arrange(1000);
    for (const int width : {1000, 600, 400}) {
        SCOPED_TRACE(width);
        const int height = toolbar.Arrange(width);
        RECT place = {}, window = {};
        GetWindowRect(toolbar, &window);
        EXPECT_EQ(window.right - window.left, width);
        EXPECT_EQ(window.bottom - window.top, height);
        std::set<LONG> rows;
        for (WPARAM i = 0; i < static_cast<WPARAM>(SendMessageA(toolbar, TB_BUTTONCOUNT, 0, 0)); ++i) {
            SendMessageA(toolbar, TB_GETITEMRECT, i, reinterpret_cast<LPARAM>(&place));
            EXPECT_LE(place.right, width) << i;
            rows.insert(place.top);
        }
        EXPECT_EQ(rows.size(), width == 1000 ? 1u : width == 600 ? 2u : 3u);
        EXPECT_LE(place.bottom, height);
        EXPECT_LT(height, oneRow * static_cast<int>(rows.size() + 1)) << "no empty row";
    }
}

}  // namespace
}  // namespace test
