// The pixels of an ellipse on a row, from its equation.
#pragma once

#include "KestTypes.h"
#include "core/kernel/Geometry.h"

namespace kest {

/// Adds 0.5 and truncates toward zero: rounds halves up for positive values.
int Roundoff(double value);

/// The columns of row `row` of the ellipse inscribed in `box` (top above bottom). False when the row misses it. The
/// quadratic's coefficient and discriminant are held in single precision.
bool EllipseRow(const IntRect& box, int row, KestSpan& columns);

/// The rows of a column.
bool EllipseColumn(const IntRect& box, int column, KestSpan& rows);

}  // namespace kest
