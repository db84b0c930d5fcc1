// Answers modal boxes and dialogs: a hook sees a dialog when it becomes active; a timer on it, when its texts are
// there, reads and answers it.
#include "support/Dialogs.h"

#include <dlgs.h>

#include <optional>
#include <ostream>
#include <set>
#include <utility>

namespace test {
namespace {

constexpr UINT_PTR boxTimer = 0x4B01, dialogTimer = 0x4B02;
constexpr int boxText = 0xFFFF;

Boxes boxes;
std::vector<FileDialog> fileDialogs;
std::optional<std::string> fileAnswer;
std::function<void(HWND)> operateDialog;
std::function<void()> duringBox, duringFileDialog;
std::set<HWND> seen;

bool IsFileDialog(HWND dialog) { return GetDlgItem(dialog, cmb1) != nullptr && GetDlgItem(dialog, cmb13) != nullptr; }

void CallOnce(std::function<void()>& act) {
    if (const auto once = std::exchange(act, nullptr)) once();
}

/// Other dialogs have texts of that number, too, but also something to operate.
bool IsBox(HWND dialog) {
    return GetDlgItem(dialog, boxText) != nullptr && !FindWindowExA(dialog, nullptr, "ComboBox", nullptr) &&
           !FindWindowExA(dialog, nullptr, "Edit", nullptr);
}

void AnswerBox(HWND dialog) {
    boxes.push_back({TextOf(dialog), TextOf(GetDlgItem(dialog, boxText)), GetWindow(dialog, GW_OWNER) != nullptr});
    CallOnce(duringBox);
    SendMessageA(dialog, WM_COMMAND, GetDlgItem(dialog, IDYES) ? IDYES : IDOK, 0);
}

void AnswerFileDialogWindow(HWND dialog) {
    FileDialog shown = {TextOf(dialog), TextOf(GetDlgItem(dialog, cmb13)), {}};
    const HWND filters = GetDlgItem(dialog, cmb1);
    const auto count = static_cast<int>(SendMessageA(filters, CB_GETCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
        char text[260] = {};
        SendMessageA(filters, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        shown.filters.push_back(text);
    }
    fileDialogs.push_back(shown);
    CallOnce(duringFileDialog);
    if (fileAnswer) SetDlgItemTextA(dialog, cmb13, fileAnswer->c_str());
    PostMessageA(dialog, WM_COMMAND, fileAnswer ? IDOK : IDCANCEL, 0);
    fileAnswer.reset();
}

VOID CALLBACK WhenReady(HWND dialog, UINT, UINT_PTR timer, DWORD) {
    KillTimer(dialog, timer);
    if (IsFileDialog(dialog)) {
        AnswerFileDialogWindow(dialog);
    } else if (operateDialog && !IsBox(dialog)) {
        const auto operate = std::move(operateDialog);
        operateDialog = nullptr;
        operate(dialog);
    } else {
        AnswerBox(dialog);
    }
}

LRESULT CALLBACK WatchDialogs(int code, WPARAM wParam, LPARAM lParam) {
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE) {
        char className[16] = {};
        GetClassNameA(window, className, sizeof className);
        if (std::string(className) == "#32770" && seen.insert(window).second) {
            SetTimer(window, IsBox(window) ? boxTimer : dialogTimer, IsBox(window) ? 1 : 20, WhenReady);
        }
    } else if (code == HCBT_DESTROYWND) {
        seen.erase(window);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

template <class T>
std::vector<T> Take(std::vector<T>& list) {
    std::vector<T> taken;
    taken.swap(list);
    return taken;
}

}  // namespace

std::string TextOf(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)), 0);
    if (!text.empty()) GetWindowTextA(window, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

Boxes TakeBoxes() { return Take(boxes); }
std::vector<FileDialog> TakeFileDialogs() { return Take(fileDialogs); }
void AnswerFileDialog(const std::string& path, std::function<void()> act) {
    fileAnswer = path;
    duringFileDialog = std::move(act);
}
void DuringNextBox(std::function<void()> act) { duringBox = std::move(act); }
void OperateNextDialog(std::function<void(HWND)> operate) { operateDialog = std::move(operate); }

void InstallDialogHook() { SetWindowsHookExA(WH_CBT, WatchDialogs, nullptr, GetCurrentThreadId()); }

void PrintTo(const Box& box, std::ostream* out) { *out << '[' << box.caption << "] " << box.text; }

}  // namespace test
