// What the tests of graphs share: a graph that shows its fields, curves over test data, and a drawing recorded as
// texts.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "KestApi.h"
#include "support/TestWindow.h"

namespace test {

struct OpenGraph : CcGraph {
    using CcGraph::bOriginSelected;
    using CcGraph::hResourceLibrary;
    using CcGraph::iSelectedPoint;
    using CcGraph::pSelectedCurve;
    using CcGraph::stMapExtents;
    using CcGraph::stMapOrigins;
    using CcGraph::stPlotRect;

    void SetPlot(int left, int top, int right, int bottom) {
        const int sides[] = {left, top, right, bottom};
        std::copy(sides, sides + 4, stPlotRect);
    }
    RECT Plot() const { return {stPlotRect[0], stPlotRect[1], stPlotRect[2], stPlotRect[3]}; }
};

struct Curve : CcCurve {
    std::vector<tagPoints> points;

    Curve(std::vector<tagPoints> data, int style, COLORREF colour, int width) : points(std::move(data)) {
        SetCurveStyle(style, colour, width);
        SetCurveData(points.data(), static_cast<int>(points.size()));
    }
};

/// A graph in a window that leaves it a plot of exactly 500 by 400 pixels, one unit of data each: nothing is rounded.
struct GraphScene {
    static constexpr int plotWidth = 500, plotHeight = 400;

    HFONT font;
    int fontHeight, halfWidest, left, top;
    OpenGraph graph;
    CcList curves;
    MemoryPicture paper;
    TestWindow window;

    GraphScene() : GraphScene(CreateFontA(-12, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial")) {}
    ~GraphScene() {
        SelectObject(paper, GetStockObject(SYSTEM_FONT));
        DeleteObject(font);
    }

    /// Device positions of data.
    int X(int x) const { return left + x; }
    int Y(int y) const { return top + plotHeight - y; }
    void Draw() { EXPECT_EQ(graph.ShowGraph(window, paper, 0), 0); }
    /// Without the origins that a drawing leaves.
    Picture Snapshot() const {
        SetViewportOrgEx(paper, 0, 0, nullptr);
        SetWindowOrgEx(paper, 0, 0, nullptr);
        return paper.Snapshot();
    }

private:
    static TEXTMETRICA Measure(HFONT font) {
        const HDC dc = CreateCompatibleDC(nullptr);
        const HGDIOBJ old = SelectObject(dc, font);
        TEXTMETRICA metrics = {};
        GetTextMetricsA(dc, &metrics);
        SelectObject(dc, old);
        DeleteDC(dc);
        return metrics;
    }
    // Labels of "500.00" and "400.00": six characters.
    explicit GraphScene(HFONT made) : GraphScene(made, Measure(made)) {}
    GraphScene(HFONT made, const TEXTMETRICA& metrics)
        : font(made),
          fontHeight(static_cast<int>(metrics.tmHeight)),
          halfWidest(static_cast<int>(metrics.tmMaxCharWidth) / 2),
          left(6 * halfWidest + 15),
          top(2 * fontHeight + 3),
          paper(left + plotWidth + 15 + 3 * halfWidest, top + plotHeight + 4 * fontHeight, RGB(255, 255, 255)),
          window(left + plotWidth + 15 + 3 * halfWidest, top + plotHeight + 4 * fontHeight) {
        SelectObject(paper, font);
        graph.SetMinMaxValues(0, 500, 0, 400, 0, 2, 0, 2);
        graph.SetCurveList(&curves);
    }
};

}  // namespace test
