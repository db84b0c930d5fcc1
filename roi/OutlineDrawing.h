// Drawing an outline of pixels.
#pragma once

#include <windows.h>

#include <span>

#include "core/kernel/ViewTransform.h"

namespace kest {

/// Joins the pixels with lines, with the pen that is selected, and the last with the first one when it is closed.
void DrawOutlinePixels(HDC dc, const View& view, std::span<const IntPoint> outline, bool isClosed);

}  // namespace kest
