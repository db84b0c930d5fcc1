// A window whose messages arrive at a virtual function of a C++ object.
#pragma once

#include <windows.h>

#include <string>

namespace kestview {

class Window {
public:
    Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    virtual ~Window();

    operator HWND() const { return window; }
    /// The whole client area, to be painted again.
    void Invalidate() const { InvalidateRect(window, nullptr, FALSE); }
    SIZE ClientSize() const;
    /// Lengths are written for 96 dots an inch; this is what they are on the window's monitor.
    int Scaled(int length) const;
    int Unscaled(int length) const;

protected:
    struct Look {
        const char* className;
        const char* title = "";
        DWORD style = WS_CHILD | WS_VISIBLE;
        DWORD extendedStyle = 0;
        UINT classStyle = 0;
        HBRUSH background = nullptr;
        LPCSTR cursor = reinterpret_cast<LPCSTR>(IDC_ARROW);
    };
    bool Create(const Look& look, HWND parent, const RECT& place);
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

    HWND window = nullptr;

private:
    static LRESULT CALLBACK Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};

std::string TextOf(HWND window);
HINSTANCE ProgramInstance();
/// Dots an inch of the monitor that shows the window.
int DpiOf(HWND window);
/// Where a scroll message wants the thumb of a window's bar; `line` is what its arrows move it by.
int ScrolledTo(HWND window, int bar, WPARAM wParam, int line);
/// The position that a mouse message carries.
inline POINT MousePosition(LPARAM lParam) {
    return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}
inline int WidthOf(const RECT& rect) { return static_cast<int>(rect.right - rect.left); }
inline int HeightOf(const RECT& rect) { return static_cast<int>(rect.bottom - rect.top); }

}  // namespace kestview
