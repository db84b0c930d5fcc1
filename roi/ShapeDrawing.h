// The figures that shapes are drawn with, in window coordinates, with the pen and brush that are selected.
#pragma once

#include <windows.h>

#include "core/kernel/Geometry.h"

namespace kest {

/// From left/top to right + 1, bottom + 1: both ends of the pixel range are drawn.
void DrawRectangle(HDC dc, const IntRect& place);

/// Four squares of 4 by 4 pixels, white, at the middles of the edges.
void DrawEdgeHandles(HDC dc, const IntRect& place);

}  // namespace kest
