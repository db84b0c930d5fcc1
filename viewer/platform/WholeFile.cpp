// Files that are replaced only by whole ones.
#include "platform/WholeFile.h"

#include <windows.h>

#include "platform/Text.h"

namespace kestview {

bool WriteWhole(const std::string& path, const std::function<bool(const std::string& newPath)>& write) {
    // The extension stays, as it decides about the names of files that are written along.
    const std::string newPath = WithoutExtension(path) + ".new" + ExtensionOf(path);
    DeleteFileA(newPath.c_str());
    if (write(newPath) && MoveFileExA(newPath.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING)) return true;
    DeleteFileA(newPath.c_str());
    return false;
}

long long BytesOfFile(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA found;
    if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &found)) return -1;
    return static_cast<long long>(found.nFileSizeHigh) << 32 | found.nFileSizeLow;
}

}  // namespace kestview
