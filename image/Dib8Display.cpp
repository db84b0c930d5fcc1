// The 8-bit images: how they look, shown, copied and printed through their display tables.
#include "image/Dib8Image.h"
#include "image/ImageClipboard.h"
#include "image/PrintImage.h"
#include "image/kernel/DisplayLut.h"

namespace kest {

void Dib8Image::SetCurves(float one, float others) const {
    for (int channel = 1; channel <= 3; ++channel) {
        const std::span<tagPoints> curve = tables.Points(ColourLut, channel);
        for (tagPoints& point : curve) point.y = others;
        curve[1].y = one;
    }
}

void Dib8Image::TakeWorkingLook() const {
    SetCurves(0.0F, 255.0F);
    for (int channel = 1; channel <= 3; ++channel)
        image.owner.SetDisplayLUT(ColourLut, channel, tables.Points(ColourLut, channel).data());
}

ImageLook Dib8Image::Look(int lut) const {
    ImageLook look;
    look.bits = image.dib.bits;
    look.width = image.dib.width;
    look.height = image.dib.height;
    look.dibColours = image.dib.colours;
    look.dibColourBytes = colourTableBytes;
    look.usesPalette = true;
    if (const KestDisplayTable* table = tables.Table(isBinary ? ColourLut : lut)) {
        look.palette = table->hPalette;
        look.displayTable = table->pTable;
        look.colourUse = isBinary || lut <= ColourLut ? DIB_RGB_COLORS : DIB_PAL_COLORS;
    }
    return look;
}

int Dib8Image::Show(HDC dc, const RECT* rect, int lut, const ShowArguments& arguments) const {
    if (!MakeTables()) return KEST_FAILED;
    return ShowInRect(
        dc, rect, [&] { return Look(lut); }, arguments);
}

int Dib8Image::Show(HDC dc, HWND window, int lut, const ShowArguments& arguments) const {
    if (!MakeTables()) return KEST_FAILED;
    return ShowInWindow(
        dc, window, [&] { return Look(lut); }, arguments);
}

int Dib8Image::Show(HWND window, int lut, const ShowArguments& arguments) const {
    if (!MakeTables()) return KEST_FAILED;
    return ShowInWindow(
        window, [&] { return Look(lut); }, arguments);
}

int Dib8Image::CopyToClipboard(HWND window, int lut, const RECT* rect) const {
    if (!image.dib.bits || !MakeTables()) return KEST_FAILED;
    image.owner.GetOverlay();
    const int knownLut = tables.Table(lut) ? lut : ColourLut;
    return kest::CopyToClipboard(
        window, [&] { return Look(knownLut); }, [&] { return image.overlay.Picture(); }, rect);
}

int Dib8Image::Print(HWND window, int lut, const ShowArguments& arguments) const {
    if (!image.dib.bits || !MakeTables()) return KEST_FAILED;
    const PrinterDc printer(CcImage::stPrintSetup);
    if (!printer || !(isBinary || tables.Table(lut))) return KEST_FAILED;
    // Everything is printed in the colours of table 101's palette; the table itself is left as it is.
    std::uint8_t grays[ColourTableBytes];
    const auto takeLook = [&] {
        ImageLook look = Look(lut);
        if (look.colourUse == DIB_PAL_COLORS && look.displayTable) {
            SpreadIndices(static_cast<const std::uint16_t*>(look.displayTable), grays);
            look.displayTable = grays;
        }
        look.colourUse = DIB_RGB_COLORS;
        look.palette = tables.Table(ColourLut)->hPalette;
        return look;
    };
    image.owner.GetOverlay();
    return PrintImage(
        printer, image.printJob, image.name, takeLook, [&] { return image.overlay.Picture(); }, window, arguments);
}

}  // namespace kest
