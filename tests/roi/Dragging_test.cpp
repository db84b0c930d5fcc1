// Every kind of ROI drawn and moved with the real mouse, at zoom 1 and 3 and stretched, from all directions and out of
// the window; shapes with handles resized; and what 10,000 drags leave behind.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <vector>

#include "roi/Host.h"
#include "support/Census.h"
#include "support/Dialogs.h"

namespace {

/// Lets a host see what a drag holds.
template <class Roi>
struct Open : Roi {
    using Roi::hDragDC;
    using Roi::iDragMode;
};

struct Display {
    const char* name;
    unsigned short mode;
    int zoom, xOffset, yOffset;
};
constexpr Display displays[] = {{"zoom 1", 1, 1, 0, 0}, {"zoom 3", 1, 3, 20, 30}, {"stretched", 0, 1, 0, 0}};

/// Where a client point lies in the image of 120 x 100 shown in 200 x 150, worked out for each display.
POINT ImagePoint(const Display& display, POINT client) {
    if (display.mode == 0)
        return {static_cast<LONG>(client.x * (119.0 / 200)), static_cast<LONG>((150 - client.y) * (99.0 / 150))};
    return {client.x / display.zoom + display.xOffset, 99 - client.y / display.zoom - display.yOffset};
}

POINT Clamped(POINT point) {
    return {std::clamp<LONG>(point.x, 0, 119), std::clamp<LONG>(point.y, 0, 99)};
}

template <class Roi>
void Apply(test::Host<Roi>& host, const Display& display) {
    host.display = display.mode;
    host.zoom = display.zoom;
    host.xOffset = display.xOffset;
    host.yOffset = display.yOffset;
}

/// The four ways across a rectangle of the window.
struct Way {
    POINT from, to;
};
constexpr Way ways[] = {{{30, 25}, {95, 80}}, {{95, 80}, {30, 25}}, {{30, 80}, {95, 25}}, {{95, 25}, {30, 80}}};

/// Draws along a way, then checks the image points of both ends and that mouse and window are as before.
template <class Roi>
void DrawAllWays(const std::function<void(test::Host<Open<Roi>>&, const Display&, const Way&)>& check) {
    for (const Display& display : displays)
        for (const Way& way : ways) {
            SCOPED_TRACE(testing::Message() << display.name << " from " << way.from.x << ' ' << way.from.y);
            test::Host<Open<Roi>> host;
            Apply(host, display);
            host.window.Drag(way.from, way.to);
            EXPECT_EQ(GetCapture(), nullptr);
            EXPECT_EQ(HDC(host.roi.hDragDC), nullptr);
            EXPECT_EQ(host.roi.iDragMode, -1);
            check(host, display, way);
        }
}

template <class Roi>
const PixelGroupTag& OutlineOf(Roi& roi) {
    return *static_cast<PixelGroupTag*>(roi.GetRoiImageCord());
}

/// The chain passes a pixel: a segment's slope is rounded, so its first pixel can lie one beside its start.
template <class Roi>
bool Passes(Roi& roi, POINT pixel) {
    const PixelGroupTag& outline = OutlineOf(roi);
    return std::any_of(outline.stPOINTS, outline.stPOINTS + outline.iNumOfPoints, [&](const POINT& p) {
        return std::abs(p.x - pixel.x) <= 1 && std::abs(p.y - pixel.y) <= 1;
    });
}

template <class Roi>
bool IsChain(Roi& roi) {
    const PixelGroupTag& outline = OutlineOf(roi);
    for (int i = 1; i < outline.iNumOfPoints; ++i)
        if (std::abs(outline.stPOINTS[i].x - outline.stPOINTS[i - 1].x) > 1 ||
            std::abs(outline.stPOINTS[i].y - outline.stPOINTS[i - 1].y) > 1)
            return false;
    return outline.iNumOfPoints > 0;
}

/// The bounding rectangle moves by the difference of two image points.
template <class Roi>
void MoveAndCheck(test::Host<Open<Roi>>& host, const Display& display) {
    const RECT before = *host.roi.GetCurrentBoundingRect();
    host.dragMode = KEST_DRAG_MOVE;
    host.hasVertices = false;
    const POINT from = {60, 60}, to = {70, 51};
    host.window.Drag(from, to, 100);
    const RECT after = *host.roi.GetCurrentBoundingRect();
    const POINT start = ImagePoint(display, from), end = ImagePoint(display, to);
    EXPECT_NEAR(after.left - before.left, end.x - start.x, 1);
    EXPECT_NEAR(after.top - before.top, end.y - start.y, 1);
    EXPECT_NEAR(after.right - after.left, before.right - before.left, 1);
    EXPECT_NEAR(after.top - after.bottom, before.top - before.bottom, 1);
}

}  // namespace

TEST(Dragging, EllipseFromAllDirections) {
    DrawAllWays<CcRoiEllipse>([](auto& host, const Display& display, const Way& way) {
        const POINT a = ImagePoint(display, way.from), b = ImagePoint(display, way.to);
        const RECT box = *static_cast<RECT*>(host.roi.GetRoiImageCord());
        EXPECT_EQ(box.left, std::min(a.x, b.x));
        EXPECT_EQ(box.right, std::max(a.x, b.x));
        EXPECT_EQ(box.top, std::max(a.y, b.y));
        EXPECT_EQ(box.bottom, std::min(a.y, b.y));
        EXPECT_EQ(host.HitTest(62, 52), 0);
        MoveAndCheck(host, display);
    });
}

TEST(Dragging, RectangleFromAllDirections) {
    DrawAllWays<CcRoiRect>([](auto& host, const Display& display, const Way& way) {
        // Released where the last movement left them, the sides that follow the mouse go a pixel further.
        const POINT a = ImagePoint(display, way.from), b = ImagePoint(display, {way.to.x + 1, way.to.y + 1});
        const RECT box = *static_cast<RECT*>(host.roi.GetRoiImageCord());
        EXPECT_EQ(box.left, std::min(a.x, b.x));
        EXPECT_EQ(box.right, std::max(a.x, b.x));
        EXPECT_EQ(box.top, std::max(a.y, b.y));
        EXPECT_EQ(box.bottom, std::min(a.y, b.y));
        MoveAndCheck(host, display);
    });
}

TEST(Dragging, LineFromAllDirections) {
    DrawAllWays<CcRoiLine>([](auto& host, const Display& display, const Way& way) {
        const POINT a = Clamped(ImagePoint(display, way.from)), b = Clamped(ImagePoint(display, way.to));
        const tagROILINE line = *static_cast<tagROILINE*>(host.roi.GetRoiImageCord());
        EXPECT_EQ(line.iStartX, a.x);
        EXPECT_EQ(line.iStartY, a.y);
        EXPECT_EQ(line.iEndX, b.x);
        EXPECT_EQ(line.iEndY, b.y);
        EXPECT_EQ(host.HitTest(way.from.x, way.from.y), 5);
        EXPECT_EQ(host.HitTest(way.to.x, way.to.y), 8);
        EXPECT_EQ(host.HitTest((way.from.x + way.to.x) / 2, (way.from.y + way.to.y) / 2), 0);
        EXPECT_EQ(host.HitTest(190, 5), -1);
        MoveAndCheck(host, display);
    });
}

TEST(Dragging, PointTakesTheReleasePosition) {
    DrawAllWays<CcRoiPoint>([](auto& host, const Display& display, const Way& way) {
        const POINT at = Clamped(ImagePoint(display, way.to));
        const tagPoints point = *static_cast<tagPoints*>(host.roi.GetRoiImageCord());
        EXPECT_EQ(point.x, static_cast<float>(at.x));
        EXPECT_EQ(point.y, static_cast<float>(at.y));
        EXPECT_EQ(host.HitTest(way.to.x, way.to.y), 0);
        EXPECT_EQ(host.HitTest(way.from.x, way.from.y), -1);
        MoveAndCheck(host, display);
    });
}

TEST(Dragging, FreehandFollowsTheMouse) {
    const auto check = [](auto& host, const Display& display, const Way& way, bool isClosed) {
        EXPECT_TRUE(Passes(host.roi, ImagePoint(display, way.from)));
        POINT end = ImagePoint(display, way.to);
        EXPECT_TRUE(Passes(host.roi, end));
        EXPECT_TRUE(IsChain(host.roi));
        const PixelGroupTag& outline = OutlineOf(host.roi);
        const POINT first = outline.stPOINTS[0], last = outline.stPOINTS[outline.iNumOfPoints - 1];
        if (isClosed) {
            EXPECT_LE(std::max(std::abs(first.x - last.x), std::abs(first.y - last.y)), 1);
        } else {
            // The last segment, of no length, got a pixel to the right.
            EXPECT_LE(std::max(std::abs(end.x - last.x), std::abs(end.y - last.y)), 1);
        }
    };
    DrawAllWays<CcRoiFreeHand>([&](auto& host, const Display& display, const Way& way) {
        check(host, display, way, true);
        MoveAndCheck(host, display);
    });
    DrawAllWays<CcRoiFreeHandLine>([&](auto& host, const Display& display, const Way& way) {
        check(host, display, way, false);
        EXPECT_EQ(host.HitTest(way.from.x, way.from.y), 0);
        EXPECT_EQ(host.HitTest(190, 5), -1);
        MoveAndCheck(host, display);
    });
}

namespace {

template <class Roi>
void DrawPolygon(bool isClosed) {
    const POINT corners[] = {{40, 30}, {100, 40}, {90, 90}, {35, 85}};
    for (const Display& display : displays) {
        SCOPED_TRACE(display.name);
        test::Host<Open<Roi>> host;
        Apply(host, display);
        host.hasVertices = true;
        for (const POINT& corner : corners) {
            host.window.MoveMouse(corner.x, corner.y);
            host.window.PressButton();
            host.window.ReleaseButton();
        }
        host.Finish();
        for (const POINT& corner : corners) EXPECT_TRUE(Passes(host.roi, ImagePoint(display, corner)));
        EXPECT_TRUE(IsChain(host.roi));
        // A segment follows the mouse without being fixed: only the clicked corners stand in the chain.
        const PixelGroupTag& outline = OutlineOf(host.roi);
        const POINT last = outline.stPOINTS[outline.iNumOfPoints - 1];
        const POINT end = ImagePoint(display, isClosed ? corners[0] : corners[3]);
        EXPECT_LE(std::max(std::abs(last.x - end.x), std::abs(last.y - end.y)), 1);
        EXPECT_EQ(host.HitTest(66, 60), isClosed ? 0 : -1);
        EXPECT_EQ(host.HitTest(70, 36), 0);
        EXPECT_EQ(host.HitTest(150, 120), -1);
        MoveAndCheck(host, display);
    }
}

}  // namespace

TEST(Dragging, PolygonsBetweenClicks) {
    DrawPolygon<CcRoiPolyFreeHand>(true);
    DrawPolygon<CcRoiPolyLine>(false);
}

TEST(Dragging, OutOfTheWindowEveryKindStaysInTheImage) {
    const auto drawOut = [](auto& host) {
        host.window.Drag({100, 70}, {400, 300}, 40);
        const RECT bounds = *host.roi.GetCurrentBoundingRect();
        EXPECT_LE(bounds.right, 120);
        EXPECT_GE(bounds.bottom, -1);
        host.window.Drag({100, 70}, {-300, -200}, 40);
        const RECT other = *host.roi.GetCurrentBoundingRect();
        EXPECT_GE(other.left, 0);
        EXPECT_LE(other.top, 99);
        RECT clip;
        GetClipCursor(&clip);
        EXPECT_GT(clip.right, 500);
    };
    for (const Display& display : {displays[1], displays[2]}) {
        const auto draw = [&](auto host) {
            Apply(*host, display);
            drawOut(*host);
        };
        draw(std::make_unique<test::Host<CcRoiRect>>());
        draw(std::make_unique<test::Host<CcRoiEllipse>>());
        draw(std::make_unique<test::Host<CcRoiLine>>());
        draw(std::make_unique<test::Host<CcRoiPoint>>());
        draw(std::make_unique<test::Host<CcRoiFreeHand>>());
        draw(std::make_unique<test::Host<CcRoiFreeHandLine>>());
    }
}

TEST(Dragging, HandlesResize) {
    for (const Display& display : displays) {
        SCOPED_TRACE(display.name);
        {
            test::Host<CcRoiEllipse> host;
            Apply(host, display);
            host.window.Drag({60, 40}, {110, 90});
            ASSERT_EQ(host.HitTest(85, 40), 1);
            host.dragMode = KEST_DRAG_RESIZE;
            host.window.Drag({85, 40}, {85, 20});
            const RECT box = *static_cast<RECT*>(host.roi.GetRoiImageCord());
            EXPECT_NEAR(box.top, ImagePoint(display, {0, 20}).y, 1);
            EXPECT_NEAR(box.bottom, ImagePoint(display, {0, 90}).y, 1);
            // The left handle is dragged past the right one.
            ASSERT_EQ(host.HitTest(60, 55), 3);
            host.window.Drag({60, 55}, {150, 57});
            const RECT turned = *static_cast<RECT*>(host.roi.GetRoiImageCord());
            // Each start takes the corners from whole image pixels, so stretched ones lose a pixel each time.
            EXPECT_NEAR(turned.left, ImagePoint(display, {110, 0}).x, 2);
            EXPECT_NEAR(turned.right, std::min<LONG>(ImagePoint(display, {150, 0}).x, 119), 2);
        }
        {
            test::Host<CcRoiLine> host;
            Apply(host, display);
            host.window.Drag({60, 40}, {110, 90});
            ASSERT_EQ(host.HitTest(110, 90), 8);
            host.dragMode = KEST_DRAG_RESIZE;
            host.window.Drag({110, 90}, {70, 20});
            const tagROILINE line = *static_cast<tagROILINE*>(host.roi.GetRoiImageCord());
            EXPECT_NEAR(line.iEndX, ImagePoint(display, {70, 20}).x, 1);
            EXPECT_NEAR(line.iEndY, std::min<LONG>(ImagePoint(display, {70, 20}).y, 99), 1);
            EXPECT_NEAR(line.iStartX, ImagePoint(display, {60, 40}).x, 1);
        }
        {
            test::Host<CcRoiRect> host;
            Apply(host, display);
            host.window.Drag({60, 40}, {109, 89});
            ASSERT_EQ(host.HitTest(60, 40), 5);
            host.dragMode = KEST_DRAG_RESIZE;
            host.window.Drag({60, 40}, {75, 30});
            const RECT box = *static_cast<RECT*>(host.roi.GetRoiImageCord());
            EXPECT_NEAR(box.left, ImagePoint(display, {75, 0}).x, 1);
            EXPECT_NEAR(box.top, std::min<LONG>(ImagePoint(display, {0, 30}).y, 99), 1);
            EXPECT_NEAR(box.right, ImagePoint(display, {110, 0}).x, 1);
        }
    }
}

TEST(Dragging, EdgesOfTheProtocol) {
    test::Host<Open<CcRoiFreeHand>> host;
    const POINT at = {50, 40};
    auto& roi = host.roi;
    const auto start = [&](int mode) {
        return roi.StartMouseDrag(host.window, 0, 0, 1, &host.image, at, mode, nullptr, 1);
    };
    EXPECT_EQ(start(3), -1);
    EXPECT_EQ(start(-1), -1);
    EXPECT_EQ(start(1), -1);  // nothing to move yet
    EXPECT_EQ(roi.DoMouseDrag(host.window, 0, 0, 1, &host.image, at, 0), -1);
    EXPECT_EQ(roi.StopMouseDrag(host.window, 0, 0, 1, &host.image, at), -1);
    // A click alone gives a pixel at least.
    EXPECT_EQ(start(2), 0);
    EXPECT_EQ(roi.StopMouseDrag(host.window, 0, 0, 1, &host.image, at), 0);
    EXPECT_GE(OutlineOf(roi).iNumOfPoints, 1);
    EXPECT_TRUE(Passes(roi, {50, 59}));
    // A copy takes no part in a drag that runs.
    EXPECT_EQ(start(2), 0);
    { const Open<CcRoiFreeHand> copy(roi); }
    EXPECT_EQ(GetCapture(), HWND(host.window));
    EXPECT_EQ(roi.StopMouseDrag(host.window, 0, 0, 1, &host.image, {60, 50}), 0);
    // Without an image the drag goes on where it is.
    EXPECT_EQ(roi.StartMouseDrag(host.window, 0, 0, 1, nullptr, at, 2, nullptr, 1), 0);
    EXPECT_EQ(roi.DoMouseDrag(host.window, 0, 0, 1, nullptr, {55, 45}, 0), 0);
    EXPECT_EQ(roi.StopMouseDrag(host.window, 0, 0, 1, nullptr, {60, 50}), 0);
}

TEST(Dragging, SegmentLimit) {
    const std::vector<test::Box> limit = {{"Error...", "You have exceded 100000 points in FreeHand ROI"}};
    test::Host<CcRoiFreeHandLine> host;
    auto& roi = host.roi;
    const auto move = [&](int i) {
        return roi.DoMouseDrag(host.window, 0, 0, 1, &host.image, {i % 100, i / 100 % 100}, 0);
    };
    ASSERT_EQ(roi.StartMouseDrag(host.window, 0, 0, 1, &host.image, {0, 0}, 2, nullptr, 1), 0);
    for (int i = 1; i <= 99999; ++i) ASSERT_EQ(move(i), 0) << i;
    EXPECT_EQ(move(5), -1);
    EXPECT_EQ(test::TakeBoxes(), limit);
    EXPECT_EQ(roi.StopMouseDrag(host.window, 0, 0, 1, &host.image, {9, 9}), -1);
    EXPECT_EQ(test::TakeBoxes(), limit);
    EXPECT_EQ(OutlineOf(roi).iNumOfPoints, 0);
    EXPECT_EQ(GetCapture(), nullptr);
}

namespace {

template <class Roi>
void DragManyTimes() {
    test::TestWindow window(120, 100);
    CcGrayImage256 image;
    image.MakeBlankBMP(100, 120, 0, "i");
    const auto dragOnce = [&](int i) {
        Roi roi;
        const int mode = i % 7 == 6 ? 9 : KEST_DRAG_CREATE;  // some fail to start
        roi.StartMouseDrag(window, 0, 0, 1, &image, {10, 10}, mode, nullptr, 1);
        roi.DoMouseDrag(window, 0, 0, 1, &image, {40, 20 + i % 50}, i % 2);
        if (i % 5) roi.StopMouseDrag(window, 0, 0, 1, &image, {60, 70});  // some end in the middle
        roi.GetBoundingRect();
        int count;
        roi.GetXBoundary(50, &count);
    };
    for (int i = 0; i < 40; ++i) dragOnce(i);
    const test::Census before = test::TakeCensus();
    constexpr int drags = sizeof(void*) == 4 ? 10000 : 1000;
    for (int i = 0; i < drags; ++i) dragOnce(i);
    EXPECT_EQ(test::TakeCensus(), before);
    ReleaseCapture();
    ClipCursor(nullptr);
}

}  // namespace

template <class Roi>
struct ManyDrags : testing::Test {};
using AllKinds = testing::Types<CcRoiRect, CcRoiEllipse, CcRoiLine, CcRoiPoint, CcRoiFreeHand, CcRoiFreeHandLine,
                                CcRoiPolyLine, CcRoiPolyFreeHand>;
TYPED_TEST_SUITE(ManyDrags, AllKinds);

TYPED_TEST(ManyDrags, LeaveNothing) { DragManyTimes<TypeParam>(); }
