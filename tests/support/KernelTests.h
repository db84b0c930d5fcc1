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
#include <source_location>
#include <span>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace test {

/// Calls, made in this order, that all give one result.
template <class Result>
void ExpectAll(const Result& wanted, std::initializer_list<Result> results,
               std::source_location where = std::source_location::current()) {
    for (const Result& result : results)
        if (result != wanted)
            ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line()))
                << "call " << &result - results.begin() + 1 << " gave " << testing::PrintToString(result);
}

}  // namespace test
