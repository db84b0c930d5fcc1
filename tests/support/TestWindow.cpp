// A real window, its pixels, and real input.
#include "support/TestWindow.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace test {
namespace {

/// Rows of 32-bit pixels, the top one first.
BITMAPINFO TopDown(int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    return info;
}

}  // namespace

int Picture::DifferentFrom(const Picture& other) const {
    if (width != other.width || height != other.height) return width * height + 1;
    int count = 0;
    for (std::size_t i = 0; i < pixels.size(); ++i) count += pixels[i] != other.pixels[i];
    return count;
}

void Picture::SaveBmp(const std::string& path) const {
    constexpr DWORD pixelsAt = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    const BITMAPFILEHEADER file = {0x4D42, static_cast<DWORD>(pixelsAt + pixels.size() * 4), 0, 0, pixelsAt};
    const BITMAPINFOHEADER info = TopDown(width, height).bmiHeader;
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(&file), sizeof file);
    out.write(reinterpret_cast<const char*>(&info), sizeof info);
    out.write(reinterpret_cast<const char*>(pixels.data()), static_cast<std::streamsize>(pixels.size() * 4));
}

Picture PictureOf(HDC dc, int width, int height) {
    Picture picture{width, height, std::vector<unsigned>(static_cast<std::size_t>(width) * height)};
    BITMAPINFO info = TopDown(width, height);
    const HDC memory = CreateCompatibleDC(dc);
    const HBITMAP bitmap = CreateCompatibleBitmap(dc, width, height);
    const HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, dc, 0, 0, SRCCOPY);
    SelectObject(memory, old);
    GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), picture.pixels.data(), &info, DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    for (unsigned& pixel : picture.pixels) pixel &= 0xFFFFFF;
    return picture;
}

Picture PictureOf(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    const HDC dc = GetDC(window);
    const Picture picture = PictureOf(dc, client.right, client.bottom);
    ReleaseDC(window, dc);
    return picture;
}

TestWindow::TestWindow(int width, int height, COLORREF background) : clientWidth(width), clientHeight(height) {
    static const ATOM windowClass = [] {
        WNDCLASSA record = {};
        record.lpfnWndProc = Procedure;
        record.hInstance = GetModuleHandleA(nullptr);
        record.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
        record.lpszClassName = "KestTestWindow";
        return RegisterClassA(&record);
    }();
    window = CreateWindowExA(WS_EX_TOPMOST, reinterpret_cast<LPCSTR>(static_cast<ULONG_PTR>(windowClass)), "test",
                             WS_POPUP | WS_VISIBLE, 60, 40, width, height, nullptr, nullptr, GetModuleHandleA(nullptr),
                             nullptr);
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetForegroundWindow(window);
    SetFocus(window);
    PumpMessages(30);
    Fill(background);
}

TestWindow::~TestWindow() {
    SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    DestroyWindow(window);
    PumpMessages();
}

void TestWindow::Fill(COLORREF colour) {
    const HDC dc = GetDC(window);
    const HBRUSH brush = CreateSolidBrush(colour);
    const RECT all = {0, 0, clientWidth, clientHeight};
    FillRect(dc, &all, brush);
    DeleteObject(brush);
    ReleaseDC(window, dc);
}

Picture TestWindow::Snapshot() const { return PictureOf(window); }

LRESULT CALLBACK TestWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<TestWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (self && self->onMessage && self->onMessage(message, wParam, lParam)) return 0;
    if (message == WM_PAINT) {
        ValidateRect(window, nullptr);
        return 0;
    }
    if (message == WM_ERASEBKGND) return 1;
    return DefWindowProcA(window, message, wParam, lParam);
}

void SendMouseInput(DWORD flags, POINT screen, DWORD data) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    // Absolute positions count 65536 over the screen; the middle of the pixel is meant.
    input.mi.dx = (screen.x * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (screen.y * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN);
    input.mi.mouseData = data;
    input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE;
    SendInput(1, &input, sizeof input);
}

void SendKeys(std::initializer_list<WORD> keys) {
    std::vector<INPUT> inputs;
    const auto add = [&](WORD key, DWORD flags) {
        INPUT input = {};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, 0));
        input.ki.dwFlags = flags;
        inputs.push_back(input);
    };
    for (const WORD key : keys) add(key, 0);
    for (auto key = std::rbegin(keys); key != std::rend(keys); ++key) add(*key, KEYEVENTF_KEYUP);
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void TestWindow::SendMouse(DWORD flags, int clientX, int clientY) {
    POINT point = {clientX, clientY};
    ClientToScreen(window, &point);
    SendMouseInput(flags, point);
    PumpMessages(2);
}

void TestWindow::MoveMouse(int clientX, int clientY) {
    mouse = {clientX, clientY};
    SendMouse(MOUSEEVENTF_MOVE, clientX, clientY);
}

void TestWindow::PressButton() { SendMouse(MOUSEEVENTF_LEFTDOWN, mouse.x, mouse.y); }

void TestWindow::ReleaseButton() { SendMouse(MOUSEEVENTF_LEFTUP, mouse.x, mouse.y); }

void TestWindow::Click(POINT at) {
    MoveMouse(at.x, at.y);
    PressButton();
    ReleaseButton();
}

void TestWindow::Drag(POINT from, POINT to, int step) {
    MoveMouse(from.x, from.y);
    PressButton();
    const int distance = static_cast<int>(std::max(std::abs(to.x - from.x), std::abs(to.y - from.y)));
    for (int done = step; done < distance; done += step)
        MoveMouse(from.x + (to.x - from.x) * done / distance, from.y + (to.y - from.y) * done / distance);
    MoveMouse(to.x, to.y);
    ReleaseButton();
}

void PumpMessages(DWORD milliseconds) {
    const DWORD start = GetTickCount();
    do {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
        if (milliseconds > 0) Sleep(1);
    } while (GetTickCount() - start < milliseconds);
}

MemoryPicture::MemoryPicture(int w, int h, COLORREF background) : width(w), height(h) {
    const BITMAPINFO info = TopDown(w, h);
    void* bits;
    dc = CreateCompatibleDC(nullptr);
    bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    old = SelectObject(dc, bitmap);
    const RECT all = {0, 0, w, h};
    const HBRUSH brush = CreateSolidBrush(background);
    FillRect(dc, &all, brush);
    DeleteObject(brush);
}

MemoryPicture::~MemoryPicture() {
    SelectObject(dc, old);
    DeleteObject(bitmap);
    DeleteDC(dc);
}

Picture MemoryPicture::Snapshot() const { return PictureOf(dc, width, height); }

}  // namespace test
