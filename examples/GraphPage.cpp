// A graph in a window: two curves between labelled axes, a break point picked and dragged with the mouse.
//
//   GraphPage FOLDER [--by-hand]
//
// Without a person the program moves the real mouse itself. Pictures of the window and the graph's appearance file go
// to FOLDER.
#include <cmath>
#include <cstdio>
#include <cstring>
#include <vector>

#include "Example.h"

namespace {

/// A window that shows a graph and lets the user drag the break points of its curves.
struct GraphWindow {
    CcGraph& graph;
    int selectedPoint = -1;
    bool isDragging = false;

    void Paint(HWND window, HDC dc) {
        RECT client;
        GetClientRect(window, &client);
        FillRect(dc, &client, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        const HFONT font =
            CreateFontA(-13, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, CLEARTYPE_QUALITY, 0, "Arial");
        const HGDIOBJ oldFont = SelectObject(dc, font);
        graph.ShowGraph(window, dc, 0);
        if (selectedPoint >= 0) {
            const HPEN pen = CreatePen(PS_SOLID, 2, RGB(220, 0, 0));
            const HGDIOBJ oldPen = SelectObject(dc, pen);
            const HGDIOBJ oldBrush = SelectObject(dc, GetStockObject(HOLLOW_BRUSH));
            graph.ShowListOfSelPoints(window, dc, &selectedPoint, 1, 0);
            SelectObject(dc, oldBrush);
            SelectObject(dc, oldPen);
            DeleteObject(pen);
        }
        SelectObject(dc, oldFont);
        DeleteObject(font);
    }

    LRESULT Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        POINT mouse = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
        const auto withDc = [window](auto use) {
            const HDC dc = GetDC(window);
            use(dc);
            ReleaseDC(window, dc);
        };
        switch (message) {
            case WM_PAINT: {
                PAINTSTRUCT paint;
                Paint(window, BeginPaint(window, &paint));
                EndPaint(window, &paint);
                return 0;
            }
            case WM_LBUTTONDOWN:
                withDc([&](HDC dc) { selectedPoint = graph.IsCursorOnBP(dc, &mouse); });
                isDragging = selectedPoint >= 0;
                if (isDragging) SetCapture(window);
                InvalidateRect(window, nullptr, FALSE);
                return 0;
            case WM_MOUSEMOVE:
                if (!isDragging) return 0;
                withDc([&](HDC dc) { graph.SetSelBPViaMouse(dc, &mouse); });
                InvalidateRect(window, nullptr, FALSE);
                return 0;
            case WM_LBUTTONUP:
                isDragging = false;
                ReleaseCapture();
                return 0;
            default: return DefWindowProcA(window, message, wParam, lParam);
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::puts("usage: GraphPage FOLDER [--by-hand]");
        return 2;
    }
    const std::string folder = argv[1];

    std::vector<tagPoints> measured;
    for (int i = 0; i <= 250; ++i) {
        const float x = static_cast<float>(i);
        measured.push_back({x, 21000.0F * std::exp(-(x - 150) * (x - 150) / 2500) + 9000.0F * std::exp(-x / 40)});
    }
    std::vector<tagPoints> table = {{0, 2000}, {60, 7000}, {110, 16000}, {170, 12500}, {250, 22000}};

    CcCurve response, breakPoints;
    response.SetCurveData(measured.data(), static_cast<int>(measured.size()));
    response.SetCurveStyle(PS_SOLID, RGB(0, 90, 200), 2);
    breakPoints.SetCurveData(table.data(), static_cast<int>(table.size()));
    breakPoints.SetCurveStyle(PS_SOLID, RGB(0, 130, 60), 1);
    CcList curves;
    curves.InsertTail(&breakPoints);
    curves.InsertTail(&response);

    CcGraph graph;
    graph.SetCurveList(&curves);
    graph.SetGraphText("Detector response", "Exposure in ms", "Counts");
    graph.SetMinMaxValues(0, 250, 0, 25000, 0, 2, 3, 1);
    graph.SetGridMarkings(6, 6, 4, 4, 1, 1, 0, 1);

    GraphWindow view{graph};
    const HWND window = example::OpenWindow("Drag a break point", 760, 520,
                                            [&view](auto... message) { return view.Handle(message...); });
    example::PumpMessages(100);

    // The graph turns positions into data; along a line through two of them lies the position of the third break point.
    POINT corner = {0, 0}, inside = {100, 100}, logical;
    tagPoints atCorner, atInside;
    const HDC dc = GetDC(window);
    graph.GetPositionViaMouse(dc, &corner, &logical, &atCorner);
    graph.GetPositionViaMouse(dc, &inside, &logical, &atInside);
    ReleaseDC(window, dc);
    const POINT from = {std::lround(100 * (table[2].x - atCorner.x) / (atInside.x - atCorner.x)),
                        std::lround(100 * (table[2].y - atCorner.y) / (atInside.y - atCorner.y))};

    if (argc > 2 && std::strcmp(argv[2], "--by-hand") == 0)
        example::RunMessages([] { return false; });
    else
        example::DragMouse(window, from, {from.x - 40, from.y - 70});
    example::PumpMessages(100);
    std::printf("the third break point is now at %.1f ms, %.0f counts\n", table[2].x, table[2].y);
    const bool isSaved = example::SavePicture(window, folder + "/graph.bmp");
    return isSaved && graph.SaveAppearance((folder + "/graph.gap").c_str()) == 0 ? 0 : 1;
}
