// A window that shows a CcGraph, and lets the user drag the points of its curves.
#include "panes/GraphWindow.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "platform/Drawing.h"
#include "platform/Text.h"

namespace kestview {
namespace {

// Marks with numbers on each axis, and small ones between two of them.
constexpr int marks = 6, marksBetween = 1;

/// As many as the numbers at the marks have; else enough to tell neighbouring ones well apart.
int DecimalsFor(float low, float high) {
    const double step = (static_cast<double>(high) - static_cast<double>(low)) / (marks - 1);
    if (!(step > 0)) return 0;
    double power = 1;
    for (int decimals = 0; decimals <= 2; ++decimals, power *= 10) {
        const auto isWhole = [](double value) { return std::abs(value - std::round(value)) < 1e-4; };
        if (step * power > 0.5 && isWhole(step * power) && isWhole(static_cast<double>(low) * power)) return decimals;
    }
    return std::clamp(static_cast<int>(std::ceil(1.3 - std::log10(step))), 0, 5);
}

}  // namespace

bool GraphWindow::Create(HWND parent, const RECT& place) {
    Look look = {"KestGraph"};
    look.extendedStyle = WS_EX_CLIENTEDGE;
    graph.SetCurveList(&list);
    // Short marks: lines across the plot would be taken for curves.
    graph.SetGridMarkings(marks, marks, marksBetween, marksBetween, 0, 0, 0, 0);
    return Window::Create(look, parent, place);
}

void GraphWindow::RunDialog(int (CcGraph::*show)()) {
    isInDialog = true;
    (graph.*show)();
    isInDialog = false;
    Invalidate();
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
    while (list.GetNumberOfObjects() > 0) list.DeleteTail();
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
    // Also of curves that are not shown now.
    std::map<std::string, Style> styles = userStyles;
    for (const auto& curve : curves) {
        Style& style = styles[curve->curve.GetName()];
        curve->curve.GetCurveStyle(&style.style, &style.colour, &style.width);
    }
    int index = 0;
    for (const auto& [name, style] : styles) {
        tagCURVEAPPEARANCE appearance = {style.colour, style.style, style.width, {}};
        std::strncpy(appearance.szName, name.c_str(), sizeof appearance.szName - 1);
        graph.SetCurveAppearance(index++, &appearance);
    }
}

void GraphWindow::TakeStyles() {
    for (int i = 0; i < KEST_GRAPH_CURVES; ++i) {
        tagCURVEAPPEARANCE appearance;
        // The graph's own ones are called by their numbers.
        if (graph.GetCurveAppearance(i, &appearance) == 0 && Format("Curve %d", i) != appearance.szName)
            userStyles[appearance.szName] = {appearance.iStyle, appearance.ulColor, appearance.iWidth};
    }
    for (const auto& curve : curves) {
        const auto chosen = userStyles.find(curve->curve.GetName());
        if (chosen != userStyles.end())
            curve->curve.SetCurveStyle(chosen->second.style, chosen->second.colour, chosen->second.width);
    }
    Invalidate();
}

void GraphWindow::SelectCurve(int curve) {
    list.SelectObjectAtIndex(curve);
    Invalidate();
}

GraphWindow::Ranges GraphWindow::PresentRanges() {
    Ranges ranges = {};
    Axis &x = ranges.x, &y = ranges.y;
    graph.GetMinMaxValues(&x.low, &x.high, &y.low, &y.high, &x.exponent, &x.decimals, &y.exponent, &y.decimals);
    graph.GetXYOriginCross(&x.origin, &y.origin);
    return ranges;
}

GraphWindow::Texts GraphWindow::PresentTexts() {
    Texts texts;
    graph.GetGraphText(texts.title, texts.x, texts.y);
    return texts;
}

float GraphWindow::RoundEnd(float most, bool isWhole) {
    constexpr double roundSteps[] = {1, 1.2, 1.5, 1.6, 2, 2.5, 3, 4, 5, 6, 8, 10};
    const double least = static_cast<double>(most) / (marks - 1);
    if (!(least > 0) || !std::isfinite(least)) return 1;
    const double unit = std::pow(10, std::floor(std::log10(least)));
    for (const double step : roundSteps) {
        const bool isRound = !isWhole || (step * unit >= 1 && std::fmod(step * unit, 1) < 1e-9);
        if (isRound && step * unit >= least * (1 - 1e-9)) return static_cast<float>(step * unit * (marks - 1));
    }
    return static_cast<float>(marks - 1);
}

void GraphWindow::SetRanges(float xMin, float xMax, float yMin, float yMax) {
    for (const float bound : {xMin, xMax, yMin, yMax})
        if (!std::isfinite(bound)) return;
    const auto axis = [](float low, float high) {
        // Wide enough to be told apart, also where whole numbers are not.
        if (!(high > low)) high = low + std::max(1.0f, std::abs(low) * 1e-6f);
        return Axis{low, high, 0, DecimalsFor(low, high), low};
    };
    const Ranges present = PresentRanges();
    Ranges wanted = {axis(xMin, xMax), axis(yMin, yMax)}, program = programRanges.value_or(present);
    // An axis that the user has set since stays.
    const auto settle = [](Axis& wantedAxis, Axis& programAxis, const Axis& presentAxis) {
        if (programAxis == presentAxis)
            programAxis = wantedAxis;
        else
            wantedAxis = presentAxis;
    };
    settle(wanted.x, program.x, present.x);
    settle(wanted.y, program.y, present.y);
    graph.SetMinMaxValues(wanted.x.low, wanted.x.high, wanted.y.low, wanted.y.high, wanted.x.exponent,
                          wanted.x.decimals, wanted.y.exponent, wanted.y.decimals);
    graph.SetXYOriginCross(wanted.x.origin, wanted.y.origin);
    programRanges = program;
    Invalidate();
}

void GraphWindow::SetTexts(const std::string& title, const std::string& xText, const std::string& yText) {
    if (programTexts && *programTexts != PresentTexts()) return;
    graph.SetGraphText(title.c_str(), xText.c_str(), yText.c_str());
    programTexts = PresentTexts();
    Invalidate();
}

void GraphWindow::Paint() {
    const PaintDc dc(window);
    const SIZE size = ClientSize();
    const BackBuffer buffer(dc, size);
    const RECT all = {0, 0, size.cx, size.cy};
    FillRect(buffer, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    Font font;
    font.Make(DpiOf(window));
    const kest::SelectedObject selectedFont(buffer, font);
    {
        // The graph leaves its mapping on the device context.
        const SavedDc saved(buffer);
        graph.ShowGraph(window, buffer, 0);
    }
    buffer.CopyTo(dc);
}

void GraphWindow::Press(POINT mouse) {
    if (!onPointDragged) return;
    const kest::WindowDc dc(window);
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
    const kest::WindowDc dc(window);
    if (graph.SetSelBPViaMouse(dc, &mouse) < 0) return;
    onPointDragged(SelectedCurve(), draggedPoint);
    Invalidate();
}

LRESULT GraphWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT: Paint(); return 0;
        case WM_ERASEBKGND: return 1;
        case WM_SIZE: Invalidate(); return 0;
        case WM_LBUTTONDOWN: Press(MousePosition(lParam)); return 0;
        case WM_MOUSEMOVE: Drag(MousePosition(lParam)); return 0;
        case WM_LBUTTONUP:
            if (GetCapture() == window) ReleaseCapture();
            return 0;
        case WM_CAPTURECHANGED: draggedPoint = -1; return 0;
        default: return Window::OnMessage(message, wParam, lParam);
    }
}

}  // namespace kestview
