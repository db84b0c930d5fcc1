// What of a shape lies under the mouse.
#include "roi/kernel/HitTest.h"

#include <algorithm>
#include <cmath>

#include "core/kernel/CheckedSize.h"

namespace kest {

int LineTolerance(const View& view) {
    if (view.IsStretched()) return 10;
    return view.zoom == 1 ? 5 : view.zoom <= 3 ? 2 : 1;
}

int HitEllipseHandle(const IntRect& box, RealPoint position) {
    constexpr double widest = 5.0;
    const double nearX = std::min(widest, (static_cast<double>(box.right) - box.left) / 4);
    const double nearY = std::min(widest, (static_cast<double>(box.top) - box.bottom) / 4);
    const auto isNearX = [&](double x) { return std::fabs(x - position.x) < nearX; };
    const auto isNearY = [&](double y) { return std::fabs(y - position.y) < nearY; };
    const auto middleX = static_cast<double>((Size64{box.left} + box.right) / 2);
    const auto middleY = static_cast<double>((Size64{box.top} + box.bottom) / 2);
    if (isNearX(middleX)) {
        if (isNearY(box.top)) return 1;
        if (isNearY(box.bottom)) return 2;
    }
    if (isNearY(middleY)) {
        if (isNearX(box.left)) return 3;
        if (isNearX(box.right)) return 4;
    }
    return -1;
}

bool IsNear(RealPoint point, RealPoint position, double tolerance) {
    return std::fabs(point.x - position.x) < tolerance && std::fabs(point.y - position.y) < tolerance;
}

bool IsNearSpan(const KestSpan& span, int position, int tolerance) {
    return position > Size64{span.iFirst} - tolerance && position < Size64{span.iLast} + tolerance;
}

bool IsAnyNear(std::span<const IntPoint> points, IntPoint position, int tolerance) {
    const auto isNear = [tolerance](int a, int b) { return std::abs(Size64{a} - b) < tolerance; };
    return std::any_of(points.begin(), points.end(), [&](const IntPoint& point) {
        return isNear(point.x, position.x) && isNear(point.y, position.y);
    });
}

}  // namespace kest
