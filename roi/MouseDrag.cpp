// What a drag takes from the system and gives back.
#include "roi/MouseDrag.h"

#include <algorithm>
#include <atomic>

#include "core/Messages.h"
#include "core/Platform.h"

namespace kest {
namespace {

/// Of the drag that began last: the capture and the cursor's range are its, whatever became of those before. All drags
/// are one thread's, but ROIs can be destroyed in others. Only compared.
std::atomic<const KestDragDc*> latest = nullptr;

}  // namespace

bool BeginDrag(const DragState& drag, HWND window, int mode, int zoom) {
    drag.zoom = zoom;
    AbandonDrag(drag);
    drag.mode = -1;
    if (!drag.dc.Take(window)) return false;
    drag.mode = mode;
    latest = &drag.dc;
    CaptureMouse(window);
    return true;
}

bool GoesOn(const DragState& drag) {
    if (drag.mode < 0) return false;
    if (drag.dc.IsUsable()) return true;
    AbandonDrag(drag);
    drag.mode = -1;
    return false;
}

void EndDrag(const DragState& drag) {
    drag.mode = -1;
    drag.dc.Release();
    ConfineCursor(nullptr);
    ReleaseMouse();
}

void AbandonDrag(const DragState& drag) {
    if (drag.mode >= 0 && drag.dc && latest == &drag.dc) {
        ConfineCursor(nullptr);
        if (drag.dc.HasCapture()) ReleaseMouse();
    }
    drag.dc.Release();
}

IntRect ClientOnScreen(HWND window) {
    int width = 0, height = 0;
    GetClientSize(window, width, height);
    POINT corners[] = {{0, 0}, {width, height}};
    if (!ToScreen(window, corners)) ShowMessage("ROI Conversion", "Error");
    return {corners[0].x, corners[0].y, corners[1].x, corners[1].y};
}

void ClipCursorTo(const IntRect& range) {
    const RECT clip = {std::max(range.left, 0), std::max(range.top, 0), range.right, range.bottom};
    ConfineCursor(&clip);
}

}  // namespace kest
