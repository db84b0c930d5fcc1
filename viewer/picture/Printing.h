// Prints what is shown of a picture, with its ROIs.
#pragma once

#include "picture/PictureView.h"

namespace kestview {

/// Shows the system's print dialog, and tells the user when nothing could be printed.
void PrintPicture(PictureView& view, Document& document, HWND owner);

}  // namespace kestview
