// The canvas of a PictureView: painting picture, overlay and ROIs into a back buffer, and the mouse.
#include <windowsx.h>

#include "picture/PictureView.h"
#include "picture/RoiPainting.h"
#include "platform/Drawing.h"

namespace kestview {

bool PictureView::CanvasWindow::Create(HWND parent) {
    Look look = {"KestPictureCanvas"};
    look.style = WS_CHILD;
    look.classStyle = CS_DBLCLKS;
    look.cursor = nullptr;  // set with the position
    return Window::Create(look, parent, {0, 0, 1, 1});
}

LRESULT PictureView::CanvasWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) return 1;
    if (message == WM_PAINT) {
        Paint();
        return 0;
    }
    bool isHandled = true;
    const LRESULT result = owner.OnCanvasMessage(message, wParam, lParam, isHandled);
    return isHandled ? result : Window::OnMessage(message, wParam, lParam);
}

void PictureView::CanvasWindow::Paint() {
    const PaintDc dc(window);
    const BackBuffer buffer(dc, ClientSize());
    owner.PaintPicture(buffer);
    buffer.CopyTo(dc);
}

void PictureView::PaintPicture(HDC dc) {
    if (!document) return;
    const Shown shown = GetShown();
    document->Draw(dc, canvas.ClientSize(), [&](CcImage& image, HDC target, unsigned short table) {
        return image.Show(target, shown.canvas, table, shown.mode, shown.xOffset, shown.yOffset, shown.zoom) >= 0;
    });
    document->Image().ShowOverlay(dc, shown.canvas, shown.mode, shown.xOffset, shown.yOffset, shown.zoom);

    Font font;
    font.Make(DpiOf(window));
    const kest::SelectedObject selectedFont(dc, font);
    PaintRois(dc, canvas.ClientSize(), *document, shown, {showsRoiNames, true, DpiOf(window)});
    if (onPaintOver) onPaintOver(dc);
}

void PictureView::PaintEmpty(HDC dc) {
    RECT all;
    GetClientRect(window, &all);
    FillRect(dc, &all, GetSysColorBrush(COLOR_APPWORKSPACE));
    if (document) {
        // A frame tells where the picture ends when it has the colour of the ground.
        RECT frame;
        GetWindowRect(canvas, &frame);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&frame), 2);
        InflateRect(&frame, 1, 1);
        FrameRect(dc, &frame, GetSysColorBrush(COLOR_3DDKSHADOW));
        return;
    }
    Font font;
    font.Make(DpiOf(window));
    const kest::SelectedObject selectedFont(dc, font);
    const kest::BackgroundModeGuard background(dc, TRANSPARENT);
    SetTextColor(dc, RGB(255, 255, 255));
    DrawTextA(dc, "Open a picture with File > Open, or drop one here.", -1, &all,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void PictureView::OnHover(POINT point) {
    if (!isHovering) {
        TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, canvas, 0};
        isHovering = TrackMouseEvent(&track) != 0;
    }
    POINT pixel;
    const bool isInside = PixelAt(point, pixel);
    if (onHover) onHover(isInside ? &pixel : nullptr);
}

void PictureView::OnLeftButton(POINT mouse, bool isDouble, bool isAdding) {
    SetFocus(window);
    if (GetKeyState(VK_SPACE) < 0 && !roiMouse.IsDragging()) {
        StartPanning(mouse);
        return;
    }
    if (isDouble && roiMouse.IsDrawingVertices()) {
        roiMouse.Finish();
        return;
    }
    POINT pixel;
    if (roiMouse.Tool() == selectTool && onPick && PixelAt(mouse, pixel) && onPick(pixel)) return;
    roiMouse.Press(GetShown(), mouse, isAdding);
}

void PictureView::OnRightButtonUp(POINT mouse) {
    if (roiMouse.IsDrawingVertices()) {
        roiMouse.Finish();
    } else if (!roiMouse.IsDragging() && document && onContextMenu) {
        roiMouse.SelectAt(GetShown(), mouse);
        onContextMenu();
    }
}

void PictureView::StartPanning(POINT mouse) {
    if (!document || roiMouse.IsDragging()) return;
    isPanning = true;
    panStart = mouse;
    panOffset = {document->view.xOffset, document->view.yOffset};
    SetCapture(canvas);
    SetCursor(LoadCursor(nullptr, IDC_HAND));
}

void PictureView::OnMouseMove(POINT mouse, bool isHeld) {
    OnHover(mouse);
    const Shown shown = GetShown();
    if (isPanning)
        ScrollTo(panOffset.x - (mouse.x - panStart.x) / shown.zoom, panOffset.y - (mouse.y - panStart.y) / shown.zoom);
    else
        roiMouse.Move(shown, mouse, isHeld);
}

void PictureView::OnButtonUp(POINT mouse) {
    if (!isPanning) {
        roiMouse.Release(mouse);
        return;
    }
    isPanning = false;
    ReleaseCapture();
}

/// Another window has taken the mouse, or it was given back.
void PictureView::OnCaptureChanged(HWND taker) {
    isPanning = false;
    if (roiMouse.IsDragging() && taker != canvas) roiMouse.Cancel();
}

void PictureView::ShowCursor() {
    POINT mouse;
    GetCursorPos(&mouse);
    ScreenToClient(canvas, &mouse);
    const bool picks = picksPoints && picksPoints() && roiMouse.Tool() == selectTool;
    SetCursor(LoadCursorA(nullptr, picks ? reinterpret_cast<LPCSTR>(IDC_CROSS) : roiMouse.CursorAt(GetShown(), mouse)));
}

LRESULT PictureView::OnCanvasMessage(UINT message, WPARAM wParam, LPARAM lParam, bool& isHandled) {
    const POINT mouse = MousePosition(lParam);
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            OnLeftButton(mouse, message == WM_LBUTTONDBLCLK, (wParam & (MK_CONTROL | MK_SHIFT)) != 0);
            return 0;
        case WM_MBUTTONDOWN: StartPanning(mouse); return 0;
        case WM_MOUSEMOVE: OnMouseMove(mouse, (wParam & MK_LBUTTON) != 0); return 0;
        case WM_LBUTTONUP:
        case WM_MBUTTONUP: OnButtonUp(mouse); return 0;
        case WM_RBUTTONUP: OnRightButtonUp(mouse); return 0;
        case WM_CAPTURECHANGED: OnCaptureChanged(reinterpret_cast<HWND>(lParam)); return 0;
        case WM_MOUSELEAVE:
            isHovering = false;
            if (onHover) onHover(nullptr);
            return 0;
        case WM_SETCURSOR:
            if (LOWORD(lParam) != HTCLIENT || isPanning) break;
            ShowCursor();
            return TRUE;
        case WM_MOUSEWHEEL:
        case WM_KEYDOWN: return SendMessageA(window, message, wParam, lParam);
        default: break;
    }
    isHandled = false;
    return 0;
}

}  // namespace kestview
