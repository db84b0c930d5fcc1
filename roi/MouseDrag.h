// What a drag takes from the system and gives back: the window's device context, the mouse capture, the cursor's range.
#pragma once

#include <windows.h>

#include "CcRoiBase.h"
#include "core/kernel/Geometry.h"

namespace kest {

/// Gets the window's device context for a rubber band and captures the mouse. What an earlier drag left taken is given
/// back first.
void TakeMouse(HWND window, KestDragDc& dragDc);

/// Gives back device context, cursor range and capture.
void ReleaseMouse(KestDragDc& dragDc);

/// The window's client area in screen coordinates. When that cannot be had the message "ROI Conversion" tells it, and
/// the rectangle stays as far as it was converted.
IntRect ClientOnScreen(HWND window);

/// Confines the cursor to a screen rectangle, cut off at the screen's left and top.
void ConfineCursor(const IntRect& range);

}  // namespace kest
