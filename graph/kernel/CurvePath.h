// A curve as a path of logical positions that the drawing system can take.
#pragma once

#include <cmath>
#include <span>

#include "KestTypes.h"
#include "core/kernel/Geometry.h"
#include "graph/kernel/GraphLayout.h"

namespace kest {

/// False for a point that is not finite, too.
inline bool LiesIn(const IntRect& area, RealPoint point) {
    return area.left <= point.x && point.x <= area.right && area.top <= point.y && point.y <= area.bottom;
}

/// Shortens a segment of finite ends to what lies in the area (top below bottom); false when nothing does.
bool ClipSegment(const IntRect& area, RealPoint& from, RealPoint& to);

inline RealPoint PositionOf(const GraphScales& scales, const tagPoints& point) {
    return {scales.x.Position(point.x), scales.y.Position(point.y)};
}

inline IntPoint WholeUnits(RealPoint point) { return {TruncateToInt(point.x), TruncateToInt(point.y)}; }

/// The path along a curve's points, one after another. A point that is not finite interrupts it; segments are cut at
/// the area's sides without changing their slope.
class PathTracer {
public:
    PathTracer(const GraphScales& curveScales, const IntRect& drawnArea) : scales(curveScales), area(drawnArea) {}

    /// Calls `move(IntPoint)` to the first point, `line(IntPoint)` to a later one.
    template <class Move, class Line>
    void Add(const tagPoints& point, Move move, Line line) {
        const RealPoint here = PositionOf(scales, point);
        const bool isFinite = std::isfinite(here.x) && std::isfinite(here.y);
        const bool isInside = LiesIn(area, here);
        if (isPenThere && isInside) {
            line(WholeUnits(here));
        } else if (hasPrevious && isFinite) {
            RealPoint from = previous, to = here;
            if (ClipSegment(area, from, to)) {
                if (!isPenThere) move(WholeUnits(from));
                line(WholeUnits(to));
            }
        } else if (isInside) {
            move(WholeUnits(here));
        }
        hasPrevious = isFinite;
        isPenThere = isInside;
        previous = here;
    }

private:
    const GraphScales scales;
    const IntRect area;
    RealPoint previous = {};
    bool hasPrevious = false, isPenThere = false;
};

/// Which coordinates decide whether a break point is hit.
struct HitAxes {
    bool x = true;
    bool y = true;
};

/// The first point less than 5 units from the cursor, -1 for none.
int FirstPointNear(const GraphScales& scales, std::span<const tagPoints> points, IntPoint cursor, HitAxes axes);

}  // namespace kest
