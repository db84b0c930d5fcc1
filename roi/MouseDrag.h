// What a drag takes from the system and gives back: the window's device context, the mouse capture, the cursor's range.
#pragma once

#include <windows.h>

#include "core/kernel/Geometry.h"

namespace kest {

/// Gets the window's device context for a rubber band (drawing the same outline twice erases it) and captures the mouse.
/// What an earlier drag left taken is given back first.
void TakeMouse(HWND window, HDC& dragDc, HWND& dragWindow);

/// Gives back device context, cursor range and capture.
void ReleaseMouse(HDC& dragDc, HWND& dragWindow);

/// Gives back only the device context, as a ROI does that is destroyed while nothing else is taken.
void ReleaseDragDc(HDC& dragDc, HWND& dragWindow);

/// The window's client area in screen coordinates. When that cannot be had the message "ROI Conversion" tells it, and
/// the rectangle stays as far as it was converted.
IntRect ClientOnScreen(HWND window);

/// Confines the cursor to a screen rectangle, cut off at the screen's left and top.
void ConfineCursor(const IntRect& range);

}  // namespace kest
