// Drawing shapes. Their figures are in window coordinates, with the pen and brush that are selected. Coordinates may
// lie anywhere; what cannot show is not drawn.
#pragma once

#include <optional>

#include "KestPlatform.h"
#include "core/kernel/Geometry.h"
#include "roi/ShapeParts.h"

namespace kest {

/// Draws the shape where the view has it. KEST_FAILED without a device context or a view.
int ShowShape(const ShapeParts& shape, HDC dc, const std::optional<View>& view, HPEN pen);
int ShowShape(const ShapeParts& shape, HWND window, const std::optional<View>& view, HPEN pen);

/// From left/top to right + 1, bottom + 1: both ends of the pixel range are drawn.
void DrawRectangle(HDC dc, const IntRect& place);

/// Inscribed in left/top to right + `beyond`, bottom + `beyond`.
void DrawEllipse(HDC dc, const IntRect& place, int beyond);

/// From left/top to right/bottom, the end excluded.
void DrawLine(HDC dc, const IntRect& place);

/// A circle of radius 10 round left/top and a cross of 15 pixels each way.
void DrawPointMark(HDC dc, const IntRect& place);

/// A name right above a point mark, in the device context's text colour.
void DrawName(HDC dc, const IntRect& place, const char* name);

/// Four squares of 4 by 4 pixels, white, at the middles of the edges.
void DrawEdgeHandles(HDC dc, const IntRect& place);

}  // namespace kest
