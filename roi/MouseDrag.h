// What a drag takes from the system and gives back: the window's device context, the mouse capture, the cursor's range.
#pragma once

#include <windows.h>

#include "CcRoiBase.h"
#include "core/kernel/Geometry.h"

namespace kest {

/// Gets the window's device context for a rubber band and captures the mouse; the drag mode becomes `newMode`. What an
/// earlier drag left taken is given back. False, with nothing taken and the drag mode -1, when there is no such device
/// context.
bool BeginDrag(HWND window, KestDragDc& dragDc, int& dragMode, int newMode);

/// Whether a drag runs. One whose window has gone ends here; a copy, which holds nothing, has none.
bool GoesOn(KestDragDc& dragDc, int& dragMode);

/// Gives back device context, cursor range and capture.
void EndDrag(KestDragDc& dragDc, int& dragMode);

/// Gives back what a ROI that is destroyed still holds: everything in the middle of a drag, else the device context of a
/// failed start.
void AbandonDrag(KestDragDc& dragDc, int& dragMode);

/// The window's client area in screen coordinates. When that cannot be had the message "ROI Conversion" tells it, and
/// the rectangle stays as far as it was converted.
IntRect ClientOnScreen(HWND window);

/// Confines the cursor to a screen rectangle, cut off at the screen's left and top.
void ConfineCursor(const IntRect& range);

}  // namespace kest
