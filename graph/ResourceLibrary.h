// The library that holds the dialog templates of graphs.
#pragma once

#include "KestPlatform.h"

namespace kest {

/// Loads "Kest_GRes.dll" from the folder of this library, by its full path; null when it does not lie there. The caller
/// gives it back with FreeLibrary.
HMODULE LoadOwnGraphResources();

/// Loads it as the system finds it by name, perhaps in the current folder: only once a user has asked for a dialog.
HMODULE LoadGraphResourcesByName();

}  // namespace kest
