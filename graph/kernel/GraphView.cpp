// What of a graph can show on its surface.
#include "graph/kernel/GraphView.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace kest {
namespace {

/// Pixels beside the surface that count as the surface: more than pens and the ends of texts reach.
constexpr int margin = 2048;
/// Wider lines than any device are drawn this wide, in pixels. As a line is a unit wide at least, larger units than
/// that are not drawn at all.
constexpr int widestPen = 10000;
/// Pixels beside it within which a plot is drawn as if it all showed.
constexpr int furthestPlot = 1 << 15;
/// Logical units that thin and wide lines go on beside the plot, and the pixels that these may be.
constexpr int thinReach = furthestPosition, wideReach = 2048, furthestPixel = 1 << 24;
/// Pixels after which the gaps of every broken line come again.
constexpr int dashPeriod = 24;

struct Interval {
    int low, high;
};

/// The logical positions of the device positions low..high.
Interval LogicalOf(int low, int high, int windowOrigin, int viewportOrigin, double scale) {
    const auto logical = [=](double device) { return (device - viewportOrigin) / scale + windowOrigin; };
    const double end = logical(static_cast<double>(low) - margin),
                 otherEnd = logical(static_cast<double>(high) + margin);
    // A line one unit further is half as wide as a unit is, at most.
    const double first = std::floor(std::min(end, otherEnd)) - 1, last = std::ceil(std::max(end, otherEnd)) + 1;
    constexpr double furthest = 2147483647;
    return {static_cast<int>(std::clamp(first, -furthest, furthest)),
            static_cast<int>(std::clamp(last, -furthest, furthest))};
}

/// A span from..to, in either direction, cut to low..high.
bool CutSpan(int low, int high, int& from, int& to) {
    if (std::max(from, to) < low || std::min(from, to) > high) return false;
    const auto wholePeriods = [](Size64 distance) { return static_cast<int>(distance / dashPeriod * dashPeriod); };
    if (from < low) from += wholePeriods(Size64{low} - from);
    if (from > high) from -= wholePeriods(Size64{from} - high);
    to = std::clamp(to, low, high);
    return true;
}

/// What `pixels` are in logical units, as far as positions go.
Size64 Units(int pixels, double unit) { return static_cast<Size64>(std::min(std::ceil(pixels / unit), 0x1p30)); }

/// Along one axis; `unit` pixels are a logical unit.
Interval CurvePositions(const AxisScale& scale, Interval inView, double unit, Size64 penWidth) {
    const Size64 longest = Units(furthestPixel, unit), beside = Units(furthestPlot, unit);
    const Size64 reach =
        penWidth <= 1 ? std::min<Size64>(thinReach, longest) : std::min<Size64>(wideReach, longest) + penWidth;
    const Size64 low = inView.low - beside, high = inView.high + beside;
    return {Saturate(std::clamp<Size64>(scale.low, low, high) - reach),
            Saturate(std::clamp<Size64>(scale.high, low, high) + reach)};
}

}  // namespace

bool ViewOf(const GraphMapping& mapping, const IntRect& surface, const FontSize& font, GraphView& view) {
    const auto& [window, viewport, from, to] = mapping;
    if (from.x == 0 || from.y == 0 || to.x == 0 || to.y == 0) return false;
    const double scaleX = static_cast<double>(to.x) / from.x, scaleY = static_cast<double>(to.y) / from.y;
    view.unit = {std::fabs(scaleX), std::fabs(scaleY)};
    const double side =
        std::max(static_cast<double>(surface.right) - surface.left, static_cast<double>(surface.bottom) - surface.top);
    if (std::max(view.unit.x, view.unit.y) > std::max<double>(side, widestPen)) return false;

    constexpr int largerThanAny = 4;
    view.hasTexts = std::max(font.height * view.unit.y, font.widestCharacter * view.unit.x) <= largerThanAny * side;
    const Interval x = LogicalOf(surface.left, surface.right, window.x, viewport.x, scaleX);
    const Interval y = LogicalOf(surface.top, surface.bottom, window.y, viewport.y, scaleY);
    view.area = {x.low, y.low, x.high, y.high};
    return true;
}

IntRect Widened(const IntRect& area, Size64 units) {
    return {Saturate(area.left - units), Saturate(area.top - units), Saturate(area.right + units),
            Saturate(area.bottom + units)};
}

bool CutLine(const IntRect& area, IntPoint& from, IntPoint& to) {
    const auto isOutside = [](int position, int low, int high) { return position < low || position > high; };
    if (from.x == to.x)
        return !isOutside(from.x, area.left, area.right) && CutSpan(area.top, area.bottom, from.y, to.y);
    return !isOutside(from.y, area.top, area.bottom) && CutSpan(area.left, area.right, from.x, to.x);
}

bool CanTextShow(const IntRect& area, IntPoint place, int length, const FontSize& font) {
    const Size64 width = Product(length, font.widestCharacter), height = 2 * Size64{font.height};
    return place.x + width >= area.left && place.x - width <= area.right && place.y + height >= area.top &&
           place.y - height <= area.bottom;
}

int BoundedPenWidth(const GraphView& view, int width) {
    const int widest = std::max(static_cast<int>(widestPen / std::max({view.unit.x, view.unit.y, 1.0})), 1);
    return std::clamp(width, -widest, widest);
}

IntRect DrawingArea(const GraphScales& scales, const GraphView& view, int penWidth) {
    const Size64 width = std::abs(Size64{penWidth});
    const Interval x = CurvePositions(scales.x, {view.area.left, view.area.right}, view.unit.x, width);
    const Interval y = CurvePositions(scales.y, {view.area.top, view.area.bottom}, view.unit.y, width);
    return {x.low, y.low, x.high, y.high};
}

}  // namespace kest
