// What a ROI held before an operation that may fail.
#include "roi/KeptRoi.h"

#include <cstring>

#include "core/FunctionTable.h"
#include "core/kernel/TextField.h"
#include "roi/OutlineRecord.h"
#include "roi/RoiClasses.h"

namespace kest {
namespace {

/// A host's class can have the type code of an outline that it does not derive from.
std::optional<OutlineParts> PartsOf(CcRoiBase& roi) {
    return IsOfLibraryClass(&roi) ? OutlineParts::Of(roi) : std::nullopt;
}

}  // namespace

void KeptRoi::Keep(CcRoiBase& source) {
    roi = &source;
    CopyCut(name, roi->GetName());
    isSelected = roi->IsROISelected();
    const std::optional<RoiClass> known = RoiClassOf(roi->GetROIType());
    const std::size_t bytes = known ? BytesOf(known->facts.iRecord) : 0;
    const void* record = bytes > 0 ? roi->GetRoiImageCord() : nullptr;
    hasShape = record != nullptr;
    if (hasShape) std::memcpy(shape, record, bytes);
    if (const auto parts = PartsOf(*roi)) MoveOut(*parts, outline);
}

void KeptRoi::PutBack() {
    if (!roi) return;
    if (const auto parts = PartsOf(*roi)) MoveBack(*parts, outline);
    if (hasShape) roi->SetRoiImageCord(shape);
    roi->SetName(name);
    roi->SetSelected(isSelected);
    Forget();
}

void KeptRoi::Forget() {
    outline.points.Release();
    roi = nullptr;
}

}  // namespace kest
