// Drawing, moving and resizing a shape with the mouse.
#include "roi/ShapeDrag.h"

#include "roi/ShapePlace.h"
#include "roi/kernel/DragGeometry.h"

namespace kest {
namespace {

/// Where the drag begins. Without a view the window copy stays.
bool PlaceForDrag(const ShapeParts& shape, const std::optional<View>& view, POINT mouse, CcRoiBase* source) {
    switch (shape.drag.mode) {
        case KEST_DRAG_CONVERT: {
            const RECT* bounds = source ? source->GetCurrentBoundingRect() : nullptr;
            if (bounds && view) shape.window.Set(WindowCorners(*view, ToRect(*bounds)));
            return bounds != nullptr;
        }
        case KEST_DRAG_MOVE:
        case KEST_DRAG_RESIZE: MakeWindowPlace(shape, view); return true;
        case KEST_DRAG_CREATE: shape.window.Set({mouse.x, mouse.y, mouse.x, mouse.y}); return true;
        default: return false;
    }
}

/// The cursor's range on the screen, within the window's client area there.
IntRect RangeOfDrag(const ShapeParts& shape, int mode, const IntRect& place, const IntRect& client, POINT mouse) {
    switch (mode) {
        case KEST_DRAG_CONVERT:
        case KEST_DRAG_MOVE: return ClipForMove(client, Normalised(place), ToPoint(mouse));
        case KEST_DRAG_RESIZE: return ClipForResize(client, place, ToPoint(mouse), SidesOfHandle(shape.hitCode));
        default: return client;
    }
}

/// Moves what the handle moves, or all of it.
void MoveByMouse(const ShapeParts& shape, IntRect& place, POINT mouse) {
    const bool isResize = shape.drag.mode == KEST_DRAG_RESIZE;
    const unsigned sides = isResize ? SidesOfHandle(shape.hitCode) : unsigned{AllSides};
    MoveSides(place, sides, Size64{mouse.x} - shape.drag.lastMouse.x, Size64{mouse.y} - shape.drag.lastMouse.y);
}

/// The corner where the drag began stays, but that of a point.
void FollowCreation(const ShapeParts& shape, IntRect& place, POINT mouse) {
    if (shape.window.AreOne())
        place = {mouse.x, mouse.y, mouse.x, mouse.y};
    else
        place = {place.left, place.top, mouse.x, mouse.y};
}

void TakePlace(const ShapeParts& shape, const std::optional<View>& view, const IntRect& place) {
    if (view) shape.kind.takeCorners(shape, *view, ImageCorners(*view, place));
}

}  // namespace

int StartShapeDrag(const ShapeParts& shape, HWND window, const DisplayArguments& display, POINT mouse, int mode,
                   CcRoiBase* source) {
    const DragState& drag = shape.drag;
    if (!BeginDrag(drag, window, mode, display.zoom)) return KEST_FAILED;
    std::optional<View> view;
    if (!MakeDragView(window, display, view)) {
        EndDrag(drag);
        return KEST_FAILED;
    }
    if (!PlaceForDrag(shape, view, mouse, source)) {
        drag.mode = -1;
        return KEST_FAILED;
    }
    const IntRect place = shape.window.Get();
    const IntRect client = ClientOnScreen(window);
    // A message that was shown lets the host do anything, also end the drag.
    if (!GoesOn(drag)) return KEST_FAILED;
    ClipCursorTo(RangeOfDrag(shape, mode, place, client, mouse));

    drag.lastMouse = mouse;
    shape.kind.drawRubberBand(drag.dc, place);
    TakePlace(shape, view, place);
    return KEST_OK;
}

int ContinueShapeDrag(const ShapeParts& shape, HWND window, const DisplayArguments& display, POINT mouse) {
    std::optional<View> view;
    if (!GoesOn(shape.drag) || !MakeDragView(window, display, view)) return KEST_FAILED;
    IntRect place = shape.window.Get();
    shape.kind.drawRubberBand(shape.drag.dc, place);
    if (shape.drag.mode == KEST_DRAG_CREATE)
        FollowCreation(shape, place, mouse);
    else
        MoveByMouse(shape, place, mouse);
    shape.drag.lastMouse = mouse;
    shape.window.Set(place);
    shape.kind.drawRubberBand(shape.drag.dc, place);
    TakePlace(shape, view, place);
    return KEST_OK;
}

int StopShapeDrag(const ShapeParts& shape, HWND window, const DisplayArguments& display, POINT mouse) {
    if (!GoesOn(shape.drag)) return KEST_FAILED;
    IntRect place = shape.window.Get();
    shape.kind.drawRubberBand(shape.drag.dc, place);
    if (shape.drag.mode != KEST_DRAG_CREATE)
        MoveByMouse(shape, place, mouse);
    else if (shape.kind.keepsExtent)
        KeepExtent(place, ToPoint(mouse));
    else
        FollowCreation(shape, place, mouse);
    if (shape.kind.isNormalised) place = Normalised(place);
    shape.window.Set(place);
    std::optional<View> view;
    const bool isThere = MakeDragView(window, display, view);
    TakePlace(shape, view, place);
    EndDrag(shape.drag);
    return isThere ? KEST_OK : KEST_FAILED;
}

}  // namespace kest
