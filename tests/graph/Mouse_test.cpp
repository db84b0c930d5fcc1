// Picking and moving break points: tolerances, order, and corrections of the list.
#include "graph/GraphScene.h"

using namespace test;

namespace {

using Pick = int (CcGraph::*)(HDC, POINT*);

/// Ranges and plot 0 to 500, the viewport's origin in the upper left corner: logical y is minus the device's.
struct Picking : testing::Test {
    MemoryPicture dc{10, 10};
    OpenGraph graph;
    CcList list;
    Curve first{{{300, 300}, {100, 100}}, 0, 0, 1};
    Curve second{{{100, 100}, {400, 50}, {400, 50}}, 0, 0, 1};

    Picking() {
        graph.SetPlot(0, 0, 500, 500);
        graph.SetCurveList(&list);
        list.InsertTail(&first);
        list.InsertTail(&second);
    }
    int At(int x, int y, Pick pick = &CcGraph::IsCursorOnBP) {
        POINT point = {x, -y};
        return (graph.*pick)(dc, &point);
    }
};

}  // namespace

TEST_F(Picking, FirstHitInListOrderWins) {
    const Pick onSelected = &CcGraph::IsCursorOnSelectedBP;
    EXPECT_EQ(At(104, 96), 1);
    EXPECT_EQ(graph.pSelectedCurve, &first);
    EXPECT_EQ(list.GetSelectedObjectsIndex(), 0);
    EXPECT_EQ(At(105, 100), -1);
    EXPECT_EQ(graph.iSelectedPoint, -1);
    ExpectAll(1, {At(403, 52), list.GetSelectedObjectsIndex()});
    EXPECT_EQ(At(-7000, 304, &CcGraph::IsCursorOnBPnoX), 0);
    EXPECT_EQ(graph.pSelectedCurve, &first);
    EXPECT_EQ(At(396, 9999, &CcGraph::IsCursorOnBPnoY), 1);
    // Only the selected curve, and the selection stays.
    EXPECT_EQ(At(100, 100, onSelected), 0);
    EXPECT_EQ(At(300, 300, onSelected), -1);
    EXPECT_EQ(list.GetSelectedObjectsIndex(), 1);

    CcList members;
    CcString notACurve;
    graph.SetCurveList(&members);
    EXPECT_EQ(At(100, 100), -1);
    members.InsertTail(nullptr);
    members.InsertTail(&notACurve);
    members.InsertTail(&second);
    EXPECT_EQ(At(100, 100), 0);
    EXPECT_EQ(TakeBoxes(), std::vector(2, Box{"Graph Error", "Null Curve in 'IsCursorOnBP'"}));
    members.SelectObjectAtIndex(1);
    EXPECT_EQ(At(100, 100, onSelected), -1);
    graph.iSelectedPoint = 0;
    EXPECT_EQ(At(100, 100, &CcGraph::SetSelBPViaMouse), 0);
    // The host takes the list away while the box is open.
    TestWindow host(50, 50);
    SetFocus(host);
    host.onMessage = [&](UINT message, WPARAM, LPARAM) {
        if (message == WM_ENABLE) graph.SetCurveList(nullptr);
        return false;
    };
    EXPECT_EQ(At(100, 100), -1);
    EXPECT_EQ(TakeBoxes().size(), 1U);
    EXPECT_EQ(graph.GetCurveList(), nullptr);
    ExpectAll(-1, {At(100, 100, onSelected), graph.SetSelBPDirect(1, 2)});
}

TEST_F(Picking, MovesTheSelectedPoint) {
    const Pick move = &CcGraph::SetSelBPViaMouse;
    EXPECT_EQ(At(120, 480, move), -1);
    ASSERT_EQ(At(300, 300), 0);
    graph.SetMinMaxValues(-10, 40, 1, 3, 0, 2, 0, 2);
    EXPECT_EQ(At(120, 480, move), 0);
    EXPECT_FLOAT_EQ(first.points[0].x, 2);
    EXPECT_FLOAT_EQ(first.points[0].y, 2.92F);
    float x, y;
    EXPECT_EQ(graph.SetSelBPDirect(7, 8) + graph.GetSelBPDirect(&x, &y), 0);
    EXPECT_EQ(x + y, 15.0F);
    // A curve without such a point, and a graph without a plot.
    list.SelectObjectAtIndex(1);
    graph.iSelectedPoint = 3;
    ExpectAll(-1, {At(120, 480, move), graph.SetSelBPDirect(1, 1)});
    graph.iSelectedPoint = 2;
    graph.SetPlot(5, 0, 5, 500);
    EXPECT_EQ(At(120, 480, move), -1);
    EXPECT_EQ(second.points[2].x, 400.0F);
}

TEST_F(Picking, PositionsThroughAnyMapping) {
    graph.stMapExtents[0] = 2;
    graph.stMapExtents[1] = -4;
    const int origins[] = {30, 200, 100, 10};
    std::copy(origins, origins + 4, graph.stMapOrigins);
    POINT device = {40, 190}, logical;
    tagPoints data;
    SetMapMode(dc, MM_LOMETRIC);
    EXPECT_EQ(graph.GetPositionViaMouse(dc, &device, &logical, &data), 0);
    EXPECT_EQ(GetMapMode(dc), MM_LOMETRIC);
    EXPECT_EQ(std::vector<float>({float(logical.x), float(logical.y), data.x, data.y}),
              (std::vector<float>{120, 50, 120, 50}));
    for (const int end : {0, INT_MIN, INT_MAX}) {
        graph.stMapExtents[0] = graph.stMapOrigins[0] = graph.stMapOrigins[3] = end;
        EXPECT_EQ(graph.GetPositionViaMouse(dc, &device, &logical, &data), 0);
        At(end, end / 2);
    }
}
