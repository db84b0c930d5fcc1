// What tests need of the system that they run on.
#pragma once

#include "KestPlatform.h"

namespace test {

/// A path that takes no bytes.
#if defined(_WIN32)
constexpr char fullDisk[] = R"(Z:\dev\full)";
#else
constexpr char fullDisk[] = "/dev/full";
#endif

/// A window with a client area.
HWND AnyWindow();

/// Bytes of memory that the process has for itself; 0 where they cannot be told.
long long PrivateBytes();

}  // namespace test
