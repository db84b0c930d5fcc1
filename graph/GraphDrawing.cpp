// Drawing the parts of a graph. Positions are logical, y upward; a line ends before its last position.
#include "graph/GraphDrawing.h"

#include <algorithm>
#include <cstdio>

#include "CcCurve.h"
#include "core/GdiGuards.h"
#include "core/TextDrawing.h"
#include "core/kernel/TextField.h"
#include "graph/kernel/AxisLabels.h"
#include "graph/kernel/CurvePath.h"

namespace kest {
namespace {

/// Half lengths of the marks at an axis.
constexpr int majorMark = 4, minorMark = 2;
/// From the plot to the labels.
constexpr int labelGap = 3;
/// Half the side of a curve's squares.
constexpr int curveSquare = 2;
/// Wider lines than any device are drawn this wide.
constexpr int widestPen = 10000;

void DrawLine(HDC dc, IntPoint from, IntPoint to) {
    MoveToEx(dc, from.x, from.y, nullptr);
    LineTo(dc, to.x, to.y);
}

int FontHeight(HDC dc) {
    TEXTMETRICA metrics = {};
    GetTextMetricsA(dc, &metrics);
    return metrics.tmHeight;
}

void DrawAxisText(HDC dc, IntPoint place, const char* text, int size, int exponent) {
    const int length = static_cast<int>(FieldLength(text, static_cast<std::size_t>(size)));
    if (exponent == 0) {
        DrawProcessText(dc, place.x, place.y, text, length);
        return;
    }
    char scaled[256];
    const int scaledLength = std::snprintf(scaled, sizeof scaled, "%.*s *(E%d)", length, text, exponent);
    DrawProcessText(dc, place.x, place.y, scaled, scaledLength);
}

/// In logical units; a pen that does not tell counts as wide.
int PenWidth(HDC dc) {
    LOGPEN pen = {};
    if (GetObjectA(GetCurrentObject(dc, OBJ_PEN), sizeof pen, &pen) != sizeof pen) return 100;
    return pen.lopnWidth.x;
}

/// One axis with marks along it, and the other one, across which lines run.
struct MarkedAxis {
    HDC dc;
    const GraphAxis& axis;
    const AxisScale& along;
    const GraphAxis& otherAxis;
    const AxisScale& across;
    bool isX;

    IntPoint At(int positionAlong, int positionAcross) const {
        return isX ? IntPoint{positionAlong, positionAcross} : IntPoint{positionAcross, positionAlong};
    }
    void Line(int position, int from, int to) const { DrawLine(dc, At(position, from), At(position, to)); }

    void DrawMark(int position, bool isLine, int halfLength) const {
        const int low = across.Logical(otherAxis.minimum), high = across.Logical(otherAxis.maximum);
        if (isLine) {
            Line(position, low, high);
            return;
        }
        Line(position, low - halfLength, low + halfLength);
        if (otherAxis.HasOriginInside()) {
            const int origin = across.Logical(otherAxis.origin);
            Line(position, origin - halfLength, origin + halfLength);
        }
        // On the far side the marks point inward only.
        Line(position, high - halfLength, high);
    }

    void DrawLabel(float value, int fontHeight) const {
        LabelText text;
        const int length = WriteLabel(text, value, axis.exponent, axis.precision);
        const int low = across.Logical(otherAxis.minimum) - labelGap;
        const IntPoint place = At(along.Logical(value) + (isX ? 0 : fontHeight / 2), low);
        if (length > 0) DrawProcessText(dc, place.x, place.y, text, length);
    }

    void Draw(HPEN solid, HPEN dotted) const {
        const TextAlignGuard align(dc, isX ? TA_CENTER | TA_TOP : TA_RIGHT | TA_TOP);
        const int fontHeight = FontHeight(dc);
        ForEachMark(along, axis.majorMarks, axis.minorMarks, [&](float value, bool isMajor) {
            const SelectedObject pen(dc, isMajor ? solid : dotted);
            if (isMajor) DrawLabel(value, fontHeight);
            DrawMark(along.Logical(value), isMajor ? axis.hasMajorLines : axis.hasMinorLines,
                     isMajor ? majorMark : minorMark);
        });
    }
};

}  // namespace

void DrawAxes(HDC dc, const GraphPlane& plane) {
    const AxisScale &x = plane.scales.x, &y = plane.scales.y;
    const int left = x.Logical(plane.x.minimum), right = x.Logical(plane.x.maximum);
    const int bottom = y.Logical(plane.y.minimum), top = y.Logical(plane.y.maximum);
    if (plane.x.HasOriginInside()) {
        const int origin = x.Logical(plane.x.origin);
        DrawLine(dc, {origin, bottom}, {origin, top});
    }
    if (plane.y.HasOriginInside()) {
        const int origin = y.Logical(plane.y.origin);
        DrawLine(dc, {left, origin}, {right, origin});
    }
    MoveToEx(dc, left, bottom, nullptr);
    LineTo(dc, left, top);
    LineTo(dc, right, top);
    LineTo(dc, right, bottom);
    LineTo(dc, left, bottom);
}

void DrawGraphTexts(HDC dc, const GraphPlane& plane, const char* title, const char* xText, const char* yText,
                    int size) {
    const int height = FontHeight(dc);
    const int left = plane.scales.x.Logical(plane.x.minimum), middle = plane.scales.x.Logical(plane.x.Middle());
    const int bottom = plane.scales.y.Logical(plane.y.minimum), top = plane.scales.y.Logical(plane.y.maximum);
    const TextAlignGuard align(dc, TA_CENTER | TA_BOTTOM);
    DrawAxisText(dc, {middle, top + height}, title, size, 0);
    SetTextAlign(dc, TA_CENTER | TA_TOP);
    DrawAxisText(dc, {middle, bottom - height}, xText, size, plane.x.exponent);
    SetTextAlign(dc, TA_LEFT | TA_BOTTOM);
    DrawAxisText(dc, {left, top}, yText, size, plane.y.exponent);
}

void DrawXMarks(HDC dc, const GraphPlane& plane, HPEN solid, HPEN dotted) {
    MarkedAxis{dc, plane.x, plane.scales.x, plane.y, plane.scales.y, true}.Draw(solid, dotted);
}

void DrawYMarks(HDC dc, const GraphPlane& plane, HPEN solid, HPEN dotted) {
    MarkedAxis{dc, plane.y, plane.scales.y, plane.x, plane.scales.x, false}.Draw(solid, dotted);
}

HPEN MakeCurvePen(int style, COLORREF colour, int width) {
    return CreatePen(style == KEST_CURVE_SQUARES ? PS_SOLID : style, std::clamp(width, -widestPen, widestPen), colour);
}

void DrawCurve(HDC dc, const GraphScales& scales, std::span<const tagPoints> points, CurveParts parts) {
    const auto move = [dc](IntPoint place) { MoveToEx(dc, place.x, place.y, nullptr); };
    const auto line = [dc](IntPoint place) { LineTo(dc, place.x, place.y); };
    PathTracer path(scales, DrawingArea(scales, PenWidth(dc)));
    for (const tagPoints& point : points) {
        if (parts.lines) path.Add(point, move, line);
        if (parts.squares) DrawPointSquare(dc, scales, point, curveSquare);
    }
}

void DrawPointSquare(HDC dc, const GraphScales& scales, const tagPoints& point, int halfSize) {
    const RealPoint position = PositionOf(scales, point);
    if (!LiesIn(DrawingArea(scales, 0), position)) return;
    const IntPoint place = WholeUnits(position);
    Rectangle(dc, place.x - halfSize, place.y - halfSize, place.x + halfSize, place.y + halfSize);
}

}  // namespace kest
