// A person at an open dialog: real keys, and a look at its controls.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "support/TestWindow.h"

namespace test {

class DialogUser {
public:
    explicit DialogUser(HWND operated) : dialog(operated) {}

    /// Presses a key, with Alt or Shift held down where asked.
    void Press(WORD key, WORD held = 0);
    void PressAlt(char letter) { Press(static_cast<WORD>(letter), VK_MENU); }
    /// Types into the control with the focus, over what is selected there.
    void Type(const std::string& text);
    /// Goes to a control as Tab does, which selects its text, and types.
    void TypeInto(int controlId, const std::string& text);
    void GoTo(int controlId);
    void Click(int controlId);

    HWND Control(int controlId) const { return GetDlgItem(dialog, controlId); }
    std::string Text(int controlId) const;
    /// The control with the focus.
    int Focus() const { return GetDlgCtrlID(GetFocus()); }
    bool IsOpen() const { return IsWindowVisible(dialog); }
    Picture Look(int controlId) const;
    std::vector<HWND> Controls() const;

private:
    void Pump() const;
    HWND dialog;
};

}  // namespace test
