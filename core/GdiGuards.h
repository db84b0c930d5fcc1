// One guard for each GDI release function, and for each state of a device context that must be put back.
#pragma once

#include <windows.h>

#include "core/kernel/Guard.h"

namespace kest {

/// The device context of a window's client area (ReleaseDC).
class WindowDc : Guard {
public:
    explicit WindowDc(HWND owner) : window(owner), dc(owner ? GetDC(owner) : nullptr) {}
    ~WindowDc() {
        if (dc) ReleaseDC(window, dc);
    }
    operator HDC() const { return dc; }

private:
    HWND window;
    HDC dc;
};

/// A memory device context (DeleteDC).
class MemoryDc : Guard {
public:
    explicit MemoryDc(HDC compatibleWith) : dc(CreateCompatibleDC(compatibleWith)) {}
    ~MemoryDc() {
        if (dc) DeleteDC(dc);
    }
    operator HDC() const { return dc; }

private:
    HDC dc;
};

/// A pen, brush, bitmap or region that its holder made (DeleteObject).
template <class Handle>
class GdiObject : Guard {
public:
    explicit GdiObject(Handle made) : handle(made) {}
    ~GdiObject() {
        if (handle) DeleteObject(handle);
    }
    operator Handle() const { return handle; }
    /// Hands the object over to the caller.
    Handle Detach() {
        const Handle detached = handle;
        handle = nullptr;
        return detached;
    }

private:
    Handle handle;
};

/// A pen, brush, font or bitmap that is selected; the old one comes back.
class SelectedObject : Guard {
public:
    SelectedObject(HDC target, HGDIOBJ object) : dc(target), old(object ? SelectObject(target, object) : nullptr) {}
    ~SelectedObject() { PutBack(); }
    bool IsSelected() const { return old != nullptr; }
    void PutBack() {
        if (old) SelectObject(dc, old);
        old = nullptr;
    }

private:
    HDC dc;
    HGDIOBJ old;
};

/// A palette that is selected and realised; the old one comes back.
class SelectedPalette : Guard {
public:
    SelectedPalette(HDC target, HPALETTE palette)
        : dc(target), old(palette ? SelectPalette(target, palette, FALSE) : nullptr) {}
    ~SelectedPalette() {
        if (old) SelectPalette(dc, old, FALSE);
    }
    bool IsSelected() const { return old != nullptr; }

private:
    HDC dc;
    HPALETTE old;
};

/// The opened clipboard (CloseClipboard).
class OpenedClipboard : Guard {
public:
    explicit OpenedClipboard(HWND owner) : isOpen(OpenClipboard(owner)) {}
    ~OpenedClipboard() {
        if (isOpen) CloseClipboard();
    }
    explicit operator bool() const { return isOpen; }

private:
    bool isOpen;
};

/// A mode of a device context that is set through one function and put back through the same.
template <auto SetMode>
class ModeGuard : Guard {
public:
    ModeGuard(HDC target, int mode) : dc(target), old(SetMode(target, mode)) {}
    ~ModeGuard() {
        if (old) SetMode(dc, old);
    }
    bool IsSet() const { return old != 0; }

private:
    HDC dc;
    int old;
};

using StretchModeGuard = ModeGuard<SetStretchBltMode>;
using BackgroundModeGuard = ModeGuard<SetBkMode>;
using MapModeGuard = ModeGuard<SetMapMode>;

/// The text alignment, whose value 0 is a setting of its own.
class TextAlignGuard : Guard {
public:
    TextAlignGuard(HDC target, UINT align) : dc(target), old(SetTextAlign(target, align)) {}
    ~TextAlignGuard() {
        if (old != GDI_ERROR) SetTextAlign(dc, old);
    }

private:
    HDC dc;
    UINT old;
};

/// A clipping region, in device units, within the one that was there; that one comes back.
class ClipGuard : Guard {
public:
    ClipGuard(HDC target, const RECT& place)
        : dc(target), old(CreateRectRgn(0, 0, 0, 0)), hadOld(GetClipRgn(target, old) == 1) {
        const GdiObject<HRGN> region(CreateRectRgnIndirect(&place));
        if (region) ExtSelectClipRgn(dc, region, hadOld ? RGN_AND : RGN_COPY);
    }
    ~ClipGuard() { SelectClipRgn(dc, hadOld ? HRGN(old) : nullptr); }

private:
    HDC dc;
    GdiObject<HRGN> old;
    bool hadOld;
};

}  // namespace kest
