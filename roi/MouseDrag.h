// What a drag takes from the system and gives back: the window's device context, the mouse capture, the cursor's range.
#pragma once

#include "CcRoiBase.h"
#include "KestPlatform.h"
#include "core/kernel/Geometry.h"

namespace kest {

/// The drag of one ROI, as references to the members that hold it.
struct DragState {
    int& zoom;         ///< of the drag that runs or ran last
    int& mode;         ///< -1 while no drag runs
    KestDragDc& dc;    ///< held while a drag runs
    POINT& lastMouse;  ///< client pixels
};

/// Gets the window's device context for a rubber band and captures the mouse; the drag mode becomes `mode`, and its
/// zoom `zoom`. What an earlier drag left taken is given back. False, with nothing taken and the drag mode -1, when
/// there is no such device context.
bool BeginDrag(const DragState& drag, HWND window, int mode, int zoom);

/// Whether a drag runs. One whose window has gone ends here; a copy, which holds nothing, has none.
bool GoesOn(const DragState& drag);

/// Gives back device context, cursor range and capture.
void EndDrag(const DragState& drag);

/// Gives back what the ROI still holds: the device context, and in the middle of a drag cursor range and capture,
/// unless somebody else has them by now.
void AbandonDrag(const DragState& drag);

/// The window's client area in screen coordinates. When that cannot be had the message "ROI Conversion" tells it, and
/// the rectangle stays as far as it was converted.
IntRect ClientOnScreen(HWND window);

/// Confines the cursor for a drag (by the platform's ClipCursor) to a screen rectangle, cut off at the screen's left
/// and top.
void ClipCursorTo(const IntRect& range);

}  // namespace kest
