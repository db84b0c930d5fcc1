// Files that are replaced only by whole ones.
#include "platform/WholeFile.h"

#include <windows.h>

#include "platform/Text.h"

namespace kestview {

bool WriteWhole(const std::string& path, const std::function<bool(const std::string& newPath)>& write) {
    const std::string newPath = UnusedPath(path);
    if (write(newPath) && MoveFileExA(newPath.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING)) return true;
    DeleteFileA(newPath.c_str());
    return false;
}

std::string UnusedPath(const std::string& path) {
    for (int number = 1;; ++number) {
        const std::string unused = Format("%s.new%d", WithoutExtension(path).c_str(), number);
        WIN32_FIND_DATAA found;
        const HANDLE search = FindFirstFileA((unused + ".*").c_str(), &found);
        if (search == INVALID_HANDLE_VALUE) return unused + ExtensionOf(path);
        FindClose(search);
    }
}

long long BytesOfFile(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA found;
    if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &found)) return -1;
    return static_cast<long long>(found.nFileSizeHigh) << 32 | found.nFileSizeLow;
}

}  // namespace kestview
