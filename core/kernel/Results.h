// What several calls that return a status code came to.
#pragma once

#include <algorithm>
#include <initializer_list>

namespace kest {

/// True when none of the codes is a failure. The calls among the braces are made in their order, all of them.
constexpr bool AllSucceeded(std::initializer_list<int> codes) {
    return std::none_of(codes.begin(), codes.end(), [](int code) { return code < 0; });
}

}  // namespace kest
