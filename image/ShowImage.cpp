// Showing an image.
#include "image/ShowImage.h"

#include <algorithm>
#include <cstring>

#include "KestTypes.h"
#include "core/GdiGuards.h"
#include "core/Messages.h"
#include "core/WindowView.h"
#include "image/kernel/DibLayout.h"

namespace kest {
namespace {

/// Draws what is there after the palette's message. `plan(view, result)` says where; false for nowhere.
template <class Plan>
int Draw(HDC dc, const LookSource& takeLook, const ShowArguments& arguments, Plan plan) {
    const LookPalette palette(dc, takeLook());
    const ImageLook look = takeLook();
    if (!look.bits) return KEST_OK;
    BlitPlan blit;
    if (!plan({0, 0, look.width, look.height, arguments.xOffset, arguments.yOffset, arguments.mode, arguments.zoom},
              blit))
        return KEST_FAILED;
    return DrawLook(dc, look, palette, blit) ? KEST_OK : KEST_FAILED;
}

/// The colours that the palette has for the picture's indices.
void NameColours(HPALETTE palette, const DibPicture& picture, RGBQUAD (&colours)[GrayColours]) {
    PALETTEENTRY entries[GrayColours] = {};
    GetPaletteEntries(palette, 0, GrayColours, entries);
    const auto* indices = static_cast<const std::uint16_t*>(picture.colours);
    for (int i = 0; i < GrayColours; ++i) {
        const PALETTEENTRY& entry = entries[indices[i] % GrayColours];
        colours[i] = {entry.peBlue, entry.peGreen, entry.peRed, 0};
    }
}

}  // namespace

LookPalette::LookPalette(HDC dc, const ImageLook& look) {
    if (!look.usesPalette) return;
    selected.emplace(dc, look.palette);
    if (!selected->IsSelected()) ShowUnownedMessage("Returned NULL from SelectPalette", "ERROR");
    RealizePalette(dc);
}

DibPicture TakeDisplayTable(const ImageLook& look) {
    if (look.displayTable && look.dibColours)
        std::memcpy(look.dibColours, look.displayTable,
                    static_cast<std::size_t>(std::min(look.dibColourBytes, ColourTableBytes)));
    const void* colours = look.displayTable ? look.displayTable : look.dibColours;
    const int colourBytes = look.displayTable ? ColourTableBytes : look.dibColourBytes;
    return {look.bits, look.width, look.height, look.bitCount, colours, colourBytes, look.colourUse};
}

bool DrawLook(HDC dc, const ImageLook& look, const LookPalette& palette, const BlitPlan& plan) {
    DibPicture picture = TakeDisplayTable(look);
    RGBQUAD colours[GrayColours];
    // Indices name the colours of the selected palette; where it could not be selected they would be any others.
    if (picture.colourUse == DIB_PAL_COLORS && !palette.IsSelected() && look.palette && look.displayTable) {
        NameColours(look.palette, picture, colours);
        picture.colours = colours;
        picture.colourUse = DIB_RGB_COLORS;
    }
    return DrawDib(dc, picture, plan, SRCCOPY);
}

int ShowInRect(HDC dc, const RECT* rect, const LookSource& takeLook, const ShowArguments& arguments) {
    if (!dc) return KEST_FAILED;
    if (!rect || !takeLook().bits) return KEST_OK;
    const IntRect target = {rect->left, rect->top, rect->right, rect->bottom};
    return Draw(dc, takeLook, arguments, [&](const View& view, BlitPlan& plan) {
        plan = PlanForRect(view, target);
        return true;
    });
}

int ShowInWindow(HDC dc, HWND window, const LookSource& takeLook, const ShowArguments& arguments) {
    if (!dc) return KEST_FAILED;
    if (!takeLook().bits) return KEST_OK;
    if (!IsWindow(window)) return KEST_FAILED;
    return Draw(dc, takeLook, arguments, [&](View view, BlitPlan& plan) {
        if (!GetClientSize(window, view.clientWidth, view.clientHeight)) return false;
        plan = PlanForWindow(view);
        return true;
    });
}

int ShowInWindow(HWND window, const LookSource& takeLook, const ShowArguments& arguments) {
    if (!takeLook().bits) return KEST_OK;
    const WindowDc dc(window);
    return ShowInWindow(dc, window, takeLook, arguments);
}

}  // namespace kest
