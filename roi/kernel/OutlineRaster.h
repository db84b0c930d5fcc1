// Turns drawn segments into a connected chain of pixels, the perimeter of a freehand outline.
#pragma once

#include <span>

#include "core/kernel/CheckedSize.h"
#include "core/kernel/Geometry.h"

namespace kest {

/// Pixels that the segments yield together: of each the longer of its width and height.
Size64 RasterLength(std::span<const IntPoint> starts, std::span<const IntPoint> ends);

/// Walks each segment from its start to its end, the end excluded, along its longer side. Where a segment does not meet
/// the pixel before it, its first pixels are moved one pixel towards it. `chain` holds RasterLength pixels.
void RasteriseOutline(std::span<const IntPoint> starts, std::span<const IntPoint> ends, std::span<IntPoint> chain);

}  // namespace kest
