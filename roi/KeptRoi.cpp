// What a ROI held before an operation that may fail.
#include "roi/KeptRoi.h"

#include <cstring>

#include "core/kernel/TextField.h"
#include "roi/OutlineRecord.h"
#include "roi/RoiClasses.h"

namespace kest {

void KeptRoi::Keep(CcRoiBase& source) {
    roi = &source;
    CopyCut(name, roi->GetName());
    isSelected = roi->IsROISelected();
    const std::optional<RoiClass> known = RoiClassOf(roi->GetROIType());
    if (!known) return;
    std::memcpy(shape, roi->GetRoiImageCord(), BytesOf(known->facts.iRecord));
    if (const auto parts = OutlineParts::Of(*roi)) MoveOut(*parts, outline);
}

void KeptRoi::PutBack() {
    if (!roi) return;
    if (const auto parts = OutlineParts::Of(*roi))
        MoveBack(*parts, outline);
    else if (RoiClassOf(roi->GetROIType()))
        roi->SetRoiImageCord(shape);
    roi->SetName(name);
    roi->SetSelected(isSelected);
    Forget();
}

void KeptRoi::Forget() {
    outline.points.Release();
    roi = nullptr;
}

}  // namespace kest
