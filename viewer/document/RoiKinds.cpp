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
    {KEST_ROI_POINT, "Point", false, Make<CcRoiPoint>},
    {KEST_ROI_LINE, "Line", false, Make<CcRoiLine>},
    {KEST_ROI_RECT, "Rectangle", false, Make<CcRoiRect>},
    {KEST_ROI_ELLIPSE, "Ellipse", false, Make<CcRoiEllipse>},
    {KEST_ROI_FREEHAND, "Freehand area", false, Make<CcRoiFreeHand>},
    {KEST_ROI_FREEHANDLINE, "Freehand line", false, Make<CcRoiFreeHandLine>},
    {KEST_ROI_POLYFREEHAND, "Polygon", true, Make<CcRoiPolyFreeHand>},
    {KEST_ROI_POLYLINE, "Polyline", true, Make<CcRoiPolyLine>},
};

const RoiKind* RoiKindOf(int type) {
    for (const RoiKind& kind : roiKinds)
        if (kind.type == type) return &kind;
    return nullptr;
}

const char* KindLabel(CcRoiBase& roi) {
    const RoiKind* kind = RoiKindOf(roi.GetROIType());
    return kind ? kind->label : "ROI";
}

}  // namespace kestview
