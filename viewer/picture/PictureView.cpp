// The window that shows a document's picture: zoom, scrolling, and keys. PictureCanvas.cpp has painting and mouse.
#include "picture/PictureView.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>

#include "picture/RoiPainting.h"
#include "platform/Drawing.h"
#include "res/Resource.h"

namespace kestview {

PictureView::PictureView() : canvas(*this) {}

bool PictureView::Create(HWND parent) {
    Look look = {"KestPictureView"};
    look.style = WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL | WS_CLIPCHILDREN | WS_TABSTOP;
    if (!Window::Create(look, parent, {0, 0, 100, 100}) || !canvas.Create(window)) return false;
    Arrange();
    return true;
}

void PictureView::SetDocument(Document* newDocument) {
    roiMouse.SetDocument(newDocument);
    document = newDocument;
    Arrange();
    if (window) RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

void PictureView::Refresh(unsigned change) {
    if (change & (ViewChanged | PictureChanged)) Arrange();
    if (change & ~TitleChanged) canvas.Invalidate();
}

Shown PictureView::GetShown() const {
    Shown shown;
    shown.canvas = canvas;
    if (!document) return shown;
    const ViewState& view = document->view;
    shown.mode = shownZoom > 0 ? 1 : 0;
    shown.zoom = std::max(shownZoom, 1);
    shown.xOffset = view.xOffset;
    shown.yOffset = view.yOffset;
    shown.penZoom = std::max(1, static_cast<int>(std::lround(Magnification())));
    return shown;
}

double PictureView::Magnification() const {
    if (!document) return 1;
    return shownZoom > 0 ? shownZoom
                         : static_cast<double>(canvas.ClientSize().cx) / std::max<long>(document->Size().cx, 1);
}

SIZE PictureView::VisiblePixels() const {
    const SIZE client = canvas.ClientSize();
    return shownZoom > 0 ? SIZE{client.cx / shownZoom, client.cy / shownZoom} : document->Size();
}

void PictureView::Arrange() {
    if (isArranging || !window) return;
    isArranging = true;
    RECT frame;
    GetWindowRect(window, &frame);
    const SIZE all = {WidthOf(frame), HeightOf(frame)};
    const SIZE picture = document ? document->Size() : SIZE{0, 0};
    int zoom = document ? document->view.zoom : 0;
    // Enlarged, a pixel has a whole number of screen pixels: what is clicked is what is seen.
    if (zoom == 0 && picture.cx > 0 && picture.cy > 0)
        zoom = static_cast<int>(std::min({all.cx / picture.cx, all.cy / picture.cy, static_cast<LONG>(largestZoom)}));
    shownZoom = zoom;
    SIZE room = all, shown = {0, 0};
    bool hasBar[2] = {};  // horizontal, vertical
    if (zoom > 0) {
        const auto dpi = static_cast<UINT>(DpiOf(window));
        const int barWidth = GetSystemMetricsForDpi(SM_CXVSCROLL, dpi),
                  barHeight = GetSystemMetricsForDpi(SM_CYHSCROLL, dpi);
        for (int pass = 0; pass < 2; ++pass) {
            hasBar[0] = hasBar[0] || picture.cx * zoom > room.cx;
            room.cy = all.cy - (hasBar[0] ? barHeight : 0);
            hasBar[1] = hasBar[1] || picture.cy * zoom > room.cy;
            room.cx = all.cx - (hasBar[1] ? barWidth : 0);
        }
        // Whole picture pixels only, so that what the library computes from the window's size is exact.
        shown.cx = std::min<long>(picture.cx, std::max<long>(room.cx / zoom, 1)) * zoom;
        shown.cy = std::min<long>(picture.cy, std::max<long>(room.cy / zoom, 1)) * zoom;
        document->view.xOffset = std::clamp<int>(document->view.xOffset, 0, picture.cx - shown.cx / zoom);
        document->view.yOffset = std::clamp<int>(document->view.yOffset, 0, picture.cy - shown.cy / zoom);
    } else if (picture.cx > 0 && picture.cy > 0) {
        const double scale =
            std::min(static_cast<double>(room.cx) / picture.cx, static_cast<double>(room.cy) / picture.cy);
        shown.cx = std::max(1L, std::lround(picture.cx * scale));
        shown.cy = std::max(1L, std::lround(picture.cy * scale));
        document->view.xOffset = document->view.yOffset = 0;
    }
    ShowScrollBar(window, SB_HORZ, hasBar[0]);
    ShowScrollBar(window, SB_VERT, hasBar[1]);
    SCROLLINFO info = {sizeof info, SIF_RANGE | SIF_PAGE | SIF_POS, 0, 0, 0, 0, 0};
    if (hasBar[0]) {
        info.nMax = picture.cx - 1;
        info.nPage = static_cast<UINT>(shown.cx / zoom);
        info.nPos = document->view.xOffset;
        SetScrollInfo(window, SB_HORZ, &info, TRUE);
    }
    if (hasBar[1]) {
        info.nMax = picture.cy - 1;
        info.nPage = static_cast<UINT>(shown.cy / zoom);
        info.nPos = document->view.yOffset;
        SetScrollInfo(window, SB_VERT, &info, TRUE);
    }
    const RECT old = [this] {
        RECT place;
        GetWindowRect(canvas, &place);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
        return place;
    }();
    const RECT place = {(room.cx - shown.cx) / 2, (room.cy - shown.cy) / 2, (room.cx - shown.cx) / 2 + shown.cx,
                        (room.cy - shown.cy) / 2 + shown.cy};
    if (!EqualRect(&old, &place)) {
        SetWindowPos(canvas, nullptr, place.left, place.top, WidthOf(place), HeightOf(place),
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    }
    ShowWindow(canvas, document ? SW_SHOWNA : SW_HIDE);
    isArranging = false;
}

void PictureView::SetZoom(int zoom, const POINT* anchor) {
    if (!document) return;
    if (roiMouse.IsDragging()) return;
    zoom = std::clamp(zoom, 0, largestZoom);
    const SIZE client = canvas.ClientSize();
    const POINT fixed = anchor ? *anchor : POINT{client.cx / 2, client.cy / 2};
    // The picture position under the fixed point, from the top left corner.
    const double magnification = Magnification();
    const double x = document->view.xOffset + fixed.x / magnification;
    const double y = document->view.yOffset + fixed.y / magnification;
    POINT onView = fixed;
    MapWindowPoints(canvas, window, &onView, 1);
    document->view.zoom = zoom;
    if (zoom > 0) {
        document->view.xOffset = document->view.yOffset = 0;
        Arrange();
        // Where the point has come to lie in the canvas of the new size.
        MapWindowPoints(window, canvas, &onView, 1);
        document->view.xOffset = static_cast<int>(std::lround(x - static_cast<double>(onView.x) / zoom));
        document->view.yOffset = static_cast<int>(std::lround(y - static_cast<double>(onView.y) / zoom));
    }
    document->Changed(ViewChanged);
}

void PictureView::ZoomIn(const POINT* anchor) {
    if (!document) return;
    const int zoom = document->view.zoom;
    SetZoom(zoom > 0 ? zoom + 1 : std::max(1, static_cast<int>(std::floor(Magnification())) + 1), anchor);
}

void PictureView::ZoomOut(const POINT* anchor) {
    if (!document) return;
    const int zoom = document->view.zoom;
    // A picture that is shown whole would only grow when it is fitted in.
    const SIZE shown = canvas.ClientSize(), picture = document->Size();
    if (zoom == 1 && shown.cx >= picture.cx && shown.cy >= picture.cy) return;
    SetZoom(zoom > 1 ? zoom - 1 : zoom == 1 ? 0 : static_cast<int>(std::ceil(Magnification())) - 1, anchor);
}

void PictureView::ScrollTo(int xOffset, int yOffset) {
    if (!document || document->view.zoom == 0 || roiMouse.IsDragging()) return;
    document->view.xOffset = xOffset;
    document->view.yOffset = yOffset;
    document->Changed(ViewChanged);
}

void PictureView::BringIntoView(const RECT& part) {
    if (!document || shownZoom == 0) return;
    const SIZE seen = VisiblePixels();
    const auto offset = [](int present, int size, int first, int last) {
        return last >= present && first < present + size ? present : (first + last - size) / 2;
    };
    const int bottom = document->Size().cy - 1;
    const int x =
        offset(document->view.xOffset, seen.cx, std::min(part.left, part.right), std::max(part.left, part.right));
    const int y = offset(document->view.yOffset, seen.cy, bottom - std::max(part.top, part.bottom),
                         bottom - std::min(part.top, part.bottom));
    if (x != document->view.xOffset || y != document->view.yOffset) ScrollTo(x, y);
}

bool PictureView::PixelAt(POINT point, POINT& pixel) const {
    if (!document) return false;
    const Shown shown = GetShown();
    tagPoints position;
    if (document->Image().ConvertPointToImageCoords(shown.canvas, shown.xOffset, shown.yOffset, shown.mode, &point,
                                                    &position, shown.zoom) < 0)
        return false;
    pixel = {static_cast<LONG>(std::floor(position.x)), static_cast<LONG>(std::floor(position.y))};
    const SIZE size = document->Size();
    return pixel.x >= 0 && pixel.y >= 0 && pixel.x < size.cx && pixel.y < size.cy;
}

POINT PictureView::PointOf(double x, double y) const {
    return ShownPoint(canvas.ClientSize(), document->Size(), GetShown(), x, y);
}

void PictureView::OnScroll(int bar, WPARAM wParam) {
    if (!document) return;
    const int position = ScrolledTo(window, bar, wParam, std::max(1, 16 / std::max(document->view.zoom, 1)));
    if (bar == SB_HORZ)
        ScrollTo(position, document->view.yOffset);
    else
        ScrollTo(document->view.xOffset, position);
}

bool PictureView::OnKey(WPARAM key) {
    if (!document) return false;
    const bool isControl = GetKeyState(VK_CONTROL) < 0;
    const int step = std::max(1, 32 / std::max(document->view.zoom, 1));
    const ViewState& view = document->view;
    switch (key) {
        case VK_LEFT:
            ScrollTo(view.xOffset - step, view.yOffset);
            return true;
        case VK_RIGHT:
            ScrollTo(view.xOffset + step, view.yOffset);
            return true;
        case VK_UP:
            ScrollTo(view.xOffset, view.yOffset - step);
            return true;
        case VK_DOWN:
            ScrollTo(view.xOffset, view.yOffset + step);
            return true;
        case VK_ADD:
        case VK_OEM_PLUS:
            ZoomIn();
            return true;
        case VK_SUBTRACT:
        case VK_OEM_MINUS:
            ZoomOut();
            return true;
        case VK_RETURN:
            roiMouse.Finish();
            return true;
        case VK_ESCAPE:
            if (roiMouse.IsDragging()) {
                roiMouse.Cancel();
            } else if (roiMouse.Tool() != selectTool) {
                roiMouse.SetTool(selectTool);
                if (onToolChanged) onToolChanged();
            } else {
                document->SelectOnly(nullptr);
            }
            return true;
        case VK_DELETE:
            SendMessageA(GetParent(window), WM_COMMAND, ID_EDIT_DELETE, 0);
            return true;
        default:
            break;
    }
    if (isControl) return false;
    if (key >= VK_NUMPAD0 && key <= VK_NUMPAD9) key += '0' - VK_NUMPAD0;
    if (key < '0' || key > '9') return false;
    SetZoom(static_cast<int>(key - '0'));
    return true;
}

LRESULT PictureView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE:
            Arrange();
            return 0;
        case WM_HSCROLL:
            OnScroll(SB_HORZ, wParam);
            return 0;
        case WM_VSCROLL:
            OnScroll(SB_VERT, wParam);
            return 0;
        case WM_MOUSEWHEEL: {
            POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
            ScreenToClient(canvas, &point);
            // Fine wheels send parts of a step; they add up.
            wheelRest += GET_WHEEL_DELTA_WPARAM(wParam);
            const int steps = wheelRest / WHEEL_DELTA;
            wheelRest %= WHEEL_DELTA;
            if (GET_KEYSTATE_WPARAM(wParam) & MK_SHIFT)
                ScrollTo(document ? document->view.xOffset : 0, document ? document->view.yOffset - steps * 24 : 0);
            else
                for (int i = 0; i < std::abs(steps); ++i)
                    steps > 0 ? ZoomIn(&point) : ZoomOut(&point);
            return 0;
        }
        case WM_KEYDOWN:
            if (OnKey(wParam)) return 0;
            break;
        case WM_GETDLGCODE:
            return DLGC_WANTALLKEYS;
        case WM_LBUTTONDOWN:
            SetFocus(window);
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT: {
            PAINTSTRUCT paint;
            PaintEmpty(BeginPaint(window, &paint));
            EndPaint(window, &paint);
            return 0;
        }
        default:
            break;
    }
    return Window::OnMessage(message, wParam, lParam);
}

}  // namespace kestview
