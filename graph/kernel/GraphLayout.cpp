// Where a graph's plot lies on its surface, and how the graph's logical coordinates are anchored to it.
#include "graph/kernel/GraphLayout.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "core/kernel/CheckedSize.h"

namespace kest {
namespace {

/// Digits of |value| rounded to so many decimals, without leading zeros; zero itself has only its decimals.
int FixedPointDigits(double value, int decimals) {
    if (!std::isfinite(value)) return 0;
    if (value == 0) return decimals;
    double power = 1;
    for (int i = 0; i < decimals; ++i) power *= 10;
    // Up to twelve decimals the product is exact; what more of them lose does not change their number.
    const double units = std::floor(std::fabs(value) * power + 0.5);
    if (units == 0) return 0;
    char digits[64];
    return std::snprintf(digits, sizeof digits, "%.0f", units);
}

bool IsOnDevice(int position) { return std::abs(Size64{position}) <= furthestPosition; }

bool IsAscendingOnDevice(int low, int high) { return low < high && IsOnDevice(low) && IsOnDevice(high); }

/// How far along a scale its origin lies, in whole units from the low end.
int OriginDistance(const GraphAxis& axis, const AxisScale& scale) {
    const double toOrigin = static_cast<double>(axis.origin) - axis.minimum;
    const double fromOrigin = static_cast<double>(axis.maximum) - axis.origin;
    const double distance = std::trunc(toOrigin / (fromOrigin + toOrigin) * scale.Length());
    if (std::isnan(distance)) return 0;
    return static_cast<int>(std::clamp<double>(distance, -furthestPosition, furthestPosition));
}

/// The logical position of the origin; where that is too far off, the one that agrees with its clamped distance.
int OriginPosition(const GraphAxis& axis, const AxisScale& scale, int distance) {
    const double position = scale.Position(axis.origin);
    if (std::abs(distance) < furthestPosition && std::fabs(position) <= 2.0 * furthestPosition)
        return TruncateToInt(position);
    return scale.low + distance;
}

}  // namespace

int LabelCharacters(const GraphAxis& axis) {
    // Powers of ten are exact as far as this.
    constexpr int mostDecimals = 22;
    const int decimals = std::clamp(axis.precision, 0, mostDecimals);
    const int digits = std::max(FixedPointDigits(axis.maximum, decimals), FixedPointDigits(axis.minimum, decimals));
    return digits + (decimals > 0 ? 1 : 0);
}

IntRect PageSurface(int width, int height) {
    const int marginX = width / 20, marginY = height / 20;
    return {marginX, marginY, width - marginX, height - marginY};
}

IntRect PlotArea(const IntRect& surface, const GraphAxis& x, const GraphAxis& y, const FontSize& font) {
    const Size64 character = font.widestCharacter / 2;
    const Size64 xCharacters = Size64{LabelCharacters(x)} - x.exponent;
    const Size64 yCharacters = Size64{LabelCharacters(y)} - y.exponent;
    return {Saturate(surface.left + character * yCharacters + 15), Saturate(surface.top + 2 * Size64{font.height} + 3),
            Saturate(surface.right - 15 - xCharacters * character / 2),
            Saturate(surface.bottom - 4 * Size64{font.height})};
}

GraphScales ScalesOf(const GraphAxis& x, const GraphAxis& y, const IntRect& plot) {
    return {{x.minimum, x.maximum, plot.left, plot.right}, {y.minimum, y.maximum, plot.top, plot.bottom}};
}

bool IsDrawable(const GraphScales& scales) {
    return scales.AreUsable() && IsAscendingOnDevice(scales.x.low, scales.x.high) &&
           IsAscendingOnDevice(scales.y.low, scales.y.high);
}

GraphAnchor AnchorOf(const GraphAxis& x, const GraphAxis& y, const GraphScales& scales) {
    if (!IsDrawable(scales)) return {{scales.x.low, scales.y.high}, {scales.x.low, scales.y.low}};
    const int xDistance = OriginDistance(x, scales.x), yDistance = OriginDistance(y, scales.y);
    return {{scales.x.low + xDistance, scales.y.high - yDistance},
            {OriginPosition(x, scales.x, xDistance), OriginPosition(y, scales.y, yDistance)}};
}

}  // namespace kest
