// Modal message boxes.
#include "core/Messages.h"

namespace kest {

void ShowMessage(const char* text, const char* caption, UINT flags) { MessageBoxA(GetFocus(), text, caption, flags); }

void ShowUnownedMessage(const char* text, const char* caption, UINT flags) {
    MessageBoxA(nullptr, text, caption, flags);
}

void Beep() { MessageBeep(0); }

}  // namespace kest
