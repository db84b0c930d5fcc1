// The ROI classes, one row for each.
#include "roi/RoiClasses.h"

#include "CcRoiLine.h"
#include "roi/RowSpans.h"

namespace kest {

std::optional<RoiClass> RoiClassOf(int type) {
    // There is no default, so that the compiler tells of a class that is missing.
    switch (static_cast<KestRoiType>(type)) {
        case KEST_ROI_POINT: return RoiClass{{KEST_RECORD_POINT, false, false}, SpansOfList, CornerOfPoint};
        case KEST_ROI_LINE: return RoiClass{{KEST_RECORD_LINE, false, false}, SpansOfLine, CornersOfLine};
        case KEST_ROI_RECT: return RoiClass{{KEST_RECORD_BOX, true, false}, SpansOfRect, CornersOfRect};
        case KEST_ROI_ELLIPSE: return RoiClass{{KEST_RECORD_BOX, true, false}, SpansOfEllipse, CornersOfEllipse};
        case KEST_ROI_FREEHAND: return RoiClass{{KEST_RECORD_OUTLINE, true, false}, SpansOfOutline, CornersOfOutline};
        case KEST_ROI_FREEHANDLINE:
            return RoiClass{{KEST_RECORD_OUTLINE, false, false}, SpansOfOutline, CornersOfOutline};
        case KEST_ROI_POLYFREEHAND:
            return RoiClass{{KEST_RECORD_OUTLINE, true, true}, SpansOfOutline, CornersOfOutline};
        case KEST_ROI_POLYLINE: return RoiClass{{KEST_RECORD_OUTLINE, false, true}, SpansOfOutline, CornersOfOutline};
        case KEST_ROI_NONE: break;
    }
    return std::nullopt;
}

std::size_t BytesOf(KestRoiRecord record) {
    switch (record) {
        case KEST_RECORD_POINT: return sizeof(tagPoints);
        case KEST_RECORD_LINE: return sizeof(tagROILINE);
        case KEST_RECORD_BOX: return sizeof(RECT);
        case KEST_RECORD_OUTLINE: break;
    }
    return 0;
}

}  // namespace kest
