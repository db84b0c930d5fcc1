// A window whose messages arrive at a virtual function of a C++ object.
#include "platform/Window.h"

#include <new>

#include "platform/Boxes.h"

namespace kestview {

Window::~Window() {
    if (!window) return;
    SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    DestroyWindow(window);
}

bool Window::Create(const Look& look, HWND parent, const RECT& place) {
    WNDCLASSEXA record = {};
    record.cbSize = sizeof record;
    if (!GetClassInfoExA(ProgramInstance(), look.className, &record)) {
        record = {};
        record.cbSize = sizeof record;
        record.style = look.classStyle;
        record.lpfnWndProc = Dispatch;
        record.hInstance = ProgramInstance();
        record.hIcon = LoadIconA(ProgramInstance(), MAKEINTRESOURCEA(1));
        record.hCursor = LoadCursorA(nullptr, look.cursor);
        record.hbrBackground = look.background;
        record.lpszClassName = look.className;
        if (!RegisterClassExA(&record)) return false;
    }
    return CreateWindowExA(look.extendedStyle, look.className, look.title, look.style, place.left, place.top,
                           WidthOf(place), HeightOf(place), parent, nullptr, ProgramInstance(), this) != nullptr;
}

LRESULT CALLBACK Window::Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* self = static_cast<Window*>(reinterpret_cast<CREATESTRUCTA*>(lParam)->lpCreateParams);
        self->window = window;
        SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<Window*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (!self) return DefWindowProcA(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrA(window, GWLP_USERDATA, 0);
        self->window = nullptr;
        return DefWindowProcA(window, message, wParam, lParam);
    }
    try {
        return self->OnMessage(message, wParam, lParam);
    } catch (const std::bad_alloc&) {
        TellMemoryIsShort(window);
        return 0;
    }
}

LRESULT Window::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcA(window, message, wParam, lParam);
}

SIZE Window::ClientSize() const {
    RECT client = {};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

int Window::Scaled(int length) const { return MulDiv(length, DpiOf(window), 96); }

int Window::Unscaled(int length) const { return MulDiv(length, 96, DpiOf(window)); }

std::string TextOf(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, 0);
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

HINSTANCE ProgramInstance() { return GetModuleHandleA(nullptr); }

int ScrolledTo(HWND window, int bar, WPARAM wParam, int line) {
    SCROLLINFO info = {sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
    GetScrollInfo(window, bar, &info);
    const int page = static_cast<int>(info.nPage);
    switch (LOWORD(wParam)) {
        case SB_LINEUP: return info.nPos - line;
        case SB_LINEDOWN: return info.nPos + line;
        case SB_PAGEUP: return info.nPos - page;
        case SB_PAGEDOWN: return info.nPos + page;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION: return info.nTrackPos;
        case SB_TOP: return 0;
        case SB_BOTTOM: return info.nMax;
        default: return info.nPos;
    }
}

int DpiOf(HWND window) {
    const UINT dpi = GetDpiForWindow(window);
    return dpi ? static_cast<int>(dpi) : 96;
}

}  // namespace kestview
