// How the picture stands in its window, and how its ROIs look there.
#include "picture/Shown.h"

#include <algorithm>
#include <cmath>

#include "platform/Settings.h"

namespace kestview {
namespace {

bool SameColour(const RGBTRIPLE& triple, COLORREF colour) {
    return RGB(triple.rgbtRed, triple.rgbtGreen, triple.rgbtBlue) == colour;
}

}  // namespace

POINT ShownPoint(SIZE area, SIZE picture, const Shown& shown, double x, double y) {
    const double magnification =
        shown.mode == 1 ? shown.zoom : static_cast<double>(area.cx) / std::max<long>(picture.cx, 1);
    return {static_cast<LONG>(std::floor((x + 0.5 - shown.xOffset) * magnification)),
            static_cast<LONG>(std::floor((picture.cy - 0.5 - y - shown.yOffset) * magnification))};
}

void ApplyRoiLook(CcRoiBase& anyRoi, int zoom) {
    const auto triple = [](COLORREF colour) {
        return RGBTRIPLE{GetBValue(colour), GetGValue(colour), GetRValue(colour)};
    };
    const COLORREF selectedColour = KeptSettings().RoiColour(true), unselectedColour = KeptSettings().RoiColour(false);
    RGBTRIPLE selected = triple(selectedColour), unselected = triple(unselectedColour);
    if (!SameColour(CcRoiBase::stSelectedColor, selectedColour)) anyRoi.SetSelectedColor(&selected);
    if (!SameColour(CcRoiBase::stUnSelectedColor, unselectedColour)) anyRoi.SetUnSelectedColor(&unselected);
    anyRoi.SetZoomPen(1 + zoom / 4);
}

}  // namespace kestview
