// Small things for drawing: fonts, bitmaps in memory, a back buffer.
#include "platform/Drawing.h"

#include <algorithm>

namespace kestview {

void Font::Make(int dpi) {
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    // The metrics are for the system's resolution.
    metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, static_cast<int>(GetDpiForSystem()));
    font.Take(CreateFontIndirectA(&metrics.lfMessageFont));
}

HBITMAP MakeDibSection(SIZE size, int bitsPerPixel, void*& bits) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = static_cast<WORD>(bitsPerPixel);
    bits = nullptr;
    return CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

DibSection::DibSection(SIZE size, int bitsPerPixel)
    : dc(nullptr), bitmap(MakeDibSection(size, bitsPerPixel, bits)), selected(dc, bitmap) {}

BackBuffer::BackBuffer(HDC target, SIZE newSize)
    : dc(target),
      size(newSize),
      bitmap(CreateCompatibleBitmap(target, std::max(1L, newSize.cx), std::max(1L, newSize.cy))),
      selected(dc, bitmap) {}

}  // namespace kestview
