// A window that shows a CcGraph, and lets the user drag the points of its curves.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "KestApi.h"
#include "platform/Window.h"

namespace kestview {

/// Texts, ranges and curve styles that the user has set in the graph's dialogs take precedence over what the program
/// sets: texts and styles always, the range of an axis until FollowRanges.
class GraphWindow : public Window {
public:
    /// The end of an axis from 0 on which `most` has a place and the marks are round numbers; whole ones if asked for.
    static float RoundEnd(float most, bool isWhole);

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
    /// Gives the curves' styles to the graph, for its file; and takes those of the file for the curves of these names.
    void NoteStyles();
    void TakeStyles();
    /// Runs one of the graph's own dialogs. Meanwhile the curves must stay.
    void RunDialog(int (CcGraph::*show)());
    bool IsInDialog() const { return isInDialog; }
    /// Ranges with as many decimals as they need.
    void SetRanges(float xMin, float xMax, float yMin, float yMax);
    /// The program's ranges count again.
    void FollowRanges() { programRanges.reset(); }
    void SetTexts(const std::string& title, const std::string& xText, const std::string& yText);

    /// The picked point of the selected curve is at the mouse now, and may be put elsewhere. Unset: points are fixed.
    std::function<void(int curve, int point)> onPointDragged;
    /// A point was picked.
    std::function<void(int curve, int point)> onPointPicked;

private:
    struct Style {
        int style;
        unsigned long colour;
        int width;
        bool operator==(const Style&) const = default;
    };
    struct Texts {
        char title[KEST_GRAPH_TEXT_SIZE] = {}, x[KEST_GRAPH_TEXT_SIZE] = {}, y[KEST_GRAPH_TEXT_SIZE] = {};
        bool operator==(const Texts&) const = default;
    };
    struct Axis {
        float low, high;
        int exponent, decimals;
        float origin;
        bool operator==(const Axis&) const = default;
    };
    struct Ranges {
        Axis x, y;
    };
    struct Curve {
        CcCurve curve;
        Style programStyle;
        std::vector<tagPoints> points;
    };
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    Texts PresentTexts();
    Ranges PresentRanges();
    void Paint();
    void Press(POINT mouse);
    void Drag(POINT mouse);

    std::vector<std::unique_ptr<Curve>> curves;
    CcList list;
    CcGraph graph;
    int draggedPoint = -1;
    bool isInDialog = false;
    // What the program set last, to tell what the user has changed since.
    std::optional<Texts> programTexts;
    std::optional<Ranges> programRanges;
    std::map<std::string, Style> userStyles;  ///< by the curve's name
};

}  // namespace kestview
