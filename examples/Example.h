// What the example programs share: a window that shows an image with its ROIs, real mouse input for runs without a
// person, and pictures of the window.
#pragma once

#include <KestApi.h>
#include <windows.h>

#include <functional>
#include <string>

namespace example {

/// A window whose client area has exactly this size.
HWND OpenWindow(const char* title, int clientWidth, int clientHeight,
                std::function<LRESULT(HWND, UINT, WPARAM, LPARAM)> procedure);

/// Handles messages until `isDone` says so, or until the user closes a window.
void RunMessages(const std::function<bool()>& isDone);

/// Handles the messages that are waiting, for at least this long.
void PumpMessages(DWORD milliseconds);

/// Moves the real mouse to a client point, with the left button as it is; presses and releases the button there.
void MoveMouse(HWND window, int clientX, int clientY);
void PressButton();
void ReleaseButton();
/// Press, move in steps, release.
void DragMouse(HWND window, POINT from, POINT to);

/// Writes what the window shows to a BMP file.
bool SavePicture(HWND window, const std::string& path);

/// A picture of bright discs on uneven ground, for when there is no other.
void MakeSamplePicture(CcGrayImage256& image);

}  // namespace example
