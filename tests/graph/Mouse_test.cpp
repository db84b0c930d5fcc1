// Picking and moving break points: tolerances, order, corrections of the list, the origin, and a drag with the real
// mouse.
#include <climits>

#include "graph/Support.h"
#include "support/Dialogs.h"

namespace {

// The operations on the origin are private: this grants the tests their addresses.
using OnOrigin = int (CcGraph::*)(HDC, POINT*);
using MoveOrigin = int (CcGraph::*)(POINT*);
OnOrigin GrantedOnOrigin();
MoveOrigin GrantedMoveOrigin();
template <OnOrigin first, MoveOrigin second>
struct OriginOperations {
    friend OnOrigin GrantedOnOrigin() { return first; }
    friend MoveOrigin GrantedMoveOrigin() { return second; }
};
template struct OriginOperations<&CcGraph::IsCursorOnOrigin, &CcGraph::SetOriginViaMouse>;

/// Ranges and plot 0 to 500, the viewport's origin in the upper left corner: logical y is minus the device's.
struct Picking : testing::Test {
    test::MemoryPicture dc{10, 10};
    test::OpenGraph graph;
    CcList list;
    test::Curve first{{{300, 300}, {100, 100}}, 0, 0, 1};
    test::Curve second{{{100, 100}, {400, 50}, {400, 50}}, 0, 0, 1};

    Picking() {
        graph.SetPlot(0, 0, 500, 500);
        graph.SetCurveList(&list);
        list.InsertTail(&first);
        list.InsertTail(&second);
    }
    static POINT At(int x, int y) { return {x, -y}; }
    int Hit(int x, int y) {
        POINT point = At(x, y);
        return graph.IsCursorOnBP(dc, &point);
    }
};

}  // namespace

TEST_F(Picking, FirstHitInListOrderWins) {
    EXPECT_EQ(Hit(104, 96), 1);
    EXPECT_EQ(graph.pSelectedCurve, &first);
    EXPECT_EQ(list.GetSelectedObjectsIndex(), 0);
    EXPECT_EQ(Hit(105, 100), -1);
    EXPECT_EQ(graph.iSelectedPoint, -1);
    EXPECT_EQ(Hit(403, 52), 1);
    EXPECT_EQ(list.GetSelectedObjectsIndex(), 1);

    POINT sameHeight = At(-7000, 304), sameColumn = At(396, 9999), both = At(100, 100), other = At(300, 300);
    EXPECT_EQ(graph.IsCursorOnBPnoX(dc, &sameHeight), 0);
    EXPECT_EQ(graph.pSelectedCurve, &first);
    EXPECT_EQ(graph.IsCursorOnBPnoY(dc, &sameColumn), 1);
    // Only the selected curve, and the selection stays.
    EXPECT_EQ(graph.IsCursorOnSelectedBP(dc, &both), 0);
    EXPECT_EQ(graph.IsCursorOnSelectedBP(dc, &other), -1);
    EXPECT_EQ(list.GetSelectedObjectsIndex(), 1);
    EXPECT_EQ(GetMapMode(dc), MM_TEXT);
}

TEST_F(Picking, ListsWithoutCurves) {
    CcList members;
    CcString notACurve;
    POINT point = At(100, 100);
    graph.SetCurveList(&members);
    EXPECT_EQ(Hit(100, 100), -1);
    members.InsertTail(nullptr);
    members.InsertTail(&notACurve);
    members.InsertTail(&second);
    EXPECT_EQ(Hit(100, 100), 0);
    EXPECT_EQ(test::TakeBoxes(), std::vector(2, test::Box{"Graph Error", "Null Curve in 'IsCursorOnBP'"}));
    members.SelectObjectAtIndex(1);
    EXPECT_EQ(graph.IsCursorOnSelectedBP(dc, &point), -1);
    EXPECT_EQ(graph.SetSelBPViaMouse(dc, &point), 0);
    graph.SetCurveList(nullptr);
    EXPECT_EQ(Hit(100, 100), -1);
    EXPECT_EQ(graph.IsCursorOnSelectedBP(dc, &point), -1);
    EXPECT_EQ(graph.SetSelBPDirect(1, 2), -1);
}

TEST_F(Picking, MovesTheSelectedPoint) {
    POINT target = At(120, 480);
    EXPECT_EQ(graph.SetSelBPViaMouse(dc, &target), -1);
    ASSERT_EQ(Hit(300, 300), 0);
    graph.SetMinMaxValues(-10, 40, 1, 3, 0, 2, 0, 2);
    EXPECT_EQ(graph.SetSelBPViaMouse(dc, &target), 0);
    EXPECT_FLOAT_EQ(first.points[0].x, 2);
    EXPECT_FLOAT_EQ(first.points[0].y, 2.92F);
    float x, y;
    EXPECT_EQ(graph.SetSelBPDirect(7, 8) + graph.GetSelBPDirect(&x, &y), 0);
    EXPECT_EQ(x + y, 15.0F);
    // A curve without such a point, and a graph without a plot.
    list.SelectObjectAtIndex(1);
    graph.iSelectedPoint = 3;
    EXPECT_EQ(graph.SetSelBPViaMouse(dc, &target), -1);
    EXPECT_EQ(graph.SetSelBPDirect(1, 1), -1);
    graph.iSelectedPoint = 2;
    graph.SetPlot(5, 0, 5, 500);
    EXPECT_EQ(graph.SetSelBPViaMouse(dc, &target), -1);
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
    EXPECT_EQ(logical.x, 120);
    EXPECT_EQ(logical.y, 50);
    EXPECT_EQ(data.x, 120.0F);
    EXPECT_EQ(data.y, 50.0F);
    for (const int end : {0, INT_MIN, INT_MAX}) {
        graph.stMapExtents[0] = graph.stMapOrigins[0] = graph.stMapOrigins[3] = end;
        EXPECT_EQ(graph.GetPositionViaMouse(dc, &device, &logical, &data), 0);
        Hit(end, end / 2);
    }
}

TEST_F(Picking, TheOriginWithinNinePixels) {
    POINT origin = {50, 60}, close = {59, 51}, beyond = {50, 70}, opposite = {INT_MIN, INT_MIN};
    EXPECT_EQ((graph.*GrantedMoveOrigin())(&origin), 0);
    const auto isOnOrigin = [&](POINT& point) { return (graph.*GrantedOnOrigin())(dc, &point); };
    EXPECT_EQ(isOnOrigin(close), 1);
    EXPECT_EQ(graph.bOriginSelected, 1);
    EXPECT_EQ(isOnOrigin(beyond), 0);
    EXPECT_EQ(graph.bOriginSelected, 0);
    EXPECT_EQ(isOnOrigin(opposite), 0);
}

TEST(GraphMouse, ABreakPointFollowsTheMouse) {
    test::GraphScene scene;
    test::Curve curve({{0, 0}, {200, 150}, {500, 400}}, PS_SOLID, RGB(200, 0, 0), 1);
    scene.curves.InsertTail(&curve);
    const auto redraw = [&] {
        scene.window.Fill(RGB(255, 255, 255));
        const HDC dc = GetDC(scene.window);
        SelectObject(dc, scene.font);
        scene.graph.ShowGraph(scene.window, dc, 0);
        ReleaseDC(scene.window, dc);
    };
    redraw();
    bool isDragging = false;
    int moves = 0;
    scene.window.onMessage = [&](UINT message, WPARAM, LPARAM lParam) {
        POINT mouse = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
        const HDC dc = GetDC(scene.window);
        if (message == WM_LBUTTONDOWN) isDragging = scene.graph.IsCursorOnBP(dc, &mouse) == 1;
        if (message == WM_MOUSEMOVE && isDragging) {
            EXPECT_EQ(scene.graph.SetSelBPViaMouse(dc, &mouse), 0);
            ++moves;
        }
        if (message == WM_LBUTTONUP) isDragging = false;
        ReleaseDC(scene.window, dc);
        return message == WM_LBUTTONDOWN || message == WM_MOUSEMOVE || message == WM_LBUTTONUP;
    };
    scene.window.Drag({scene.X(203), scene.Y(152)}, {scene.X(330), scene.Y(90)});
    EXPECT_GE(moves, 10);
    EXPECT_NEAR(curve.points[1].x, 330, 1e-3);
    EXPECT_NEAR(curve.points[1].y, 90, 1e-3);
    EXPECT_EQ(curve.points[0].x, 0.0F);
    EXPECT_EQ(curve.points[2].y, 400.0F);
    redraw();
    // The selected curve's square stands where the mouse let go of the point.
    const test::Picture picture = scene.window.Snapshot();
    EXPECT_EQ(picture.At(scene.X(330) - 2, scene.Y(90) - 2), 0xC80000U);
    EXPECT_EQ(picture.At(scene.X(330) - 1, scene.Y(90) - 1), 0xFFFFFFU);
    scene.window.onMessage = nullptr;
}
