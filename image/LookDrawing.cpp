// Drawing the look of an image through its display table.
#include "image/LookDrawing.h"

#include <algorithm>
#include <cstring>

#include "core/Messages.h"
#include "image/kernel/DibLayout.h"

namespace kest {
namespace {

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

}  // namespace kest
