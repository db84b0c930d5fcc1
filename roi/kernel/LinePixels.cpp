// The pixels of a straight line.
#include "roi/kernel/LinePixels.h"

#include <algorithm>

#include "roi/kernel/LineWalk.h"

namespace kest {
namespace {

/// Along a line a coordinate only rises, stays or falls, so equal ones are neighbours.
template <class Coordinate>
std::span<const IntPoint> EqualRange(std::span<const IntPoint> pixels, int value, Coordinate coordinate) {
    if (pixels.empty()) return {};
    const bool rises = coordinate(pixels.front()) <= coordinate(pixels.back());
    const auto isBefore = [&](int a, int b) { return rises ? a < b : b < a; };
    const auto first = std::partition_point(pixels.begin(), pixels.end(),
                                            [&](const IntPoint& pixel) { return isBefore(coordinate(pixel), value); });
    const auto last = std::partition_point(first, pixels.end(),
                                           [&](const IntPoint& pixel) { return coordinate(pixel) == value; });
    return {first, last};
}

}  // namespace

Size64 LinePixelCount(IntPoint start, IntPoint end) { return LineEquation(start, end).Length(); }

void RasteriseLine(IntPoint start, IntPoint end, std::span<IntPoint> pixels) {
    const LineEquation line(start, end);
    const bool isSteep = line.Height() > line.Width();
    int position = isSteep ? std::min(start.y, end.y) : std::min(start.x, end.x);
    for (IntPoint& pixel : pixels) {
        pixel = isSteep ? IntPoint{line.ColumnAt(position), position} : IntPoint{position, line.RowAt(position)};
        ++position;
    }
}

std::span<const IntPoint> PixelsOnRow(std::span<const IntPoint> pixels, int row) {
    return EqualRange(pixels, row, [](const IntPoint& pixel) { return pixel.y; });
}

std::span<const IntPoint> PixelsOnColumn(std::span<const IntPoint> pixels, int column) {
    return EqualRange(pixels, column, [](const IntPoint& pixel) { return pixel.x; });
}

}  // namespace kest
