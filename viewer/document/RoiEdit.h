// Moving a ROI, or one of its handles, by whole pixels of the picture.
#pragma once

#include <array>
#include <vector>

#include "KestApi.h"

namespace kestview {

/// Changes a ROI's own coordinates, so that at every magnification what is not held stays as it is: a ROI that is moved
/// keeps its size, and one that is resized its other sides. Nothing that is held leaves the picture.
class RoiEdit {
public:
    /// `hitCode` as MouseHitTest gives it: a handle, or 0 for the whole ROI.
    RoiEdit(CcRoiBase& newRoi, int hitCode, SIZE picture);
    /// From where the ROI stood at first; y upward.
    void MoveBy(POINT distance);
    bool HasMoved() const { return hasMoved; }

private:
    /// How far the held coordinates may go, down and up.
    struct Room {
        long least, most;
    };
    static Room RoomFor(long low, long high, long size);
    void HoldSides(int hitCode);
    void MoveSides(POINT distance);

    CcRoiBase& roi;
    std::vector<POINT> outline;     ///< of a drawn ROI, as it stood at first
    tagPoints point = {};           ///< of a point
    std::array<int, 4> sides = {};  ///< of the others: x and y of one corner or end, x and y of the other
    std::array<bool, 4> isHeld = {};
    Room across = {}, up = {};
    bool hasMoved = false;
};

}  // namespace kestview
