// The pixels of an ellipse on a row.
#include "roi/kernel/EllipseExtent.h"

#include <algorithm>
#include <cmath>

#include "core/kernel/Numbers.h"

namespace kest {
namespace {

/// One line through the ellipse: it lies at `line`, between `low` and `high`; along it the ellipse reaches from `first`
/// to `last`.
bool Extent(int line, int low, int high, int first, int last, KestSpan& span) {
    if (line < low || line > high) return false;
    const double halfAlong = std::fabs(static_cast<double>(last) - first) / 2;
    const double halfAcross = std::fabs(static_cast<double>(high) - low) / 2;
    const double centreAlong = last - halfAlong;
    const double distance = line - (high - halfAcross);
    // An ellipse without extent across is its own axis.
    const double share = halfAcross == 0 ? 0.0 : distance * distance / (halfAcross * halfAcross);
    const auto b = static_cast<float>(-2.0 * centreAlong);
    const auto discriminant = static_cast<float>(
        static_cast<double>(b) * b - 4.0 * (centreAlong * centreAlong - (1.0 - share) * (halfAlong * halfAlong)));
    if (discriminant < 0) return false;
    const double root = std::sqrt(static_cast<double>(discriminant));
    // Far from the origin single precision is coarser than a pixel; the box is never left.
    const int lowest = std::min(first, last), highest = std::max(first, last);
    span = {std::clamp(Roundoff((-static_cast<double>(b) - root) / 2), lowest, highest),
            std::clamp(Roundoff((-static_cast<double>(b) + root) / 2), lowest, highest)};
    return span.iFirst <= span.iLast;
}

}  // namespace

int Roundoff(double value) { return TruncateToInt(value + 0.5); }

bool EllipseRow(const IntRect& box, int row, KestSpan& columns) {
    return Extent(row, box.bottom, box.top, box.left, box.right, columns);
}

bool EllipseColumn(const IntRect& box, int column, KestSpan& rows) {
    return Extent(column, box.left, box.right, box.bottom, box.top, rows);
}

}  // namespace kest
