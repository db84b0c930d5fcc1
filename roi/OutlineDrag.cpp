// Drawing and moving a freehand outline with the mouse.
#include "roi/OutlineDrag.h"

#include "core/Messages.h"
#include "core/kernel/CheckedSize.h"
#include "roi/FarDrawing.h"
#include "roi/OutlineDrawing.h"
#include "roi/OutlineRecord.h"
#include "roi/kernel/DragGeometry.h"
#include "roi/kernel/OutlineRaster.h"

namespace kest {
namespace {

void TellSegmentLimit() { ShowMessage("You have exceded 100000 points in FreeHand ROI", "Error..."); }

POINT ImagePoint(const View& view, POINT client) {
    const IntPoint image = WindowToImage(view, ToPoint(client));
    return {image.x, image.y};
}

/// Draws the segment that is being drawn; drawn twice it is gone again.
void DrawSegment(const OutlineParts& outline) {
    const POINT start = outline.kind.classWide.starts[outline.segment];
    const POINT stop = outline.kind.classWide.stops[outline.segment];
    Reach(outline.drag.dc).DrawLine(ToPoint(start), ToPoint(stop));
}

/// Without an image the last known image point stays.
void EndSegment(const OutlineParts& outline, const std::optional<View>& view, POINT mouse) {
    if (view) outline.lastMouseInImage = ImagePoint(*view, mouse);
    outline.drag.lastMouse = mouse;
    outline.Segments().EndAt(mouse, outline.lastMouseInImage);
}

/// Draws the outline that is being moved; drawn twice it is gone again.
void DrawMoving(const OutlineParts& outline, const std::optional<View>& view) {
    if (view) DrawOutlinePixels(outline.drag.dc, *view, outline);
}

void MoveByMouse(const OutlineParts& outline, const std::optional<View>& view, POINT mouse) {
    outline.drag.lastMouse = mouse;
    if (!view) return;
    const POINT image = ImagePoint(*view, mouse);
    const Size64 dx = Size64{image.x} - outline.lastMouseInImage.x;
    const Size64 dy = Size64{image.y} - outline.lastMouseInImage.y;
    outline.queries.iSortedPoints = 0;
    POINT* points = outline.record.stPOINTS;
    for (std::size_t i = 0, count = outline.Pixels().size(); i < count; ++i) {
        points[i].x = Saturate(points[i].x + dx);
        points[i].y = Saturate(points[i].y + dy);
    }
    outline.lastMouseInImage = image;
}

/// The cursor's range for moving a freehand outline or polygon inside the client area `client`, on the screen.
IntRect RangeOfMove(const IntRect& client, const View& view, const RECT& bounds, POINT mouse) {
    const IntPoint low = ImageToWindow(view, IntPoint{bounds.left, bounds.top});
    const IntPoint high = ImageToWindow(view, IntPoint{bounds.right, bounds.bottom});
    return ClipForMove(client, {low.x, low.y, high.x, high.y}, ToPoint(mouse));
}

/// Turns the drawn segments into the outline's pixels. False, and the outline has none, when memory is short.
bool TakeDrawnSegments(const OutlineParts& outline) {
    const auto count = static_cast<std::size_t>(outline.segment) + 1;
    const OutlineClassWide& arrays = outline.kind.classWide;
    const std::span starts(reinterpret_cast<const IntPoint*>(arrays.imageStarts), count);
    const std::span ends(reinterpret_cast<const IntPoint*>(arrays.imageStops), count);
    const Size64 pixels = RasterLength(starts, ends);
    KestGlobalBlock points;
    UsePoints(outline, points, 0);
    if (!points.Allocate(pixels * static_cast<Size64>(sizeof(POINT)))) return false;
    RasteriseOutline(starts, ends, {static_cast<IntPoint*>(points.Get()), static_cast<std::size_t>(pixels)});
    UsePoints(outline, points, static_cast<int>(pixels));
    return true;
}

/// The last segment ends at the mouse, and the drawn segments become the outline.
int FinishDrawing(const OutlineParts& outline, const std::optional<View>& view, POINT mouse) {
    EndSegment(outline, view, mouse);
    const SegmentArrays segments = outline.Segments();
    segments.KeepPixel();
    if (outline.segment > KEST_MAX_SEGMENTS - 2) {
        TellSegmentLimit();
        return KEST_FAILED;
    }
    if (outline.IsClosed()) segments.Close();
    return TakeDrawnSegments(outline) ? KEST_OK : KEST_FAILED;
}

}  // namespace

int StartOutlineDrag(const OutlineParts& outline, HWND window, const DisplayArguments& display, POINT mouse, int mode,
                     CcRoiBase* source) {
    const DragState& drag = outline.drag;
    if (!BeginDrag(drag, window, mode, display.zoom)) return KEST_FAILED;
    std::optional<View> view;
    if (!MakeDragView(window, display, view)) {
        EndDrag(drag);
        return KEST_FAILED;
    }
    IntRect range = ClientOnScreen(window);
    // A message that was shown lets the host do anything, also end the drag.
    if (!GoesOn(drag)) return KEST_FAILED;
    const bool isMove = (mode == KEST_DRAG_CONVERT && source) || mode == KEST_DRAG_MOVE;
    if (!isMove && mode != KEST_DRAG_CREATE) {
        drag.mode = -1;
        return KEST_FAILED;
    }
    const RECT* bounds = isMove ? outline.roi.GetBoundingRect() : nullptr;
    if (isMove && !bounds) {
        EndDrag(drag);
        return KEST_FAILED;
    }
    if (isMove && view) range = RangeOfMove(range, *view, *bounds, mouse);
    ClipCursorTo(range);

    drag.lastMouse = mouse;
    outline.lastMouseInImage = view ? ImagePoint(*view, mouse) : POINT{};
    if (isMove) {
        DrawMoving(outline, view);
    } else {
        outline.segment = 0;
        outline.Segments().BeginAt(mouse, outline.lastMouseInImage);
    }
    return KEST_OK;
}

int ContinueOutlineDrag(const OutlineParts& outline, HWND window, const DisplayArguments& display, POINT mouse,
                        int addVertex) {
    std::optional<View> view;
    if (!GoesOn(outline.drag) || !MakeDragView(window, display, view)) return KEST_FAILED;
    if (outline.drag.mode != KEST_DRAG_CREATE) {
        DrawMoving(outline, view);
        MoveByMouse(outline, view, mouse);
        DrawMoving(outline, view);
        return KEST_OK;
    }
    DrawSegment(outline);
    EndSegment(outline, view, mouse);
    DrawSegment(outline);
    if (outline.HasVertices() && addVertex != 1) return KEST_OK;
    if (!outline.Segments().Advance()) {
        TellSegmentLimit();
        return KEST_FAILED;
    }
    DrawSegment(outline);
    return KEST_OK;
}

int StopOutlineDrag(const OutlineParts& outline, HWND window, const DisplayArguments& display, POINT mouse) {
    if (!GoesOn(outline.drag)) return KEST_FAILED;
    const bool isCreation = outline.drag.mode == KEST_DRAG_CREATE;
    std::optional<View> view;
    const bool isThere = MakeDragView(window, display, view);
    if (isCreation) {
        DrawSegment(outline);
    } else {
        DrawMoving(outline, view);
        MoveByMouse(outline, view, mouse);
    }
    EndDrag(outline.drag);
    if (!isThere || (isCreation && FinishDrawing(outline, view, mouse) < 0)) return KEST_FAILED;
    outline.roi.ShowROI(window, display.xOffset, display.yOffset, display.mode, display.image, display.zoom, -1);
    return KEST_OK;
}

}  // namespace kest
