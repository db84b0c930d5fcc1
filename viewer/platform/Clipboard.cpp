// The clipboard, which is one for all programs.
#include "platform/Clipboard.h"

#include <cstring>

#include "platform/Guards.h"
#include "platform/Text.h"

namespace kestview {
bool WaitForClipboard(HWND owner) {
    constexpr int tries = 25;
    constexpr DWORD pauseMilliseconds = 20;
    for (int i = 0; i < tries; ++i) {
        if (kest::OpenedClipboard(owner)) return true;
        Sleep(pauseMilliseconds);
    }
    return false;
}

bool CopyText(HWND owner, const std::string& text) {
    const std::wstring wide = Wide(text);
    const std::size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
    if (!WaitForClipboard(owner)) return false;
    HeldBlock block(GlobalAlloc(GMEM_MOVEABLE, bytes));
    if (!block) return false;
    {
        const Held<HGLOBAL, GlobalUnlock> locked(block);
        std::memcpy(GlobalLock(block), wide.c_str(), bytes);
    }
    const kest::OpenedClipboard clipboard(owner);
    if (!clipboard || !EmptyClipboard() || !SetClipboardData(CF_UNICODETEXT, block)) return false;
    // The clipboard has taken the block over.
    block.Detach();
    return true;
}

}  // namespace kestview
