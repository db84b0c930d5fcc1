// What a ROI held before an operation that may fail.
#include "roi/KeptRoi.h"

#include "core/kernel/TextField.h"
#include "roi/OutlineMembers.h"

namespace kest {
namespace {

/// Calls `act` with the members of the class and the ROI, if it is an outline.
template <class Act>
void WithOutline(CcRoiBase& roi, Act act) {
    switch (roi.GetROIType()) {
        case KEST_ROI_FREEHAND: return act(static_cast<CcRoiFreeHand&>(roi));
        case KEST_ROI_FREEHANDLINE: return act(static_cast<CcRoiFreeHandLine&>(roi));
        case KEST_ROI_POLYLINE: return act(static_cast<CcRoiPolyLine&>(roi));
        case KEST_ROI_POLYFREEHAND: return act(static_cast<CcRoiPolyFreeHand&>(roi));
        default: return;
    }
}

/// Of the record of a shape; 0 for every other ROI.
std::size_t ShapeBytes(CcRoiBase& roi) {
    switch (roi.GetROIType()) {
        case KEST_ROI_RECT:
        case KEST_ROI_ELLIPSE:
        case KEST_ROI_LINE: return sizeof(RECT);
        case KEST_ROI_POINT: return sizeof(tagPoints);
        default: return 0;
    }
}

}  // namespace

void KeptRoi::Keep(CcRoiBase& source) {
    roi = &source;
    CopyCut(name, roi->GetName());
    isSelected = roi->IsROISelected();
    if (const std::size_t bytes = ShapeBytes(*roi)) std::memcpy(&shape, roi->GetRoiImageCord(), bytes);
    WithOutline(*roi, [this]<class Roi>(Roi& kept) { KestOutlineMembers<Roi>::MoveOut(kept, outline); });
}

void KeptRoi::PutBack() {
    if (!roi) return;
    if (ShapeBytes(*roi) > 0) roi->SetRoiImageCord(&shape);
    WithOutline(*roi, [this]<class Roi>(Roi& kept) { KestOutlineMembers<Roi>::MoveBack(kept, outline); });
    roi->SetName(name);
    roi->SetSelected(isSelected);
    Forget();
}

void KeptRoi::Forget() {
    outline.points.Release();
    roi = nullptr;
}

}  // namespace kest
