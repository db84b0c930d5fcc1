// What the classes ask of the platform, over the standard library: blocks are memory, windows have a size and show
// nothing, and pens and palettes are names of nothing.
#include "core/Platform.h"

#include <cstdlib>
#include <mutex>

namespace {

/// What a handle stands for. The bytes lie by themselves, so that a sanitizer sees their very ends.
struct Block {
    void* bytes;
    std::size_t size;
};

char nothing;

template <class Handle>
Handle HandleOfNothing() {
    return reinterpret_cast<Handle>(&nothing);
}

}  // namespace

namespace kest {

HGLOBAL AllocateBlock(Size64 bytes) {
    auto* block = static_cast<Block*>(std::malloc(sizeof(Block)));
    if (!block) return nullptr;
    *block = {std::calloc(static_cast<std::size_t>(bytes), 1), static_cast<std::size_t>(bytes)};
    if (block->bytes) return block;
    std::free(block);
    return nullptr;
}

// A block of no bytes is made, but not locked.
void* LockBlock(HGLOBAL block) {
    const auto* held = static_cast<const Block*>(block);
    return held->size > 0 ? held->bytes : nullptr;
}

bool UnlockBlock(HGLOBAL) { return true; }

bool FreeBlock(HGLOBAL block) {
    std::free(static_cast<Block*>(block)->bytes);
    std::free(block);
    return true;
}

std::size_t SizeOfBlock(HGLOBAL block) { return block ? static_cast<const Block*>(block)->size : 0; }

HPALETTE DefaultPalette() { return HandleOfNothing<HPALETTE>(); }
HPALETTE MakePalette(std::span<const PALETTEENTRY> entries) {
    return entries.empty() ? nullptr : HandleOfNothing<HPALETTE>();
}
void DeletePalette(HPALETTE) {}
HPEN MakePen(const RGBTRIPLE&, int) { return HandleOfNothing<HPEN>(); }
void DeletePen(HPEN) {}
void UnloadLibrary(HMODULE) {}

bool GetClientSize(HWND window, int& width, int& height) {
    if (!window) return false;
    width = window->width;
    height = window->height;
    return true;
}

bool ToScreen(HWND window, std::span<POINT>) { return window != nullptr; }
void Invalidate(HWND) {}
void CaptureMouse(HWND) {}
void ReleaseMouse() {}
void ConfineCursor(const RECT*) {}

static thread_local void* threadValue = nullptr;

bool BeginThreadValues() { return true; }
void EndThreadValues() {}
void* ThreadValue() { return threadValue; }
bool SetThreadValue(void* value) {
    threadValue = value;
    return true;
}

static std::mutex lock;

void TakeLock() { lock.lock(); }
void GiveLock() { lock.unlock(); }

}  // namespace kest
