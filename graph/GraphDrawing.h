// Drawing the parts of a graph into a device context that has the graph's mapping.
#pragma once

#include <windows.h>

#include <span>

#include "KestTypes.h"
#include "graph/kernel/GraphView.h"

namespace kest {

/// The ranges, where they lie, and what of them can show. All scales are drawable.
struct GraphPlane {
    GraphAxis x;
    GraphAxis y;
    GraphScales scales;
    GraphView view;
};

/// Of the font of the device context, in its logical units.
FontSize FontSizeOf(HDC dc);

/// The axis lines through the origin, as far as it lies in the ranges, and the frame of the plot.
void DrawAxes(HDC dc, const GraphPlane& plane);

/// The texts of `size` characters, or fewer where a terminator comes first. An exponent is added to its axis text.
void DrawGraphTexts(HDC dc, const GraphPlane& plane, const char* title, const char* xText, const char* yText, int size);

/// Labels and marks (or lines) of one axis; the minor ones in the second pen.
void DrawXMarks(HDC dc, const GraphPlane& plane, HPEN solid, HPEN dotted);
void DrawYMarks(HDC dc, const GraphPlane& plane, HPEN solid, HPEN dotted);

/// The pen of a curve, to be deleted by the caller; null when there is none to be had.
HPEN MakeCurvePen(int style, COLORREF colour, int width);

struct CurveParts {
    bool lines, squares;
};

/// In the pen and brush of the device context. A point's square covers the line that leads to it, and is crossed by the
/// line that leaves.
void DrawCurve(HDC dc, const GraphPlane& plane, std::span<const tagPoints> points, CurveParts parts);

/// Squares of `2 * halfSize` pixels about points, in the pen and brush of the device context; none about a point that
/// is not finite or far off.
class SquareDrawer {
public:
    SquareDrawer(HDC target, const GraphPlane& plane, int halfSize);
    void Draw(const tagPoints& point) const;

private:
    HDC dc;
    GraphScales scales;
    IntRect area;
    int half;
};

}  // namespace kest
