// What the functions of the freehand family work on.
#include "roi/OutlineParts.h"

#include <algorithm>

#include "CcRoiFreeHand.h"
#include "CcRoiFreeHandLine.h"
#include "CcRoiPolyFreeHand.h"
#include "CcRoiPolyLine.h"
#include "roi/RoiClasses.h"

namespace kest {

std::optional<OutlineParts> OutlineParts::Of(CcRoiBase& roi) {
    // There is no default, so that the compiler tells of a class that is missing.
    switch (static_cast<KestRoiType>(roi.GetROIType())) {
        case KEST_ROI_FREEHAND: return static_cast<CcRoiFreeHand&>(roi).Parts();
        case KEST_ROI_FREEHANDLINE: return static_cast<CcRoiFreeHandLine&>(roi).Parts();
        case KEST_ROI_POLYLINE: return static_cast<CcRoiPolyLine&>(roi).Parts();
        case KEST_ROI_POLYFREEHAND: return static_cast<CcRoiPolyFreeHand&>(roi).Parts();
        case KEST_ROI_RECT:
        case KEST_ROI_LINE:
        case KEST_ROI_ELLIPSE:
        case KEST_ROI_POINT:
        case KEST_ROI_NONE: break;
    }
    return std::nullopt;
}

bool OutlineParts::IsClosed() const { return RoiClassOf(kind.typeCode)->facts.bClosed; }
bool OutlineParts::HasVertices() const { return RoiClassOf(kind.typeCode)->facts.bVertices; }

std::span<const IntPoint> OutlineParts::Pixels() const {
    // A host can change the count in the record.
    const Size64 room = points.Size() / static_cast<Size64>(sizeof(POINT));
    const Size64 count = std::min<Size64>(record.iNumOfPoints, room);
    if (!record.stPOINTS || count < 1) return {};
    static_assert(sizeof(POINT) == sizeof(IntPoint));
    return {reinterpret_cast<const IntPoint*>(record.stPOINTS), static_cast<std::size_t>(count)};
}

SegmentArrays OutlineParts::Segments() const {
    const OutlineClassWide& arrays = kind.classWide;
    return {arrays.starts, arrays.stops, arrays.imageStarts, arrays.imageStops, segment};
}

}  // namespace kest
