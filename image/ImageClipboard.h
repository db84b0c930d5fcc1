// An image on the clipboard, for every image class.
#pragma once

#include "KestPlatform.h"
#include "image/ShowImage.h"

namespace kest {

/// Puts the picture under `rect` (image coordinates, top above bottom; null for all of it) with its overlay (none
/// without bits) on the clipboard as a bitmap like the window's. Where the rectangle leaves the image the bitmap is
/// black. 0; -1 without a picture, for an empty rectangle, when it could not be drawn (the clipboard then keeps what it
/// has), or when the clipboard cannot be had.
int CopyToClipboard(HWND window, const LookSource& takeLook, const Source<DibPicture>& takeOverlay, const RECT* rect);

}  // namespace kest
