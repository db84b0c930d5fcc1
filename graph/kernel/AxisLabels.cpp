// The texts of axis labels.
#include "graph/kernel/AxisLabels.h"

#include <cstdio>
#include <cstdlib>

namespace kest {
namespace {

/// Powers up to 10 to the 22nd are exact; the largest and smallest end in infinity and 0.
double PowerOfTen(int exponent) {
    double power = 1;
    for (int i = std::min(std::abs(std::max(exponent, -400)), 400); i > 0; --i)
        power *= 10;
    return exponent < 0 ? 1 / power : power;
}

constexpr int DecimalsOf(int precision) { return precision >= 0 && precision <= 5 ? precision : 2; }

}  // namespace

int WriteLabel(LabelText& text, float value, int exponent, int precision) {
    text[0] = 0;
    const double scaled = value / PowerOfTen(exponent);
    if (!std::isfinite(scaled)) return 0;
    return std::snprintf(text, sizeof text, "%7.*f", DecimalsOf(precision), scaled);
}

}  // namespace kest
