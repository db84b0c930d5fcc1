// The buttons of the toolbar, each with the drawing of its picture.
#include "window/ToolbarButtons.h"

#include <commctrl.h>

#include "res/Resource.h"

namespace kestview {
namespace {

constexpr COLORREF ink = RGB(60, 66, 74), blue = RGB(30, 110, 200), red = RGB(214, 48, 40), green = RGB(30, 150, 70),
                   paper = RGB(250, 250, 250), folder = RGB(240, 190, 70);

void DrawGlass(Pencil& pencil, bool hasPlus, bool hasMinus) {
    pencil.Use(ink, 2, paper);
    pencil.Oval(3, 3, 17, 17);
    pencil.Use(ink, 3);
    pencil.Lines({{15, 15}, {21, 21}});
    pencil.Use(blue, 2);
    if (hasPlus || hasMinus) pencil.Lines({{7, 10}, {13, 10}});
    if (hasPlus) pencil.Lines({{10, 7}, {10, 13}});
}

void DrawArrow(Pencil& pencil, bool isMirrored) {
    const auto x = [isMirrored](LONG at) { return isMirrored ? Pencil::grid - at : at; };
    pencil.Use(blue, 2);
    pencil.Curve({{x(6), 9}, {x(14), 5}, {x(21), 9}, {x(18), 19}});
    pencil.Use(blue, 1, blue);
    pencil.Shape({{x(3), 10}, {x(10), 4}, {x(10), 13}});
}

void DrawOpen(Pencil& pencil) {
    pencil.Use(ink, 1, folder);
    pencil.Shape({{3, 19}, {3, 6}, {9, 6}, {11, 8}, {19, 8}, {19, 19}});
    pencil.Use(ink, 1, RGB(255, 220, 120));
    pencil.Shape({{3, 19}, {7, 11}, {22, 11}, {19, 19}});
}

void DrawSave(Pencil& pencil) {
    pencil.Use(ink, 1, blue);
    pencil.Box(4, 4, 21, 21);
    pencil.Use(ink, 1, paper);
    pencil.Box(8, 4, 17, 10);
    pencil.Box(7, 13, 18, 21);
}

void DrawUndo(Pencil& pencil) { DrawArrow(pencil, false); }

void DrawRedo(Pencil& pencil) { DrawArrow(pencil, true); }

void DrawSelect(Pencil& pencil) {
    pencil.Use(ink, 1, paper);
    pencil.Shape({{6, 3}, {6, 18}, {10, 15}, {13, 21}, {16, 20}, {13, 13}, {18, 13}});
}

void DrawPoint(Pencil& pencil) {
    pencil.Use(red, 2);
    pencil.Oval(6, 6, 18, 18);
    pencil.Use(ink, 1);
    pencil.Lines({{12, 2}, {12, 22}});
    pencil.Lines({{2, 12}, {22, 12}});
}

void DrawLine(Pencil& pencil) {
    pencil.Use(red, 2);
    pencil.Lines({{4, 20}, {20, 4}});
    pencil.Dot(4, 20);
    pencil.Dot(20, 4);
}

void DrawRectangle(Pencil& pencil) {
    pencil.Use(red, 2);
    pencil.Lines({{3, 6}, {21, 6}, {21, 18}, {3, 18}, {3, 6}});
}

void DrawEllipse(Pencil& pencil) {
    pencil.Use(red, 2);
    pencil.Oval(2, 5, 22, 19);
}

void DrawFreehand(Pencil& pencil) {
    pencil.Use(red, 2);
    pencil.Curve({{5, 14}, {0, 2}, {14, 2}, {15, 7}, {16, 11}, {24, 8}, {20, 17}, {17, 23}, {8, 21}, {5, 14}});
}

void DrawFreehandLine(Pencil& pencil) {
    pencil.Use(red, 2);
    pencil.Curve({{3, 17}, {7, 2}, {10, 3}, {11, 10}, {12, 22}, {17, 20}, {21, 6}});
}

void DrawPolygon(Pencil& pencil) {
    pencil.Use(red, 2);
    pencil.Lines({{4, 9}, {13, 4}, {20, 11}, {16, 20}, {6, 19}, {4, 9}});
    for (const POINT corner : {POINT{4, 9}, {13, 4}, {20, 11}, {16, 20}, {6, 19}}) pencil.Dot(corner.x, corner.y);
}

void DrawPolyline(Pencil& pencil) {
    pencil.Use(red, 2);
    pencil.Lines({{3, 18}, {9, 6}, {15, 16}, {21, 5}});
    for (const POINT corner : {POINT{3, 18}, {9, 6}, {15, 16}, {21, 5}}) pencil.Dot(corner.x, corner.y);
}

void DrawZoomIn(Pencil& pencil) { DrawGlass(pencil, true, false); }

void DrawZoomOut(Pencil& pencil) { DrawGlass(pencil, false, true); }

void DrawZoomFit(Pencil& pencil) {
    pencil.Use(ink, 1, paper);
    pencil.Box(3, 5, 22, 20);
    pencil.Use(blue, 2);
    pencil.Lines({{7, 12}, {7, 9}, {10, 9}});
    pencil.Lines({{15, 9}, {18, 9}, {18, 12}});
    pencil.Lines({{7, 13}, {7, 16}, {10, 16}});
    pencil.Lines({{15, 16}, {18, 16}, {18, 13}});
}

void DrawThreshold(Pencil& pencil) {
    pencil.Use(ink, 1, RGB(150, 150, 150));
    pencil.Box(3, 4, 22, 21);
    pencil.Use(red, 1, red);
    pencil.Shape({{3, 20}, {9, 11}, {14, 15}, {21, 7}, {21, 20}});
}

void DrawDisplayTable(Pencil& pencil) {
    pencil.Use(ink, 1, paper);
    pencil.Box(3, 4, 22, 21);
    pencil.Use(blue, 2);
    pencil.Curve({{4, 19}, {9, 18}, {13, 6}, {20, 6}});
    pencil.Dot(12, 11);
}

void DrawHistogram(Pencil& pencil) {
    pencil.Use(ink, 2);
    pencil.Lines({{3, 3}, {3, 21}, {22, 21}});
    pencil.Use(green, 1, green);
    pencil.Box(6, 14, 9, 20);
    pencil.Box(10, 6, 13, 20);
    pencil.Box(14, 10, 17, 20);
    pencil.Box(18, 16, 21, 20);
}

void DrawCalibrate(Pencil& pencil) {
    pencil.Use(ink, 1, folder);
    pencil.Shape({{2, 16}, {16, 2}, {22, 8}, {8, 22}});
    pencil.Use(ink, 1);
    pencil.Lines({{6, 12}, {9, 15}});
    pencil.Lines({{9, 9}, {11, 11}});
    pencil.Lines({{12, 6}, {15, 9}});
}

constexpr ToolbarButton gap = {nullptr, 0, BTNS_SEP};
constexpr ToolbarButton buttons[] = {
    {DrawOpen, ID_FILE_OPEN},
    {DrawSave, ID_FILE_SAVE_SESSION},
    gap,
    {DrawUndo, ID_EDIT_UNDO},
    {DrawRedo, ID_EDIT_REDO},
    gap,
    {DrawSelect, ID_ROI_SELECT_TOOL, BTNS_CHECK},
    {DrawPoint, ID_ROI_TOOL_POINT, BTNS_CHECK},
    {DrawLine, ID_ROI_TOOL_LINE, BTNS_CHECK},
    {DrawRectangle, ID_ROI_TOOL_RECTANGLE, BTNS_CHECK},
    {DrawEllipse, ID_ROI_TOOL_ELLIPSE, BTNS_CHECK},
    {DrawFreehand, ID_ROI_TOOL_FREEHAND, BTNS_CHECK},
    {DrawFreehandLine, ID_ROI_TOOL_FREEHAND_LINE, BTNS_CHECK},
    {DrawPolygon, ID_ROI_TOOL_POLYGON, BTNS_CHECK},
    {DrawPolyline, ID_ROI_TOOL_POLYLINE, BTNS_CHECK},
    gap,
    {DrawZoomIn, ID_VIEW_ZOOM_IN},
    {DrawZoomOut, ID_VIEW_ZOOM_OUT},
    {DrawZoomFit, ID_VIEW_ZOOM_FIT, BTNS_CHECK},
    gap,
    {DrawThreshold, ID_DISPLAY_THRESHOLD, BTNS_CHECK},
    {DrawDisplayTable, ID_DISPLAY_EDIT, BTNS_CHECK},
    {DrawHistogram, ID_MEASURE_HISTOGRAM, BTNS_CHECK},
    {DrawCalibrate, ID_CALIBRATE_POINTS, BTNS_CHECK},
};

}  // namespace

std::span<const ToolbarButton> ToolbarButtons() { return buttons; }

}  // namespace kestview
