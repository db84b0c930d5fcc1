// The rectangle: queries, drawing, and dragging with the real mouse.
#include "CcRoiRect.h"

#include <gtest/gtest.h>

#include "KestApi.h"
#include "roi/Host.h"
#include "support/TestWindow.h"

using test::Sides;
using test::SidesOf;

namespace {

struct OpenRect : CcRoiRect {
    using CcRoiRect::iDragMode;
    using CcRoiRect::iHitCode;
};

using Host = test::Host<OpenRect>;

}  // namespace

TEST(CcRoiRect, Queries) {
    CcRoiRect roi;
    // A rectangle of one pixel.
    ASSERT_NE(roi.GetBoundingRect(), nullptr);
    int count = 9;
    ASSERT_NE(roi.GetXBoundary(0, &count), nullptr);
    EXPECT_EQ(count, 1);

    RECT record = {10, 30, 20, 5};
    roi.SetRoiImageCord(&record);
    ASSERT_EQ(roi.GetBoundingRect()->right, 20);
    const int* columns = roi.GetXBoundary(7, &count);
    ASSERT_EQ(count, 11);
    EXPECT_EQ(columns[10], 20);
    const int* rows = roi.GetYBoundary(12, &count);
    ASSERT_EQ(count, 26);
    EXPECT_EQ(rows[25], 30);
    // A record that grows behind the buffer's back is not written past it.
    record = {0, 1000, 1000, 0};
    roi.SetRoiImageCord(&record);
    EXPECT_EQ(roi.GetXBoundary(0, &count), nullptr);
    record = {5, 4, 4, 5};
    roi.SetRoiImageCord(&record);
    roi.GetBoundingRect();
    roi.GetXBoundary(4, &count);
    EXPECT_EQ(count, 0);
}

TEST(CcRoiRect, AClickGivesAPixelMoreThanNothing) {
    Host host;
    host.window.MoveMouse(30, 40);
    host.window.PressButton();
    host.window.ReleaseButton();
    EXPECT_EQ(SidesOf(host.roi), (Sides{30, 59, 31, 58}));
}

TEST(CcRoiRect, MovingKeepsItInTheClientArea) {
    Host host;
    host.window.Drag({10, 10}, {59, 49});
    host.dragMode = KEST_DRAG_MOVE;
    host.window.Drag({20, 20}, {-100, -100});
    EXPECT_EQ(SidesOf(host.roi), (Sides{0, 99, 50, 59}));
    // A miss does not forget the handle that was hit last.
    EXPECT_EQ(host.HitTest(50, 20), 4);
    EXPECT_EQ(host.HitTest(150, 140), -1);
    EXPECT_EQ(host.roi.iHitCode, 4);
}

TEST(CcRoiRect, RubberBandVanishesAndFailedStartsAreReleased) {
    Host host;
    const test::Picture before = host.window.Snapshot();
    host.window.MoveMouse(20, 20);
    host.window.PressButton();
    host.window.MoveMouse(60, 70);
    EXPECT_GT(host.window.Snapshot().DifferentFrom(before), 100);
    host.window.ReleaseButton();
    EXPECT_EQ(host.window.Snapshot().DifferentFrom(before), 0);

    const POINT mouse = {5, 5};
    for (const int mode : {0, 4, -1})
        EXPECT_EQ(host.roi.StartMouseDrag(host.window, 0, 0, 1, &host.image, mouse, mode, nullptr, 1), -1);
    EXPECT_EQ(host.roi.iDragMode, -1);
    EXPECT_EQ(host.roi.DoMouseDrag(host.window, 0, 0, 1, &host.image, mouse, 0), -1);
    EXPECT_EQ(host.roi.StopMouseDrag(host.window, 0, 0, 1, &host.image, mouse), -1);
    CcRoiRect source;
    RECT record = {30, 60, 50, 40};
    source.SetRoiImageCord(&record);
    EXPECT_EQ(host.roi.StartMouseDrag(host.window, 0, 0, 1, &host.image, mouse, 0, &source, 1), 0);
    EXPECT_EQ(SidesOf(host.roi), (Sides{30, 60, 50, 40}));
    // Without an image the shape stays where it is.
    EXPECT_EQ(host.roi.DoMouseDrag(host.window, 0, 0, 1, nullptr, {8, 9}, 0), 0);
    EXPECT_EQ(SidesOf(host.roi), (Sides{30, 60, 50, 40}));
    EXPECT_EQ(host.roi.StopMouseDrag(host.window, 0, 0, 1, &host.image, {8, 9}), 0);
    EXPECT_EQ(SidesOf(host.roi), (Sides{33, 56, 53, 36}));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST(CcRoiRect, Shown) {
    test::TestWindow window(80, 60, RGB(0, 0, 64));
    CcGrayImage256 image;
    image.MakeBlankBMP(60, 80, 0, "i");
    CcRoiRect roi;
    RECT record = {10, 49, 40, 29};
    roi.SetRoiImageCord(&record);
    EXPECT_EQ(roi.ShowROI(HWND{}, 0, 0, 1, &image, 1, 0), -1);
    EXPECT_EQ(roi.ShowROI(window, 0, 0, 1, nullptr, 1, 0), -1);
    const HDC dc = GetDC(window);
    EXPECT_EQ(roi.ShowROI(dc, static_cast<RECT*>(nullptr), 0, 0, 1, &image, 1, 0), -1);
    const HGDIOBJ pen = GetCurrentObject(dc, OBJ_PEN), brush = GetCurrentObject(dc, OBJ_BRUSH);
    EXPECT_EQ(roi.ShowROI(dc, window, 0, 0, 1, &image, 1, 0), 0);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_PEN), pen);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_BRUSH), brush);
    const test::Picture shown = window.Snapshot();
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
