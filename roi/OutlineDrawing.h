// Drawing an outline of pixels.
#pragma once

#include "core/kernel/ViewTransform.h"
#include "roi/OutlineParts.h"

namespace kest {

/// Draws the outline and notes the pen's colour in its record. KEST_FAILED without a device context or a view.
int ShowOutline(const OutlineParts& outline, HDC dc, const std::optional<View>& view, HPEN pen);
int ShowOutline(const OutlineParts& outline, HWND window, const std::optional<View>& view, HPEN pen);

/// Joins the outline's pixels with lines, with the pen that is selected, and the last with the first one when it is
/// closed.
void DrawOutlinePixels(HDC dc, const View& view, const OutlineParts& outline);

}  // namespace kest
