// The work buffer that the boundary queries of a ROI fill and return.
#pragma once

#include "CcRoiBase.h"
#include "core/kernel/CheckedSize.h"

namespace kest {

/// The buffer of one ROI, as references to the members of CcRoiBase that hold it.
struct BoundaryBuffer {
    CcRoiBase& roi;
    const RECT& bounds;  ///< what queries run over
    int*& entries;
    KestWorkBlock& block;  ///< behind `entries`
    int& size;             ///< entries in it

    /// The entries; null in a copy, whose members tell of its source's until it makes its own. A block of the source
    /// that is freed meanwhile can come back here: the size tells them apart.
    int* Own() const;
    /// Entries that a query over `bounds` may list: two for each pixel of the larger side, or what the buffer holds
    /// anyway.
    Size64 Room() const;
    /// Makes a copy of a ROI that answers boundary queries answer them, too. False when memory is short.
    bool PrepareCopy() const;
    /// Makes the buffer ready for queries over `bounds`. False without memory.
    bool Prepare() const;
    /// Makes the buffer hold `count` entries at least. False, with the buffer as it was, without memory.
    bool Grow(Size64 count) const;
    /// Lists every value of a span, both ends included, or nothing when the query has missed the ROI.
    int* ListSpan(bool isHit, const KestSpan& span, int* count) const;
};

/// Null, with a count of 0: the query misses the ROI.
int* ListNothing(int* count);
/// Null, with a count of -1: memory is short.
int* ListFailed(int* count);

}  // namespace kest
