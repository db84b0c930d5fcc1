// The parts of a Windows file path.
#include "core/kernel/PathParts.h"

namespace kest {

PathParts SplitPath(std::string_view path) {
    PathParts parts;
    if (path.size() >= 2 && path[1] == ':') {
        parts.drive = path.substr(0, 2);
        path.remove_prefix(2);
    }
    const std::size_t separator = path.find_last_of("\\/");
    if (separator != std::string_view::npos) {
        parts.directory = path.substr(0, separator + 1);
        path.remove_prefix(separator + 1);
    }
    const std::size_t dot = path.rfind('.');
    parts.name = path.substr(0, dot);
    if (dot != std::string_view::npos) parts.extension = path.substr(dot);
    return parts;
}

}  // namespace kest
