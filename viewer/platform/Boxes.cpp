// What the program asks and tells the user in boxes and in the system's file and colour dialogs.
#include "platform/Boxes.h"

#include <commdlg.h>

#include <algorithm>
#include <cstring>

#include "platform/Program.h"
#include "platform/Text.h"

namespace kestview {
namespace {

constexpr const char* programName = "KestView";

struct FileQuestion {
    std::string filters;
    char path[4 * MAX_PATH] = {};
    OPENFILENAMEA record = {};

    FileQuestion(HWND owner, const char* title, const char* filterPairs, const char* extension) : filters(filterPairs) {
        std::replace(filters.begin(), filters.end(), '|', '\0');
        filters.push_back('\0');
        record.lStructSize = sizeof record;
        record.hwndOwner = owner;
        record.lpstrFilter = filters.c_str();
        record.lpstrFile = path;
        record.nMaxFile = sizeof path;
        record.lpstrTitle = title;
        record.lpstrDefExt = extension;
        // The current folder must not follow the dialog: a relative path on the command line stays what it was.
        record.Flags = OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_EXPLORER;
    }
};

}  // namespace

void ShowError(HWND owner, const std::string& text) {
    if (!text.empty()) MessageBoxA(owner, text.c_str(), programName, MB_OK | MB_ICONWARNING);
}

void TellMemoryIsShort(HWND window) { ShowError(GetAncestor(window, GA_ROOT), "There is not enough memory for this."); }

void ShowNote(HWND owner, const std::string& text) {
    MessageBoxA(owner, text.c_str(), programName, MB_OK | MB_ICONINFORMATION);
}

int AskYesNoCancel(HWND owner, const std::string& question) {
    return MessageBoxA(owner, question.c_str(), programName, MB_YESNOCANCEL | MB_ICONQUESTION);
}

bool AskYesNo(HWND owner, const std::string& question) {
    return MessageBoxA(owner, question.c_str(), programName, MB_YESNO | MB_ICONQUESTION) == IDYES;
}

namespace {

/// Without the characters that no file name has: the dialog would not open with them, or would look for the folder that
/// they name, on a server too.
std::string AsFileName(std::string name) {
    for (char& c : name)
        if (static_cast<unsigned char>(c) < ' ' || std::strchr("\\/:*?\"<>|", c)) c = '_';
    return name;
}

/// The user has cancelled, or the dialog did not come up.
std::optional<std::string> NoPath(HWND owner) {
    if (const DWORD code = CommDlgExtendedError())
        ShowError(owner, Format("The file dialog could not be shown (error %lu).", code));
    return std::nullopt;
}

}  // namespace

std::optional<std::string> AskOpenPath(HWND owner, const char* title, const char* filters, const char* extension) {
    FileQuestion question(owner, title, filters, extension);
    question.record.Flags |= OFN_FILEMUSTEXIST;
    if (!GetOpenFileNameA(&question.record)) return NoPath(owner);
    return question.path;
}

std::optional<std::string> AskSavePath(HWND owner, const char* title, const char* filters, const char* extension,
                                       const std::string& name, const std::string& path) {
    FileQuestion question(owner, title, filters, extension);
    question.record.Flags |= OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST;
    lstrcpynA(question.path, path.empty() ? AsFileName(name).c_str() : path.c_str(), sizeof question.path);
    if (!GetSaveFileNameA(&question.record)) return NoPath(owner);
    return question.path;
}

std::optional<COLORREF> AskColour(HWND owner, COLORREF present) {
    CHOOSECOLORA record = {};
    record.lStructSize = sizeof record;
    record.hwndOwner = owner;
    record.rgbResult = present;
    record.lpCustColors = RunningProgram()->mixedColours;
    record.Flags = CC_RGBINIT | CC_FULLOPEN;
    if (!ChooseColorA(&record)) return std::nullopt;
    return record.rgbResult;
}

}  // namespace kestview
