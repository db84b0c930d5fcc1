// A window that shows a CcGraph, and lets the user drag the points of its curves.
#include "GraphWindow.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "platform/Drawing.h"

namespace kestview {
namespace {

// Marks with numbers on each axis, and small ones between two of them.
constexpr int marks = 5, marksBetween = 1;

int DecimalsFor(float low, float high) {
    const double span = std::fabs(static_cast<double>(high) - low);
    if (!(span > 0)) return 0;
    // The numbers at neighbouring marks must be told apart.
    return std::clamp(static_cast<int>(std::ceil(1 - std::log10(span / (marks - 1)))), 0, 5);
}

/// A device context of the window, given back at the end.
class GraphDc {
public:
    explicit GraphDc(HWND newWindow) : window(newWindow), dc(GetDC(newWindow)) {}
    ~GraphDc() { ReleaseDC(window, dc); }
    GraphDc(const GraphDc&) = delete;
    GraphDc& operator=(const GraphDc&) = delete;
    operator HDC() const { return dc; }

private:
    HWND window;
    HDC dc;
};

}  // namespace

bool GraphWindow::Create(HWND parent, const RECT& place) {
    Look look = {"KestGraph"};
    look.extendedStyle = WS_EX_CLIENTEDGE;
    graph.SetCurveList(&list);
    // Short marks: lines across the plot would be taken for curves.
    graph.SetGridMarkings(marks, marks, marksBetween, marksBetween, 0, 0, 0, 0);
    return Window::Create(look, parent, place);
}

void GraphWindow::ClearCurves() {
    for (const auto& curve : curves) {
        Style present = {};
        curve->curve.GetCurveStyle(&present.style, &present.colour, &present.width);
        if (present != curve->programStyle)
            userStyles[curve->curve.GetName()] = present;
        else
            userStyles.erase(curve->curve.GetName());
    }
    while (list.GetNumberOfObjects() > 0)
        list.DeleteTail();
    list.SelectObjectAtIndex(-1);
    curves.clear();
    draggedPoint = -1;
}

int GraphWindow::AddCurve(const char* name, std::vector<tagPoints> points, int style, COLORREF colour, int width) {
    auto curve = std::make_unique<Curve>();
    curve->points = std::move(points);
    curve->programStyle = {style, colour, width};
    const auto chosen = userStyles.find(name);
    const Style& shown = chosen == userStyles.end() ? curve->programStyle : chosen->second;
    curve->curve.SetName(name);
    curve->curve.SetCurveStyle(shown.style, shown.colour, shown.width);
    curves.push_back(std::move(curve));
    const int index = CurveCount() - 1;
    list.InsertTail(&curves.back()->curve);
    PointsResized(index);
    return index;
}

void GraphWindow::PointsResized(int curve) {
    Curve& changed = *curves[static_cast<std::size_t>(curve)];
    changed.curve.SetCurveData(changed.points.data(), static_cast<int>(changed.points.size()));
    Invalidate();
}

void GraphWindow::NoteStyles() {
    for (int i = 0; i < CurveCount(); ++i) {
        CcCurve& curve = curves[static_cast<std::size_t>(i)]->curve;
        tagCURVEAPPEARANCE appearance = {};
        curve.GetCurveStyle(&appearance.iStyle, &appearance.ulColor, &appearance.iWidth);
        std::strncpy(appearance.szName, curve.GetName(), sizeof appearance.szName - 1);
        graph.SetCurveAppearance(i, &appearance);
    }
}

void GraphWindow::TakeStyles() {
    for (const auto& curve : curves)
        for (int i = 0; i < KEST_GRAPH_CURVES; ++i) {
            tagCURVEAPPEARANCE appearance;
            if (graph.GetCurveAppearance(i, &appearance) < 0 ||
                std::string(appearance.szName) != curve->curve.GetName())
                continue;
            curve->curve.SetCurveStyle(appearance.iStyle, appearance.ulColor, appearance.iWidth);
            break;
        }
    Invalidate();
}

void GraphWindow::SelectCurve(int curve) {
    list.SelectObjectAtIndex(curve);
    Invalidate();
}

GraphWindow::Ranges GraphWindow::PresentRanges() {
    Ranges ranges = {};
    graph.GetMinMaxValues(&ranges.xMin, &ranges.xMax, &ranges.yMin, &ranges.yMax, &ranges.xExponent, &ranges.xDecimals,
                          &ranges.yExponent, &ranges.yDecimals);
    graph.GetXYOriginCross(&ranges.xOrigin, &ranges.yOrigin);
    return ranges;
}

GraphWindow::Texts GraphWindow::PresentTexts() {
    Texts texts;
    graph.GetGraphText(texts.title, texts.x, texts.y);
    return texts;
}

void GraphWindow::SetRanges(float xMin, float xMax, float yMin, float yMax) {
    if (programRanges && *programRanges != PresentRanges()) return;
    for (const float bound : {xMin, xMax, yMin, yMax})
        if (!std::isfinite(bound)) return;
    // Wide enough to be told apart, also where whole numbers are not.
    const auto above = [](float low) { return low + std::max(1.0f, std::abs(low) * 1e-6f); };
    if (!(xMax > xMin)) xMax = above(xMin);
    if (!(yMax > yMin)) yMax = above(yMin);
    graph.SetMinMaxValues(xMin, xMax, yMin, yMax, 0, DecimalsFor(xMin, xMax), 0, DecimalsFor(yMin, yMax));
    graph.SetXYOriginCross(xMin, yMin);
    programRanges = PresentRanges();
    Invalidate();
}

void GraphWindow::SetTexts(const std::string& title, const std::string& xText, const std::string& yText) {
    if (programTexts && *programTexts != PresentTexts()) return;
    graph.SetGraphText(title.c_str(), xText.c_str(), yText.c_str());
    programTexts = PresentTexts();
    Invalidate();
}

void GraphWindow::Paint() {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(window, &paint);
    {
        const SIZE size = ClientSize();
        const BackBuffer buffer(dc, size);
        const RECT all = {0, 0, size.cx, size.cy};
        FillRect(buffer, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        Font font;
        font.Make(DpiOf(window));
        const Selected selectedFont(buffer, font);
        // The graph leaves its mapping on the device context.
        const int saved = SaveDC(buffer);
        graph.ShowGraph(window, buffer, 0);
        RestoreDC(buffer, saved);
        buffer.CopyTo(dc);
    }
    EndPaint(window, &paint);
}

void GraphWindow::Press(POINT mouse) {
    if (!onPointDragged) return;
    const GraphDc dc(window);
    // A curve that is selected already is asked first, as its marked points lie on top.
    const int before = SelectedCurve();
    int point = before >= 0 ? graph.IsCursorOnSelectedBP(dc, &mouse) : -1;
    if (point < 0) point = graph.IsCursorOnBP(dc, &mouse);
    if (point < 0) return;
    draggedPoint = point;
    SetCapture(window);
    if (onPointPicked) onPointPicked(SelectedCurve(), point);
    Invalidate();
}

void GraphWindow::Drag(POINT mouse) {
    if (draggedPoint < 0) return;
    const GraphDc dc(window);
    if (graph.SetSelBPViaMouse(dc, &mouse) < 0) return;
    onPointDragged(SelectedCurve(), draggedPoint);
    Invalidate();
}

LRESULT GraphWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            Paint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_SIZE:
            Invalidate();
            return 0;
        case WM_LBUTTONDOWN:
            Press(MousePosition(lParam));
            return 0;
        case WM_MOUSEMOVE:
            Drag(MousePosition(lParam));
            return 0;
        case WM_LBUTTONUP:
            if (GetCapture() == window) ReleaseCapture();
            return 0;
        case WM_CAPTURECHANGED:
            draggedPoint = -1;
            return 0;
        default:
            return Window::OnMessage(message, wParam, lParam);
    }
}

}  // namespace kestview
