// A dialog from a template: a modal one, or a pane that is a child of another window.
#include "platform/Pane.h"

#include <commctrl.h>

#include <algorithm>
#include <new>

#include "platform/Boxes.h"
#include "platform/ListView.h"
#include "platform/Text.h"
#include "platform/Window.h"

namespace kestview {
namespace {

constexpr int lineLength = 16;

}  // namespace

Pane::~Pane() {
    if (!window) return;
    SetWindowLongPtrA(window, DWLP_USER, 0);
    DestroyWindow(window);
}

bool Pane::Create(int templateId, HWND parent) {
    return CreateDialogParamA(ProgramInstance(), MAKEINTRESOURCEA(templateId), parent, Dispatch,
                              reinterpret_cast<LPARAM>(this)) != nullptr;
}

INT_PTR Pane::RunModal(int templateId, HWND owner) {
    return DialogBoxParamA(ProgramInstance(), MAKEINTRESOURCEA(templateId), owner, Dispatch,
                           reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK Pane::Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        auto* self = reinterpret_cast<Pane*>(lParam);
        SetWindowLongPtrA(window, DWLP_USER, lParam);
        self->window = window;
        const Filling filling(self->isFilling);
        self->dpi = DpiOf(window);
        self->OnInit();
        self->AddTips();
        return TRUE;
    }
    auto* self = reinterpret_cast<Pane*>(GetWindowLongPtrA(window, DWLP_USER));
    if (!self) return FALSE;
    try {
        return self->OnMessage(message, wParam, lParam);
    } catch (const std::bad_alloc&) {
        TellMemoryIsShort(window);
        return TRUE;
    }
}

INT_PTR Pane::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    switch (message) {
        case WM_COMMAND: return OnCommand(LOWORD(wParam), HIWORD(wParam));
        case WM_NOTIFY:
            SetWindowLongPtrA(window, DWLP_MSGRESULT, OnNotify(*reinterpret_cast<NMHDR*>(lParam)));
            return TRUE;
        case WM_SIZE: Arrange(); return TRUE;
        case WM_VSCROLL:
            // Sliders send it too.
            if (lParam) break;
            ScrollTo(ScrolledTo(window, SB_VERT, wParam, MulDiv(lineLength, dpi, 96)));
            return TRUE;
        case WM_MOUSEWHEEL:
            ScrollTo(scrolled - MulDiv(3 * GET_WHEEL_DELTA_WPARAM(wParam), MulDiv(lineLength, dpi, 96), WHEEL_DELTA));
            return TRUE;
        case WM_NCDESTROY:
            SetWindowLongPtrA(window, DWLP_USER, 0);
            window = nullptr;
            return FALSE;
        case WM_DPICHANGED_AFTERPARENT: OnDpiChanged(); return TRUE;
        default: break;
    }
    if (!OnOther(message, wParam, lParam, result)) return FALSE;
    // These messages take their result directly.
    if (message == WM_CTLCOLORSTATIC || message == WM_CTLCOLORDLG || message == WM_CTLCOLORBTN) return result;
    SetWindowLongPtrA(window, DWLP_MSGRESULT, result);
    return TRUE;
}

void Pane::Arrange() {
    // Showing the bar changes the client area.
    if (isArranging) return;
    const Filling arranging(isArranging);
    const int position = scrolled;
    ScrollTo(0);
    RECT client;
    GetClientRect(window, &client);
    const int smallest = SmallestHeight();
    if (smallest > 0) ShowScrollBar(window, SB_VERT, client.bottom < smallest);
    GetClientRect(window, &client);
    room = {client.right, std::max<LONG>(client.bottom, smallest)};
    if (room.cy > client.bottom) {
        SCROLLINFO info = {sizeof info, SIF_RANGE | SIF_PAGE, 0, 0, 0, 0, 0};
        info.nMax = room.cy - 1;
        info.nPage = static_cast<UINT>(client.bottom);
        SetScrollInfo(window, SB_VERT, &info, TRUE);
    }
    OnSize(room.cx, room.cy);
    ScrollTo(position);
}

void Pane::ScrollTo(int position) {
    RECT client;
    GetClientRect(window, &client);
    position = std::clamp<int>(position, 0, std::max<LONG>(0, room.cy - client.bottom));
    if (position == scrolled) return;
    ScrollWindowEx(window, 0, scrolled - position, nullptr, nullptr, nullptr, nullptr,
                   SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
    scrolled = position;
    SetScrollPos(window, SB_VERT, scrolled, TRUE);
}

void Pane::BringFocusIntoView() {
    const HWND focus = GetFocus();
    if (!focus || GetParent(focus) != window) return;
    RECT place, client;
    GetWindowRect(focus, &place);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    GetClientRect(window, &client);
    if (place.bottom > client.bottom) ScrollTo(scrolled + place.bottom - client.bottom);
    if (place.top < 0) ScrollTo(scrolled + place.top);
}

int Pane::LowestEdge() const {
    LONG lowest = 0;
    for (HWND control = GetWindow(window, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT))
        lowest = std::max(lowest, PlaceOf(control).bottom);
    return static_cast<int>(lowest) + MulDiv(lineLength, DpiOf(window), 96) / 2;
}

/// The system scales the controls, but not the columns of lists.
void Pane::OnDpiChanged() {
    const int newDpi = DpiOf(window);
    scrolled = MulDiv(scrolled, newDpi, dpi);
    for (HWND control = GetWindow(window, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        char className[32] = {};
        GetClassNameA(control, className, sizeof className);
        if (lstrcmpiA(className, WC_LISTVIEWA) == 0) ListView(control).ScaleColumns(newDpi, dpi);
    }
    dpi = newDpi;
}

void Pane::AddTips() {
    // Deleted with the window that owns it.
    const HWND tips =
        CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, window, nullptr, ProgramInstance(), nullptr);
    for (HWND control = GetWindow(window, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        const int id = GetDlgCtrlID(control);
        char text[2];
        if (id <= 0 || LoadStringA(ProgramInstance(), static_cast<UINT>(id), text, sizeof text) == 0) continue;
        TOOLINFOA tool = {};
        tool.cbSize = TTTOOLINFOA_V2_SIZE;
        tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        tool.hwnd = window;
        tool.uId = reinterpret_cast<UINT_PTR>(control);
        tool.hinst = ProgramInstance();
        tool.lpszText = MAKEINTRESOURCEA(id);
        SendMessageA(tips, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    }
}

void Pane::Enable(int id, bool isEnabled) const {
    const bool hadFocus = GetFocus() == Item(id);
    EnableWindow(Item(id), isEnabled);
    // Keys would go nowhere.
    if (hadFocus && !isEnabled) SetFocus(GetAncestor(window, GA_ROOT));
}

std::string Pane::Text(int id) const { return TextOf(Item(id)); }

void Pane::SetText(int id, const std::string& text) const {
    if (Text(id) != text) SetDlgItemTextA(window, id, text.c_str());
}

std::optional<double> Pane::Number(int id) const { return ParseNumber(Text(id)); }

void Pane::SetNumber(int id, double value, int significantDigits) const {
    SetText(id, Format("%.*g", significantDigits, value));
}

RECT Pane::PlaceOf(HWND control) const {
    RECT place;
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    OffsetRect(&place, 0, scrolled);
    return place;
}

void Pane::Stretch(int id, int rightMargin, int bottomMargin) const {
    const RECT place = PlaceOf(id);
    const int width = rightMargin < 0 ? WidthOf(place) : static_cast<int>(room.cx) - rightMargin - place.left;
    const int height = bottomMargin < 0 ? HeightOf(place) : static_cast<int>(room.cy) - bottomMargin - place.top;
    SetWindowPos(Item(id), nullptr, 0, 0, width > 0 ? width : 0, height > 0 ? height : 0,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace kestview
