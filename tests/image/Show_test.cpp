// How the 8-bit image is shown: every display table and every form of Show, pixel by pixel.
#include "support/ClassTests.h"

using namespace test;

namespace {

unsigned PatternGray(int x, int y) { return Gray(PatternValue(x, y)); }

}  // namespace

TEST(Show, EveryWidthAndZoomIsExact) {
    TestWindow window(60, 48, RGB(0, 0, 64));
    for (const int width : {1, 2, 3, 4, 5, 17, 39, 40, 41, 130}) {
        CcGrayImage256 image;
        FillPattern(image, width, 33);
        for (const auto& [xOffset, yOffset, zoom] : {std::tuple{0, 0, 1},
                                                     {3, 5, 1},
                                                     {-4, -2, 1},
                                                     {-4, -2, 3},
                                                     {5, 7, 3},
                                                     {0, 0, 4},
                                                     {1, 2, 12},
                                                     {200, 0, 1}}) {
            window.Fill(RGB(0, 0, 64));
            ASSERT_EQ(image.Show(window, 102, 1, xOffset, yOffset, zoom), 0);
            const Picture expected = ExpectedPicture(60, 48, width, 33, xOffset, yOffset, zoom, PatternGray);
            EXPECT_EQ(window.Snapshot().DifferentFrom(expected), 0)
                << "width " << width << " offsets " << xOffset << ' ' << yOffset << " zoom " << zoom;
        }
    }
}

TEST(Show, StretchedToWindowAndRectangle) {
    TestWindow window(78, 66, RGB(0, 0, 64));
    CcGrayImage256 image;
    FillPattern(image, 39, 33);
    ASSERT_EQ(image.Show(window, 102, 0, 9, 9, 9), 0);
    EXPECT_EQ(window.Snapshot().DifferentFrom(ExpectedPicture(78, 66, 39, 33, 0, 0, 2, PatternGray)), 0);

    RECT rect = {5, 8, 83, 74};
    struct Case {
        unsigned short mode;
        int xOffset, yOffset, zoom, shownX, shownY, shownZoom;
    };
    for (const Case& c : {Case{2, 9, 9, 9, 0, 0, 2}, {1, 4, 6, 1, 4, 6, 1}, {1, 4, 6, 3, 4, 6, 3}}) {
        MemoryPicture memory(120, 110, RGB(0, 0, 64));
        ASSERT_EQ(image.Show(memory, &rect, 102, c.mode, c.xOffset, c.yOffset, c.zoom), 0);
        const Picture shown = memory.Snapshot();
        const Picture whole = ExpectedPicture(200, 200, 39, 33, c.shownX, c.shownY, c.shownZoom, PatternGray);
        int wrong = 0;
        for (int y = 0; y < 110; ++y)
            for (int x = 0; x < 120; ++x)
                wrong += shown.At(x, y) != (x < 5 || y < 8 ? windowBlue : whole.At(x - 5, y - 8));
        EXPECT_EQ(wrong, 0) << c.zoom;
    }
}

TEST(Show, ContextLargerThanTheWindowAndOneInAnotherScale) {
    TestWindow window(20, 16);
    CcGrayImage256 image;
    FillPattern(image, 39, 33);
    MemoryPicture memory(120, 110, RGB(0, 0, 64));
    ASSERT_EQ(image.Show(memory, window, 102, 1, 0, 0, 1), 0);
    EXPECT_EQ(memory.Snapshot().DifferentFrom(ExpectedPicture(120, 110, 39, 33, 0, 0, 1, PatternGray)), 0);
    // Twice as large; and where y grows upward, at 1:1 too.
    struct Case {
        int mapMode, scaleX, scaleY, bottom, shownZoom;
    };
    for (const Case& c : {Case{MM_ANISOTROPIC, 2, 2, 33, 2},
                          {MM_ANISOTROPIC, 1, -1, -33, 1},
                          {MM_ANISOTROPIC, 2, -2, -33, 2},
                          {MM_LOENGLISH, 1, -1, -33, 1}}) {
        MemoryPicture scaled(120, 110, RGB(0, 0, 64));
        SetMapMode(scaled, c.mapMode);
        SetViewportExtEx(scaled, c.scaleX, c.scaleY, nullptr);
        RECT rect = {0, 0, 39, c.bottom};
        ASSERT_EQ(image.Show(scaled, &rect, 102, 0, 0, 0, 1), 0);
        SetMapMode(scaled, MM_TEXT);
        const Picture shown = scaled.Snapshot();
        const Picture expected = ExpectedPicture(120, 110, 39, 33, 0, 0, c.shownZoom, PatternGray);
        if (c.mapMode == MM_ANISOTROPIC) {
            EXPECT_EQ(shown.DifferentFrom(expected), 0) << c.scaleY;
            continue;
        }
        // A unit is about a pixel: its corners, and what is far from it.
        EXPECT_EQ(shown.At(0, 0), expected.At(0, 0));
        EXPECT_NE(shown.At(34, 28), windowBlue);
        EXPECT_EQ(shown.At(45, 40), windowBlue);
    }
}

TEST(Show, DisplayTables) {
    TestWindow window(256, 4);
    CcGrayImage256 image;
    image.MakeBlankBMP(4, 256, 0, "ramp");
    auto* bytes = static_cast<std::uint8_t*>(image.GetBitMapImageData());
    for (int i = 0; i < 1024; ++i) bytes[i] = static_cast<std::uint8_t>(i);
    const auto expectRamp = [&](unsigned short lut, const char* what, const std::function<unsigned(int)>& colour) {
        ASSERT_EQ(image.Show(window, lut, 1, 0, 0, 1), 0);
        const Picture shown = window.Snapshot();
        int wrong = 0;
        for (int level = 0; level < 256; ++level) wrong += shown.At(level, 2) != colour(level);
        EXPECT_EQ(wrong, 0) << what << " LUT " << lut;
    };
    for (unsigned short lut = 100; lut <= 102; ++lut) expectRamp(lut, "fresh", Gray);
    expectRamp(103, "fresh", [](int v) { return Gray(v / 2 * 2); });
    expectRamp(104, "fresh", [](int v) { return Gray(v / 4 * 4); });

    // Levels are cut off at 0 and 255, and steps are those of the table.
    const auto setList = [&](unsigned short lut, int channel, const std::function<float(float)>& level) {
        tagPoints points[256];
        EXPECT_EQ(image.GetDisplayLUT(lut, channel, points), 0);
        for (tagPoints& point : points) point.y = level(point.x);
        EXPECT_EQ(image.SetDisplayLUT(lut, channel, points), 0);
    };
    setList(102, 0, [](float x) { return 255 - x; });
    expectRamp(102, "negative", [](int v) { return Gray(255 - v); });
    setList(103, 0, [](float x) { return 254 - x; });
    expectRamp(103, "negative", [](int v) { return Gray((254 - v / 2 * 2) / 2 * 2); });
    setList(104, 0, [](float x) { return x < 128 ? 300.0F : x < 200 ? -5.0F : NAN; });
    expectRamp(104, "clamped", [](int v) { return v < 128 ? Gray(252) : 0u; });
    setList(101, 2, [](float) { return 40.5F; });
    expectRamp(101, "green", [](int v) { return (Gray(v) & 0xFF00FFu) | 40u << 8; });
    // The other tables are as they were; the DIB carries the colours shown last.
    expectRamp(100, "after", Gray);

    tagPoints points[256];
    EXPECT_EQ(image.GetDisplayLUT(101, 2, points), 0);
    points[1].x = 1.5F;
    EXPECT_EQ(image.SetDisplayLUT(101, 7, points), -1);
    points[1].x = 1.0F;
    EXPECT_EQ(image.SetDisplayLUT(101, 7, points), 0);
    expectRamp(101, "no channel 7", [](int v) { return (Gray(v) & 0xFF00FFu) | 40u << 8; });
    ExpectAll(-1, {image.SetDisplayLUT(103, 0, points), image.SetDisplayLUT(102, 1, points),
                   image.SetDisplayLUT(105, 0, points), image.GetDisplayLUT(102, 1, points),
                   image.GetDisplayLUT(101, 0, points), image.GetDisplayLUT(100, 0, points)});
    ExpectAll(-1, {image.SetDisplayLUT(102, 0, nullptr), image.GetDisplayLUT(102, 0, nullptr)});
}

TEST(Show, FileColoursAndUnknownTables) {
    Bytes file = BmpFile8(4, 1, {0, 1, 2, 255});
    const std::uint8_t second[] = {10, 20, 30}, last[] = {1, 2, 3};
    std::copy_n(second, 3, file.begin() + 54 + 4 * 1);
    std::copy_n(last, 3, file.begin() + 54 + 4 * 255);
    const TemporaryFile path("coloured.bmp", file);
    CcGrayImage256 image;
    ASSERT_EQ(image.OpenBMPFile(path.Path()), 0);
    TestWindow window(4, 1);
    const auto rowShown = [&](unsigned short lut) {
        EXPECT_EQ(image.Show(window, lut, 1, 0, 0, 1), 0);
        return window.Snapshot().pixels;
    };
    const std::vector<unsigned> own = {0, 0x1E140A, 0x020202, 0x030201};
    EXPECT_EQ(rowShown(100), own);
    EXPECT_EQ(rowShown(101), (std::vector<unsigned>{0, 0x010101, 0x020202, 0xFFFFFF}));
    EXPECT_EQ(rowShown(105), (std::vector<unsigned>{0, 0x010101, 0x020202, 0xFFFFFF}));
    EXPECT_EQ(TakeBoxes(), (Boxes{{"ERROR", "Returned NULL from SelectPalette"}}));
    EXPECT_EQ(rowShown(100), own);
}

TEST(Show, PictureReplacedWhileAMessageIsShown) {
    TestWindow window(30, 20);
    MemoryPicture memory(30, 20);
    RECT rect = {0, 0, 30, 20};
    const std::function<int(CcImage&)> forms[] = {
        [&](CcImage& image) { return image.Show(window, 105, 0, 0, 0, 1); },
        [&](CcImage& image) { return image.Show(memory, window, 105, 0, 0, 0, 1); },
        [&](CcImage& image) { return image.Show(memory, &rect, 105, 0, 0, 0, 1); },
    };
    for (std::size_t form = 0; form < std::size(forms); ++form) {
        CcGrayImage256 image, loaded;
        image.MakeBlankBMP(2000, 2000, 200, "large");
        // The message's host makes a smaller picture, of a level that the first one does not have.
        DuringNextBox([&] { image.MakeBlankBMP(5, 5, 77, "small"); });
        EXPECT_EQ(forms[form](image), 0);
        EXPECT_EQ((form == 0 ? window.Snapshot() : memory.Snapshot()).At(15, 10), Gray(77)) << form;
        // Or one that cannot be opened: nothing is left to draw.
        image.MakeBlankBMP(2000, 2000, 200, "large");
        DuringNextBox([&] { image.OpenBMPFile("there is no such file.bmp"); });
        EXPECT_EQ(forms[form](image), 0);
    }
    EXPECT_EQ(TakeBoxes().size(), 9u);
}

TEST(Show, LargestZoomsAndRectangles) {
    CcGrayImage256 image;
    FillPattern(image, 39, 33);
    // A pixel's top left corner, or its middle, lies in the picture; what is asked for exceeds every surface.
    struct Case {
        RECT rect;
        unsigned short mode;
        int xOffset, yOffset, zoom, leftLevel, rightLevel;
    };
    const int corner = PatternValue(0, 32), second = PatternValue(1, 32);
    const int limit = INT_MAX;
    for (const Case& c : {Case{{0, 0, 1, 1}, 1, 0, 0, 1 << 30, corner, corner},
                          {{30 - (1 << 30), 0, 1, 1}, 1, 0, 0, 1 << 30, corner, second},
                          {{30 - limit, -5, 1, 1}, 1, 0, 0, limit, corner, second},
                          {{0, 0, 1, 1}, 1, INT_MIN, 0, limit, -1, -1},
                          {{0, 0, 1, 1}, 1, 0, INT_MAX, limit, -1, -1},
                          {{0, 0, limit, limit}, 0, 0, 0, 1, corner, corner},
                          {{-limit, -limit, limit, limit}, 0, 0, 0, 1, PatternValue(19, 16), PatternValue(19, 16)},
                          {{limit, limit, -limit, -limit}, 0, 0, 0, 1, PatternValue(19, 16), PatternValue(19, 16)},
                          {{30 - 39 * 200'000, 0, 1, 1}, 1, 0, 0, 200'000, PatternValue(38, 32), -1}}) {
        MemoryPicture memory(60, 20, RGB(0, 0, 64));
        RECT rect = c.rect;
        EXPECT_EQ(image.Show(memory, &rect, 102, c.mode, c.xOffset, c.yOffset, c.zoom), 0);
        const Picture shown = memory.Snapshot();
        const auto expected = [](int level) { return level < 0 ? windowBlue : Gray(level); };
        for (const int y : {0, 9, 19})
            EXPECT_EQ(std::pair(shown.At(29, y), shown.At(30, y)),
                      std::pair(expected(c.leftLevel), expected(c.rightLevel)))
                << rect.left << " zoom " << c.zoom;
    }
    image.MakeBlankBMP(33, 39, 0, "small");
    TestWindow window(30, 20);
    image.GetOverlay();
    for (const int offset : {INT_MIN, 0, INT_MAX})
        for (const int zoom : {2, 1 << 30, limit}) {
            POINT inWindow = {limit, -limit}, pixel;
            tagPoints position;
            EXPECT_EQ(image.Show(window, 102, 1, offset, offset, zoom), 0);
            EXPECT_EQ(image.ShowOverlay(window, 1, offset, offset, zoom), 0);
            EXPECT_EQ(image.ConvertPointToImageCoords(window, offset, offset, 1, &inWindow, &pixel, zoom), 0);
            EXPECT_EQ(image.ConvertPointToImageCoords(window, offset, offset, 1, &inWindow, &position, zoom), 0);
        }
}

TEST(Show, DeviceContextStaysAsItWas) {
    CcGrayImage256 image;
    EXPECT_EQ(image.Show(HDC{}, HWND{}, 100, 1, 0, 0, 1), -1);
    EXPECT_EQ(image.Show(HDC{}, static_cast<RECT*>(nullptr), 100, 1, 0, 0, 1), -1);
    EXPECT_EQ(image.Show(HWND{}, 100, 1, 0, 0, 1), 0);
    FillPattern(image, 39, 33);
    TestWindow window(50, 40, RGB(0, 0, 64));
    const HDC dc = GetDC(window);
    EXPECT_EQ(image.Show(dc, static_cast<RECT*>(nullptr), 100, 1, 0, 0, 1), 0);
    SetStretchBltMode(dc, HALFTONE);
    const HGDIOBJ palette = GetCurrentObject(dc, OBJ_PAL);
    EXPECT_EQ(image.Show(dc, window, 103, 0, 0, 0, 1), 0);
    EXPECT_EQ(GetStretchBltMode(dc), HALFTONE);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_PAL), palette);
    ReleaseDC(window, dc);
}
