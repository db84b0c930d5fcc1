// The device context of a window in which a ROI is being dragged.
#include "CcRoiBase.h"

bool KestDragDc::Take(HWND hNewWindow) {
    Release();
    hDC = GetDC(hNewWindow);
    if (!hDC) return false;
    hWindow = hNewWindow;
    // A window class with a device context of its own keeps what is selected. A drag lasts over many messages, so no
    // guard of one function can put it back: Release does, with all that is set here.
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

bool KestDragDc::IsUsable() const { return hDC && (!hWindow || IsWindow(hWindow)); }

bool KestDragDc::HasCapture() const { return hWindow && GetCapture() == hWindow; }
