// The geometry of dragging a shape with the mouse: which sides a handle moves, how far the cursor may go, what is hit.
// A shape in the window is two corners: for a rectangle left/top and right/bottom, for a line its start (left, top) and
// its end (right, bottom), for a point twice the same.
#pragma once

#include "core/kernel/CheckedSize.h"
#include "core/kernel/Geometry.h"

namespace kest {

/// The four sides of a shape, as bits.
enum Sides : unsigned { LeftSide = 1, TopSide = 2, RightSide = 4, BottomSide = 8, AllSides = 15 };

/// The sides that the handle with this hit code moves: 1 top, 2 bottom, 3 left, 4 right, 5 to 8 the corners top-left,
/// top-right, bottom-left, bottom-right (a line's start and end are 5 and 8). Any other code moves none.
unsigned SidesOfHandle(int hitCode);

void MoveSides(IntRect& shape, unsigned sides, Size64 dx, Size64 dy);

/// The shape whose second corner follows the mouse by one pixel if it lies there: what is released where it was last
/// drawn keeps a pixel of extent.
void KeepExtent(IntRect& shape, IntPoint mouse);

/// Swaps sides so that left is not right of right and top (in the window) not below bottom.
IntRect Normalised(const IntRect& shape);

/// The cursor's range for moving the whole shape: it keeps inside `clip` when the shape does.
IntRect ClipForMove(const IntRect& clip, const IntRect& shape, IntPoint mouse);

/// The cursor's range for moving some sides: shifted by the distance between mouse and side.
IntRect ClipForResize(const IntRect& clip, const IntRect& shape, IntPoint mouse, unsigned sides);

/// The hit code at the mouse: edge middles (1 to 4) before corners (5 to 8) within 5 window pixels, 0 strictly inside,
/// -1 elsewhere.
int HitRectangle(const IntRect& window, IntPoint mouse);

}  // namespace kest
