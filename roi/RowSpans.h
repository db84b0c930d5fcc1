// The runs of a row of a ROI: of a class of the library by its shape, of any other one from the list that it gives.
#pragma once

#include "CcRoiBase.h"
#include "KestTypes.h"

namespace kest {

// Each of these gives the number of runs that it put in `spans`, 0 when the row misses the ROI, KEST_FAILED when memory
// is short. The type of the ROI's record is that of the function's name.

int SpansOfRect(CcRoiBase& roi, int row, KestHeapBlock& spans);
int SpansOfEllipse(CcRoiBase& roi, int row, KestHeapBlock& spans);
int SpansOfLine(CcRoiBase& roi, int row, KestHeapBlock& spans);
int SpansOfOutline(CcRoiBase& roi, int row, KestHeapBlock& spans);

/// Of any ROI: neighbouring entries of its list that ascend by 1 make a run.
int SpansOfList(CcRoiBase& roi, int row, KestHeapBlock& spans);

}  // namespace kest
