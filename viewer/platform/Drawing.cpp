// Small things for drawing: fonts, bitmaps in memory, a back buffer.
#include "platform/Drawing.h"

#include <algorithm>

namespace kestview {
namespace {

/// A pixel that nothing has been drawn on: what is drawn has another fourth byte.
constexpr std::uint32_t undrawn = 0x5AB4692D;

}  // namespace

void Font::Make(int dpi) {
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    // The metrics are for the system's resolution.
    metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, static_cast<int>(GetDpiForSystem()));
    font.Take(CreateFontIndirectA(&metrics.lfMessageFont));
}

HBITMAP MakeDibSection(SIZE size, void*& bits) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    bits = nullptr;
    return CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

DibSection::DibSection(SIZE newSize)
    : dc(nullptr), size(newSize), bitmap(MakeDibSection(size, bits)), selected(dc, bitmap) {}

const std::uint32_t* DibSection::Top(long rows) const {
    return static_cast<const std::uint32_t*>(bits) + static_cast<std::size_t>(size.cy - rows) * size.cx;
}

void DibSection::MarkUndrawn() {
    GdiFlush();
    std::fill_n(static_cast<std::uint32_t*>(bits), static_cast<std::size_t>(size.cy) * size.cx, undrawn);
}

bool DibSection::IsDrawn(long rows) const {
    GdiFlush();
    const std::uint32_t* end = Top(0);
    return std::find(Top(rows), end, undrawn) == end;
}

BackBuffer::BackBuffer(HDC target, SIZE newSize)
    : dc(target),
      size(newSize),
      bitmap(CreateCompatibleBitmap(target, std::max(1L, newSize.cx), std::max(1L, newSize.cy))),
      selected(dc, bitmap) {}

}  // namespace kestview
