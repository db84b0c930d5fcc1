// A window that shows a CcGraph, and lets the user drag the points of its curves.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "KestApi.h"
#include "platform/Window.h"

namespace kestview {

class GraphWindow : public Window {
public:
    bool Create(HWND parent, const RECT& place);

    CcGraph& Graph() { return graph; }
    void ClearCurves();
    /// Returns the new curve's index.
    int AddCurve(const char* name, std::vector<tagPoints> points, int style, COLORREF colour, int width = 1);
    std::vector<tagPoints>& Points(int curve) { return curves[static_cast<std::size_t>(curve)]->points; }
    /// To be called when points were added to or taken from a curve.
    void PointsResized(int curve);
    int CurveCount() const { return static_cast<int>(curves.size()); }
    /// The curve whose points are marked; -1 for none.
    void SelectCurve(int curve);
    int SelectedCurve() { return list.GetSelectedObjectsIndex(); }
    /// Ranges with as many decimals as they need.
    void SetRanges(float xMin, float xMax, float yMin, float yMax);
    void SetTexts(const std::string& title, const std::string& xText, const std::string& yText);

    /// The picked point of the selected curve is at the mouse now, and may be put elsewhere. Unset: points are fixed.
    std::function<void(int curve, int point)> onPointDragged;
    /// A point was picked.
    std::function<void(int curve, int point)> onPointPicked;

private:
    struct Curve {
        CcCurve curve;
        std::vector<tagPoints> points;
    };
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Paint();
    void Press(POINT mouse);
    void Drag(POINT mouse);

    std::vector<std::unique_ptr<Curve>> curves;
    CcList list;
    CcGraph graph;
    int draggedPoint = -1;
};

}  // namespace kestview
