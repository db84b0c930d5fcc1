// Every kind of ROI drawn and moved with the real mouse, at zoom 1 and 3 and stretched, from all directions and out of
// the window; shapes with handles resized; and what 10,000 drags leave behind.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <type_traits>
#include <vector>

#include "roi/Host.h"
#include "support/Census.h"
#include "support/Dialogs.h"

using test::Sides;
using test::SidesOf;

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

bool AreNeighbours(POINT a, POINT b) { return std::abs(a.x - b.x) <= 1 && std::abs(a.y - b.y) <= 1; }

/// The chain passes a pixel: a segment's slope is rounded, so its first pixel can lie one beside its start.
template <class Roi>
bool Passes(Roi& roi, POINT pixel) {
    const PixelGroupTag& outline = OutlineOf(roi);
    return std::any_of(outline.stPOINTS, outline.stPOINTS + outline.iNumOfPoints,
                       [&](const POINT& point) { return AreNeighbours(point, pixel); });
}

template <class Roi>
bool IsChain(Roi& roi) {
    const PixelGroupTag& outline = OutlineOf(roi);
    for (int i = 1; i < outline.iNumOfPoints; ++i)
        if (!AreNeighbours(outline.stPOINTS[i], outline.stPOINTS[i - 1])) return false;
    return outline.iNumOfPoints > 0;
}

template <class Roi>
bool EndsBeside(Roi& roi, POINT pixel) {
    return AreNeighbours(OutlineOf(roi).stPOINTS[OutlineOf(roi).iNumOfPoints - 1], pixel);
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

template <class Roi>
void DrawBoxes(int pixelsMore) {
    DrawAllWays<Roi>([pixelsMore](auto& host, const Display& display, const Way& way) {
        const POINT a = ImagePoint(display, way.from);
        const POINT b = ImagePoint(display, {way.to.x + pixelsMore, way.to.y + pixelsMore});
        EXPECT_EQ(SidesOf(host.roi),
                  (Sides{std::min(a.x, b.x), std::max(a.y, b.y), std::max(a.x, b.x), std::min(a.y, b.y)}));
        EXPECT_EQ(host.HitTest(62, 52), 0);
        MoveAndCheck(host, display);
    });
}

}  // namespace

TEST(Dragging, BoxesFromAllDirections) {
    DrawBoxes<CcRoiEllipse>(0);
    // Released where the last movement left them, the sides of a rectangle that follow the mouse go a pixel further.
    DrawBoxes<CcRoiRect>(1);
}

TEST(Dragging, LineFromAllDirections) {
    DrawAllWays<CcRoiLine>([](auto& host, const Display& display, const Way& way) {
        const POINT a = Clamped(ImagePoint(display, way.from)), b = Clamped(ImagePoint(display, way.to));
        EXPECT_EQ(SidesOf(host.roi), (Sides{a.x, a.y, b.x, b.y}));
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
        const POINT end = ImagePoint(display, way.to);
        EXPECT_TRUE(Passes(host.roi, ImagePoint(display, way.from)));
        EXPECT_TRUE(Passes(host.roi, end));
        EXPECT_TRUE(IsChain(host.roi));
        // The last segment of an open line, of no length, got a pixel to the right.
        EXPECT_TRUE(EndsBeside(host.roi, isClosed ? OutlineOf(host.roi).stPOINTS[0] : end));
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
        EXPECT_TRUE(EndsBeside(host.roi, ImagePoint(display, isClosed ? corners[0] : corners[3])));
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
    const auto drawOut = [](auto&& host, const Display& display) {
        Apply(host, display);
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
        drawOut(test::Host<CcRoiRect>(), display);
        drawOut(test::Host<CcRoiEllipse>(), display);
        drawOut(test::Host<CcRoiLine>(), display);
        drawOut(test::Host<CcRoiPoint>(), display);
        drawOut(test::Host<CcRoiFreeHand>(), display);
        drawOut(test::Host<CcRoiFreeHandLine>(), display);
    }
}

TEST(Dragging, HandlesResize) {
    // Each start takes the corners from whole image pixels, so stretched shapes can lose a pixel each time.
    const auto expectNear = [](CcRoiBase& roi, POINT first, POINT second) {
        const Sides sides = SidesOf(roi), expected = {first.x, first.y, second.x, second.y};
        for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR(sides[i], expected[i], 2) << i;
    };
    const auto resize = [](auto& host, POINT handle, int code, POINT to) {
        ASSERT_EQ(host.HitTest(handle.x, handle.y), code);
        host.dragMode = KEST_DRAG_RESIZE;
        host.window.Drag(handle, to);
    };
    for (const Display& display : displays) {
        SCOPED_TRACE(display.name);
        const auto at = [&](LONG x, LONG y) { return Clamped(ImagePoint(display, {x, y})); };
        {
            test::Host<CcRoiEllipse> host;
            Apply(host, display);
            host.window.Drag({60, 40}, {110, 90});
            resize(host, {85, 40}, 1, {85, 20});
            expectNear(host.roi, at(60, 20), at(110, 90));
            // The left handle is dragged past the right one.
            resize(host, {60, 55}, 3, {150, 57});
            expectNear(host.roi, at(110, 20), at(150, 90));
        }
        {
            test::Host<CcRoiLine> host;
            Apply(host, display);
            host.window.Drag({60, 40}, {110, 90});
            resize(host, {110, 90}, 8, {70, 20});
            expectNear(host.roi, at(60, 40), at(70, 20));
        }
        {
            test::Host<CcRoiRect> host;
            Apply(host, display);
            host.window.Drag({60, 40}, {109, 89});
            resize(host, {60, 40}, 5, {75, 30});
            expectNear(host.roi, at(75, 30), at(110, 90));
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
    EXPECT_EQ(start(1), -1);  // nothing to move yet
    // A click alone gives a pixel at least.
    EXPECT_EQ(start(2), 0);
    EXPECT_EQ(roi.StopMouseDrag(host.window, 0, 0, 1, &host.image, at), 0);
    EXPECT_TRUE(Passes(roi, {50, 59}));
    // An outline takes no other's place, so mode 0 moves it, but not without another.
    EXPECT_EQ(start(0), -1);
    // Queries follow a move.
    EXPECT_EQ(start(1), 0);
    EXPECT_EQ(roi.DoMouseDrag(host.window, 0, 0, 1, &host.image, {53, 44}, 0), 0);
    int count = 0;
    const int* columns = roi.GetXBoundary(55, &count);
    ASSERT_GE(count, 1);
    EXPECT_EQ(columns[0], 53);
    EXPECT_EQ(roi.GetXBoundary(59, &count), nullptr);
    EXPECT_EQ(roi.StopMouseDrag(host.window, 0, 0, 1, &host.image, at), 0);
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

TEST(Dragging, WithoutTheirWindowTheyEndAndGiveTheMouseBack) {
    CcGrayImage256 image;
    image.MakeBlankBMP(100, 120, 0, "i");
    RECT freeClip, clip;
    GetClipCursor(&freeClip);
    CcRoiRect rect;
    CcRoiPolyLine line;
    for (CcRoiBase* roi : {static_cast<CcRoiBase*>(&rect), static_cast<CcRoiBase*>(&line)}) {
        auto window = std::make_unique<test::TestWindow>(120, 100);
        const HWND handle = *window;
        const auto start = [&] { return roi->StartMouseDrag(handle, 0, 0, 1, &image, {10, 10}, 2, nullptr, 1); };
        ASSERT_EQ(start(), 0);
        EXPECT_EQ(roi->DoMouseDrag(handle, 0, 0, 1, &image, {40, 30}, 1), 0);
        window.reset();
        EXPECT_EQ(roi->DoMouseDrag(handle, 0, 0, 1, &image, {50, 40}, 0), -1);
        GetClipCursor(&clip);
        EXPECT_TRUE(EqualRect(&clip, &freeClip));
        EXPECT_EQ(roi->StopMouseDrag(handle, 0, 0, 1, &image, {50, 40}), -1);
        // What cannot begin takes nothing.
        EXPECT_EQ(start(), -1);
        EXPECT_EQ(GetCapture(), nullptr);
        EXPECT_EQ(roi->DoMouseDrag(handle, 0, 0, 1, &image, {50, 40}, 0), -1);
    }
    EXPECT_TRUE(test::TakeBoxes().empty());
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

template <class Roi>
struct ManyDrags : testing::Test {};
using AllKinds = testing::Types<CcRoiRect, CcRoiEllipse, CcRoiLine, CcRoiPoint, CcRoiFreeHand, CcRoiFreeHandLine,
                                CcRoiPolyLine, CcRoiPolyFreeHand>;
TYPED_TEST_SUITE(ManyDrags, AllKinds);

TYPED_TEST(ManyDrags, LeaveNothing) {
    test::TestWindow window(120, 100);
    CcGrayImage256 image;
    image.MakeBlankBMP(100, 120, 0, "i");
    const auto dragOnce = [&](int i) {
        TypeParam roi;
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
    // Classes of a family share the drag's code: one of each is dragged most.
    const bool isOften = std::is_same_v<TypeParam, CcRoiRect> || std::is_same_v<TypeParam, CcRoiFreeHand>;
    const int drags = isOften && sizeof(void*) == 4 ? 10000 : 1000;
    for (int i = 0; i < drags; ++i) dragOnce(i);
    EXPECT_EQ(test::TakeCensus(), before);
    ReleaseCapture();
    ClipCursor(nullptr);
}
