// What a freehand outline answers: its bounds, what lies on a row or a column, and whether the mouse is on it.
#pragma once

#include "roi/DisplayArguments.h"
#include "roi/OutlineParts.h"

namespace kest {

int HitOutline(const OutlineParts& outline, HWND window, const DisplayArguments& display, POINT mouse);

/// The bounding rectangle as it is now; null without points.
RECT* CurrentOutlineBounds(const OutlineParts& outline);
/// The bounding rectangle; prepares the boundary queries. Null without points or when memory is short.
RECT* PrepareOutline(const OutlineParts& outline);

/// What GetXBoundary and GetYBoundary answer.
int* ListOutlineRow(const OutlineParts& outline, int row, int* count);
int* ListOutlineColumn(const OutlineParts& outline, int column, int* count);

/// The runs of a row, without the lists: how many, or KEST_FAILED when memory is short.
int SpansOfOutlineRow(const OutlineParts& outline, int row, KestHeapBlock& spans);

}  // namespace kest
