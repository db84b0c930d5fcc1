// Draws the histogram: bars for grey values, three lines for colours, the range of values below them, and the value and
// count under the mouse.
#include "HistogramWindow.h"

#include <windowsx.h>

#include <algorithm>
#include <cstdio>

#include "Histogram.h"

namespace histogram_window {
namespace {

constexpr char className[] = "KestHistogramTool";
constexpr int margin = 10, textHeight = 20;

HWND window = nullptr;
CcImage** currentImage = nullptr;
Histogram histogram;
bool isStale = true;
int stepUnderMouse = -1;

RECT PlotOf(HWND owner) {
    RECT plot;
    GetClientRect(owner, &plot);
    InflateRect(&plot, -margin, -margin);
    plot.bottom -= textHeight;
    return plot;
}

int Height(unsigned count, unsigned peak, int plotHeight) {
    return static_cast<int>(static_cast<unsigned long long>(count) * static_cast<unsigned>(plotHeight) / peak);
}

void DrawBars(HDC dc, const RECT& plot, unsigned peak) {
    const int width = plot.right - plot.left;
    const auto brush = static_cast<HBRUSH>(GetStockObject(DKGRAY_BRUSH));
    for (int step = 0; step < Histogram::steps; ++step) {
        RECT bar = {plot.left + step * width / Histogram::steps, plot.bottom,
                    plot.left + (step + 1) * width / Histogram::steps, plot.bottom};
        bar.right = std::max(bar.right, bar.left + 1);
        bar.top -= Height(histogram.counts[0][step], peak, plot.bottom - plot.top);
        FillRect(dc, &bar, brush);
    }
}

void DrawLines(HDC dc, const RECT& plot, unsigned peak) {
    constexpr COLORREF colours[] = {RGB(220, 0, 0), RGB(0, 150, 0), RGB(0, 0, 220)};
    for (int channel = 0; channel < histogram.channels; ++channel) {
        POINT points[Histogram::steps];
        for (int step = 0; step < Histogram::steps; ++step)
            points[step] = {plot.left + (2 * step + 1) * (plot.right - plot.left) / (2 * Histogram::steps),
                            plot.bottom - Height(histogram.counts[channel][step], peak, plot.bottom - plot.top)};
        const HPEN pen = CreatePen(PS_SOLID, 1, colours[channel]);
        const HGDIOBJ old = SelectObject(dc, pen);
        Polyline(dc, points, Histogram::steps);
        SelectObject(dc, old);
        DeleteObject(pen);
    }
}

void DrawCaption(HDC dc, const RECT& plot) {
    RECT line = {plot.left, plot.bottom + 3, plot.right, plot.bottom + 3 + textHeight};
    SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    SetBkMode(dc, TRANSPARENT);
    if (histogram.channels == 0) {
        DrawTextA(dc, "No image", -1, &line, DT_CENTER | DT_SINGLELINE);
        return;
    }
    char text[120];
    std::snprintf(text, sizeof text, "%g", histogram.lowest);
    DrawTextA(dc, text, -1, &line, DT_LEFT | DT_SINGLELINE);
    std::snprintf(text, sizeof text, "%g", histogram.highest);
    DrawTextA(dc, text, -1, &line, DT_RIGHT | DT_SINGLELINE);
    if (stepUnderMouse < 0) return;
    int length = std::snprintf(text, sizeof text, "%g:", histogram.ValueOf(stepUnderMouse));
    for (int channel = 0; channel < histogram.channels; ++channel)
        length += std::snprintf(text + length, sizeof text - static_cast<unsigned>(length), " %u",
                                histogram.counts[channel][stepUnderMouse]);
    DrawTextA(dc, text, -1, &line, DT_CENTER | DT_SINGLELINE);
}

void Draw(HDC dc, HWND owner) {
    RECT client;
    GetClientRect(owner, &client);
    FillRect(dc, &client, GetSysColorBrush(COLOR_BTNFACE));
    const RECT plot = PlotOf(owner);
    if (plot.right <= plot.left || plot.bottom <= plot.top) return;
    FillRect(dc, &plot, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    if (const unsigned peak = histogram.Peak(); peak > 0)
        histogram.channels == 1 ? DrawBars(dc, plot, peak) : DrawLines(dc, plot, peak);
    FrameRect(dc, &plot, GetSysColorBrush(COLOR_BTNSHADOW));
    DrawCaption(dc, plot);
}

void Paint(HWND owner) {
    if (isStale) {
        histogram = CountPixels(currentImage ? *currentImage : nullptr);
        isStale = false;
    }
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(owner, &paint);
    RECT client;
    GetClientRect(owner, &client);
    // Drawn in memory first, so that the window does not flicker while the host changes its image.
    const HDC memory = CreateCompatibleDC(dc);
    const HBITMAP bitmap = CreateCompatibleBitmap(dc, client.right, client.bottom);
    const HGDIOBJ old = SelectObject(memory, bitmap);
    Draw(memory, owner);
    BitBlt(dc, 0, 0, client.right, client.bottom, memory, 0, 0, SRCCOPY);
    SelectObject(memory, old);
    DeleteObject(bitmap);
    DeleteDC(memory);
    EndPaint(owner, &paint);
}

void PointAt(HWND owner, POINT mouse) {
    const RECT plot = PlotOf(owner);
    const bool isInside = PtInRect(&plot, mouse);
    const int step = isInside ? (mouse.x - plot.left) * Histogram::steps / (plot.right - plot.left) : -1;
    if (step == stepUnderMouse) return;
    stepUnderMouse = step;
    InvalidateRect(owner, nullptr, FALSE);
}

LRESULT CALLBACK Procedure(HWND owner, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT: Paint(owner); return 0;
        case WM_ERASEBKGND: return 1;
        case WM_SIZE: InvalidateRect(owner, nullptr, FALSE); return 0;
        case WM_MOUSEMOVE: PointAt(owner, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}); return 0;
        case WM_NCDESTROY:
            window = nullptr;
            currentImage = nullptr;
            break;
        default: break;
    }
    return DefWindowProcA(owner, message, wParam, lParam);
}

}  // namespace

HWND Open(HINSTANCE module, HWND parent, CcImage** current) {
    currentImage = current;
    Refresh();
    if (window) {
        SetForegroundWindow(window);
        return window;
    }
    WNDCLASSA record = {};
    record.lpfnWndProc = Procedure;
    record.hInstance = module;
    record.hCursor = LoadCursor(nullptr, IDC_ARROW);
    record.lpszClassName = className;
    RegisterClassA(&record);

    // An owned window: it stays above the host's and goes with it.
    constexpr DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME;
    RECT host = {}, frame = {0, 0, 2 * margin + 2 * Histogram::steps, 2 * margin + textHeight + 200};
    AdjustWindowRectEx(&frame, style, FALSE, WS_EX_TOOLWINDOW);
    const int width = frame.right - frame.left, height = frame.bottom - frame.top;
    if (!parent || !GetWindowRect(parent, &host)) host = {0, 0, width, height};
    // In the middle of the host's window, clear of its menu and toolbar.
    window = CreateWindowExA(WS_EX_TOOLWINDOW, className, "Histogram", style, (host.left + host.right - width) / 2,
                             (host.top + host.bottom - height) / 2, width, height, parent, nullptr, module, nullptr);
    if (window) ShowWindow(window, SW_SHOW);
    return window;
}

void Refresh() {
    isStale = true;
    if (window) InvalidateRect(window, nullptr, FALSE);
}

void Close() {
    if (window) DestroyWindow(window);
}

void Unregister(HINSTANCE module) { UnregisterClassA(className, module); }

}  // namespace histogram_window
