// The system's dialogs for opening and saving a file.
#include "core/FileDialogs.h"

#include "KestPlatform.h"
#include "core/kernel/TextField.h"

namespace kest {
namespace {

template <class Dialog>
bool Ask(Dialog dialog, const FileQuestion& question, char (&path)[KEST_NAME_SIZE]) {
    char chosen[KEST_NAME_SIZE];
    CopyCut(chosen, question.startName);

    OPENFILENAMEA record = {};
    record.lStructSize = OPENFILENAME_SIZE_VERSION_400A;
    record.hwndOwner = GetFocus();
    record.lpstrFilter = question.filter;
    record.nFilterIndex = 1;
    record.lpstrFile = chosen;
    record.nMaxFile = sizeof chosen;
    record.lpstrInitialDir = question.startDirectory;
    record.Flags = question.warnsOfReplacing ? OFN_OVERWRITEPROMPT : 0;
    record.lpstrDefExt = question.defaultExtension;
    if (!dialog(&record)) return false;
    CopyCut(path, chosen);
    return true;
}

}  // namespace

bool AskPathToOpen(const FileQuestion& question, char (&path)[KEST_NAME_SIZE]) {
    return Ask(GetOpenFileNameA, question, path);
}

bool AskPathToSave(const FileQuestion& question, char (&path)[KEST_NAME_SIZE]) {
    return Ask(GetSaveFileNameA, question, path);
}

}  // namespace kest
