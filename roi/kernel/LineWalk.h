// Walks a straight segment pixel by pixel along its longer side. Slope and intercept are held in single precision, the
// products are double, and the other coordinate is truncated toward zero.
#pragma once

#include <cstdint>
#include <cstdlib>

#include "core/kernel/CheckedSize.h"
#include "core/kernel/Geometry.h"
#include "core/kernel/Numbers.h"

namespace kest {

/// The line through two points: y = x * slope + intercept.
class LineEquation {
public:
    LineEquation(IntPoint start, IntPoint end)
        : dx(Size64{end.x} - start.x),
          dy(Size64{end.y} - start.y),
          startX(start.x),
          startY(start.y),
          slope(dx == 0 ? 0.0F : static_cast<float>(static_cast<double>(dy) / static_cast<double>(dx))),
          intercept(static_cast<float>(startY - static_cast<double>(startX) * slope)) {}

    Size64 Width() const { return dx < 0 ? -dx : dx; }
    Size64 Height() const { return dy < 0 ? -dy : dy; }
    /// Pixels of the walk along the longer side, one end excluded.
    Size64 Length() const { return Width() > Height() ? Width() : Height(); }

    /// The row at a column, and the column at a row.
    int RowAt(int x) const { return dy == 0 ? startY : TruncateToInt(x * static_cast<double>(slope) + intercept); }
    int ColumnAt(int y) const { return dx == 0 ? startX : TruncateToInt((y - static_cast<double>(intercept)) / slope); }

    /// Where the line passes a row, and a column; for a line that does not run along it.
    double PassesRow(double y) const { return (y - intercept) / slope; }
    double PassesColumn(double x) const { return x * slope + intercept; }
    /// From the left to the right, so from the bottom to the top it goes to the right.
    bool Rises() const { return slope > 0; }

    /// RowAt and ColumnAt where all coordinates are within 2^30 of the origin; loops over them become vector
    /// instructions.
    int NearRowAt(int x) const {
        return dy == 0 ? startY : static_cast<int>(x * static_cast<double>(slope) + intercept);
    }
    int NearColumnAt(int y) const {
        return dx == 0 ? startX : static_cast<int>((y - static_cast<double>(intercept)) / slope);
    }

private:
    Size64 dx, dy;
    int startX, startY;
    float slope, intercept;
};

}  // namespace kest
