// The parts of a Windows file path.
#pragma once

#include <string_view>

namespace kest {

/// Views into the path: "D:" "\pics\" "cell" ".bmp". Parts that are absent are empty.
struct PathParts {
    std::string_view drive;
    std::string_view directory;  ///< with its last separator
    std::string_view name;       ///< without the extension
    std::string_view extension;  ///< from the last dot of the file name on
};

PathParts SplitPath(std::string_view path);

}  // namespace kest
