// CcGraph: drawing the graph, more curves over it, and marks at points of it.
#include "CcGraph.h"
#include "core/GdiGuards.h"
#include "graph/CurvePoints.h"
#include "graph/GraphDrawing.h"

namespace {

/// Half the side of the squares about chosen points.
constexpr int chosenPointSquare = 5;

}  // namespace

int CcGraph::ShowGraph(HWND hWnd, HDC hDC, int iDevice) {
    const kest::GdiObject<HPEN> solid(CreatePen(PS_SOLID, 1, RGB(0, 0, 0)));
    const kest::GdiObject<HPEN> dotted(CreatePen(PS_DOT, 1, RGB(0, 0, 0)));
    const kest::MapModeGuard mapMode(hDC, MM_ANISOTROPIC);
    kest::GraphPlane plane;
    if (!LayOut(hWnd, hDC, iDevice, true, plane)) return KEST_OK;

    // The gaps of dotted lines show what lies behind them.
    const kest::BackgroundModeGuard background(hDC, TRANSPARENT);
    {
        const kest::SelectedObject pen(hDC, solid);
        kest::DrawAxes(hDC, plane);
        kest::DrawGraphTexts(hDC, plane, szTitleText, szXAxisText, szYAxisText, KEST_GRAPH_TEXT_SIZE);
        kest::DrawYMarks(hDC, plane, solid, dotted);
        kest::DrawXMarks(hDC, plane, solid, dotted);
    }
    const kest::ClipGuard clip(hDC, {stPlotRect[0], stPlotRect[1], stPlotRect[2], stPlotRect[3]});
    if (pCurveList) DrawCurves(hDC, plane);
    return KEST_OK;
}

void CcGraph::DrawCurves(HDC hDC, const kest::GraphPlane& plane) {
    const int selected = pCurveList->GetSelectedObjectsIndex();
    for (int i = 0; i < pCurveList->GetNumberOfObjects(); ++i) {
        pSelectedCurve = kest::AsCurve(pCurveList->GetAtIndex(i));
        if (!pSelectedCurve) {
            MessageBeep(0);
            continue;
        }
        int style, width;
        unsigned long colour;
        pSelectedCurve->GetCurveStyle(&style, &colour, &width);
        const bool hasLines = style != KEST_CURVE_SQUARES;
        const kest::GdiObject<HPEN> made(kest::MakeCurvePen(style, colour, kest::BoundedPenWidth(plane.view, width)));
        const kest::SelectedObject pen(hDC, made);
        kest::DrawCurve(hDC, plane, kest::PointsOf(*pSelectedCurve),
                        {.lines = hasLines, .squares = !hasLines || i == selected});
    }
}

int CcGraph::ShowCurveOnGraph(HWND hWnd, HDC hDC, tagPoints* pPoints, int iCount, int iDevice) {
    const kest::MapModeGuard mapMode(hDC, MM_ANISOTROPIC);
    kest::GraphPlane plane;
    if (!LayOut(hWnd, hDC, iDevice, false, plane) || !pPoints || iCount <= 0) return KEST_OK;
    const kest::BackgroundModeGuard background(hDC, TRANSPARENT);
    const kest::ClipGuard clip(hDC, {stPlotRect[0], stPlotRect[1], stPlotRect[2], stPlotRect[3]});
    kest::DrawCurve(hDC, plane, {pPoints, static_cast<std::size_t>(iCount)}, {.lines = true, .squares = false});
    return KEST_OK;
}

int CcGraph::ShowListOfSelPoints(HWND hWnd, HDC hDC, int* piIndices, int iCount, int iDevice) {
    const kest::MapModeGuard mapMode(hDC, MM_ANISOTROPIC);
    kest::GraphPlane plane;
    const bool isDrawable = LayOut(hWnd, hDC, iDevice, false, plane);
    if (!pCurveList) return KEST_OK;
    pSelectedCurve = kest::AsCurve(pCurveList->GetSelected());
    if (!isDrawable || !pSelectedCurve || !piIndices) return KEST_OK;

    const kest::ClipGuard clip(hDC, {stPlotRect[0], stPlotRect[1], stPlotRect[2], stPlotRect[3]});
    const kest::BackgroundModeGuard background(hDC, TRANSPARENT);
    const std::span<const tagPoints> points = kest::PointsOf(*pSelectedCurve);
    const kest::SquareDrawer square(hDC, plane, chosenPointSquare);
    for (int i = 0; i < iCount; ++i) {
        const int index = piIndices[i];
        if (index >= 0 && static_cast<std::size_t>(index) < points.size())
            square.Draw(points[static_cast<std::size_t>(index)]);
    }
    return KEST_OK;
}
