// The platform's own types: windows, device contexts, handles, points, rectangles and bitmaps.
#pragma once

#if defined(_WIN32)
#include <windows.h>

#include <commdlg.h>
#else
#include "native/PlatformTypes.h"
#endif
