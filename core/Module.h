// The library's own module, as the system loaded it.
#pragma once

#include "KestPlatform.h"

namespace kest {

/// Null until the library is loaded.
HINSTANCE LibraryModule();

/// True when the address of a function or constant lies in the library.
bool IsInLibrary(const void* address);

}  // namespace kest
