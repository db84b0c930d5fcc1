// What the example programs share.
#include "Example.h"

#include <cmath>
#include <fstream>
#include <vector>

namespace example {
namespace {

std::function<LRESULT(HWND, UINT, WPARAM, LPARAM)>* ProcedureOf(HWND window) {
    return reinterpret_cast<std::function<LRESULT(HWND, UINT, WPARAM, LPARAM)>*>(
        GetWindowLongPtrA(window, GWLP_USERDATA));
}

LRESULT CALLBACK Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CLOSE) PostQuitMessage(0);
    if (auto* procedure = ProcedureOf(window)) return (*procedure)(window, message, wParam, lParam);
    return DefWindowProcA(window, message, wParam, lParam);
}

void SendMouse(DWORD flags, POINT screen) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = (screen.x * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (screen.y * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN);
    input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE;
    SendInput(1, &input, sizeof input);
    PumpMessages(3);
}

}  // namespace

HWND OpenWindow(const char* title, int clientWidth, int clientHeight,
                std::function<LRESULT(HWND, UINT, WPARAM, LPARAM)> procedure) {
    static const ATOM windowClass = [] {
        WNDCLASSA record = {};
        record.lpfnWndProc = Dispatch;
        record.hInstance = GetModuleHandleA(nullptr);
        record.hCursor = LoadCursor(nullptr, IDC_CROSS);
        record.lpszClassName = "KestExample";
        return RegisterClassA(&record);
    }();
    constexpr DWORD style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
    RECT frame = {0, 0, clientWidth, clientHeight};
    AdjustWindowRect(&frame, style, FALSE);
    const HWND window = CreateWindowA(reinterpret_cast<LPCSTR>(static_cast<ULONG_PTR>(windowClass)), title, style, 60,
                                      60, frame.right - frame.left, frame.bottom - frame.top, nullptr, nullptr,
                                      GetModuleHandleA(nullptr), nullptr);
    // Examples end with their windows; the procedure lives as long as the program.
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(new auto(std::move(procedure))));
    ShowWindow(window, SW_SHOW);
    SetForegroundWindow(window);
    PumpMessages(100);
    return window;
}

void RunMessages(const std::function<bool()>& isDone) {
    MSG message;
    while (!isDone() && GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

void PumpMessages(DWORD milliseconds) {
    const DWORD start = GetTickCount();
    do {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
        Sleep(1);
    } while (GetTickCount() - start < milliseconds);
}

void MoveMouse(HWND window, int clientX, int clientY) {
    POINT screen = {clientX, clientY};
    ClientToScreen(window, &screen);
    SendMouse(MOUSEEVENTF_MOVE, screen);
}

void PressButton() {
    POINT screen;
    GetCursorPos(&screen);
    SendMouse(MOUSEEVENTF_LEFTDOWN, screen);
}

void ReleaseButton() {
    POINT screen;
    GetCursorPos(&screen);
    SendMouse(MOUSEEVENTF_LEFTUP, screen);
}

void DragMouse(HWND window, POINT from, POINT to) {
    MoveMouse(window, from.x, from.y);
    PressButton();
    for (int step = 1; step <= 10; ++step)
        MoveMouse(window, from.x + (to.x - from.x) * step / 10, from.y + (to.y - from.y) * step / 10);
    ReleaseButton();
}

bool SavePicture(HWND window, const std::string& path) {
    RECT client;
    GetClientRect(window, &client);
    BITMAPINFOHEADER info = {};
    info.biSize = sizeof info;
    info.biWidth = client.right;
    info.biHeight = client.bottom;
    info.biPlanes = 1;
    info.biBitCount = 32;
    std::vector<unsigned> pixels(static_cast<std::size_t>(client.right) * client.bottom);

    const HDC dc = GetDC(window);
    const HDC memory = CreateCompatibleDC(dc);
    const HBITMAP bitmap = CreateCompatibleBitmap(dc, client.right, client.bottom);
    const HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, client.right, client.bottom, dc, 0, 0, SRCCOPY);
    SelectObject(memory, old);
    GetDIBits(memory, bitmap, 0, client.bottom, pixels.data(), reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, dc);

    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof file + sizeof info;
    file.bfSize = static_cast<DWORD>(file.bfOffBits + 4 * pixels.size());
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(&file), sizeof file);
    out.write(reinterpret_cast<const char*>(&info), sizeof info);
    out.write(reinterpret_cast<const char*>(pixels.data()), static_cast<std::streamsize>(4 * pixels.size()));
    return out.good();
}

void MakeSamplePicture(CcGrayImage256& image) {
    constexpr int width = 384, height = 300;
    image.MakeBlankBMP(height, width, 0, "sample");
    auto* pixels = static_cast<unsigned char*>(image.GetBitMapImageData());
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const double toCentreX = x % 96 - 48, toCentreY = y % 100 - 50;
            const double radius = 22 + (x / 96 * 5 + y / 100 * 7) % 17;
            const bool isDisc = std::hypot(toCentreX, toCentreY) < radius;
            pixels[y * width + x] = static_cast<unsigned char>(60 + x / 8 + (isDisc ? 110 : 0));
        }
}

}  // namespace example
