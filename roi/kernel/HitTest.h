// What of a shape lies under the mouse, in image coordinates. Distances must be below the tolerance.
#pragma once

#include <span>

#include "KestTypes.h"
#include "core/kernel/Geometry.h"
#include "core/kernel/ViewTransform.h"

namespace kest {

/// How near a thin shape must be, in image pixels: 5 at zoom 1, 2 at zoom 2 and 3, 1 above, 10 when stretched.
int LineTolerance(const View& view);

/// The edge middle of an ellipse's box at a position: 1 top, 2 bottom, 3 left, 4 right, or -1. A quarter of the box's
/// width and height, at most 5, is near.
int HitEllipseHandle(const IntRect& box, RealPoint position);

/// True when the point is nearer to the position than the tolerance in both directions.
bool IsNear(RealPoint point, RealPoint position, double tolerance);

/// True when any value of the span is nearer to the position than the tolerance.
bool IsNearSpan(const KestSpan& span, int position, int tolerance);

/// True when any of the points is near in both directions.
bool IsAnyNear(std::span<const IntPoint> points, IntPoint position, int tolerance);

}  // namespace kest
