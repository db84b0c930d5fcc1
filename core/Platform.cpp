// What the classes ask of Windows.
#include "core/Platform.h"

#include <algorithm>

namespace kest {

HGLOBAL AllocateBlock(Size64 bytes) { return GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, static_cast<SIZE_T>(bytes)); }

void* LockBlock(HGLOBAL block) { return GlobalLock(block); }

bool UnlockBlock(HGLOBAL block) { return GlobalUnlock(block) == FALSE; }

bool FreeBlock(HGLOBAL block) { return GlobalFree(block) == nullptr; }

std::size_t SizeOfBlock(HGLOBAL block) { return GlobalSize(block); }

HPALETTE DefaultPalette() { return static_cast<HPALETTE>(GetStockObject(DEFAULT_PALETTE)); }

HPALETTE MakePalette(std::span<const PALETTEENTRY> entries) {
    constexpr std::size_t most = 256;
    struct {
        WORD version;
        WORD count;
        PALETTEENTRY entries[most];
    } palette = {0x300, static_cast<WORD>(entries.size()), {}};
    if (entries.empty() || entries.size() > most) return nullptr;
    std::copy(entries.begin(), entries.end(), palette.entries);
    return CreatePalette(reinterpret_cast<const LOGPALETTE*>(&palette));
}

void DeletePalette(HPALETTE palette) { DeleteObject(palette); }

HPEN MakePen(const RGBTRIPLE& colour, int width) {
    return CreatePen(PS_SOLID, width, RGB(colour.rgbtRed, colour.rgbtGreen, colour.rgbtBlue));
}

void DeletePen(HPEN pen) { DeleteObject(pen); }

void UnloadLibrary(HMODULE library) { FreeLibrary(library); }

bool GetClientSize(HWND window, int& width, int& height) {
    RECT client;
    if (!window || !GetClientRect(window, &client)) return false;
    width = client.right;
    height = client.bottom;
    return true;
}

bool ToScreen(HWND window, std::span<POINT> points) {
    return std::all_of(points.begin(), points.end(),
                       [window](POINT& point) { return ::ClientToScreen(window, &point) != FALSE; });
}

void Invalidate(HWND window) { InvalidateRect(window, nullptr, TRUE); }

void CaptureMouse(HWND window) { SetCapture(window); }

void ReleaseMouse() { ReleaseCapture(); }

void ConfineCursor(const RECT* range) { ClipCursor(range); }

// The compiler's own thread-local variables would end the process when memory is short.
static DWORD threadSlot = TLS_OUT_OF_INDEXES;

bool BeginThreadValues() {
    threadSlot = TlsAlloc();
    return threadSlot != TLS_OUT_OF_INDEXES;
}

void EndThreadValues() { TlsFree(threadSlot); }

void* ThreadValue() { return TlsGetValue(threadSlot); }

bool SetThreadValue(void* value) { return TlsSetValue(threadSlot, value) != FALSE; }

static SRWLOCK lock = SRWLOCK_INIT;

void TakeLock() { AcquireSRWLockExclusive(&lock); }

void GiveLock() { ReleaseSRWLockExclusive(&lock); }

}  // namespace kest
