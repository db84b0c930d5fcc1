// Lines and ellipses that reach far beyond what shows: their part in a visible area, so that nothing farther away has
// to be drawn. Coordinates are pixels and may be any; an area includes its four sides.
//
// A figure is handed to a chain: `Add(point)` goes on from the point before to the next pixel, or straight along a row
// or a column to one farther on; `End()` interrupts it, and `Close()` joins it with its beginning, if it came round
// without an interruption. Of each stretch the last pixel is not drawn: it lies on the area's edge, or is the end of
// the line.
#pragma once

#include <algorithm>
#include <cstdint>

#include "core/kernel/CheckedSize.h"
#include "core/kernel/Geometry.h"

namespace kest {

inline bool Holds(const IntRect& area, IntPoint point) {
    return point.x >= area.left && point.x <= area.right && point.y >= area.top && point.y <= area.bottom;
}

/// Shortens a line to its part in the area, with ends rounded to whole pixels. False when it misses the area.
bool ClipLine(const IntRect& area, IntPoint& start, IntPoint& end);

/// The pixels of a thin line, one a step along its longer side. Of two pixels that are equally near it is the left or
/// upper one.
class LineSteps {
public:
    LineSteps(IntPoint lineStart, IntPoint lineEnd);

    bool IsSteep() const { return isSteep; }
    /// The steps, from 0 at the start to the one at the end, that lie between two places along the longer side.
    void StepsBetween(int low, int high, Size64& first, Size64& last) const;
    void GoTo(Size64 step);
    void Next();
    IntPoint Pixel() const;

private:
    IntPoint start;
    bool isSteep;
    int forward, sideward;              ///< directions along the longer and the shorter side
    std::uint64_t length, rise;         ///< of the longer and the shorter side
    Size64 index = 0;                   ///< steps made
    std::uint64_t whole = 0, rest = 0;  ///< index * rise, divided by length
};

/// The pixels of a thin line in the area.
template <class Chain>
void TraceLine(IntPoint start, IntPoint end, const IntRect& area, Chain& chain) {
    LineSteps steps(start, end);
    Size64 step, last;
    if (steps.IsSteep())
        steps.StepsBetween(area.top, area.bottom, step, last);
    else
        steps.StepsBetween(area.left, area.right, step, last);
    if (step > last) return;
    IntPoint before = {};
    bool isInside = false;
    for (steps.GoTo(step); step <= last; ++step, steps.Next()) {
        const IntPoint pixel = steps.Pixel();
        const bool wasInside = isInside;
        isInside = Holds(area, pixel);
        if (wasInside && !isInside) break;
        // The line goes straight as long as it does not move sideward.
        const bool goesStraight = wasInside && (steps.IsSteep() ? pixel.x == before.x : pixel.y == before.y);
        if (wasInside && !goesStraight) chain.Add(before);
        if (isInside && !goesStraight) chain.Add(pixel);
        before = pixel;
        if (step == last) break;
    }
    chain.Add(before);
    chain.End();
}

/// How far an ellipse lies within its box on a line through it: `place` is the line's distance from the box's nearer
/// side, `across` and `along` are the box's extents, less a pixel, across and along the line.
struct EllipseInset {
    int pixels;  ///< from the box's side, along the line
    bool isOwn;  ///< whether the ellipse crosses the line rather than following it
};
EllipseInset InsetOnLine(Size64 place, Size64 across, Size64 along);

/// The pixels of an ellipse in the area; `box` includes all of its pixels. At most some 65,000 of a side are visited.
template <class Chain>
void TraceEllipse(const IntRect& box, const IntRect& area, Chain& chain) {
    const Size64 width = Size64{box.right} - box.left, height = Size64{box.bottom} - box.top;
    // One of the four sides: the columns of the upper and lower one, the rows of the right and left one.
    const auto trace = [&](int low, int high, int areaLow, int areaHigh, bool isBackward, auto pixelAt) {
        const Size64 first = std::max(low, areaLow), last = std::min(high, areaHigh);
        const Size64 pace = 1 + (last - first) / 0x10000;
        for (Size64 walked = 0; walked <= last - first; walked += pace) {
            const int line = static_cast<int>(isBackward ? last - walked : first + walked);
            IntPoint pixel;
            if (!pixelAt(line, pixel)) continue;
            if (Holds(area, pixel))
                chain.Add(pixel);
            else
                chain.End();
        }
        if (first > low || last < high) chain.End();
    };
    const auto onColumn = [&](bool isUpper) {
        return [&, isUpper](int x, IntPoint& pixel) {
            const EllipseInset inset =
                InsetOnLine(std::min(Size64{x} - box.left, Size64{box.right} - x), width, height);
            pixel = {x, isUpper ? box.top + inset.pixels : box.bottom - inset.pixels};
            return inset.isOwn;
        };
    };
    const auto onRow = [&](bool isLeft) {
        return [&, isLeft](int y, IntPoint& pixel) {
            const EllipseInset inset =
                InsetOnLine(std::min(Size64{y} - box.top, Size64{box.bottom} - y), height, width);
            pixel = {isLeft ? box.left + inset.pixels : box.right - inset.pixels, y};
            return inset.isOwn;
        };
    };
    trace(box.left, box.right, area.left, area.right, false, onColumn(true));
    trace(box.top, box.bottom, area.top, area.bottom, false, onRow(false));
    trace(box.left, box.right, area.left, area.right, true, onColumn(false));
    trace(box.top, box.bottom, area.top, area.bottom, true, onRow(true));
    chain.Close();
}

}  // namespace kest
