// Modal message boxes: every problem that the user must see goes through here.
#pragma once

#include <windows.h>

namespace kest {

/// Owned by the window that has the focus.
inline void ShowMessage(const char* text, const char* caption, UINT flags = MB_OK) {
    MessageBoxA(GetFocus(), text, caption, flags);
}

/// Without an owner.
inline void ShowUnownedMessage(const char* text, const char* caption, UINT flags = MB_OK) {
    MessageBoxA(nullptr, text, caption, flags);
}

}  // namespace kest
