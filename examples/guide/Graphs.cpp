// A graph with a curve whose points the user drags: the shape of a display table.
#include <algorithm>

#include "Guide.h"

namespace guide {
namespace {

// [graph-window]
/// A window with a graph. The points belong to it; the curve only refers to them.
class LutEditor {
public:
    LutEditor(CcGrayImage256& edited, HWND shownIn) : image(edited), imageWindow(shownIn) {
        curve.SetCurveData(points, 3);
        curve.SetCurveStyle(PS_SOLID, RGB(0, 0, 255), 1);
        curves.InsertTail(&curve);  // destruction type 0: the curve stays ours
        graph.SetCurveList(&curves);
        graph.SetGraphText("Display table", "value", "level");
        graph.SetMinMaxValues(0, 255, 0, 255, 0, 0, 0, 0);
    }

    LRESULT Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

private:
    void Apply();

    CcGrayImage256& image;
    HWND imageWindow;
    tagPoints points[3] = {{0, 0}, {128, 128}, {255, 255}};
    CcCurve curve;
    CcList curves;
    CcGraph graph;
    bool isDragging = false;
};
// [/graph-window]

// [graph-messages]
LRESULT LutEditor::Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    POINT mouse = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    switch (message) {
        case WM_PAINT: {
            PAINTSTRUCT paint;
            graph.ShowGraph(window, BeginPaint(window, &paint), 0);
            EndPaint(window, &paint);
            return 0;
        }
        case WM_LBUTTONDOWN: {
            const HDC dc = GetDC(window);
            isDragging = graph.IsCursorOnBP(dc, &mouse) >= 0;  // selects the curve and the point
            ReleaseDC(window, dc);
            if (isDragging) SetCapture(window);
            return 0;
        }
        case WM_MOUSEMOVE:
            if (isDragging) {
                const HDC dc = GetDC(window);
                graph.SetSelBPViaMouse(dc, &mouse);  // writes into our point
                ReleaseDC(window, dc);
                Apply();
                InvalidateRect(window, nullptr, TRUE);
            }
            return 0;
        case WM_LBUTTONUP:
            if (isDragging) ReleaseCapture();
            isDragging = false;
            return 0;
        case WM_LBUTTONDBLCLK:
            graph.ShowDLBSetMM();  // ranges and labels of the axes, in the library's own dialog
            InvalidateRect(window, nullptr, TRUE);
            return 0;
        default: return DefWindowProcA(window, message, wParam, lParam);
    }
}
// [/graph-messages]

// [lut]
void LutEditor::Apply() {
    points[0].x = 0;
    points[2].x = 255;
    points[1].x = std::clamp(points[1].x, 1.0F, 254.0F);
    tagPoints table[256];
    for (int value = 0; value < 256; ++value) {
        const float x = static_cast<float>(value);
        const tagPoints& from = points[x < points[1].x ? 0 : 1];
        const tagPoints& to = points[x < points[1].x ? 1 : 2];
        const float share = (x - from.x) / (to.x - from.x);
        table[value] = {x, std::clamp(from.y + share * (to.y - from.y), 0.0F, 255.0F)};
    }
    image.SetDisplayLUT(102, 0, table);  // point k of table 102 has x = k
    InvalidateRect(imageWindow, nullptr, FALSE);
}
// [/lut]

}  // namespace

void Graphs() {
    CcGrayImage256 image;
    image.MakeBlankBMP(64, 64, 128, "graphs");
    const HWND shown = example::OpenWindow("Picture", 64, 64, [](HWND w, UINT message, WPARAM wParam, LPARAM lParam) {
        return DefWindowProcA(w, message, wParam, lParam);
    });
    LutEditor editor(image, shown);
    const HWND window =
        example::OpenWindow("Display table", 400, 300, [&editor](HWND w, UINT message, WPARAM wParam, LPARAM lParam) {
            return editor.Handle(w, message, wParam, lParam);
        });
    // Press along the line until a press hits its middle point, as a user would.
    const HDC dc = GetDC(window);
    tagPoints table[256] = {};
    bool isDrawn = false;
    for (int x = 150; x < 300 && table[128].y < 140; x += 3)
        for (int y = 50; y < 270; ++y) {
            if (GetPixel(dc, x, y) != RGB(0, 0, 255)) continue;
            isDrawn = true;
            example::DragMouse(window, {x, y}, {x, y - 60});
            image.GetDisplayLUT(102, 0, table);
            break;
        }
    ReleaseDC(window, dc);
    Expect(isDrawn, "the curve is drawn in its colour");
    Expect(table[128].y > 140 && table[0].y == 0 && table[255].y == 255, "dragging a point bends the display table");
    DestroyWindow(window);
    DestroyWindow(shown);
}

}  // namespace guide
