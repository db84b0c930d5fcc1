// The system's dialogs for opening and saving a file.
#pragma once

#include "KestTypes.h"

namespace kest {

struct FileQuestion {
    const char* filter;          ///< pairs of NUL-terminated strings, ended by an empty one
    const char* startName;       ///< what the name field shows first
    const char* startDirectory;  ///< null: the dialog's own choice
    const char* defaultExtension;
    bool warnsOfReplacing;  ///< when the path that is chosen for saving has a file
};

/// Each asks the user, owned by the window that has the focus, and writes the chosen path. False when it was cancelled.
bool AskPathToOpen(const FileQuestion& question, char (&path)[KEST_NAME_SIZE]);
bool AskPathToSave(const FileQuestion& question, char (&path)[KEST_NAME_SIZE]);

}  // namespace kest
