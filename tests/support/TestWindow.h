// A real window, its pixels, and real mouse and keyboard input.
#pragma once

#include <windows.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace test {

/// A picture of a device context: row 0 at the top, 0x00RRGGBB a pixel.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<unsigned> pixels;

    unsigned At(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }
    bool operator==(const Picture&) const = default;
    /// Pixels that differ from another picture of the same size.
    int DifferentFrom(const Picture& other) const;
    void SaveBmp(const std::string& path) const;
};

Picture PictureOf(HDC dc, int width, int height);
/// Of a window's client area, as it shows.
Picture PictureOf(HWND window);

/// A window without frame, its client area of exactly this size, filled with a colour.
class TestWindow {
public:
    TestWindow(int width, int height, COLORREF background = RGB(0, 0, 64));
    ~TestWindow();
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    operator HWND() const { return window; }
    void Fill(COLORREF colour);
    Picture Snapshot() const;

    /// Sees every message first; true when it was handled.
    std::function<bool(UINT message, WPARAM wParam, LPARAM lParam)> onMessage;

    // Real input through the window system; each waits until it has arrived.
    void MoveMouse(int clientX, int clientY);
    void PressButton();
    void ReleaseButton();
    void Click(POINT at);
    /// Press, moves in steps of at most `step` pixels, release.
    void Drag(POINT from, POINT to, int step = 20);

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void SendMouse(DWORD flags, int clientX, int clientY);

    HWND window;
    int clientWidth, clientHeight;
    POINT mouse = {};
};

/// Real input: a mouse event at a point of the screen, or keys pressed one after another and released.
void SendMouseInput(DWORD flags, POINT screen, DWORD data = 0);
void SendKeys(std::initializer_list<WORD> keys);

/// Handles the messages that are waiting; for at least `milliseconds`.
void PumpMessages(DWORD milliseconds = 0);

/// A memory device context with a 24-bit picture selected.
class MemoryPicture {
public:
    MemoryPicture(int width, int height, COLORREF background = 0);
    ~MemoryPicture();
    MemoryPicture(const MemoryPicture&) = delete;
    MemoryPicture& operator=(const MemoryPicture&) = delete;
    operator HDC() const { return dc; }
    Picture Snapshot() const;

private:
    HDC dc;
    HBITMAP bitmap;
    HGDIOBJ old;
    int width, height;
};

/// RGB(0, 0, 64) as a picture has it.
constexpr unsigned windowBlue = 0x000040;

/// The picture that a window should show: `pixel` gives the colour of an image pixel, rows counted from the bottom. At
/// zoom 1 no more is drawn than the image has columns and rows, wherever it is scrolled to.
inline Picture ExpectedPicture(int clientWidth, int clientHeight, int width, int height, int xOffset, int yOffset,
                               int zoom, const std::function<unsigned(int, int)>& pixel) {
    Picture picture{clientWidth, clientHeight, std::vector<unsigned>(clientWidth * clientHeight, windowBlue)};
    for (int py = 0; py < clientHeight; ++py)
        for (int px = 0; px < clientWidth; ++px) {
            if (zoom == 1 && (px >= width || py >= height)) continue;
            const int x = px / zoom + xOffset, y = height - 1 - py / zoom - yOffset;
            if (x >= 0 && x < width && y >= 0 && y < height) picture.pixels[py * clientWidth + px] = pixel(x, y);
        }
    return picture;
}

}  // namespace test
