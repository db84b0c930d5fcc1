// Files that no test makes by itself.
#pragma once

#include <string>

namespace test {

/// The path of a file or folder in tests/data.
std::string DataPath(const std::string& name);

}  // namespace test
