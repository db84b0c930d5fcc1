// Where a graph's plot lies on its surface, and how the graph's logical coordinates are anchored to it.
#pragma once

#include "core/kernel/Geometry.h"
#include "graph/kernel/AxisScale.h"

namespace kest {

/// Further from 0 there is no place on a device.
constexpr int furthestPosition = 1 << 20;

/// What is set about one axis.
struct GraphAxis {
    float minimum, origin, maximum;
    int exponent;   ///< labels are divided by 10 to this power
    int precision;  ///< decimals of the labels
    bool hasMajorLines, hasMinorLines;
    int majorMarks;  ///< on the whole axis
    int minorMarks;  ///< between two major ones

    bool HasOriginInside() const { return minimum <= origin && origin <= maximum; }
    double Middle() const { return (static_cast<double>(minimum) + maximum) / 2; }
};

struct FontSize {
    int height;
    int widestCharacter;
};

/// Digits before and after the point of the longer of the two end labels, the point itself included, as a fixed-point
/// conversion without leading zeros gives them, of any precision. The exponent does not count.
int LabelCharacters(const GraphAxis& axis);

/// The part of a page of this size that a graph lies on.
IntRect PageSurface(int width, int height);

/// What is left of a surface when the texts and labels have their room. It may be empty or turned round, and reaches
/// the ends of the integers when the exponents do.
IntRect PlotArea(const IntRect& surface, const GraphAxis& x, const GraphAxis& y, const FontSize& font);

/// A graph's logical coordinates: y grows from plot.top to plot.bottom, upward on the device.
struct GraphScales {
    AxisScale x;
    AxisScale y;

    bool AreUsable() const { return x.IsUsable() && y.IsUsable(); }
};

GraphScales ScalesOf(const GraphAxis& x, const GraphAxis& y, const IntRect& plot);

/// True when there is a plot to draw: usable scales over an area that has a place on a device.
bool IsDrawable(const GraphScales& scales);

/// The same place, the origin cross, in device and in logical coordinates.
struct GraphAnchor {
    IntPoint viewport;
    IntPoint window;
};

/// An origin too far off to be a device position is anchored as far off as positions go. Scales that are not usable
/// are anchored in a corner.
GraphAnchor AnchorOf(const GraphAxis& x, const GraphAxis& y, const GraphScales& scales);

}  // namespace kest
