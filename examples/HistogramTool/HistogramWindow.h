// The tool's window: the histogram of the host's current image.
#pragma once

#include <KestApi.h>
#include <windows.h>

/// The one window of the tool. It reads the host's image only while it paints, through the host's variable.
namespace histogram_window {

/// Opens the window over the host's window, or brings the open one to the front. Null when it cannot be made.
HWND Open(HINSTANCE module, HWND parent, CcImage** current);
/// The image has changed: counts it again at the next paint.
void Refresh();
void Close();
/// The window's class goes with the library.
void Unregister(HINSTANCE module);

}  // namespace histogram_window
