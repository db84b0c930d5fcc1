// The parts of a Windows file path. Without substr, which can throw.
#include "core/kernel/PathParts.h"

namespace kest {

PathParts SplitPath(std::string_view path) {
    PathParts parts;
    if (path.size() >= 2 && path[1] == ':') {
        parts.drive = {path.data(), 2};
        path.remove_prefix(2);
    }
    const std::size_t separator = path.find_last_of("\\/");
    if (separator != std::string_view::npos) {
        parts.directory = {path.data(), separator + 1};
        path.remove_prefix(separator + 1);
    }
    parts.name = path;
    const std::size_t dot = path.rfind('.');
    if (dot == std::string_view::npos) return parts;
    parts.name.remove_suffix(path.size() - dot);
    parts.extension = path;
    parts.extension.remove_prefix(dot);
    return parts;
}

}  // namespace kest
