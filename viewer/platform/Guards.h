// One guard for each release function that the program calls: those of the library (core/GdiGuards.h), and these.
#pragma once

#include <windows.h>

#include "core/GdiGuards.h"

namespace kestview {

/// A handle that is given back by one function; null for none.
template <class Handle, auto Release>
class Held : kest::Guard {
public:
    explicit Held(Handle newHandle = nullptr) : handle(newHandle) {}
    ~Held() { Take(nullptr); }
    operator Handle() const { return handle; }
    /// Gives the present one back and holds another.
    void Take(Handle newHandle) {
        if (handle) Release(handle);
        handle = newHandle;
    }
    /// Leaves it to someone else.
    Handle Detach() {
        const Handle detached = handle;
        handle = nullptr;
        return detached;
    }

private:
    Handle handle;
};

using HeldMenu = Held<HMENU, DestroyMenu>;
using HeldKeys = Held<HACCEL, DestroyAcceleratorTable>;
using HeldFile = Held<HANDLE, CloseHandle>;
using HeldBlock = Held<HGLOBAL, GlobalFree>;

/// The device context that a window is painted with (EndPaint).
class PaintDc : kest::Guard {
public:
    explicit PaintDc(HWND painted) : window(painted), dc(BeginPaint(painted, &paint)) {}
    ~PaintDc() { EndPaint(window, &paint); }
    operator HDC() const { return dc; }

private:
    HWND window;
    PAINTSTRUCT paint = {};
    HDC dc;
};

/// Whatever is set in a device context meanwhile, it is as it was at the end (RestoreDC).
class SavedDc : kest::Guard {
public:
    explicit SavedDc(HDC target) : dc(target), saved(SaveDC(target)) {}
    ~SavedDc() { RestoreDC(dc, saved); }

private:
    HDC dc;
    int saved;
};

}  // namespace kestview
