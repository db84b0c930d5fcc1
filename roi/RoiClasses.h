// What the library knows of each of its ROI classes. A new class is one row in RoiClasses.cpp.
#pragma once

#include <optional>

#include "CcRoiBase.h"
#include "KestRoiFacts.h"
#include "roi/Corners.h"

namespace kest {

/// What the ROIs of one class have in common.
struct RoiClass {
    KestRoiFacts facts;
    /// The runs of a row, as in roi/RowSpans.h.
    int (*spans)(CcRoiBase& roi, int row, KestHeapBlock& spans);
    /// The way along the ROI whose record this is; how many corners.
    int (*corners)(const void* record, const CornerWalk& walk);
};

/// The row of a type code; nothing for a code that is no class of the library.
std::optional<RoiClass> RoiClassOf(int type);

/// Size of a record that holds all of a ROI; 0 for an outline's, which refers to its points.
std::size_t BytesOf(KestRoiRecord record);

}  // namespace kest
