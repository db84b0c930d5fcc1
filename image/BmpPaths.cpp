// The remembered paths of the BMP dialogs.
#include "image/BmpPaths.h"

#include <cstdio>
#include <cstring>

#include "core/FileDialogs.h"
#include "core/kernel/PathParts.h"
#include "core/kernel/TextField.h"

namespace kest {
namespace {

constexpr char anyBmp[] = "*.bmp";

PathParts PartsOf(const PathBuffer& path) { return SplitPath({path, FieldLength(path, sizeof path)}); }

void TakeFolder(const PathBuffer& path, PathBuffer& folder) {
    const PathParts parts = PartsOf(path);
    std::snprintf(folder, sizeof folder, "%.*s%.*s", static_cast<int>(parts.drive.size()), parts.drive.data(),
                  static_cast<int>(parts.directory.size()), parts.directory.data());
}

void CopyText(std::string_view text, PathBuffer& field) {
    std::snprintf(field, sizeof field, "%.*s", static_cast<int>(text.size()), text.data());
}

/// "NAME.bmp", or "*.bmp" when there is no name to propose.
void ProposeName(const char* name, PathBuffer& proposal) {
    if (*name == 0)
        CopyCut(proposal, anyBmp);
    else
        std::snprintf(proposal, sizeof proposal, "%.*s.bmp", KEST_NAME_SIZE, name);
}

}  // namespace

bool ChoosePathToOpen(const char* path, const PathBuffer& lastOpened, PathBuffer& chosen, const char* filter) {
    if (path) return CopyIfFits(chosen, path);
    PathBuffer name, proposal, folder;
    TakeNameOfPath(lastOpened, name);
    ProposeName(std::strcmp(name, "NONE") == 0 ? "" : name, proposal);
    TakeFolder(lastOpened, folder);
    return AskPathToOpen({filter, proposal, folder, "bmp", false}, chosen);
}

void RememberOpened(const PathBuffer& opened, PathBuffer& lastOpened, PathBuffer& lastSaved) {
    CopyCut(lastOpened, opened);
    if (std::strcmp(lastSaved, KEST_NO_BMP_PATH) == 0) CopyCut(lastSaved, opened);
}

bool ChoosePathToSave(const char* path, const char* imageName, const PathBuffer& lastSaved, PathBuffer& chosen,
                      const char* filter) {
    if (path) return CopyIfFits(chosen, path);
    PathBuffer proposal, folder;
    ProposeName(imageName, proposal);
    TakeFolder(lastSaved, folder);
    return AskPathToSave({filter, proposal, folder, "bmp", true}, chosen);
}

void TakeNameOfPath(const PathBuffer& path, PathBuffer& name) { CopyText(PartsOf(path).name, name); }

void TakeTitleOfPath(const PathBuffer& path, PathBuffer& title) {
    const std::string_view name = PartsOf(path).name;
    CopyText(name.substr(0, name.find('.')), title);
}

void TakeDirectoryOfPath(const PathBuffer& path, PathBuffer& directory) {
    CopyText(PartsOf(path).directory, directory);
}

}  // namespace kest
