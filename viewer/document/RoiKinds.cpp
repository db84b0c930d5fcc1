// The eight kinds of ROIs that the program draws, in the order of the toolbar.
#include "document/RoiKinds.h"

namespace kestview {
namespace {

template <class Roi>
std::unique_ptr<CcRoiBase> Make() {
    return std::unique_ptr<CcRoiBase>(new Roi);
}

}  // namespace

const RoiKind roiKinds[roiKindCount] = {
    {KEST_ROI_POINT, "Point", Make<CcRoiPoint>},
    {KEST_ROI_LINE, "Line", Make<CcRoiLine>},
    {KEST_ROI_RECT, "Rectangle", Make<CcRoiRect>},
    {KEST_ROI_ELLIPSE, "Ellipse", Make<CcRoiEllipse>},
    {KEST_ROI_FREEHAND, "Freehand area", Make<CcRoiFreeHand>},
    {KEST_ROI_FREEHANDLINE, "Freehand line", Make<CcRoiFreeHandLine>},
    {KEST_ROI_POLYFREEHAND, "Polygon", Make<CcRoiPolyFreeHand>},
    {KEST_ROI_POLYLINE, "Polyline", Make<CcRoiPolyLine>},
};

const RoiKind* RoiKindOf(int type) {
    for (const RoiKind& kind : roiKinds)
        if (kind.type == type) return &kind;
    return nullptr;
}

KestRoiRecord RecordOf(CcRoiBase& roi) {
    KestRoiFacts facts = {};
    KestGetRoiFacts(roi.GetROIType(), &facts);
    return facts.iRecord;
}

const char* KindLabel(CcRoiBase& roi) {
    const RoiKind* kind = RoiKindOf(roi.GetROIType());
    return kind ? kind->label : "ROI";
}

}  // namespace kestview
