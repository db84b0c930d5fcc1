// The sample tool as a host meets it: loaded, opened on the current image, told of changes, closed, unloaded.
#include "support/ClassTests.h"

using namespace test;

namespace {

// The plot lies within a margin, two pixels a step of the histogram.
constexpr int margin = 10, plotWidth = 512, plotBottom = margin + 200;
constexpr unsigned white = 0xFFFFFF;

Picture Look(HWND window) {
    PumpMessages(30);
    return PictureOf(window);
}

/// Pixels of the plot's column over a histogram step that are not white, without its frame.
int BarHeight(const Picture& picture, int step) {
    int height = 0;
    for (int y = margin + 1; y < plotBottom - 1; ++y) height += picture.At(margin + 2 * step + 1, y) != white;
    return height;
}

TEST(HistogramTool, ShowsTheHostsCurrentImage) {
    CLOADDLL tool;
    ASSERT_EQ(tool.LoadDll("HistogramTool.dll"), 0);
    EXPECT_STREQ(tool.GetMenuText(), "&Histogram");
    for (HBITMAP bitmap : {tool.GetToolBitMap(), tool.GetToolBitMapSelected()}) {
        BITMAP info = {};
        GetObjectA(bitmap, sizeof info, &info);
        EXPECT_TRUE(info.bmWidth == 24 && info.bmHeight == 24);
    }
    EXPECT_EQ(tool.SendMessageToTools(KEST_TOOL_IMAGE_CHANGED, 0, 0), 0);  // before it is open

    // A quarter of the pixels 200, the others 60: bars of a third and of the whole height.
    CcGrayImage256 grey;
    grey.MakeBlankBMP(16, 16, 60, "grey");
    std::memset(grey.GetBitMapImageData(), 200, 64);
    CcImage* current = &grey;
    TestWindow host(600, 400);
    const HWND window = tool.CallDllMainFunction(host, &current);
    ASSERT_TRUE(IsWindow(window));
    EXPECT_EQ(GetWindow(window, GW_OWNER), host);
    EXPECT_EQ(tool.CallDllMainFunction(host, &current), window);
    Picture picture = Look(window);
    ASSERT_EQ(picture.width, plotWidth + 2 * margin);
    EXPECT_EQ(BarHeight(picture, 60), 198);
    EXPECT_EQ(BarHeight(picture, 200), 65);
    EXPECT_EQ(BarHeight(picture, 61), 0);

    std::memset(grey.GetBitMapImageData(), 10, 256);
    tool.SendMessageToTools(KEST_TOOL_PIXELS_CHANGED, 0, 0);
    picture = Look(window);
    EXPECT_EQ(BarHeight(picture, 10), 198);
    EXPECT_EQ(BarHeight(picture, 60), 0);

    // Of samples that are no numbers, the numbers only: 0 lies a quarter of the way from -1 to 3.
    CcGrayImageFloat real;
    real.MakeBlankBMP(1, 5, 0, "real");
    std::copy_n(std::array{NAN, -1.0F, 3.0F, 0.0F, INFINITY}.begin(), 5,
                static_cast<float*>(real.GetBitMapImageData()));
    current = &real;
    tool.SendMessageToTools(KEST_TOOL_IMAGE_CHANGED, 0, 0);
    picture = Look(window);
    EXPECT_EQ(std::pair(BarHeight(picture, 0), BarHeight(picture, 63)), std::pair(198, 198));

    current = nullptr;
    tool.SendMessageToTools(KEST_TOOL_IMAGE_CHANGED, 0, 0);
    EXPECT_EQ(BarHeight(Look(window), 10), 0);

    EXPECT_EQ(tool.CloseAllOpenTools(), 0);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(tool.UNLoadDll(), 0);
    EXPECT_EQ(GetModuleHandleA("HistogramTool.dll"), nullptr);
}

TEST(HistogramTool, LeavesNothingBehind) {
    const auto use = [] {
        CLOADDLL tool;
        tool.LoadDll("HistogramTool.dll");
        CcImage* current = nullptr;
        TestWindow host(100, 100);
        Look(tool.CallDllMainFunction(host, &current));
        tool.CloseAllOpenTools();
    };
    use();  // the system's own first objects
    const int before = TakeCensus().gdiObjects;
    use();
    EXPECT_EQ(TakeCensus().gdiObjects, before);
}

}  // namespace
