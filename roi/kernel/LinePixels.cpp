// The pixels of a straight line.
#include "roi/kernel/LinePixels.h"

#include <algorithm>

#include "roi/kernel/LineWalk.h"

namespace kest {
namespace {

/// The walk along a line's longer side: positions from `first` to before `end`.
struct Walk {
    int first;
    int end;

    Walk(int a, int b) : first(std::min(a, b)), end(std::max(a, b)) {}
    bool Has(int position) const { return position >= first && position < end; }
    /// Nothing, and false, of a walk without positions.
    bool Give(KestSpan& positions) const {
        if (first < end) positions = {first, end - 1};
        return first < end;
    }
    int Nearest(double place) const {
        return static_cast<int>(std::clamp(place, static_cast<double>(first), static_cast<double>(end)));
    }
};

/// The positions of a walk at which the other coordinate `at(position)` is `value`, for a line that `passes` each value
/// at one place only. Truncated toward zero, a value stands from there to the place of the next one away from zero;
/// rounding moves either end.
template <class Passes, class At>
bool PositionsAt(const Walk& walk, int value, bool rises, KestSpan& positions, Passes passes, At at) {
    const double low = value > 0 ? value : value - 1.0, high = value < 0 ? value : value + 1.0;
    const auto isBefore = [&](int position) { return rises ? at(position) < value : at(position) > value; };
    int first = walk.Nearest(passes(rises ? low : high));
    while (first > walk.first && !isBefore(first - 1)) --first;
    while (first < walk.end && isBefore(first)) ++first;
    int end = std::max(first, walk.Nearest(passes(rises ? high : low)));
    while (end > first && at(end - 1) != value) --end;
    while (end < walk.end && at(end) == value) ++end;
    return Walk(first, end).Give(positions);
}

}  // namespace

bool LineRow(IntPoint start, IntPoint end, int row, KestSpan& columns) {
    const LineEquation line(start, end);
    const Walk across(start.x, end.x), up(start.y, end.y);
    if (start.y == end.y) return row == start.y && across.Give(columns);
    if (line.Height() <= line.Width())
        return PositionsAt(
            across, row, line.Rises(), columns, [&line](double y) { return line.PassesRow(y); },
            [&line](int x) { return line.RowAt(x); });
    if (!up.Has(row)) return false;
    columns = {line.ColumnAt(row), line.ColumnAt(row)};
    return true;
}

bool LineColumn(IntPoint start, IntPoint end, int column, KestSpan& rows) {
    const LineEquation line(start, end);
    const Walk across(start.x, end.x), up(start.y, end.y);
    if (start.x == end.x) return column == start.x && up.Give(rows);
    if (line.Height() > line.Width())
        return PositionsAt(
            up, column, line.Rises(), rows, [&line](double x) { return line.PassesColumn(x); },
            [&line](int y) { return line.ColumnAt(y); });
    if (!across.Has(column)) return false;
    rows = {line.RowAt(column), line.RowAt(column)};
    return true;
}

}  // namespace kest
