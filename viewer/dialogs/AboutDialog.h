// What the program is, and its version.
#pragma once

#include <windows.h>

namespace kestview {

void ShowAbout(HWND owner);

}  // namespace kestview
