// The colour images: drawing without a palette, and the access channel. Unlike the 8-bit images
// they do not report what becomes of the drawing.
#include "image/ColourImage.h"
#include "image/ImageClipboard.h"
#include "image/PrintImage.h"

namespace kest {

int ColourImage::SetAccess(int channel) const {
    if (!kind.IsChannel(channel)) return KEST_FAILED;
    access = channel;
    return KEST_OK;
}

std::span<std::uint8_t> ColourImage::Pixels() const {
    if (!image.dib.bits) return {};
    return PlaneBytes(image.dib.bits, image.dib.height, image.dib.width);
}

ImageLook ColourImage::Look() const {
    ImageLook look;
    look.bits = image.dib.bits;
    look.width = image.dib.width;
    look.height = image.dib.height;
    look.bitCount = 24;
    return look;
}

int ColourImage::Show(HDC dc, const RECT* rect, const ShowArguments& arguments) const {
    if (dc)
        ShowInRect(
            dc, rect, [this] { return Look(); }, arguments);
    return KEST_OK;
}

int ColourImage::Show(HDC dc, HWND window, const ShowArguments& arguments) const {
    if (dc && window)
        ShowInWindow(
            dc, window, [this] { return Look(); }, arguments);
    return KEST_OK;
}

int ColourImage::Show(HWND window, const ShowArguments& arguments) const {
    if (window)
        ShowInWindow(
            window, [this] { return Look(); }, arguments);
    return KEST_OK;
}

int ColourImage::CopyToClipboard(HWND window, const RECT* rect) const {
    return kest::CopyToClipboard(
        window, [this] { return Look(); }, [this] { return image.overlay.Picture(); }, rect);
}

int ColourImage::Print(HWND window, const ShowArguments& arguments) const {
    if (!image.dib.bits) return KEST_FAILED;
    const PrinterDc printer(CcImage::stPrintSetup);
    if (!printer) return KEST_FAILED;
    image.owner.GetOverlay();
    return PrintImage(
        printer, image.printJob, image.name, [this] { return Look(); }, [this] { return image.overlay.Picture(); },
        window, arguments);
}

}  // namespace kest
