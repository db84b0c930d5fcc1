// Guards and small things for drawing: fonts, selections, a back buffer.
#include "platform/Drawing.h"

namespace kestview {

void Font::Make(int dpi) {
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    // The metrics are for the system's resolution.
    const HDC screen = GetDC(nullptr);
    const int systemDpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, systemDpi);
    Release();
    font = CreateFontIndirectA(&metrics.lfMessageFont);
}

DibSection::DibSection(SIZE size, int bitsPerPixel) : dc(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = static_cast<WORD>(bitsPerPixel);
    bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    old = SelectObject(dc, bitmap);
}

DibSection::~DibSection() {
    SelectObject(dc, old);
    DeleteObject(bitmap);
    DeleteDC(dc);
}

BackBuffer::BackBuffer(HDC target, SIZE newSize)
    : dc(CreateCompatibleDC(target)),
      size(newSize),
      bitmap(CreateCompatibleBitmap(target, newSize.cx > 0 ? newSize.cx : 1, newSize.cy > 0 ? newSize.cy : 1)),
      old(SelectObject(dc, bitmap)) {}

BackBuffer::~BackBuffer() {
    SelectObject(dc, old);
    DeleteObject(bitmap);
    DeleteDC(dc);
}

}  // namespace kestview
