// Guards and small things for drawing: fonts, selections, a back buffer.
#pragma once

#include <windows.h>

namespace kestview {

/// A font that is deleted with its owner.
class Font {
public:
    Font() = default;
    ~Font() { Release(); }
    Font(const Font&) = delete;
    Font& operator=(const Font&) = delete;

    void Make(int dpi);
    operator HFONT() const { return font; }

private:
    void Release() {
        if (font) DeleteObject(font);
    }
    HFONT font = nullptr;
};

/// A pen, brush or bitmap that is deleted with its holder.
class GdiObject {
public:
    explicit GdiObject(HGDIOBJ newObject) : object(newObject) {}
    ~GdiObject() { DeleteObject(object); }
    GdiObject(const GdiObject&) = delete;
    GdiObject& operator=(const GdiObject&) = delete;
    operator HGDIOBJ() const { return object; }

private:
    HGDIOBJ object;
};

/// Selects an object into a device context for as long as the guard lives.
class Selected {
public:
    Selected(HDC newDc, HGDIOBJ object) : dc(newDc), old(SelectObject(newDc, object)) {}
    ~Selected() { SelectObject(dc, old); }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

private:
    HDC dc;
    HGDIOBJ old;
};

/// A bitmap whose pixels can be read, bottom row first, rows padded to four bytes; it is selected into a device context
/// of its own.
class DibSection {
public:
    DibSection(SIZE size, int bitsPerPixel);
    ~DibSection();
    DibSection(const DibSection&) = delete;
    DibSection& operator=(const DibSection&) = delete;

    /// False when memory is short.
    explicit operator bool() const { return bits != nullptr; }
    operator HDC() const { return dc; }
    /// What is drawn is there after GdiFlush.
    const unsigned char* Bits() const { return static_cast<const unsigned char*>(bits); }

private:
    HDC dc;
    void* bits = nullptr;
    HBITMAP bitmap;
    HGDIOBJ old;
};

/// A bitmap in memory that is drawn first and shown at once.
class BackBuffer {
public:
    BackBuffer(HDC target, SIZE newSize);
    ~BackBuffer();
    BackBuffer(const BackBuffer&) = delete;
    BackBuffer& operator=(const BackBuffer&) = delete;

    operator HDC() const { return dc; }
    void CopyTo(HDC target) const { BitBlt(target, 0, 0, size.cx, size.cy, dc, 0, 0, SRCCOPY); }

private:
    HDC dc;
    SIZE size;
    HBITMAP bitmap;
    HGDIOBJ old;
};

}  // namespace kestview
