// The library's own module, as the system loaded it.
#pragma once

#include <windows.h>

namespace kest {

/// Null until the library is loaded.
HINSTANCE LibraryModule();

}  // namespace kest
