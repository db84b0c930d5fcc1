// The rectangle: record, queries, files, and dragging with the real mouse.
#include "CcRoiRect.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "KestApi.h"
#include "image/Support.h"
#include "roi/Host.h"
#include "support/Dialogs.h"
#include "support/TestWindow.h"

using test::Bytes;

namespace {

struct OpenRect : CcRoiRect {
    using CcRoiRect::hDragDC;
    using CcRoiRect::iDragMode;
    using CcRoiRect::iHitCode;
};

RECT RecordOf(CcRoiRect& roi) { return *static_cast<RECT*>(roi.GetRoiImageCord()); }

void ExpectRecord(CcRoiRect& roi, LONG left, LONG top, LONG right, LONG bottom) {
    const RECT record = RecordOf(roi);
    EXPECT_EQ(record.left, left);
    EXPECT_EQ(record.top, top);
    EXPECT_EQ(record.right, right);
    EXPECT_EQ(record.bottom, bottom);
}

Bytes RectFile(float version, int type, int size, const std::string& name) {
    return Bytes().F32(version).I32(type).I32(size).Text(name, 260).I32(3).I32(9).I32(7).I32(4);
}

using Host = test::Host<OpenRect>;

}  // namespace

TEST(CcRoiRect, NamesAndQueries) {
    const int before = CcRoiRect::iRectROICount;
    OpenRect roi;
    EXPECT_EQ(roi.GetName(), "Rect." + std::to_string(before + 1));
    EXPECT_EQ(roi.GetROIType(), 0);
    const CcRoiRect copy(roi);
    EXPECT_EQ(CcRoiRect::iRectROICount, before + 1);
    int count = 9;
    EXPECT_EQ(roi.SetRoiImageCord(nullptr), -1);
    EXPECT_EQ(roi.GetXBoundary(0, &count), nullptr);
    EXPECT_EQ(count, 0);
    // A rectangle of one pixel.
    ASSERT_NE(roi.GetBoundingRect(), nullptr);
    ASSERT_NE(roi.GetXBoundary(0, &count), nullptr);
    EXPECT_EQ(count, 1);

    RECT record = {10, 30, 20, 5};
    roi.SetRoiImageCord(&record);
    EXPECT_EQ(roi.GetCurrentBoundingRect()->top, 30);
    ASSERT_EQ(roi.GetBoundingRect()->right, 20);
    const int* columns = roi.GetXBoundary(7, &count);
    ASSERT_EQ(count, 11);
    EXPECT_EQ(columns[0], 10);
    EXPECT_EQ(columns[10], 20);
    const int* rows = roi.GetYBoundary(12, &count);
    ASSERT_EQ(count, 26);
    EXPECT_EQ(rows[0], 5);
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
    record = {INT_MIN, INT_MAX, INT_MAX, INT_MIN};
    roi.SetRoiImageCord(&record);
    EXPECT_EQ(roi.GetBoundingRect(), nullptr);
    EXPECT_EQ(roi.GetXBoundary(0, &count), nullptr);
    EXPECT_EQ(roi.UpdateImageIfNeeded(nullptr, 0, 0, 1, nullptr, 1), 0);
}

TEST(CcRoiRect, FilesToTheByte) {
    CcRoiRect roi;
    roi.SetName("file roi");
    RECT record = {3, 9, 7, 4};
    roi.SetRoiImageCord(&record);
    const test::TemporaryFile file("rect.roi", Bytes().Fill(400, 1));
    EXPECT_EQ(roi.Save(file.Path()), 0);
    EXPECT_EQ(file.Content(), RectFile(1.0F, 0, 16, "file roi"));
    EXPECT_EQ(roi.Save("no such folder\\x.roi"), -1);

    CcRoiRect back;
    EXPECT_EQ(back.Restore(file.Path()), 0);
    EXPECT_STREQ(back.GetName(), "file roi");
    ExpectRecord(back, 3, 9, 7, 4);
    Bytes shortened = RectFile(1.0F, 0, 16, "x");
    shortened.pop_back();
    for (const Bytes& bad : {RectFile(1.5F, 0, 16, "x"), RectFile(1.0F, 4, 16, "x"), RectFile(1.0F, 0, 8, "x"),
                             RectFile(1.0F, 0, -16, "x"), RectFile(1.0F, 0, INT_MAX, "x"), shortened, Bytes()}) {
        const test::TemporaryFile refused("bad.roi", bad);
        EXPECT_EQ(back.Restore(refused.Path()), -1);
        EXPECT_STREQ(back.GetName(), "file roi");
        ExpectRecord(back, 3, 9, 7, 4);
    }
    EXPECT_EQ(back.Restore("none.roi"), -1);
    const test::TemporaryFile fullName("full.roi", RectFile(1.0F, 0, 16, std::string(260, 'f')));
    EXPECT_EQ(back.Restore(fullName.Path()), 0);
    EXPECT_EQ(back.GetName(), std::string(259, 'f'));
}

TEST(CcRoiRect, DrawnMovedAndResizedWithTheMouse) {
    Host host;
    host.window.Drag({10, 5}, {20, 15});
    // Released where the last movement left it, it keeps a pixel more.
    ExpectRecord(host.roi, 10, 94, 21, 83);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(HDC(host.roi.hDragDC), nullptr);

    host.dragMode = KEST_DRAG_MOVE;
    host.window.Drag({15, 10}, {45, 30});
    ExpectRecord(host.roi, 40, 74, 51, 63);

    // The right edge is dragged past the left one: the sides are put in order.
    EXPECT_EQ(host.roi.MouseHitTest(host.window, 0, 0, 1, &host.image, {51, 30}, 1), 4);
    EXPECT_EQ(host.roi.iHitCode, 4);
    host.dragMode = KEST_DRAG_RESIZE;
    host.window.Drag({51, 30}, {20, 33});
    ExpectRecord(host.roi, 20, 74, 40, 63);
    EXPECT_EQ(host.roi.MouseHitTest(host.window, 0, 0, 1, &host.image, {150, 140}, 1), -1);
    EXPECT_EQ(host.roi.iHitCode, 4);
}

TEST(CcRoiRect, AClickGivesAPixelMoreThanNothing) {
    Host host;
    host.window.MoveMouse(30, 40);
    host.window.PressButton();
    host.window.ReleaseButton();
    ExpectRecord(host.roi, 30, 59, 31, 58);
}

TEST(CcRoiRect, MovingKeepsItInTheClientArea) {
    Host host;
    host.window.Drag({10, 10}, {59, 49});
    host.dragMode = KEST_DRAG_MOVE;
    host.window.Drag({20, 20}, {-100, -100});
    RECT record = RecordOf(host.roi);
    EXPECT_EQ(record.left, 0);
    EXPECT_EQ(record.top, 99);
    EXPECT_EQ(record.right - record.left, 50);
    RECT clip, screen = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    GetClipCursor(&clip);
    EXPECT_TRUE(EqualRect(&clip, &screen));
}

TEST(CcRoiRect, ZoomedAndStretched) {
    Host host;
    host.zoom = 3;
    host.xOffset = 4;
    host.yOffset = 6;
    host.window.Drag({7, 8}, {61, 47});
    // Columns 7 / 3 + 4 and 62 / 3 + 4, rows 99 - 8 / 3 - 6 and 99 - 48 / 3 - 6.
    ExpectRecord(host.roi, 6, 91, 24, 77);
    host.display = 0;
    host.window.Drag({0, 0}, {100, 75});
    ExpectRecord(host.roi, 0, 99, 60, 48);
    // Outward of the image the sides are clamped.
    host.display = 1;
    host.zoom = 1;
    host.xOffset = host.yOffset = 0;
    host.window.Drag({100, 80}, {180, 140});
    ExpectRecord(host.roi, 100, 19, 119, 0);
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
    EXPECT_EQ(host.roi.StartMouseDrag(host.window, 0, 0, 1, &host.image, mouse, 0, nullptr, 1), -1);
    EXPECT_EQ(host.roi.iDragMode, -1);
    EXPECT_EQ(host.roi.StartMouseDrag(host.window, 0, 0, 1, &host.image, mouse, 4, nullptr, 1), -1);
    EXPECT_EQ(host.roi.DoMouseDrag(host.window, 0, 0, 1, &host.image, mouse, 0), -1);
    EXPECT_EQ(host.roi.StopMouseDrag(host.window, 0, 0, 1, &host.image, mouse), -1);
    CcRoiRect source;
    RECT record = {30, 60, 50, 40};
    source.SetRoiImageCord(&record);
    EXPECT_EQ(host.roi.StartMouseDrag(host.window, 0, 0, 1, &host.image, mouse, 0, &source, 1), 0);
    ExpectRecord(host.roi, 30, 60, 50, 40);
    // Without an image the shape stays where it is.
    EXPECT_EQ(host.roi.DoMouseDrag(host.window, 0, 0, 1, nullptr, {8, 9}, 0), 0);
    ExpectRecord(host.roi, 30, 60, 50, 40);
    EXPECT_EQ(host.roi.StopMouseDrag(host.window, 0, 0, 1, &host.image, {8, 9}), 0);
    ExpectRecord(host.roi, 33, 56, 53, 36);
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
    EXPECT_EQ(roi.ShowROI(HDC{}, window, 0, 0, 1, &image, 1, 0), -1);
    EXPECT_EQ(roi.ShowROI(dc, static_cast<RECT*>(nullptr), 0, 0, 1, &image, 1, 0), -1);
    const HGDIOBJ pen = GetCurrentObject(dc, OBJ_PEN), brush = GetCurrentObject(dc, OBJ_BRUSH);
    EXPECT_EQ(roi.ShowROI(dc, window, 0, 0, 1, &image, 1, 0), 0);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_PEN), pen);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_BRUSH), brush);
    const test::Picture shown = window.Snapshot();
    for (const POINT at : {POINT{10, 10}, POINT{40, 30}, POINT{40, 10}, POINT{10, 30}, POINT{15, 10}, POINT{40, 25}})
        EXPECT_EQ(shown.At(at.x, at.y), 0x00FF00u) << at.x << ' ' << at.y;
    EXPECT_EQ(shown.At(41, 30), 0x000040u);
    EXPECT_EQ(shown.At(11, 11), 0x000040u);
    for (const POINT handle : {POINT{25, 10}, POINT{25, 30}, POINT{10, 20}, POINT{40, 20}})
        for (int y = -2; y < 2; ++y)
            for (int x = -2; x < 2; ++x) EXPECT_EQ(shown.At(handle.x + x, handle.y + y), 0xFFFFFFu);
    EXPECT_EQ(shown.At(27, 10), 0x00FF00u);

    roi.SetSelected(1);
    roi.ShowROI(window, 0, 0, 1, &image, 1, -1);
    EXPECT_EQ(window.Snapshot().At(10, 10), 0xFF0000u);
    RECT client = {0, 0, 80, 60};
    roi.ShowROI(dc, &client, 0, 0, 1, &image, 1, 7);
    EXPECT_EQ(window.Snapshot().At(10, 10), 0x00FF00u);
    ReleaseDC(window, dc);
}
