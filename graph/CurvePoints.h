// The curves in a graph's list, and their points.
#pragma once

#include <cstddef>
#include <span>

#include "CcCurve.h"
#include "CcList.h"
#include "core/kernel/Guard.h"

namespace kest {

/// The current position of a list, which may be null; it comes back.
class ListPositionGuard : Guard {
public:
    explicit ListPositionGuard(CcList* walked) : list(walked), index(walked ? walked->GetCurrentObjectsIndex() : -1) {}
    ~ListPositionGuard() {
        if (list) list->GetAtIndex(index);
    }

private:
    CcList* list;
    int index;
};

/// Null for a member that is no curve.
inline CcCurve* AsCurve(CcHLObject* member) {
    return member && member->GetType() == KEST_TYPE_CURVE ? static_cast<CcCurve*>(member) : nullptr;
}

/// The caller's points; none before they are set.
inline std::span<tagPoints> PointsOf(CcCurve& curve) {
    tagPoints* const points = curve.GetCurveData();
    const int count = curve.GetNumberOfPoints();
    if (!points || count <= 0) return {};
    return {points, static_cast<std::size_t>(count)};
}

}  // namespace kest
