// One axis of a graph: data values on one side, logical positions on the other.
#pragma once

#include <cmath>

#include "core/kernel/Numbers.h"

namespace kest {

/// The values minimum..maximum lie on the positions low..high. Either pair may run downward.
struct AxisScale {
    double minimum;
    double maximum;
    int low;
    int high;

    /// False where a conversion would divide by zero or yield no number.
    bool IsUsable() const {
        return std::isfinite(minimum) && std::isfinite(maximum) && minimum != maximum && low != high;
    }
    /// Where a value lies, before it is cut to whole units.
    double Position(double value) const { return (value - minimum) / ((maximum - minimum) / Length()) + low; }
    int Logical(double value) const { return TruncateToInt(Position(value)); }
    /// The value at a position; the minimum everywhere when the scale is not usable.
    float Value(int position) const {
        if (!IsUsable()) return static_cast<float>(minimum);
        return static_cast<float>((maximum - minimum) / Length() * (static_cast<double>(position) - low) + minimum);
    }
    /// Negative when the positions run downward.
    double Length() const { return static_cast<double>(high) - low; }
};

}  // namespace kest
