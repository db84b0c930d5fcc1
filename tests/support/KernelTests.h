// What the tests of kernels read first: GoogleTest and the standard library, nothing of a platform.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <numbers>
#include <numeric>
#include <random>
#include <set>
#include <span>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace test {

/// Calls, made in this order, that all give one result. (The second compiler has no std::source_location.)
template <class Result>
void ExpectAll(const Result& wanted, std::initializer_list<Result> results, const char* file = __builtin_FILE(),
               int line = __builtin_LINE()) {
    for (const Result& result : results)
        if (result != wanted)
            ADD_FAILURE_AT(file, line) << "call " << &result - results.begin() + 1 << " gave "
                                       << testing::PrintToString(result);
}

}  // namespace test
