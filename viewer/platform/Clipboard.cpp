// The clipboard, which is one for all programs.
#include "platform/Clipboard.h"

#include <cstring>

#include "platform/Text.h"

namespace kestview {
namespace {

/// The clipboard is open for as long as the guard lives.
class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND owner) : isOpen(OpenClipboard(owner)) {}
    ~OpenedClipboard() {
        if (isOpen) CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    explicit operator bool() const { return isOpen; }

private:
    bool isOpen;
};

}  // namespace

bool WaitForClipboard(HWND owner) {
    constexpr int tries = 25;
    constexpr DWORD pauseMilliseconds = 20;
    for (int i = 0; i < tries; ++i) {
        if (OpenedClipboard(owner)) return true;
        Sleep(pauseMilliseconds);
    }
    return false;
}

bool CopyText(HWND owner, const std::string& text) {
    const std::wstring wide = Wide(text);
    const std::size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
    if (!WaitForClipboard(owner)) return false;
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (!block) return false;
    std::memcpy(GlobalLock(block), wide.c_str(), bytes);
    GlobalUnlock(block);
    const OpenedClipboard clipboard(owner);
    // The clipboard takes the block over.
    if (clipboard && EmptyClipboard() && SetClipboardData(CF_UNICODETEXT, block)) return true;
    GlobalFree(block);
    return false;
}

}  // namespace kestview
