// Cutting the segments of a curve, and finding its points under the cursor.
#include "graph/kernel/CurvePath.h"

#include <cstddef>

namespace kest {
namespace {

/// Cuts off what lies beyond `limit`, in the direction of `sign`. The new end lies on the line through `a` and `b`, the
/// uncut segment's ends.
template <double RealPoint::*Along, double RealPoint::*Across>
bool CutAt(double limit, double sign, const RealPoint& a, const RealPoint& b, RealPoint& from, RealPoint& to) {
    const auto isBeyond = [=](const RealPoint& point) { return sign * (point.*Along - limit) > 0; };
    if (isBeyond(from) && isBeyond(to)) return false;
    for (RealPoint* end : {&from, &to}) {
        if (!isBeyond(*end)) continue;
        end->*Along = limit;
        // In this form ends far off on both sides cancel exactly.
        if (a.*Along != b.*Along)
            end->*Across = (limit * (b.*Across - a.*Across) + ((b.*Along) * (a.*Across) - (a.*Along) * (b.*Across))) /
                           (b.*Along - a.*Along);
    }
    return true;
}

bool IsHit(const AxisScale& scale, double value, int cursor) {
    return scale.IsUsable() && std::fabs(std::trunc(scale.Position(value)) - cursor) < 5;
}

}  // namespace

bool ClipSegment(const IntRect& area, RealPoint& from, RealPoint& to) {
    const RealPoint a = from, b = to;
    return CutAt<&RealPoint::x, &RealPoint::y>(area.left, -1, a, b, from, to) &&
           CutAt<&RealPoint::x, &RealPoint::y>(area.right, 1, a, b, from, to) &&
           CutAt<&RealPoint::y, &RealPoint::x>(area.top, -1, a, b, from, to) &&
           CutAt<&RealPoint::y, &RealPoint::x>(area.bottom, 1, a, b, from, to);
}

int FirstPointNear(const GraphScales& scales, std::span<const tagPoints> points, IntPoint cursor, HitAxes axes) {
    for (std::size_t i = 0; i < points.size(); ++i)
        if ((!axes.x || IsHit(scales.x, points[i].x, cursor.x)) && (!axes.y || IsHit(scales.y, points[i].y, cursor.y)))
            return static_cast<int>(i);
    return -1;
}

}  // namespace kest
