// What a drag takes from the system and gives back.
#include "roi/MouseDrag.h"

#include <algorithm>

#include "core/Messages.h"

namespace kest {

void TakeMouse(HWND window, HDC& dragDc, HWND& dragWindow) {
    ReleaseDragDc(dragDc, dragWindow);
    dragDc = GetDC(window);
    dragWindow = window;
    // A window class with a device context of its own keeps what is selected, so the state is put back at the end.
    SaveDC(dragDc);
    SetROP2(dragDc, R2_NOT);
    SelectObject(dragDc, GetStockObject(NULL_BRUSH));
    SetCapture(window);
}

void ReleaseDragDc(HDC& dragDc, HWND& dragWindow) {
    if (!dragDc) return;
    RestoreDC(dragDc, -1);
    ReleaseDC(dragWindow, dragDc);
    dragDc = nullptr;
    dragWindow = nullptr;
}

void ReleaseMouse(HDC& dragDc, HWND& dragWindow) {
    ReleaseDragDc(dragDc, dragWindow);
    ClipCursor(nullptr);
    ReleaseCapture();
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
