// The library that holds the dialog templates of graphs.
#pragma once

#include <windows.h>

namespace kest {

/// Loads "Kest_GRes.dll" as the system finds it by name, or else from the folder of this library; null when it lies in
/// neither place. The caller gives it back with FreeLibrary.
HMODULE LoadGraphResources();

}  // namespace kest
