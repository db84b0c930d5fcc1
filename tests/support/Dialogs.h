// Answers the modal boxes and dialogs that the library shows, and tells afterwards what they said.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "KestPlatform.h"

namespace test {

/// One message box, answered with its default button.
struct Box {
    std::string caption;
    std::string text;
    bool isOwned = false;  ///< by a window; not compared
    bool operator==(const Box& other) const { return caption == other.caption && text == other.text; }
};

using Boxes = std::vector<Box>;

/// The boxes shown since the last call, in order.
Boxes TakeBoxes();

/// Called once while the next box is shown, as a timer of the host would be.
void DuringNextBox(std::function<void()> act);

/// What a file dialog showed when it opened.
struct FileDialog {
    std::string title;
    std::string name;
    std::vector<std::string> filters;
};

/// The next file dialog accepts this path, or is cancelled when there is none; `act` is called while it is shown.
void AnswerFileDialog(const std::string& path, std::function<void()> act = {});

/// The file dialogs shown since the last call.
std::vector<FileDialog> TakeFileDialogs();

/// Called once for the next dialog that is neither a box nor a file dialog, when it is ready to be operated.
void OperateNextDialog(std::function<void(HWND)> operate);

/// Installed by the test program's main function for the whole run.
void InstallDialogHook();

/// The text of a window or control.
std::string TextOf(HWND window);

void PrintTo(const Box& box, std::ostream* out);

}  // namespace test
