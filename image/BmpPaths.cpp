// The remembered paths of the BMP dialogs.
#include "image/BmpPaths.h"

#include <cstdio>
#include <cstring>

#include "core/FileDialogs.h"
#include "core/kernel/PathParts.h"
#include "core/kernel/TextField.h"

namespace kest {
namespace {

constexpr char bmpFilter[] = "Bitmap Files(*.BMP)\0*.bmp\0All Files (*.*)\0*.*\0";
constexpr char anyBmp[] = "*.bmp";

void TakeFolder(const PathBuffer& path, PathBuffer& folder) {
    const PathParts parts = SplitPath({path, FieldLength(path, sizeof path)});
    std::snprintf(folder, sizeof folder, "%.*s%.*s", static_cast<int>(parts.drive.size()), parts.drive.data(),
                  static_cast<int>(parts.directory.size()), parts.directory.data());
}

/// "NAME.bmp", or "*.bmp" when there is no name to propose.
void ProposeName(const char* name, PathBuffer& proposal) {
    if (*name == 0)
        CopyCut(proposal, anyBmp);
    else
        std::snprintf(proposal, sizeof proposal, "%.*s.bmp", KEST_NAME_SIZE, name);
}

}  // namespace

bool ChoosePathToOpen(const char* path, const PathBuffer& lastOpened, PathBuffer& chosen) {
    if (path) return CopyIfFits(chosen, path);
    PathBuffer name, proposal, folder;
    TakeNameOfPath(lastOpened, name);
    ProposeName(std::strcmp(name, "NONE") == 0 ? "" : name, proposal);
    TakeFolder(lastOpened, folder);
    return AskPathToOpen({bmpFilter, proposal, folder, "bmp", 0}, chosen);
}

void RememberOpened(const PathBuffer& opened, PathBuffer& lastOpened, PathBuffer& lastSaved) {
    CopyCut(lastOpened, opened);
    if (std::strcmp(lastSaved, NoBmpPath) == 0) CopyCut(lastSaved, opened);
}

bool ChoosePathToSave(const char* path, const char* imageName, const PathBuffer& lastSaved, PathBuffer& chosen) {
    if (path) return CopyIfFits(chosen, path);
    PathBuffer proposal, folder;
    ProposeName(imageName, proposal);
    TakeFolder(lastSaved, folder);
    return AskPathToSave({bmpFilter, proposal, folder, "bmp", OFN_OVERWRITEPROMPT}, chosen);
}

void TakeNameOfPath(const PathBuffer& path, PathBuffer& name) {
    const PathParts parts = SplitPath({path, FieldLength(path, sizeof path)});
    std::snprintf(name, sizeof name, "%.*s", static_cast<int>(parts.name.size()), parts.name.data());
}

}  // namespace kest
