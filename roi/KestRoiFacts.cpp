// What is known of a ROI class by its type code, and the way along a ROI of any class.
#include "KestRoiFacts.h"

#include "roi/RoiClasses.h"

int KestGetRoiFacts(int iROIType, KestRoiFacts* pFacts) {
    const std::optional<kest::RoiClass> known = kest::RoiClassOf(iROIType);
    if (!known || !pFacts) return KEST_FAILED;
    *pFacts = known->facts;
    return KEST_OK;
}

int KestVisitRoiCorners(CcRoiBase* pRoi, int iBorder, int iEllipseCorners, KestCornerVisitor pfnVisit, void* pContext) {
    const std::optional<kest::RoiClass> known = pRoi ? kest::RoiClassOf(pRoi->GetROIType()) : std::nullopt;
    const void* record = known ? pRoi->GetRoiImageCord() : nullptr;
    return record && pfnVisit ? known->corners(record, {iBorder, iEllipseCorners, pfnVisit, pContext}) : KEST_FAILED;
}
