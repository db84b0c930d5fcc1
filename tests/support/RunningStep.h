// What a long test is at, for the message of a crash or a hang.
#pragma once

#include <string>

namespace test {

inline std::string runningStep;

}  // namespace test
