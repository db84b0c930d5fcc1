// What the tests of graphs share: a graph that shows its fields, curves over test data, and a place to draw them.
#pragma once

#include "core/GdiGuards.h"
#include "support/ClassTests.h"

namespace test {

struct OpenGraph : CcGraph {
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
    static constexpr int paperWidth = 1000, paperHeight = 700;

    kest::GdiObject<HFONT> font{CreateFontA(-12, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial")};
    MemoryPicture paper{paperWidth, paperHeight, RGB(255, 255, 255)};
    const TEXTMETRICA metrics = Measure();
    const int fontHeight = static_cast<int>(metrics.tmHeight);
    const int halfWidest = static_cast<int>(metrics.tmMaxCharWidth) / 2;
    // Labels of "500.00" and "400.00": six characters.
    const int left = 6 * halfWidest + 15, top = 2 * fontHeight + 3;
    OpenGraph graph;
    CcList curves;
    TestWindow window{left + 515 + 3 * halfWidest, top + 400 + 4 * fontHeight};

    GraphScene() {
        graph.SetMinMaxValues(0, 500, 0, 400, 0, 2, 0, 2);
        graph.SetCurveList(&curves);
    }
    /// Device positions of data.
    int X(int x) const { return left + x; }
    int Y(int y) const { return top + 400 - y; }
    void Draw() { EXPECT_EQ(graph.ShowGraph(window, paper, 0), 0); }
    /// Without the origins that a drawing leaves.
    Picture Snapshot() const {
        SetViewportOrgEx(paper, 0, 0, nullptr);
        SetWindowOrgEx(paper, 0, 0, nullptr);
        return paper.Snapshot();
    }

private:
    TEXTMETRICA Measure() const {
        TEXTMETRICA measured = {};
        SelectObject(paper, font);
        GetTextMetricsA(paper, &measured);
        return measured;
    }
};

}  // namespace test
