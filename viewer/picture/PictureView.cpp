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
    const bool hasPixels = picture.cx > 0 && picture.cy > 0;
    shownZoom = document ? document->view.zoom : 0;
    // Enlarged, a pixel has a whole number of screen pixels: what is clicked is what is seen.
    if (shownZoom == 0 && hasPixels)
        shownZoom =
            static_cast<int>(std::min({all.cx / picture.cx, all.cy / picture.cy, static_cast<LONG>(largestZoom)}));
    Places places = {all};
    if (shownZoom > 0) {
        places = PlacesAtZoom(all, shownZoom);
        ViewState& view = document->view;
        view.xOffset = std::clamp<int>(view.xOffset, 0, picture.cx - places.canvas.cx / shownZoom);
        view.yOffset = std::clamp<int>(view.yOffset, 0, picture.cy - places.canvas.cy / shownZoom);
    } else if (hasPixels) {
        places = PlacesToFit(all);
        document->view.xOffset = document->view.yOffset = 0;
    }
    const SIZE seen = shownZoom > 0 ? SIZE{places.canvas.cx / shownZoom, places.canvas.cy / shownZoom} : picture;
    SetScrollBar(SB_HORZ, places.hasHorizontal, picture.cx, seen.cx, document ? document->view.xOffset : 0);
    SetScrollBar(SB_VERT, places.hasVertical, picture.cy, seen.cy, document ? document->view.yOffset : 0);
    PlaceCanvas(places);
    isArranging = false;
}

PictureView::Places PictureView::PlacesAtZoom(SIZE all, int zoom) const {
    const auto dpi = static_cast<UINT>(DpiOf(window));
    const int barWidth = GetSystemMetricsForDpi(SM_CXVSCROLL, dpi),
              barHeight = GetSystemMetricsForDpi(SM_CYHSCROLL, dpi);
    const SIZE picture = document->Size();
    Places places = {all};
    // One bar takes room that may make the other one necessary.
    for (int pass = 0; pass < 2; ++pass) {
        places.hasHorizontal = places.hasHorizontal || picture.cx * zoom > places.room.cx;
        places.room.cy = all.cy - (places.hasHorizontal ? barHeight : 0);
        places.hasVertical = places.hasVertical || picture.cy * zoom > places.room.cy;
        places.room.cx = all.cx - (places.hasVertical ? barWidth : 0);
    }
    // Whole picture pixels only, so that what the library computes from the window's size is exact.
    places.canvas.cx = std::min<long>(picture.cx, std::max<long>(places.room.cx / zoom, 1)) * zoom;
    places.canvas.cy = std::min<long>(picture.cy, std::max<long>(places.room.cy / zoom, 1)) * zoom;
    return places;
}

PictureView::Places PictureView::PlacesToFit(SIZE all) const {
    const SIZE picture = document->Size();
    const double scale = std::min(static_cast<double>(all.cx) / picture.cx, static_cast<double>(all.cy) / picture.cy);
    Places places = {all};
    places.canvas = {std::max(1L, std::lround(picture.cx * scale)), std::max(1L, std::lround(picture.cy * scale))};
    return places;
}

void PictureView::SetScrollBar(int bar, bool isShown, LONG whole, LONG seen, int position) const {
    ShowScrollBar(window, bar, isShown);
    if (!isShown) return;
    SCROLLINFO info = {sizeof info, SIF_RANGE | SIF_PAGE | SIF_POS, 0, 0, 0, 0, 0};
    info.nMax = whole - 1;
    info.nPage = static_cast<UINT>(seen);
    info.nPos = position;
    SetScrollInfo(window, bar, &info, TRUE);
}

/// In the middle of the room beside the bars.
void PictureView::PlaceCanvas(const Places& places) {
    const POINT corner = {(places.room.cx - places.canvas.cx) / 2, (places.room.cy - places.canvas.cy) / 2};
    const RECT place = {corner.x, corner.y, corner.x + places.canvas.cx, corner.y + places.canvas.cy};
    RECT old;
    GetWindowRect(canvas, &old);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&old), 2);
    if (!EqualRect(&old, &place)) {
        SetWindowPos(canvas, nullptr, place.left, place.top, WidthOf(place), HeightOf(place),
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    }
    ShowWindow(canvas, document ? SW_SHOWNA : SW_HIDE);
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

void PictureView::OnWheel(WPARAM wParam, POINT screen) {
    ScreenToClient(canvas, &screen);
    // Fine wheels send parts of a step; they add up.
    wheelRest += GET_WHEEL_DELTA_WPARAM(wParam);
    const int steps = wheelRest / WHEEL_DELTA;
    wheelRest %= WHEEL_DELTA;
    constexpr int rowsAStep = 24;
    if (GET_KEYSTATE_WPARAM(wParam) & MK_SHIFT)
        ScrollTo(document ? document->view.xOffset : 0, document ? document->view.yOffset - steps * rowsAStep : 0);
    else
        for (int i = 0; i < std::abs(steps); ++i) steps > 0 ? ZoomIn(&screen) : ZoomOut(&screen);
}

bool PictureView::OnKey(WPARAM key) {
    if (!document) return false;
    const bool isControl = GetKeyState(VK_CONTROL) < 0;
    const int step = std::max(1, 32 / std::max(document->view.zoom, 1));
    const ViewState& view = document->view;
    switch (key) {
        case VK_LEFT: ScrollTo(view.xOffset - step, view.yOffset); return true;
        case VK_RIGHT: ScrollTo(view.xOffset + step, view.yOffset); return true;
        case VK_UP: ScrollTo(view.xOffset, view.yOffset - step); return true;
        case VK_DOWN: ScrollTo(view.xOffset, view.yOffset + step); return true;
        case VK_ADD:
        case VK_OEM_PLUS: ZoomIn(); return true;
        case VK_SUBTRACT:
        case VK_OEM_MINUS: ZoomOut(); return true;
        case VK_RETURN: roiMouse.Finish(); return true;
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
        case VK_DELETE: SendMessageA(GetParent(window), WM_COMMAND, ID_EDIT_DELETE, 0); return true;
        default: break;
    }
    if (isControl) return false;
    if (key >= VK_NUMPAD0 && key <= VK_NUMPAD9) key += '0' - VK_NUMPAD0;
    if (key < '0' || key > '9') return false;
    SetZoom(static_cast<int>(key - '0'));
    return true;
}

LRESULT PictureView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE: Arrange(); return 0;
        case WM_HSCROLL: OnScroll(SB_HORZ, wParam); return 0;
        case WM_VSCROLL: OnScroll(SB_VERT, wParam); return 0;
        case WM_MOUSEWHEEL: OnWheel(wParam, MousePosition(lParam)); return 0;
        case WM_KEYDOWN:
            if (OnKey(wParam)) return 0;
            break;
        case WM_GETDLGCODE: return DLGC_WANTALLKEYS;
        case WM_LBUTTONDOWN: SetFocus(window); return 0;
        case WM_ERASEBKGND: return 1;
        case WM_PAINT: PaintEmpty(PaintDc(window)); return 0;
        default: break;
    }
    return Window::OnMessage(message, wParam, lParam);
}

}  // namespace kestview
