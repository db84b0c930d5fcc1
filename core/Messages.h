// Modal message boxes: every problem that the user must see goes through here.
#pragma once

#include "KestPlatform.h"

namespace kest {

/// Owned by the window that has the focus.
void ShowMessage(const char* text, const char* caption, UINT flags = MB_OK);

/// Without an owner.
void ShowUnownedMessage(const char* text, const char* caption, UINT flags = MB_OK);

void Beep();

}  // namespace kest
