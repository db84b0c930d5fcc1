// The clipboard, which is one for all programs.
#pragma once

#include <windows.h>

#include <string>

namespace kestview {

/// Waits for half a second until no other program has the clipboard open: those that watch it look at each new content.
bool WaitForClipboard(HWND owner);

/// Puts a text there; false when another program keeps the clipboard open, or memory is short.
bool CopyText(HWND owner, const std::string& text);

}  // namespace kestview
