// Where a shape lies: in the image, in the window, and its bounds.
#pragma once

#include "roi/DisplayArguments.h"
#include "roi/ShapeParts.h"

namespace kest {

/// Window coordinates in the image, not clamped, and the other way round.
IntRect ImageCorners(const View& view, const IntRect& window);
IntRect WindowCorners(const View& view, const IntRect& image);
/// Each coordinate clamped to the image.
IntRect ClampToImage(const View& view, const IntRect& corners);

// For ShapeKind:

/// Each coordinate clamped to the image.
void TakeClamped(const ShapeParts& shape, const View& view, const IntRect& corners);
/// Clamped outward only: a top below the image or a left beyond it is kept.
void TakeClampedOutward(const ShapeParts& shape, const View& view, const IntRect& corners);
/// Of a record that is its corners.
IntRect WindowCornersOf(const ShapeParts& shape, const View& view);

/// Converts the window copy into the record. KEST_FAILED for a null image or window.
int TakeWindowPlace(const ShapeParts& shape, HWND window, const DisplayArguments& display);
/// Converts the record into the window copy, which a missing view leaves as it was.
void MakeWindowPlace(const ShapeParts& shape, const std::optional<View>& view);

RECT* CurrentShapeBounds(const ShapeParts& shape);
/// Prepares the boundary queries; null when memory is short.
RECT* PrepareShape(const ShapeParts& shape);

}  // namespace kest
