// Small things for drawing: fonts, bitmaps in memory, a back buffer.
#pragma once

#include <windows.h>

#include <cstdint>

#include "platform/Guards.h"

namespace kestview {

/// The system's font for messages.
class Font {
public:
    void Make(int dpi);
    operator HFONT() const { return font; }

private:
    Held<HFONT, DeleteObject> font;
};

/// A bitmap whose pixels can be read; it is selected into a device context of its own. It knows what of it has been
/// drawn, as not every Show tells that it failed.
class DibSection {
public:
    explicit DibSection(SIZE newSize);

    /// False when memory is short.
    explicit operator bool() const { return bits != nullptr; }
    operator HDC() const { return dc; }
    /// The uppermost rows, the lowest of them first: 0x00RRGGBB each. What is drawn is there after GdiFlush.
    const std::uint32_t* Top(long rows) const;
    /// From now on nothing counts as drawn.
    void MarkUndrawn();
    /// Whether each pixel of the uppermost rows has been drawn since then.
    bool IsDrawn(long rows) const;

private:
    kest::MemoryDc dc;
    SIZE size;
    void* bits = nullptr;
    kest::GdiObject<HBITMAP> bitmap;
    kest::SelectedObject selected;
};

/// A bitmap in memory that is drawn first and shown at once.
class BackBuffer {
public:
    BackBuffer(HDC target, SIZE newSize);

    /// False when memory is short.
    explicit operator bool() const { return dc && bitmap; }
    operator HDC() const { return dc; }
    void CopyTo(HDC target) const { BitBlt(target, 0, 0, size.cx, size.cy, dc, 0, 0, SRCCOPY); }

private:
    kest::MemoryDc dc;
    SIZE size;
    kest::GdiObject<HBITMAP> bitmap;
    kest::SelectedObject selected;
};

/// A bitmap of this size with 32 bits a pixel, in `bits`; a negative height has the top row first. Null, and null bits,
/// when memory is short.
HBITMAP MakeDibSection(SIZE size, void*& bits);

}  // namespace kestview
