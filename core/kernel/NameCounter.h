// The numbers in default names: process-wide counters, plain integers in the headers, that several threads may advance.
#pragma once

#include <atomic>

namespace kest {

/// Adds 1 and returns the new value, which no other call gets.
inline int NextNumber(int& counter) { return std::atomic_ref<int>(counter).fetch_add(1) + 1; }

}  // namespace kest
