// Drawing the parts of a graph. Positions are logical, y upward; a line ends before its last position.
#include "graph/GraphDrawing.h"

#include <algorithm>
#include <cstdio>

#include "CcCurve.h"
#include "core/GdiGuards.h"
#include "core/TextDrawing.h"
#include "core/kernel/CheckedSize.h"
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

/// Horizontal or vertical.
void DrawLine(HDC dc, const GraphView& view, IntPoint from, IntPoint to) {
    if (!CutLine(view.area, from, to)) return;
    MoveToEx(dc, from.x, from.y, nullptr);
    LineTo(dc, to.x, to.y);
}

/// Texts in the font of the device context, as far as the view has any.
struct TextDrawer {
    HDC dc;
    const GraphView& view;
    const FontSize font;

    TextDrawer(HDC target, const GraphView& drawn)
        : dc(target), view(drawn), font(drawn.hasTexts ? FontSizeOf(target) : FontSize{}) {}

    void Draw(IntPoint place, const char* text, int length) const {
        if (view.hasTexts && CanTextShow(view.area, place, length, font))
            DrawProcessText(dc, place.x, place.y, text, length);
    }
};

void DrawAxisText(const TextDrawer& drawer, IntPoint place, const char* text, int size, int exponent) {
    const int length = static_cast<int>(FieldLength(text, static_cast<std::size_t>(size)));
    if (exponent == 0) {
        drawer.Draw(place, text, length);
        return;
    }
    char scaled[256];
    const int scaledLength = std::snprintf(scaled, sizeof scaled, "%.*s *(E%d)", length, text, exponent);
    drawer.Draw(place, scaled, scaledLength);
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
    const GraphView& view;
    const GraphAxis& axis;
    const AxisScale& along;
    const GraphAxis& otherAxis;
    const AxisScale& across;
    bool isX;

    IntPoint At(int positionAlong, int positionAcross) const {
        return isX ? IntPoint{positionAlong, positionAcross} : IntPoint{positionAcross, positionAlong};
    }
    void Line(int position, int from, int to) const { DrawLine(dc, view, At(position, from), At(position, to)); }

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

    void DrawLabel(const TextDrawer& drawer, float value) const {
        LabelText text;
        const int length = WriteLabel(text, value, axis.exponent, axis.precision);
        const int low = across.Logical(otherAxis.minimum) - labelGap;
        const IntPoint place = At(along.Logical(value) + (isX ? 0 : drawer.font.height / 2), low);
        if (length > 0) drawer.Draw(place, text, length);
    }

    /// Where marks or their labels can show.
    Positions Visible(const FontSize& font) const {
        const double longestText = static_cast<double>(sizeof(LabelText)) * font.widestCharacter;
        const auto& [left, top, right, bottom] = view.area;
        return {(isX ? left : top) - longestText, (isX ? right : bottom) + longestText};
    }

    void Draw(HPEN solid, HPEN dotted) const {
        const TextAlignGuard align(dc, isX ? TA_CENTER | TA_TOP : TA_RIGHT | TA_TOP);
        const TextDrawer drawer(dc, view);
        ForEachMark(along, Visible(drawer.font), axis.majorMarks, axis.minorMarks, [&](float value, bool isMajor) {
            const SelectedObject pen(dc, isMajor ? solid : dotted);
            if (isMajor) DrawLabel(drawer, value);
            DrawMark(along.Logical(value), isMajor ? axis.hasMajorLines : axis.hasMinorLines,
                     isMajor ? majorMark : minorMark);
        });
    }
};

}  // namespace

FontSize FontSizeOf(HDC dc) {
    TEXTMETRICA metrics = {};
    GetTextMetricsA(dc, &metrics);
    return {metrics.tmHeight, metrics.tmMaxCharWidth};
}

void DrawAxes(HDC dc, const GraphPlane& plane) {
    const AxisScale &x = plane.scales.x, &y = plane.scales.y;
    const int left = x.Logical(plane.x.minimum), right = x.Logical(plane.x.maximum);
    const int bottom = y.Logical(plane.y.minimum), top = y.Logical(plane.y.maximum);
    if (plane.x.HasOriginInside()) {
        const int origin = x.Logical(plane.x.origin);
        DrawLine(dc, plane.view, {origin, bottom}, {origin, top});
    }
    if (plane.y.HasOriginInside()) {
        const int origin = y.Logical(plane.y.origin);
        DrawLine(dc, plane.view, {left, origin}, {right, origin});
    }
    const IntPoint corners[] = {{left, bottom}, {left, top}, {right, top}, {right, bottom}, {left, bottom}};
    for (int i = 0; i < 4; ++i) DrawLine(dc, plane.view, corners[i], corners[i + 1]);
}

void DrawGraphTexts(HDC dc, const GraphPlane& plane, const char* title, const char* xText, const char* yText,
                    int size) {
    const TextDrawer drawer(dc, plane.view);
    const int height = drawer.font.height;
    const int left = plane.scales.x.Logical(plane.x.minimum), middle = plane.scales.x.Logical(plane.x.Middle());
    const int bottom = plane.scales.y.Logical(plane.y.minimum), top = plane.scales.y.Logical(plane.y.maximum);
    const TextAlignGuard align(dc, TA_CENTER | TA_BOTTOM);
    DrawAxisText(drawer, {middle, top + height}, title, size, 0);
    SetTextAlign(dc, TA_CENTER | TA_TOP);
    DrawAxisText(drawer, {middle, bottom - height}, xText, size, plane.x.exponent);
    SetTextAlign(dc, TA_LEFT | TA_BOTTOM);
    DrawAxisText(drawer, {left, top}, yText, size, plane.y.exponent);
}

void DrawXMarks(HDC dc, const GraphPlane& plane, HPEN solid, HPEN dotted) {
    MarkedAxis{dc, plane.view, plane.x, plane.scales.x, plane.y, plane.scales.y, true}.Draw(solid, dotted);
}

void DrawYMarks(HDC dc, const GraphPlane& plane, HPEN solid, HPEN dotted) {
    MarkedAxis{dc, plane.view, plane.y, plane.scales.y, plane.x, plane.scales.x, false}.Draw(solid, dotted);
}

HPEN MakeCurvePen(int style, COLORREF colour, int width) {
    return CreatePen(style == KEST_CURVE_SQUARES ? PS_SOLID : style, width, colour);
}

void DrawCurve(HDC dc, const GraphPlane& plane, std::span<const tagPoints> points, CurveParts parts) {
    const auto move = [dc](IntPoint place) { MoveToEx(dc, place.x, place.y, nullptr); };
    const auto line = [dc](IntPoint place) { LineTo(dc, place.x, place.y); };
    const SquareDrawer square(dc, plane, curveSquare);
    PathTracer path(plane.scales, DrawingArea(plane.scales, plane.view, PenWidth(dc)));
    for (const tagPoints& point : points) {
        if (parts.lines) path.Add(point, move, line);
        if (parts.squares) square.Draw(point);
    }
}

SquareDrawer::SquareDrawer(HDC target, const GraphPlane& plane, int halfSize)
    : dc(target),
      scales(plane.scales),
      area(Widened(plane.view.area, Size64{PenWidth(target)} + halfSize)),
      half(halfSize) {}

void SquareDrawer::Draw(const tagPoints& point) const {
    const RealPoint position = PositionOf(scales, point);
    if (!LiesIn(area, position)) return;
    const IntPoint place = WholeUnits(position);
    Rectangle(dc, place.x - half, place.y - half, place.x + half, place.y + half);
}

}  // namespace kest
