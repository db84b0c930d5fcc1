// What a drag takes from the system and gives back.
#include "roi/MouseDrag.h"

#include <algorithm>
#include <atomic>

#include "core/Messages.h"

bool KestDragDc::Take(HWND hNewWindow) {
    Release();
    hDC = GetDC(hNewWindow);
    if (!hDC) return false;
    hWindow = hNewWindow;
    // A window class with a device context of its own keeps what is selected, so the state is put back at the end.
    SaveDC(hDC);
    SetROP2(hDC, R2_NOT);
    SelectObject(hDC, GetStockObject(NULL_BRUSH));
    return true;
}

void KestDragDc::Release() {
    if (!hDC) return;
    RestoreDC(hDC, -1);
    ReleaseDC(hWindow, hDC);
    hDC = nullptr;
    hWindow = nullptr;
}

namespace kest {
namespace {

/// Of the drag that began last: the capture and the cursor's range are its, whatever became of those before. Only compared.
std::atomic<const KestDragDc*> latest = nullptr;

}  // namespace

bool BeginDrag(const DragState& drag, HWND window, int mode, int zoom) {
    drag.zoom = zoom;
    AbandonDrag(drag);
    drag.mode = -1;
    if (!drag.dc.Take(window)) return false;
    drag.mode = mode;
    latest = &drag.dc;
    SetCapture(window);
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
    ClipCursor(nullptr);
    ReleaseCapture();
}

void AbandonDrag(const DragState& drag) {
    if (drag.mode >= 0 && drag.dc && latest == &drag.dc) {
        ClipCursor(nullptr);
        if (drag.dc.HasCapture()) ReleaseCapture();
    }
    drag.dc.Release();
}

IntRect ClientOnScreen(HWND window) {
    RECT client = {};
    GetClientRect(window, &client);
    POINT corners[] = {{client.left, client.top}, {client.right, client.bottom}};
    for (POINT& corner : corners) {
        if (ClientToScreen(window, &corner)) continue;
        ShowMessage("ROI Conversion", "Error");
        break;
    }
    return {corners[0].x, corners[0].y, corners[1].x, corners[1].y};
}

void ConfineCursor(const IntRect& range) {
    const RECT clip = {std::max(range.left, 0), std::max(range.top, 0), range.right, range.bottom};
    ClipCursor(&clip);
}

}  // namespace kest
