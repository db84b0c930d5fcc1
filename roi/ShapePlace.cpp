// Where a shape lies: in the image, in the window, and its bounds.
#include "roi/ShapePlace.h"

#include <algorithm>

#include "CcRoiLine.h"

namespace kest {
namespace {

/// A record of two corners, x before y.
template <class Record>
Corners TwoCornersIn(Record& record) {
    static_assert(sizeof record == 2 * sizeof(POINT));
    POINT* corners = reinterpret_cast<POINT*>(&record);
    return {corners[0], corners[1]};
}

}  // namespace

IntRect Corners::Get() const { return {first.x, first.y, second.x, second.y}; }

void Corners::Set(const IntRect& place) const {
    second = {place.right, place.bottom};
    first = {place.left, place.top};
}

Corners CornersIn(RECT& rect) { return TwoCornersIn(rect); }
Corners CornersIn(tagROILINE& line) { return TwoCornersIn(line); }

IntRect ImageCorners(const View& view, const IntRect& window) {
    const IntPoint first = WindowToImage(view, {window.left, window.top});
    const IntPoint second = WindowToImage(view, {window.right, window.bottom});
    return {first.x, first.y, second.x, second.y};
}

IntRect WindowCorners(const View& view, const IntRect& image) {
    const IntPoint first = ImageToWindow(view, IntPoint{image.left, image.top});
    const IntPoint second = ImageToWindow(view, IntPoint{image.right, image.bottom});
    return {first.x, first.y, second.x, second.y};
}

IntRect ClampToImage(const View& view, const IntRect& corners) {
    const int lastColumn = std::max(view.imageWidth - 1, 0), lastRow = std::max(view.imageHeight - 1, 0);
    return {std::clamp(corners.left, 0, lastColumn), std::clamp(corners.top, 0, lastRow),
            std::clamp(corners.right, 0, lastColumn), std::clamp(corners.bottom, 0, lastRow)};
}

void TakeClamped(const ShapeParts& shape, const View& view, const IntRect& corners) {
    shape.image.Set(ClampToImage(view, corners));
}

void TakeClampedOutward(const ShapeParts& shape, const View& view, const IntRect& corners) {
    shape.image.Set({std::max(corners.left, 0), std::min(corners.top, view.imageHeight - 1),
                     std::min(corners.right, view.imageWidth - 1), std::max(corners.bottom, 0)});
}

IntRect WindowCornersOf(const ShapeParts& shape, const View& view) { return WindowCorners(view, shape.image.Get()); }

int TakeWindowPlace(const ShapeParts& shape, HWND window, const DisplayArguments& display) {
    const std::optional<View> view = MakeView(window, display);
    if (!view) return KEST_FAILED;
    shape.kind.takeCorners(shape, *view, ImageCorners(*view, shape.window.Get()));
    return KEST_OK;
}

void MakeWindowPlace(const ShapeParts& shape, const std::optional<View>& view) {
    if (view) shape.window.Set(shape.kind.windowCorners(shape, *view));
}

RECT* CurrentShapeBounds(const ShapeParts& shape) {
    shape.currentBounds = FromRect(shape.image.Get());
    return &shape.currentBounds;
}

RECT* PrepareShape(const ShapeParts& shape) {
    const IntRect corners = shape.image.Get();
    shape.bounds = FromRect(corners);
    // The corners of a rectangle or an ellipse are kept in order; those that a host has set stay as they stand.
    if (!shape.kind.isNormalised)
        shape.bounds = {std::min(corners.left, corners.right), std::max(corners.top, corners.bottom),
                        std::max(corners.left, corners.right), std::min(corners.top, corners.bottom)};
    return shape.buffer.Prepare() ? &shape.bounds : nullptr;
}

}  // namespace kest
