// Runs KestView and works with it as a person does.
#include <shlobj.h>

#include "viewer/Driver.h"

namespace test {
namespace {

using Visitor = std::function<bool(HWND)>;  // true goes on

BOOL CALLBACK Visit(HWND window, LPARAM visitor) { return (*reinterpret_cast<Visitor*>(visitor))(window); }

bool HasClass(HWND window, const char* className) {
    char name[64] = {};
    GetClassNameA(window, name, sizeof name);
    return std::string(name) == className;
}

POINT OnScreen(HWND window, POINT at) {
    ClientToScreen(window, &at);
    return at;
}

/// A visible window below `parent`.
HWND FindWindowBelow(HWND parent, const std::function<bool(HWND)>& isWanted) {
    HWND found = nullptr;
    Visitor visitor = [&](HWND window) {
        if (IsWindowVisible(window) && isWanted(window)) found = window;
        return !found;
    };
    EnumChildWindows(parent, Visit, reinterpret_cast<LPARAM>(&visitor));
    return found;
}

HWND FindTopWindow(DWORD processId, const std::function<bool(HWND)>& isWanted) {
    return FindWindowBelow(GetDesktopWindow(), [&](HWND window) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        return id == processId && isWanted(window);
    });
}

}  // namespace

std::wstring TextOfWindow(HWND window) {
    wchar_t text[1024] = {};
    DWORD_PTR length = 0;
    SendMessageTimeoutW(window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG, 3000, &length);
    return text;
}

bool OpenFreeClipboard() {
    return Driver::WaitFor([] { return OpenClipboard(nullptr) != FALSE; });
}

std::wstring ClipboardText() {
    std::wstring text;
    if (!OpenFreeClipboard()) return text;
    if (const HANDLE block = GetClipboardData(CF_UNICODETEXT)) {
        text = static_cast<const wchar_t*>(GlobalLock(block));
        GlobalUnlock(block);
    }
    CloseClipboard();
    return text;
}

Driver::Driver(const std::wstring& arguments, bool keepsSettings) {
    wchar_t settings[MAX_PATH] = {};
    GetEnvironmentVariableW(L"APPDATA", settings, MAX_PATH);
    if (!keepsSettings) DeleteFileW((std::wstring(settings) + L"\\KestView\\KestView.ini").c_str());
    std::wstring command = L"KestView.exe " + arguments;
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return;
    const auto isMain = [](HWND window) { return HasClass(window, "KestViewMain"); };
    WaitFor([&] { return (main = FindTopWindow(process.dwProcessId, isMain)) != nullptr; }, 20000);
    SetForegroundWindow(main);
    Settle(300);
}

Driver::~Driver() {
    if (IsRunning()) TerminateProcess(process.hProcess, 99);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

bool Driver::IsRunning() const { return process.hProcess && WaitForSingleObject(process.hProcess, 0) == WAIT_TIMEOUT; }

std::wstring Driver::Title() const { return TextOfWindow(main); }

bool Driver::WaitForTitle(const std::wstring& title) const {
    return WaitFor([&] { return Title() == title; });
}

HWND Driver::Descendant(const char* className) const {
    return FindWindowBelow(main, [&](HWND window) { return HasClass(window, className); });
}

HWND Driver::Control(int id) const {
    return FindWindowBelow(main, [&](HWND window) { return GetDlgCtrlID(window) == id; });
}

void Driver::Settle(DWORD milliseconds) {
    Sleep(milliseconds);
    // A sent message is answered between two of the queue. Once some are answered at once, one after another, the
    // program waits for input again, also on a machine that is busy.
    constexpr DWORD atOnceMilliseconds = 15, pauseMilliseconds = 4;
    const DWORD start = GetTickCount();
    for (int quick = 0; quick < 3 && GetTickCount() - start < 5000; Sleep(pauseMilliseconds)) {
        const DWORD sent = GetTickCount();
        DWORD_PTR result;
        SendMessageTimeoutA(main, WM_NULL, 0, 0, SMTO_NORMAL, 5000, &result);
        quick = GetTickCount() - sent < atOnceMilliseconds ? quick + 1 : 0;
    }
}

void Driver::Press(std::initializer_list<WORD> keys) {
    SendKeys(keys);
    Settle();
}

void Driver::PressToCopy(std::initializer_list<WORD> keys) {
    const DWORD before = GetClipboardSequenceNumber();
    Press(keys);
    WaitFor([&] { return GetClipboardSequenceNumber() != before; });
    Settle();
}

void Driver::Type(const std::wstring& text) {
    for (const wchar_t character : text) {
        INPUT inputs[2] = {};
        for (INPUT& input : inputs) {
            input.type = INPUT_KEYBOARD;
            input.ki.wScan = character;
            input.ki.dwFlags = KEYEVENTF_UNICODE;
        }
        inputs[1].ki.dwFlags |= KEYEVENTF_KEYUP;
        SendInput(2, inputs, sizeof(INPUT));
    }
    Settle(60);
}

void Driver::TypeOver(const std::wstring& text, int id) {
    if (id) ClickControl(id);
    Press({VK_CONTROL, 'A'});
    Type(text);
}

void Driver::SendMouse(DWORD flags, POINT screen, DWORD data) {
    SendMouseInput(flags, screen, data);
    Settle(8);
}

void Driver::MoveTo(HWND window, POINT at) { SendMouse(MOUSEEVENTF_MOVE, OnScreen(window, at)); }

void Driver::Click(HWND window, POINT at, bool isRight) {
    MoveTo(window, at);
    SendMouse(isRight ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN, OnScreen(window, at));
    SendMouse(isRight ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP, OnScreen(window, at));
    Settle();
}

void Driver::Drag(HWND window, std::initializer_list<POINT> path, WORD keyAtEnd) {
    constexpr int stepPixels = 12;
    POINT at = *path.begin();
    MoveTo(window, at);
    SendMouse(MOUSEEVENTF_LEFTDOWN, OnScreen(window, at));
    for (const POINT& corner : path) {
        const int distance = static_cast<int>(std::max(std::abs(corner.x - at.x), std::abs(corner.y - at.y)));
        for (int done = stepPixels; done < distance; done += stepPixels)
            MoveTo(window, {at.x + (corner.x - at.x) * done / distance, at.y + (corner.y - at.y) * done / distance});
        MoveTo(window, corner);
        at = corner;
    }
    if (keyAtEnd) Press({keyAtEnd});
    SendMouse(MOUSEEVENTF_LEFTUP, OnScreen(window, at));
    Settle();
}

void Driver::Drop(const std::wstring& path) {
    // The list of files must lie in the program's own memory.
    std::vector<char> block(sizeof(DROPFILES) + (path.size() + 2) * sizeof(wchar_t));
    auto& header = *reinterpret_cast<DROPFILES*>(block.data());
    header.pFiles = sizeof header;
    header.fWide = TRUE;
    std::memcpy(block.data() + sizeof header, path.c_str(), path.size() * sizeof(wchar_t));
    void* there = VirtualAllocEx(process.hProcess, nullptr, block.size(), MEM_COMMIT, PAGE_READWRITE);
    WriteProcessMemory(process.hProcess, there, block.data(), block.size(), nullptr);
    PostMessageW(main, WM_DROPFILES, reinterpret_cast<WPARAM>(there), 0);
    Settle();
}

void Driver::Wheel(HWND window, POINT at, int notches) {
    MoveTo(window, at);
    const auto turn = static_cast<DWORD>(notches > 0 ? WHEEL_DELTA : -WHEEL_DELTA);
    for (int i = 0; i < std::abs(notches); ++i) SendMouse(MOUSEEVENTF_WHEEL, OnScreen(window, at), turn);
    Settle();
}

void Driver::ClickControl(int id) {
    const HWND control = Control(id);
    RECT client;
    if (control && GetClientRect(control, &client)) Click(control, {client.right / 2, client.bottom / 2});
}

bool Driver::WaitFor(const std::function<bool()>& condition, DWORD milliseconds) {
    for (const DWORD start = GetTickCount(); GetTickCount() - start < milliseconds; Sleep(20))
        if (condition()) return true;
    return condition();
}

HWND Driver::FindDialog(const std::wstring& title) const {
    return FindTopWindow(process.dwProcessId,
                         [&](HWND window) { return HasClass(window, "#32770") && TextOfWindow(window) == title; });
}

HWND Driver::WaitForDialog(const std::wstring& title) {
    HWND dialog = nullptr;
    WaitFor([&] { return (dialog = FindDialog(title)) != nullptr; });
    Sleep(150);
    return dialog;
}

bool Driver::AnswerFileDialog(const std::wstring& title, const std::wstring& path) {
    constexpr int nameBox = 0x47C;  // cmb13 of the system's file dialogs
    const HWND dialog = WaitForDialog(title);
    if (!dialog) return false;
    // Keys that come before the dialog is ready are lost.
    WaitFor([&] { return GetForegroundWindow() == dialog; });
    for (int tries = 0; tries < 3; ++tries) {
        Press({VK_CONTROL, 'A'});
        Type(path);
        if (WaitFor([&] { return TextOfWindow(GetDlgItem(dialog, nameBox)) == path; }, 1000)) break;
    }
    Press({VK_RETURN});
    const bool isClosed = WaitFor([&] { return !FindDialog(title); });
    Settle();
    return isClosed;
}

std::wstring Driver::AnswerBox(WORD key) {
    const HWND box = WaitForDialog(L"KestView");
    if (!box) return L"";
    const std::wstring text = TextOfWindow(GetDlgItem(box, 0xFFFF));
    Press({key});
    WaitFor([&] { return !IsWindow(box); });
    Settle();
    return text;
}

Picture Driver::ClientOf(HWND window) {
    RECT client = {};
    GetClientRect(window, &client);
    const POINT corner = OnScreen(window, {0, 0});
    // Painting comes after everything else.
    Settle(150);
    const HDC dc = GetDC(nullptr);
    SetViewportOrgEx(dc, corner.x, corner.y, nullptr);
    const Picture picture = PictureOf(dc, static_cast<int>(client.right), static_cast<int>(client.bottom));
    ReleaseDC(nullptr, dc);
    return picture;
}

}  // namespace test
