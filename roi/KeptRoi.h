// What a ROI held before an operation that may fail.
#pragma once

#include "CcRoiBase.h"
#include "KestOutline.h"
#include "KestTypes.h"

namespace kest {

/// An outline's points, moved out of it, and its colour.
struct KeptOutline {
    PixelGroupTag record = {};
    KestGlobalBlock points;
};

/// Record, name and selection of a ROI. Neither keeping nor putting back takes memory, so neither fails. Of a host's
/// class with a type code of its own, or an outline's, only name and selection are kept.
class KeptRoi {
public:
    /// An outline has no points from then on.
    void Keep(CcRoiBase& source);
    /// Gives the ROI that was kept all of it back, if there is one.
    void PutBack();
    /// Lets go of what is kept.
    void Forget();

private:
    CcRoiBase* roi = nullptr;  ///< the one that is kept
    char name[KEST_NAME_SIZE] = {};
    int isSelected = 0;
    bool hasShape = false;
    char shape[sizeof(RECT)] = {};  ///< the record of a shape
    KeptOutline outline;
};

}  // namespace kest
