// The pixels of a straight line, one for each step along its longer side, and those of them on a row or column.
#pragma once

#include <span>

#include "core/kernel/CheckedSize.h"
#include "core/kernel/Geometry.h"

namespace kest {

/// Their number: the longer of width and height; the end with the larger coordinate is no pixel of the line.
Size64 LinePixelCount(IntPoint start, IntPoint end);

/// Ascending along the longer side. `pixels` holds LinePixelCount pixels.
void RasteriseLine(IntPoint start, IntPoint end, std::span<IntPoint> pixels);

/// The pixels on a row, or on a column: neighbours in the list.
std::span<const IntPoint> PixelsOnRow(std::span<const IntPoint> pixels, int row);
std::span<const IntPoint> PixelsOnColumn(std::span<const IntPoint> pixels, int column);

}  // namespace kest
