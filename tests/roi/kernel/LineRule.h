// The pixels of a line by the rule as it is stated, one after another.
#pragma once

#include "core/kernel/Geometry.h"

namespace test {

/// The pixel in row `at` of a steep line, in column `at` of another; the line's numbers are in single precision.
inline kest::IntPoint PixelByRule(kest::IntPoint start, kest::IntPoint end, bool isSteep, int at) {
    const int dx = end.x - start.x, dy = end.y - start.y;
    const float m = dx == 0 ? 0 : static_cast<float>(static_cast<double>(dy) / dx);
    const float b = static_cast<float>(start.y - static_cast<double>(start.x) * m);
    if (isSteep) return {dx == 0 ? start.x : static_cast<int>((at - static_cast<double>(b)) / m), at};
    return {at, dy == 0 ? start.y : static_cast<int>(at * static_cast<double>(m) + b)};
}

}  // namespace test
