// What of a graph can show on its surface. Settings may put a plot, its marks and its curves anywhere and at any scale;
// what is handed to the drawing system stays close to the surface, with the same pixels on it.
#pragma once

#include "core/kernel/CheckedSize.h"
#include "core/kernel/Geometry.h"
#include "graph/kernel/GraphLayout.h"

namespace kest {

/// From logical to device coordinates: the distance from the window origin, times viewport extent by window extent,
/// goes on from the viewport origin.
struct GraphMapping {
    IntPoint windowOrigin, viewportOrigin;
    IntPoint windowExtent, viewportExtent;
};

struct GraphView {
    IntRect area;    ///< logical positions on the surface and not far beside it, top below bottom
    RealPoint unit;  ///< pixels of a logical unit, both above 0
    bool hasTexts;   ///< false where letters are larger than any surface
};

/// False when nothing is drawn: an extent of 0, or a logical unit so large that a line would be wider than any device.
bool ViewOf(const GraphMapping& mapping, const IntRect& surface, const FontSize& font, GraphView& view);

/// With `units` more on each side, as far as integers go.
IntRect Widened(const IntRect& area, Size64 units);

/// Shortens a horizontal or vertical line to what lies in the area; false when nothing does. A broken line keeps the
/// place of its gaps.
bool CutLine(const IntRect& area, IntPoint& from, IntPoint& to);

/// False for a text at (x, y), aligned in any way, that lies beside the area.
bool CanTextShow(const IntRect& area, IntPoint place, int length, const FontSize& font);

/// The width of a pen, not above what is wider than any surface.
int BoundedPenWidth(const GraphView& view, int width);

/// The logical positions that a curve is drawn within: the part of the plot in the view and as much around it as can
/// matter. Wide lines cost time by their length, so theirs are kept shorter.
IntRect DrawingArea(const GraphScales& scales, const GraphView& view, int penWidth);

}  // namespace kest
