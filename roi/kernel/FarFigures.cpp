// Lines and ellipses that reach far beyond what shows.
#include "roi/kernel/FarFigures.h"

#include <cmath>

namespace kest {
namespace {

std::uint64_t Distance(int a, int b) { return static_cast<std::uint64_t>(a < b ? Size64{b} - a : Size64{a} - b); }

/// Narrows the part of a line, from 0 at its start to 1 at its end, that lies between two values of a coordinate.
void Narrow(double start, double end, double low, double high, double& from, double& to) {
    if (start == end) {
        if (start < low || start > high) to = -1;
        return;
    }
    const double atLow = (low - start) / (end - start), atHigh = (high - start) / (end - start);
    from = std::max(from, std::min(atLow, atHigh));
    to = std::min(to, std::max(atLow, atHigh));
}

}  // namespace

bool ClipLine(const IntRect& area, IntPoint& start, IntPoint& end) {
    const IntPoint a = start, b = end;
    double from = 0, to = 1;
    Narrow(a.x, b.x, area.left, area.right, from, to);
    Narrow(a.y, b.y, area.top, area.bottom, from, to);
    if (from > to) return false;
    const auto at = [](int first, int second, double share) {
        return Saturate(std::llround(first + (static_cast<double>(second) - first) * share));
    };
    start = {at(a.x, b.x, from), at(a.y, b.y, from)};
    end = {at(a.x, b.x, to), at(a.y, b.y, to)};
    return true;
}

LineSteps::LineSteps(IntPoint lineStart, IntPoint lineEnd) : start(lineStart) {
    const std::uint64_t width = Distance(start.x, lineEnd.x), height = Distance(start.y, lineEnd.y);
    isSteep = height > width;
    length = isSteep ? height : width;
    rise = isSteep ? width : height;
    const int right = lineEnd.x < start.x ? -1 : 1, down = lineEnd.y < start.y ? -1 : 1;
    forward = isSteep ? down : right;
    sideward = isSteep ? right : down;
}

void LineSteps::StepsBetween(int low, int high, Size64& first, Size64& last) const {
    const Size64 from = isSteep ? start.y : start.x;
    first = std::max<Size64>(0, forward > 0 ? low - from : from - high);
    last = std::min<Size64>(static_cast<Size64>(length), forward > 0 ? high - from : from - low);
}

void LineSteps::GoTo(Size64 step) {
    index = step;
    // Neither factor has more than 32 bits.
    const std::uint64_t product = static_cast<std::uint64_t>(step) * rise;
    whole = length == 0 ? 0 : product / length;
    rest = length == 0 ? 0 : product % length;
}

void LineSteps::Next() {
    ++index;
    rest += rise;
    if (rest < length) return;
    rest -= length;
    ++whole;
}

IntPoint LineSteps::Pixel() const {
    const bool isNext = sideward > 0 ? 2 * rest > length : 2 * rest >= length;
    const Size64 aside = sideward * static_cast<Size64>(whole + (isNext && length > 0 ? 1 : 0));
    const Size64 ahead = forward * index;
    return {static_cast<int>(start.x + (isSteep ? aside : ahead)),
            static_cast<int>(start.y + (isSteep ? ahead : aside))};
}

EllipseInset InsetOnLine(Size64 place, Size64 across, Size64 along) {
    // From 0 at the box's side to 1 at its middle; the distances from the side are exact, those from the middle are
    // not.
    const double depth = across == 0 ? 1.0 : 2.0 * static_cast<double>(place) / static_cast<double>(across);
    const double reach = std::sqrt(depth * (2 - depth));
    const auto width = static_cast<double>(along);
    return {static_cast<int>(std::floor(width / 2 * (1 - reach) + 0.5)),
            width * (1 - depth) <= static_cast<double>(across) * reach};
}

}  // namespace kest
