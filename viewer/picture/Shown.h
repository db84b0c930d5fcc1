// How the picture stands in its window, and how its ROIs look there.
#pragma once

#include <windows.h>

#include "KestApi.h"

namespace kestview {

/// How the picture stands in its window: the display arguments of the library's calls.
struct Shown {
    HWND canvas = nullptr;
    unsigned short mode = 1;  ///< 1: whole-number zoom; 0: the whole picture stretched over the window
    int xOffset = 0;
    int yOffset = 0;
    int zoom = 1;
    int penZoom = 1;  ///< how much larger than its pixels the picture is, for the pens; also when it is stretched
};

/// The middle of a picture pixel in the drawn area.
POINT ShownPoint(SIZE area, SIZE picture, const Shown& shown, double x, double y);

/// Gives the library the colours and, for this zoom, the pens. The library forgets the colours with the last ROI, so
/// this is done before each drawing.
void ApplyRoiLook(CcRoiBase& anyRoi, int zoom);

}  // namespace kestview
