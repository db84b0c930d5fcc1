// A person at an open dialog. The dialog's own message loop is behind us on the stack, so keys are handled as it would.
#include "support/DialogUser.h"

#include "support/Dialogs.h"

namespace test {
void DialogUser::Pump() const {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (IsOpen() && IsDialogMessageA(dialog, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

void DialogUser::Press(WORD key, WORD held) {
    if (held)
        SendKeys({held, key});
    else
        SendKeys({key});
    Pump();
}

void DialogUser::Type(const std::string& text) {
    for (const char c : text) {
        const SHORT key = VkKeyScanA(c);
        Press(LOBYTE(key), HIBYTE(key) & 1 ? VK_SHIFT : 0);
    }
}

void DialogUser::TypeInto(int controlId, const std::string& text) {
    GoTo(controlId);
    Type(text);
}

void DialogUser::GoTo(int controlId) {
    SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(controlId)), TRUE);
    Pump();
}

void DialogUser::Click(int controlId) {
    SendMessageA(Control(controlId), BM_CLICK, 0, 0);
    if (IsOpen()) Pump();
}

std::string DialogUser::Text(int controlId) const { return TextOf(Control(controlId)); }

Picture DialogUser::Look(int controlId) const {
    UpdateWindow(Control(controlId));
    return PictureOf(Control(controlId));
}

std::vector<HWND> DialogUser::Controls() const {
    std::vector<HWND> controls;
    for (HWND control = GetWindow(dialog, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT))
        controls.push_back(control);
    return controls;
}

}  // namespace test
