// Showing an image.
#include "image/ShowImage.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "KestTypes.h"
#include "core/GdiGuards.h"
#include "core/Messages.h"
#include "core/WindowView.h"
#include "image/kernel/DibLayout.h"

namespace kest {
namespace {

void Draw(HDC dc, const ImageLook& look, const BlitPlan& plan) {
    std::optional<SelectedPalette> selected;
    if (look.usesPalette) {
        selected.emplace(dc, look.palette);
        if (!selected->IsSelected()) ShowUnownedMessage("Returned NULL from SelectPalette", "ERROR");
    }
    const DibPicture picture = TakeDisplayTable(look);
    if (look.usesPalette) RealizePalette(dc);
    const StretchModeGuard stretchMode(dc, COLORONCOLOR);
    DrawDib(dc, picture, plan, SRCCOPY);
}

View MakeView(int clientWidth, int clientHeight, const ImageLook& look, const ShowArguments& arguments) {
    return {clientWidth,       clientHeight,      look.width,     look.height,
            arguments.xOffset, arguments.yOffset, arguments.mode, arguments.zoom};
}

}  // namespace

DibPicture TakeDisplayTable(const ImageLook& look) {
    if (look.displayTable && look.dibColours)
        std::memcpy(look.dibColours, look.displayTable,
                    static_cast<std::size_t>(std::min(look.dibColourBytes, ColourTableBytes)));
    const void* colours = look.displayTable ? look.displayTable : look.dibColours;
    const int colourBytes = look.displayTable ? ColourTableBytes : look.dibColourBytes;
    return {look.bits, look.width, look.height, look.bitCount, colours, colourBytes, look.colourUse};
}

int ShowInRect(HDC dc, const RECT* rect, const ImageLook& look, const ShowArguments& arguments) {
    if (!dc) return KEST_FAILED;
    if (!look.bits || !rect) return KEST_OK;
    const IntRect target = {rect->left, rect->top, rect->right, rect->bottom};
    Draw(dc, look, PlanForRect(MakeView(0, 0, look, arguments), target));
    return KEST_OK;
}

int ShowInWindow(HDC dc, HWND window, const ImageLook& look, const ShowArguments& arguments) {
    if (!dc) return KEST_FAILED;
    if (!look.bits) return KEST_OK;
    int width, height;
    if (!GetClientSize(window, width, height)) return KEST_FAILED;
    Draw(dc, look, PlanForWindow(MakeView(width, height, look, arguments)));
    return KEST_OK;
}

int ShowInWindow(HWND window, const ImageLook& look, const ShowArguments& arguments) {
    if (!look.bits) return KEST_OK;
    const WindowDc dc(window);
    return ShowInWindow(dc, window, look, arguments);
}

}  // namespace kest
