// Every kind of ROI drawn and moved with the real mouse, at zoom 1 and 3 and stretched, from all directions and out of
// the window; shapes with handles resized; and the edges of the protocol.
#include "roi/DraggingHost.h"

using namespace test;

namespace {

/// Lets a host see what a drag holds.
template <class Roi>
struct Open : Roi {
    using Roi::hDragDC;
    using Roi::iDragMode;
};

struct OpenRect : Open<CcRoiRect> {
    using CcRoiRect::iHitCode;
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

POINT Clamped(POINT point) { return {std::clamp<LONG>(point.x, 0, 119), std::clamp<LONG>(point.y, 0, 99)}; }

template <class Roi>
struct HostWith : Host<Roi> {
    explicit HostWith(const Display& shown) {
        this->display = shown.mode;
        this->zoom = shown.zoom;
        this->xOffset = shown.xOffset;
        this->yOffset = shown.yOffset;
    }
};

/// The four ways across a rectangle of the window.
struct Way {
    POINT from, to;
};
constexpr Way ways[] = {{{30, 25}, {95, 80}}, {{95, 80}, {30, 25}}, {{30, 80}, {95, 25}}, {{95, 25}, {30, 80}}};

/// The bounding rectangle moves by the difference of two image points.
template <class Roi>
void MoveAndCheck(Host<Roi>& host, const Display& display) {
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

/// Draws along each way and checks what was drawn, that mouse and window are as before, and that it can be moved.
template <class Roi>
void DrawAllWays(const std::function<void(Host<Open<Roi>>&, const Display&, const Way&)>& check) {
    for (const Display& display : displays)
        for (const Way& way : ways) {
            SCOPED_TRACE(testing::Message() << display.name << " from " << way.from.x << ' ' << way.from.y);
            HostWith<Open<Roi>> host(display);
            host.window.Drag(way.from, way.to);
            EXPECT_EQ(GetCapture(), nullptr);
            EXPECT_EQ(HDC(host.roi.hDragDC), nullptr);
            EXPECT_EQ(host.roi.iDragMode, -1);
            check(host, display, way);
            MoveAndCheck(host, display);
        }
}

template <class Roi>
void DrawBoxes(int pixelsMore) {
    DrawAllWays<Roi>([pixelsMore](auto& host, const Display& display, const Way& way) {
        const POINT a = ImagePoint(display, way.from);
        const POINT b = ImagePoint(display, {way.to.x + pixelsMore, way.to.y + pixelsMore});
        EXPECT_EQ(SidesOf(host.roi),
                  (Sides{std::min(a.x, b.x), std::max(a.y, b.y), std::max(a.x, b.x), std::min(a.y, b.y)}));
        EXPECT_EQ(host.HitTest(62, 52), 0);
    });
}

bool AreNeighbours(POINT a, POINT b) { return std::abs(a.x - b.x) <= 1 && std::abs(a.y - b.y) <= 1; }

/// The chain passes the pixels: a segment's slope is rounded, so its first pixel can lie one beside its start. It has
/// no gaps, and its last pixel lies beside `end`.
void ExpectChain(CcRoiBase& roi, const std::vector<POINT>& passed, POINT end) {
    const PixelGroupTag& outline = OutlineOf(roi);
    const POINT *first = outline.stPOINTS, *last = first + outline.iNumOfPoints;
    ASSERT_NE(first, last);
    for (const POINT& pixel : passed)
        EXPECT_TRUE(std::any_of(first, last, [&](const POINT& point) { return AreNeighbours(point, pixel); }));
    EXPECT_EQ(std::adjacent_find(first, last, [](const POINT& a, const POINT& b) { return !AreNeighbours(a, b); }),
              last);
    EXPECT_TRUE(AreNeighbours(last[-1], end));
}

template <class Roi>
void DrawPolygon(bool isClosed) {
    const POINT corners[] = {{40, 30}, {100, 40}, {90, 90}, {35, 85}};
    for (const Display& display : displays) {
        SCOPED_TRACE(display.name);
        HostWith<Open<Roi>> host(display);
        host.hasVertices = true;
        std::vector<POINT> passed;
        for (const POINT& corner : corners) {
            host.window.Click(corner);
            passed.push_back(ImagePoint(display, corner));
        }
        host.Finish();
        // A segment follows the mouse without being fixed: only the clicked corners stand in the chain.
        ExpectChain(host.roi, passed, passed[isClosed ? 0 : 3]);
        EXPECT_EQ(host.HitTest(66, 60), isClosed ? 0 : -1);
        EXPECT_EQ(host.HitTest(70, 36), 0);
        EXPECT_EQ(host.HitTest(150, 120), -1);
        MoveAndCheck(host, display);
    }
}

template <class Roi>
void DrawOut(const Display& display) {
    HostWith<Roi> host(display);
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
}

/// A handle is dragged to a point; the shape then reaches from one point of the window to another.
struct Resize {
    POINT handle;
    int code;
    POINT to, first, second;
};

template <class Roi>
void ResizeByHandles(POINT drawnTo, const std::vector<Resize>& resizes) {
    for (const Display& display : displays) {
        SCOPED_TRACE(display.name);
        HostWith<Roi> host(display);
        host.window.Drag({60, 40}, drawnTo);
        for (const Resize& resize : resizes) {
            ASSERT_EQ(host.HitTest(resize.handle.x, resize.handle.y), resize.code);
            host.dragMode = KEST_DRAG_RESIZE;
            host.window.Drag(resize.handle, resize.to);
            const POINT a = Clamped(ImagePoint(display, resize.first)), b = Clamped(ImagePoint(display, resize.second));
            const Sides sides = SidesOf(host.roi), expected = {a.x, a.y, b.x, b.y};
            // Each start takes the corners from whole image pixels, so stretched shapes can lose a pixel each time.
            for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR(sides[i], expected[i], 2) << i;
        }
    }
}

}  // namespace

TEST(Dragging, ShapesFromAllDirections) {
    DrawBoxes<CcRoiEllipse>(0);
    // Released where the last movement left them, the sides of a rectangle that follow the mouse go a pixel further.
    DrawBoxes<CcRoiRect>(1);
    DrawAllWays<CcRoiLine>([](auto& host, const Display& display, const Way& way) {
        const POINT a = Clamped(ImagePoint(display, way.from)), b = Clamped(ImagePoint(display, way.to));
        EXPECT_EQ(SidesOf(host.roi), (Sides{a.x, a.y, b.x, b.y}));
        EXPECT_EQ(host.HitTest(way.from.x, way.from.y), 5);
        EXPECT_EQ(host.HitTest(way.to.x, way.to.y), 8);
        EXPECT_EQ(host.HitTest((way.from.x + way.to.x) / 2, (way.from.y + way.to.y) / 2), 0);
        EXPECT_EQ(host.HitTest(190, 5), -1);
    });
    // A point takes the release position.
    DrawAllWays<CcRoiPoint>([](auto& host, const Display& display, const Way& way) {
        const POINT at = Clamped(ImagePoint(display, way.to));
        const tagPoints point = *static_cast<tagPoints*>(host.roi.GetRoiImageCord());
        EXPECT_EQ(point.x, static_cast<float>(at.x));
        EXPECT_EQ(point.y, static_cast<float>(at.y));
        EXPECT_EQ(host.HitTest(way.to.x, way.to.y), 0);
        EXPECT_EQ(host.HitTest(way.from.x, way.from.y), -1);
    });
}

TEST(Dragging, OutlinesFollowTheMouseOrGoFromClickToClick) {
    DrawAllWays<CcRoiFreeHand>([](auto& host, const Display& display, const Way& way) {
        const POINT end = ImagePoint(display, way.to);
        ExpectChain(host.roi, {ImagePoint(display, way.from), end}, OutlineOf(host.roi).stPOINTS[0]);
    });
    DrawAllWays<CcRoiFreeHandLine>([](auto& host, const Display& display, const Way& way) {
        // The last segment of an open line, of no length, got a pixel to the right.
        const POINT end = ImagePoint(display, way.to);
        ExpectChain(host.roi, {ImagePoint(display, way.from), end}, end);
        EXPECT_EQ(host.HitTest(way.from.x, way.from.y), 0);
        EXPECT_EQ(host.HitTest(190, 5), -1);
    });
    DrawPolygon<CcRoiPolyFreeHand>(true);
    DrawPolygon<CcRoiPolyLine>(false);
}

TEST(Dragging, OutOfTheWindowEveryKindStaysInTheImage) {
    for (const Display& display : {displays[1], displays[2]}) {
        DrawOut<CcRoiRect>(display);
        DrawOut<CcRoiEllipse>(display);
        DrawOut<CcRoiLine>(display);
        DrawOut<CcRoiPoint>(display);
        DrawOut<CcRoiFreeHand>(display);
    }
}

TEST(Dragging, HandlesResize) {
    // The left handle of the ellipse is dragged past the right one.
    ResizeByHandles<CcRoiEllipse>(
        {110, 90}, {{{85, 40}, 1, {85, 20}, {60, 20}, {110, 90}}, {{60, 55}, 3, {150, 57}, {110, 20}, {150, 90}}});
    ResizeByHandles<CcRoiLine>({110, 90}, {{{110, 90}, 8, {70, 20}, {60, 40}, {70, 20}}});
    ResizeByHandles<CcRoiRect>({109, 89}, {{{60, 40}, 5, {75, 30}, {75, 30}, {110, 90}}});
}

TEST(Dragging, MovingKeepsARectangleInTheClientArea) {
    Host<OpenRect> host;
    host.window.Drag({10, 10}, {59, 49});
    host.dragMode = KEST_DRAG_MOVE;
    host.window.Drag({20, 20}, {-100, -100});
    EXPECT_EQ(SidesOf(host.roi), (Sides{0, 99, 50, 59}));
    // A miss does not forget the handle that was hit last.
    EXPECT_EQ(host.HitTest(50, 20), 4);
    EXPECT_EQ(host.HitTest(150, 140), -1);
    EXPECT_EQ(host.roi.iHitCode, 4);
    // A line that was drawn from right to left stays whole as well.
    Host<CcRoiLine> line;
    line.window.Drag({59, 49}, {10, 10});
    line.dragMode = KEST_DRAG_MOVE;
    line.window.Drag({30, 26}, {-100, -100});
    EXPECT_EQ(SidesOf(line.roi), (Sides{49, 60, 0, 99}));
}

TEST(Dragging, RubberBandVanishesAndFailedStartsAreReleased) {
    Host<OpenRect> host;
    const Picture before = host.window.Snapshot();
    // A click gives a pixel more than nothing.
    host.window.Click({30, 40});
    EXPECT_EQ(SidesOf(host.roi), (Sides{30, 59, 31, 58}));
    host.window.MoveMouse(20, 20);
    host.window.PressButton();
    host.window.MoveMouse(60, 70);
    EXPECT_GT(host.window.Snapshot().DifferentFrom(before), 100);
    host.window.ReleaseButton();
    EXPECT_EQ(host.window.Snapshot().DifferentFrom(before), 0);

    const POINT mouse = {5, 5};
    ExpectAll(-1, {host.Start(mouse, 0), host.Start(mouse, 4), host.Start(mouse, -1), host.roi.iDragMode});
    EXPECT_EQ(host.Move(mouse), -1);
    EXPECT_EQ(host.Stop(mouse), -1);
    CcRoiRect source;
    SetBox(source, {30, 60, 50, 40});
    EXPECT_EQ(host.Start(mouse, 0, &source), 0);
    EXPECT_EQ(SidesOf(host.roi), (Sides{30, 60, 50, 40}));
    // Without an image the shape stays where it is.
    EXPECT_EQ(host.roi.DoMouseDrag(host.window, 0, 0, 1, nullptr, {8, 9}, 0), 0);
    EXPECT_EQ(SidesOf(host.roi), (Sides{30, 60, 50, 40}));
    EXPECT_EQ(host.Stop({8, 9}), 0);
    EXPECT_EQ(SidesOf(host.roi), (Sides{33, 56, 53, 36}));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST(Dragging, EdgesOfTheProtocol) {
    Host<Open<CcRoiFreeHand>> host;
    const POINT at = {50, 40};
    auto& roi = host.roi;
    EXPECT_EQ(host.Start(at, 1), -1);  // nothing to move yet
    // A click alone gives a pixel at least.
    ExpectAll(0, {host.Start(at, 2), host.Stop(at)});
    ExpectChain(roi, {{50, 59}}, {50, 59});
    // An outline takes no other's place, so mode 0 moves it, but not without another.
    EXPECT_EQ(host.Start(at, 0), -1);
    // Queries follow a move.
    ExpectAll(0, {host.Start(at, 1), host.Move({53, 44})});
    ASSERT_FALSE(RowOf(roi, 55).empty());
    EXPECT_EQ(RowOf(roi, 55)[0], 53);
    EXPECT_TRUE(RowOf(roi, 59).empty());
    EXPECT_EQ(host.Stop(at), 0);
    // A copy takes no part in a drag that runs.
    EXPECT_EQ(host.Start(at, 2), 0);
    { const Open<CcRoiFreeHand> copy(roi); }
    EXPECT_EQ(GetCapture(), HWND(host.window));
    EXPECT_EQ(host.Stop({60, 50}), 0);
    // Only a last segment of no length gets a pixel, not one straight down or to the left.
    Host<CcRoiFreeHand> down;
    for (const POINT end : {POINT{50, 60}, {40, 40}}) {
        ExpectAll(0, {down.Start(at, 2), down.Stop(end)});
        EXPECT_EQ(down.roi.GetBoundingRect()->left, end.x);
        EXPECT_EQ(down.roi.GetBoundingRect()->right, 50);
    }
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
        auto window = std::make_unique<TestWindow>(120, 100);
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
}

TEST(Dragging, WhatEndsLateLeavesTheMouseToTheNextDrag) {
    Host<CcRoiLine> next;
    RECT clip, itsClip;
    CcRoiRect rect;
    auto ellipse = std::make_unique<CcRoiEllipse>();
    {
        const TestWindow window(120, 100);
        for (CcRoiBase* roi : {static_cast<CcRoiBase*>(&rect), static_cast<CcRoiBase*>(ellipse.get())})
            EXPECT_EQ(roi->StartMouseDrag(window, 0, 0, 1, &next.image, {10, 10}, 2, nullptr, 1), 0);
    }
    EXPECT_EQ(next.Start({20, 20}, 2), 0);
    GetClipCursor(&itsClip);
    EXPECT_EQ(rect.DoMouseDrag(next.window, 0, 0, 1, &next.image, {50, 40}, 0), -1);
    ellipse.reset();
    EXPECT_EQ(GetCapture(), HWND(next.window));
    GetClipCursor(&clip);
    EXPECT_TRUE(EqualRect(&clip, &itsClip));
    EXPECT_EQ(next.Stop({30, 30}), 0);
}

TEST(Dragging, SegmentLimit) {
    const Boxes limit = {{"Error...", "You have exceded 100000 points in FreeHand ROI"}};
    Host<CcRoiFreeHandLine> host;
    ASSERT_EQ(host.Start({0, 0}, KEST_DRAG_CREATE), 0);
    for (int i = 1; i <= 99999; ++i) ASSERT_EQ(host.Move({i % 100, i / 100 % 100}), 0) << i;
    EXPECT_EQ(host.Move({5, 0}), -1);
    EXPECT_EQ(TakeBoxes(), limit);
    EXPECT_EQ(host.Stop({9, 9}), -1);
    EXPECT_EQ(TakeBoxes(), limit);
    EXPECT_EQ(OutlineOf(host.roi).iNumOfPoints, 0);
    EXPECT_EQ(GetCapture(), nullptr);
}
