// CcRoiRect: the rectangle, the model of the shape classes.
#include "CcRoiRect.h"

#include <cstdio>

#include "core/kernel/NameCounter.h"
#include "roi/BoxTraits.h"
#include "roi/ShapeDrawing.h"

int CcRoiRect::iRectROICount = 0;

template <>
struct KestShapeTraits<CcRoiRect> : kest::BoxTraits<CcRoiRect> {
    static constexpr char className[] = "CcRoiRect";
    static constexpr char recordKey[] = "CcRoiRect::stImageRect";
    static constexpr int typeCode = KEST_ROI_RECT;
    static constexpr auto record = &CcRoiRect::stImageRect;
    static constexpr auto window = &CcRoiRect::stWindowRect;

    static void DrawRubberBand(HDC dc, const kest::IntRect& place) { kest::DrawRectangle(dc, place); }
    static void DrawOutline(HDC dc, const kest::IntRect& place) { kest::DrawRectangle(dc, place); }
    static void DrawDecoration(HDC dc, const kest::IntRect& place, CcRoiRect&) { kest::DrawEdgeHandles(dc, place); }
    /// The sides stay where the last movement left them.
    static void FinishCreation(kest::IntRect& place, kest::IntPoint mouse) { kest::KeepExtent(place, mouse); }

    static int HitTest(CcRoiRect& shape, const kest::View&, kest::IntPoint mouse) {
        const int code = kest::HitRectangle(WindowOf(shape), mouse);
        if (code != -1) shape.iHitCode = code;
        return code;
    }
    static int* ListRow(CcRoiRect& shape, int, int* count) {
        return shape.ListRange(shape.stImageRect.left, shape.stImageRect.right, count);
    }
    static int* ListColumn(CcRoiRect& shape, int, int* count) {
        return shape.ListRange(shape.stImageRect.bottom, shape.stImageRect.top, count);
    }
};

using Members = KestShapeMembers<CcRoiRect>;

CcRoiRect::CcRoiRect()
    : stImageRect{}, stWindowRect{}, stLastMouse{}, iDragMode(-1) {
    iROIType = Members::Traits::typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "Rect.%d", kest::NextNumber(iRectROICount));
}

CcRoiRect::~CcRoiRect() { kest::AbandonDrag(hDragDC, iDragMode); }

#define ROI_CLASS CcRoiRect
#include "roi/ShapeOverrides.inl"
