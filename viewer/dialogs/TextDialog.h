// The dialog that asks for one line of text.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace kestview {

/// None when the user cancels or leaves it empty.
std::optional<std::string> AskText(HWND owner, const char* title, const char* label, const std::string& present);

}  // namespace kestview
