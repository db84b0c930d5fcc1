// What the program asks and tells the user in boxes and in the system's file and colour dialogs.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace kestview {

/// Nothing for an empty text: of some failures the library tells the user itself.
void ShowError(HWND owner, const std::string& text);
/// For work that was given up because of it.
void TellMemoryIsShort(HWND window);
void ShowNote(HWND owner, const std::string& text);
/// Yes, no, or cancel: IDYES, IDNO, IDCANCEL.
int AskYesNoCancel(HWND owner, const std::string& question);
bool AskYesNo(HWND owner, const std::string& question);

/// `filters` are pairs "name|pattern|name|pattern". None when the user cancels.
std::optional<std::string> AskOpenPath(HWND owner, const char* title, const char* filters, const char* extension);
/// Suggested is `path`, or while that is empty a file of this `name` in the folder at hand. A name may be anyone's: a
/// ROI's or a picture's, out of a file.
std::optional<std::string> AskSavePath(HWND owner, const char* title, const char* filters, const char* extension,
                                       const std::string& name, const std::string& path = "");
std::optional<COLORREF> AskColour(HWND owner, COLORREF present);

}  // namespace kestview
