// The bounding rectangle of an outline.
#pragma once

#include <algorithm>
#include <span>

#include "core/kernel/Geometry.h"

namespace kest {

/// Top above bottom, all four sides on the outline. The outline has a pixel at least.
inline IntRect OutlineBounds(std::span<const IntPoint> outline) {
    IntRect bounds = {outline[0].x, outline[0].y, outline[0].x, outline[0].y};
    for (const IntPoint& pixel : outline) {
        bounds.left = std::min(bounds.left, pixel.x);
        bounds.right = std::max(bounds.right, pixel.x);
        bounds.bottom = std::min(bounds.bottom, pixel.y);
        bounds.top = std::max(bounds.top, pixel.y);
    }
    return bounds;
}

}  // namespace kest
