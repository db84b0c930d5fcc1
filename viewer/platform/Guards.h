// One guard for each release function that the program calls: those of the library (core/GdiGuards.h), and these.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include "core/GdiGuards.h"

namespace kestview {

/// A handle that is given back by one function.
template <class Handle, auto Release>
class Held : kest::Guard {
public:
    explicit Held(Handle newHandle = nullptr) : handle(newHandle) {}
    ~Held() {
        if (handle) Release(handle);
    }
    operator Handle() const { return handle; }
    /// Gives the present one back and holds another.
    void Take(Handle newHandle) {
        if (handle) Release(handle);
        handle = newHandle;
    }
    /// Leaves the handle to someone else.
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

}  // namespace kestview
