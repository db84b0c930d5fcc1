// The list of what keys and mouse do.
#pragma once

#include <windows.h>

namespace kestview {

void ShowKeys(HWND owner);

}  // namespace kestview
