// Runs KestView and works with it as a person does: real mouse and keyboard input through the window system.
#pragma once

#include "support/ClassTests.h"

namespace test {

class Driver {
public:
    /// Starts the program as on its first day, or with the settings of its last run; `arguments` as typed behind its
    /// name.
    explicit Driver(const std::wstring& arguments = L"", bool keepsSettings = false);
    /// Ends a program that still runs.
    ~Driver();
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;

    HWND Main() const { return main; }
    bool IsRunning() const;
    /// The window that shows the picture.
    HWND Canvas() const { return Descendant("KestPictureCanvas"); }
    /// The visible graph.
    HWND Graph() const { return Descendant("KestGraph"); }
    /// A visible control of the panes by its number.
    HWND Control(int id) const;
    std::wstring Title() const;
    bool WaitForTitle(const std::wstring& title) const;

    // Keys: virtual key codes, held down one after another and released.
    void Press(std::initializer_list<WORD> keys);
    void Type(const std::wstring& text);
    /// Types over what stands in a control of the panes, or in the one with the focus.
    void TypeOver(const std::wstring& text, int id = 0);
    /// Keys that copy: waits until the clipboard has another content.
    void PressToCopy(std::initializer_list<WORD> keys);

    // Mouse, in client pixels of a window
    void MoveTo(HWND window, POINT at);
    void Click(HWND window, POINT at, bool isRight = false);
    /// `keyAtEnd` is pressed before the button is released.
    void Drag(HWND window, std::initializer_list<POINT> path, WORD keyAtEnd = 0);
    void Wheel(HWND window, POINT at, int notches);
    /// Drops a file on the program.
    void Drop(const std::wstring& path);
    /// Clicks the middle of a control.
    void ClickControl(int id);

    /// Waits until the program has handled its input; it may be showing a dialog.
    void Settle(DWORD milliseconds = 40);
    /// Waits for a dialog of the program with this title; null after a while.
    HWND WaitForDialog(const std::wstring& title);
    /// Types a path into the file dialog with this title and accepts it. False when there is none.
    bool AnswerFileDialog(const std::wstring& title, const std::wstring& path);
    /// The text of a message box of the program, which is answered by a key.
    std::wstring AnswerBox(WORD key);
    static bool WaitFor(const std::function<bool()>& condition, DWORD milliseconds = 15000);

    /// The whole screen, or a window's client area as it is on the screen, once the program has painted.
    Picture Screen() { return ClientOf(GetDesktopWindow()); }
    Picture ClientOf(HWND window);

private:
    HWND Descendant(const char* className) const;
    HWND FindDialog(const std::wstring& title) const;
    void SendMouse(DWORD flags, POINT screen, DWORD data = 0);

    PROCESS_INFORMATION process = {};
    HWND main = nullptr;
};

std::wstring TextOfWindow(HWND window);
std::wstring ClipboardText();
/// Opens the clipboard once no other program has it open.
bool OpenFreeClipboard();

}  // namespace test
