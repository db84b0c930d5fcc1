// The remembered paths of the BMP dialogs: each image class keeps the file opened last and the file saved last.
#pragma once

#include "KestTypes.h"

namespace kest {

/// What the remembered paths hold at first; a literal, because they are arrays of characters.
#define KEST_NO_BMP_PATH "C:\\NONE.bmp"

/// What the dialogs offer: pairs of description and pattern, ended by an empty string.
constexpr char BmpFilter[] = "Bitmap Files(*.BMP)\0*.bmp\0All Files (*.*)\0*.*\0";

using PathBuffer = char[KEST_NAME_SIZE];

/// The path to open: `path`, or when that is null the one that the user chooses. False when the user cancels.
bool ChoosePathToOpen(const char* path, const PathBuffer& lastOpened, PathBuffer& chosen,
                      const char* filter = BmpFilter);

/// Remembers the opened path; before the first save the save dialog starts in its folder too.
void RememberOpened(const PathBuffer& opened, PathBuffer& lastOpened, PathBuffer& lastSaved);

/// The path to save to: `path`, or when that is null the one that the user chooses, with the image's name as proposal.
/// False when the user cancels.
bool ChoosePathToSave(const char* path, const char* imageName, const PathBuffer& lastSaved, PathBuffer& chosen,
                      const char* filter = BmpFilter);

/// A path's file name without directory and extension.
void TakeNameOfPath(const PathBuffer& path, PathBuffer& name);

/// A path's file name up to its first dot.
void TakeTitleOfPath(const PathBuffer& path, PathBuffer& title);

/// A path's directory, without the drive.
void TakeDirectoryOfPath(const PathBuffer& path, PathBuffer& directory);

}  // namespace kest
