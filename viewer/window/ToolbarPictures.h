// The toolbar's pictures, drawn with lines and areas in a grid of 24 x 24.
#pragma once

#include <windows.h>

namespace kestview {

/// The pictures in this order.
enum class ToolbarPicture {
    Open,
    Save,
    Undo,
    Redo,
    Select,
    Point,
    Line,
    Rectangle,
    Ellipse,
    Freehand,
    FreehandLine,
    Polygon,
    Polyline,
    ZoomIn,
    ZoomOut,
    ZoomFit,
    Threshold,
    DisplayTable,
    Histogram,
    Calibrate,
    Count,
};

/// A 32-bit bitmap with transparency of size x size pixels, which the caller deletes.
HBITMAP MakeToolbarPicture(ToolbarPicture picture, int size, bool isEnabled);
/// Another bitmap, scaled, as such a picture.
HBITMAP MakeToolbarPicture(HBITMAP other, int size);

}  // namespace kestview
