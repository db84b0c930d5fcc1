// CcRoiRows: the pixels of a ROI as runs of neighbouring columns, row by row.
#include "CcRoiRows.h"

#include "core/FunctionTable.h"
#include "roi/RoiClasses.h"
#include "roi/RowSpans.h"

CcRoiRows::CcRoiRows(CcRoiBase* pNewRoi) : pRoi(pNewRoi), pfnSpans(kest::SpansOfList) {
    // A class that a host derives can list other pixels than those of its record.
    if (!pRoi || !kest::IsOfLibraryClass(pRoi)) return;
    if (const std::optional<kest::RoiClass> known = kest::RoiClassOf(pRoi->GetROIType())) pfnSpans = known->spans;
}

const KestSpan* CcRoiRows::GetSpans(int iRow, int* piCount) {
    if (!piCount) return nullptr;
    *piCount = pRoi ? pfnSpans(*pRoi, iRow, cSpans) : 0;
    return *piCount > 0 ? reinterpret_cast<const KestSpan*>(cSpans.Get()) : nullptr;
}
