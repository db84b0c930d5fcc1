// ROIs as they are drawn, pixel by pixel.
#include "roi/DraggingHost.h"

using namespace test;

TEST(ShownRois, RectanglesWithTheirHandles) {
    TestWindow window(80, 60, RGB(0, 0, 64));
    CcGrayImage256 image;
    image.MakeBlankBMP(60, 80, 0, "i");
    CcRoiRect roi;
    SetBox(roi, {10, 49, 40, 29});
    ExpectAll(-1, {roi.ShowROI(HWND{}, 0, 0, 1, &image, 1, 0), roi.ShowROI(window, 0, 0, 1, nullptr, 1, 0)});
    const HDC dc = GetDC(window);
    EXPECT_EQ(roi.ShowROI(dc, static_cast<RECT*>(nullptr), 0, 0, 1, &image, 1, 0), -1);
    const HGDIOBJ pen = GetCurrentObject(dc, OBJ_PEN), brush = GetCurrentObject(dc, OBJ_BRUSH);
    EXPECT_EQ(roi.ShowROI(dc, window, 0, 0, 1, &image, 1, 0), 0);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_PEN), pen);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_BRUSH), brush);
    const Picture shown = window.Snapshot();
    for (const POINT at : {POINT{10, 10}, POINT{40, 30}, POINT{40, 10}, POINT{10, 30}, POINT{27, 10}, POINT{40, 25}})
        EXPECT_EQ(shown.At(at.x, at.y), 0x00FF00u) << at.x << ' ' << at.y;
    EXPECT_EQ(shown.At(41, 30), 0x000040u);
    EXPECT_EQ(shown.At(11, 11), 0x000040u);
    for (const POINT handle : {POINT{25, 10}, POINT{25, 30}, POINT{10, 20}, POINT{40, 20}})
        for (int y = -2; y < 2; ++y)
            for (int x = -2; x < 2; ++x) EXPECT_EQ(shown.At(handle.x + x, handle.y + y), 0xFFFFFFu);

    roi.SetSelected(1);
    roi.ShowROI(window, 0, 0, 1, &image, 1, -1);
    EXPECT_EQ(window.Snapshot().At(10, 10), 0xFF0000u);
    RECT client = {0, 0, 80, 60};
    roi.ShowROI(dc, &client, 0, 0, 1, &image, 1, 7);
    EXPECT_EQ(window.Snapshot().At(10, 10), 0x00FF00u);
    ReleaseDC(window, dc);
}

TEST(ShownRois, PixelsOfEveryKind) {
    const auto expectPixels = [](auto& host, std::initializer_list<POINT> on, std::initializer_list<POINT> off) {
        host.window.Fill(RGB(0, 0, 64));
        host.Show(1);
        const Picture shown = host.window.Snapshot();
        for (const POINT& at : on) EXPECT_EQ(shown.At(at.x, at.y), 0xFF0000u) << at.x << ' ' << at.y;
        for (const POINT& at : off) EXPECT_EQ(shown.At(at.x, at.y), 0x000040u) << at.x << ' ' << at.y;
    };
    Host<CcRoiEllipse> ellipse;
    SetBox(ellipse.roi, {20, 79, 60, 39});  // window 20, 20 to 60, 60
    expectPixels(ellipse, {{20, 40}, {40, 20}, {59, 40}, {40, 59}}, {{60, 40}, {40, 60}, {20, 20}, {40, 40}});

    Host<CcRoiLine> line;
    SetBox(line.roi, {10, 89, 30, 79});  // window 10, 10 to 30, 20
    expectPixels(line, {{10, 10}, {20, 15}, {28, 19}}, {{30, 20}, {9, 10}});
    line.zoom = 3;
    expectPixels(line, {{30, 30}, {60, 45}}, {{90, 60}});

    Host<CcRoiPolyFreeHand> closed;
    SetOutline(closed.roi, {{10, 89}, {11, 89}, {12, 88}, {12, 87}, {11, 88}});
    expectPixels(closed, {{10, 10}, {11, 10}, {12, 11}, {12, 12}, {11, 11}}, {{13, 11}, {10, 11}});
    const PixelGroupTag& outline = OutlineOf(closed.roi);
    EXPECT_EQ(outline.iRed, 255);
    closed.Show(0);
    EXPECT_EQ(outline.iGreen, 255);
    EXPECT_EQ(outline.iRed, 0);

    Host<CcRoiPoint> mark;
    tagPoints point = {50.0F, 49.0F};  // window 50, 50
    mark.roi.SetRoiImageCord(&point);
    mark.roi.SetName("");
    expectPixels(mark, {{50, 50}, {35, 50}, {64, 50}, {50, 35}, {50, 64}, {40, 50}, {50, 40}, {59, 50}},
                 {{65, 50}, {34, 50}, {50, 65}, {56, 44}});
    const Picture without = mark.window.Snapshot();
    mark.roi.SetName("P.8");
    mark.Show(1);
    const Picture with = mark.window.Snapshot();
    // The device context's own colour, black.
    EXPECT_NE(std::find(with.pixels.begin(), with.pixels.end(), 0u), with.pixels.end());
    int left = 999, bottom = 0;
    for (int i = 0; i < with.width * with.height; ++i)
        if (with.pixels[i] != without.pixels[i]) {
            left = std::min(left, i % with.width);
            bottom = i / with.width;
        }
    EXPECT_NEAR(left, 60, 2);
    EXPECT_LT(bottom, 42);
    // Within a pixel, the mark lies within the magnified pixel.
    point = {10.5F, 89.5F};
    mark.roi.SetRoiImageCord(&point);
    mark.zoom = 4;
    expectPixels(mark, {{42, 38}}, {});
}
