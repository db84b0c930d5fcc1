// The pixels of a straight line: one for each step along its longer side, ascending, the end with the larger coordinate
// excluded. Those on a row or on a column are neighbours, so nothing has to be kept of the others.
#pragma once

#include "KestTypes.h"
#include "core/kernel/Geometry.h"

namespace kest {

/// The columns of the line's pixels on row `row`. False when the row misses the line, as every row does one without
/// length.
bool LineRow(IntPoint start, IntPoint end, int row, KestSpan& columns);

/// The rows of its pixels on a column.
bool LineColumn(IntPoint start, IntPoint end, int column, KestSpan& rows);

}  // namespace kest
