// What the classes ask of the platform besides files (Files.h), message boxes (Messages.h) and drawing. Platform.cpp
// asks Windows, native/Platform.cpp the standard library.
#pragma once

#include <span>

#include "KestPlatform.h"
#include "core/kernel/CheckedSize.h"
#include "core/kernel/Geometry.h"

namespace kest {

// Blocks

/// Movable and zeroed; null when it cannot be had.
HGLOBAL AllocateBlock(Size64 bytes);
/// The bytes, at one place until the block is unlocked; null when they cannot be had.
void* LockBlock(HGLOBAL block);
/// False while another lock keeps it.
bool UnlockBlock(HGLOBAL block);
bool FreeBlock(HGLOBAL block);
/// At least the bytes that were asked for; 0 for what is no block.
std::size_t SizeOfBlock(HGLOBAL block);

// Palettes, pens and libraries

HPALETTE DefaultPalette();
/// Null for no entries, or when it cannot be had.
HPALETTE MakePalette(std::span<const PALETTEENTRY> entries);
void DeletePalette(HPALETTE palette);
/// Null when it cannot be had.
HPEN MakePen(const RGBTRIPLE& colour, int width);
void DeletePen(HPEN pen);
void UnloadLibrary(HMODULE library);

// Windows and the mouse

/// Width and height of a window's client area; false without a window.
bool GetClientSize(HWND window, int& width, int& height);
/// Moves the points to screen coordinates, as far as that goes; false when it does not go.
bool ToScreen(HWND window, std::span<POINT> points);
/// Has the client area painted again; those of all windows for null.
void Invalidate(HWND window);
void CaptureMouse(HWND window);
void ReleaseMouse();
/// Null: nowhere.
void ConfineCursor(const RECT* range);

// Threads

/// For the library's start and end in a process. False when the system has no room for the threads' own values.
bool BeginThreadValues();
void EndThreadValues();
/// The value that this thread set last; null at first.
void* ThreadValue();
/// False when memory for a thread's first value is short.
bool SetThreadValue(void* value);

/// One lock, held by one thread at a time, and not twice by one.
void TakeLock();
void GiveLock();

}  // namespace kest
