// The curves in a graph's list, and their points.
#pragma once

#include <cstddef>
#include <span>

#include "CcCurve.h"

namespace kest {

/// Null for a member that is no curve.
inline CcCurve* AsCurve(CcHLObject* member) { return dynamic_cast<CcCurve*>(member); }

/// The caller's points; none before they are set.
inline std::span<tagPoints> PointsOf(CcCurve& curve) {
    tagPoints* const points = curve.GetCurveData();
    const int count = curve.GetNumberOfPoints();
    if (!points || count <= 0) return {};
    return {points, static_cast<std::size_t>(count)};
}

}  // namespace kest
