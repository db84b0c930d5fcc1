// The view of an image in a real window.
#pragma once

#include <windows.h>

#include "core/kernel/ViewTransform.h"

namespace kest {

/// Width and height of a window's client area; false without a window.
inline bool GetClientSize(HWND window, int& width, int& height) {
    RECT client;
    if (!window || !GetClientRect(window, &client)) return false;
    width = client.right;
    height = client.bottom;
    return true;
}

}  // namespace kest
