// The texts of axis labels.
#include "graph/kernel/AxisLabels.h"

#include <cstdio>
#include <cstdlib>

namespace kest {
namespace {

/// Powers up to 10 to the 22nd are exact; the largest and smallest end in infinity and 0.
double PowerOfTen(int exponent) {
    double power = 1;
    for (int i = std::min(std::abs(std::max(exponent, -400)), 400); i > 0; --i) power *= 10;
    return exponent < 0 ? 1 / power : power;
}

constexpr int DecimalsOf(int precision) { return precision >= 0 && precision <= 5 ? precision : 2; }

}  // namespace

IntervalRange IntervalsIn(const AxisScale& scale, Positions visible, int intervals) {
    // Positions are those of single-precision values, and each is off by as much as these are.
    const double largest = std::max(std::fabs(scale.minimum), std::fabs(scale.maximum));
    const double inaccuracy = largest / std::fabs(scale.maximum - scale.minimum) * 0x1p-20 * intervals + 2;
    const double pitch = scale.Length() / intervals;
    const double one = (visible.low - scale.low) / pitch, other = (visible.high - scale.low) / pitch;
    const double most = intervals + 1.0;
    return {static_cast<int>(std::clamp(std::min(one, other) - inaccuracy, 0.0, most)),
            static_cast<int>(std::clamp(std::max(one, other) + inaccuracy, 0.0, most))};
}

int WriteLabel(LabelText& text, float value, int exponent, int precision) {
    text[0] = 0;
    const double scaled = value / PowerOfTen(exponent);
    if (!std::isfinite(scaled)) return 0;
    return std::snprintf(text, sizeof text, "%7.*f", DecimalsOf(precision), scaled);
}

}  // namespace kest
