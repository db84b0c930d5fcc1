// The library that holds the dialog templates of graphs.
#include "graph/ResourceLibrary.h"

#include <cstring>

#include "core/Module.h"

namespace kest {
namespace {
constexpr char fileName[] = "Kest_GRes.dll";
}

HMODULE LoadOwnGraphResources() {
    char path[MAX_PATH];
    const DWORD length = GetModuleFileNameA(LibraryModule(), path, sizeof path);
    if (length == 0 || length >= sizeof path) return nullptr;
    const char* lastSlash = std::strrchr(path, '\\');
    const std::size_t folderLength = lastSlash ? static_cast<std::size_t>(lastSlash - path) + 1 : 0;
    if (folderLength + sizeof fileName > sizeof path) return nullptr;
    std::memcpy(path + folderLength, fileName, sizeof fileName);
    return LoadLibraryA(path);
}

HMODULE LoadGraphResourcesByName() { return LoadLibraryA(fileName); }

}  // namespace kest
