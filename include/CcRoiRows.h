// CcRoiRows: the pixels of a ROI as runs of neighbouring columns, row by row.
#pragma once

#include "CcRoiBase.h"
#include "KestBlocks.h"

/// What CcRoiBase::GetXBoundary lists column by column, as runs in the same order: much faster to fill, copy or sum, as
/// an outline of any size has only a few runs in a row.
///
/// Call GetBoundingRect of the ROI before, as for GetXBoundary. A class that a host derives is asked for its list.
class KEST_API CcRoiRows {
public:
    /// The ROI stays the caller's and must outlive this object.
    explicit CcRoiRows(CcRoiBase* pNewRoi);
    CcRoiRows(const CcRoiRows&) = delete;
    CcRoiRows& operator=(const CcRoiRows&) = delete;

    /// The runs of image row iRow (counted from the bottom), `*piCount` of them; null and 0 when the row misses the
    /// ROI, null and -1 when memory is short. The runs are overwritten by the next call.
    const KestSpan* GetSpans(int iRow, int* piCount);

private:
    CcRoiBase* pRoi;
    int (*pfnSpans)(CcRoiBase& roi, int iRow, KestHeapBlock& cSpanBlock);
    KestHeapBlock cSpans;
};
