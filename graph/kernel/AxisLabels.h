// The marks along an axis and the texts of their labels.
#pragma once

#include <algorithm>
#include <cmath>

#include "graph/kernel/AxisScale.h"

namespace kest {

/// Room for the label of the largest number there is.
using LabelText = char[400];

/// Writes `value` divided by 10 to the power `exponent`, right-justified in seven characters, with 0 to 5 decimals; any
/// other precision stands for 2. Its length; 0 when the quotient is no finite number.
int WriteLabel(LabelText& text, float value, int exponent, int precision);

/// Positions low..high of an axis.
struct Positions {
    double low, high;
};

/// The numbers of the intervals, from the first to behind the last, that can touch the positions.
struct IntervalRange {
    int first, end;
};
IntervalRange IntervalsIn(const AxisScale& scale, Positions visible, int intervals);

/// Calls `visit(value, isMajor)` for each mark: every major one, from the minimum on, followed by the minor ones up to
/// the next. `majorMarks` divide the whole axis, `minorMarks` each interval; minor marks on or beyond the ends are left
/// out. Steps are computed in single precision. A single major mark has no interval.
///
/// An axis needs no more marks than fill it: greater numbers count as two marks a unit. Intervals that lie beside the
/// positions `visible` are passed over.
template <class Visit>
void ForEachMark(const AxisScale& scale, Positions visible, int majorMarks, int minorMarks, Visit visit) {
    const int units = static_cast<int>(std::min(std::fabs(scale.Length()), 1e6));
    const auto minimum = static_cast<float>(scale.minimum), maximum = static_cast<float>(scale.maximum);
    const int majors = std::min(majorMarks, 2 * units + 2);
    const int intervals = std::max(majors, 2) - 1;
    const int minors = majors > 1 ? std::min(minorMarks, 2 * units / intervals + 2) : 0;
    const float step = (maximum - minimum) / static_cast<float>(intervals);
    const IntervalRange range = IntervalsIn(scale, visible, intervals);
    for (int i = range.first; i < std::min(majors, range.end); ++i) {
        const float major = i == 0 ? minimum : static_cast<float>(i) * step + minimum;
        if (!std::isfinite(major)) return;
        visit(major, true);
        const float minorStep = step / static_cast<float>(minors + 1);
        for (int j = 1; j <= minors; ++j) {
            const float minor = static_cast<float>(j) * minorStep + major;
            if (minimum < minor && minor < maximum) visit(minor, false);
        }
    }
}

}  // namespace kest
