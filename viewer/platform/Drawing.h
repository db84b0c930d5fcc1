// Small things for drawing: fonts, bitmaps in memory, a back buffer.
#pragma once

#include <windows.h>

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

/// A bitmap whose pixels can be read, bottom row first, rows padded to four bytes; it is selected into a device context
/// of its own.
class DibSection {
public:
    DibSection(SIZE size, int bitsPerPixel);

    /// False when memory is short.
    explicit operator bool() const { return bits != nullptr; }
    operator HDC() const { return dc; }
    /// What is drawn is there after GdiFlush.
    const unsigned char* Bits() const { return static_cast<const unsigned char*>(bits); }

private:
    kest::MemoryDc dc;
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

/// A bitmap of this size, with its pixels in `bits`; a negative height has the top row first. Null, and null bits, when
/// memory is short.
HBITMAP MakeDibSection(SIZE size, int bitsPerPixel, void*& bits);

}  // namespace kestview
