// CcRoiPoint: the point, kept within a pixel as far as its coordinates are set and not dragged.
#include "CcRoiPoint.h"

#include <cstdio>

#include "core/kernel/NameCounter.h"
#include "core/kernel/Numbers.h"
#include "roi/ShapeDrawing.h"
#include "roi/ShapeMembers.h"
#include "roi/kernel/HitTest.h"

int CcRoiPoint::iPointROICount = 0;

template <>
struct KestShapeTraits<CcRoiPoint> {
    using Record = tagPoints;
    using WindowRecord = POINT;
    static constexpr char className[] = "CcRoiPoint";
    static constexpr char recordKey[] = "CcRoiPoint::stSubPixelImagePoint";
    static constexpr int typeCode = KEST_ROI_POINT;
    static constexpr bool isNormalised = false;

    static kest::RealPoint Position(const CcRoiPoint& shape) {
        return {shape.stSubPixelImagePoint.x, shape.stSubPixelImagePoint.y};
    }

    static Record& RecordOf(CcRoiPoint& shape) { return shape.stSubPixelImagePoint; }
    static void TakeRecord(CcRoiPoint& shape, const Record& record) {
        shape.stSubPixelImagePoint = record;
        shape.stImagePoint = {kest::TruncateToInt(record.x), kest::TruncateToInt(record.y)};
    }
    static kest::IntRect CornersOf(CcRoiPoint& shape) {
        const POINT pixel = shape.stImagePoint;
        return {pixel.x, pixel.y, pixel.x, pixel.y};
    }
    static void TakeCorners(CcRoiPoint& shape, const kest::View& view, const kest::IntRect& corners) {
        const kest::IntRect clamped = kest::ClampToImage(view, corners);
        TakeRecord(shape, {static_cast<float>(clamped.left), static_cast<float>(clamped.top)});
    }
    static kest::IntRect WindowCornersOf(CcRoiPoint& shape, const kest::View& view) {
        const kest::IntPoint window = kest::ImageToWindow(view, Position(shape));
        return {window.x, window.y, window.x, window.y};
    }
    static WindowRecord& WindowRecordOf(CcRoiPoint& shape) { return shape.stWindowPoint; }
    static kest::IntRect WindowOf(CcRoiPoint& shape) {
        const POINT window = shape.stWindowPoint;
        return {window.x, window.y, window.x, window.y};
    }
    static void SetWindow(CcRoiPoint& shape, const kest::IntRect& place) {
        shape.stWindowPoint = {place.left, place.top};
    }

    static void DrawRubberBand(HDC dc, const kest::IntRect& place) { kest::DrawPointMark(dc, place); }
    static void DrawOutline(HDC dc, const kest::IntRect& place) { kest::DrawPointMark(dc, place); }
    static void DrawDecoration(HDC dc, const kest::IntRect& place, CcRoiPoint& shape) {
        kest::DrawName(dc, place, shape.GetName());
    }
    static void FollowCreation(kest::IntRect& place, kest::IntPoint mouse) {
        place = {mouse.x, mouse.y, mouse.x, mouse.y};
    }
    static void FinishCreation(kest::IntRect& place, kest::IntPoint mouse) { FollowCreation(place, mouse); }

    /// The zoom counts whatever the display mode: at 0 the point is under every mouse position, below 0 under none.
    static int HitTest(CcRoiPoint& shape, const kest::View& view, kest::IntPoint mouse) {
        const double tolerance = 5.0 / view.zoom;
        return kest::IsNear(Position(shape), kest::WindowToImageExact(view, mouse), tolerance) ? 0 : -1;
    }
    static int* ListEntry(CcRoiPoint& shape, bool isHit, int entry, int* count) {
        if (!isHit || !count) return shape.ListNothing(count);
        shape.iBoundaryEntry = entry;
        *count = 1;
        return &shape.iBoundaryEntry;
    }
    static int* ListRow(CcRoiPoint& shape, int row, int* count) {
        return ListEntry(shape, row == shape.stImagePoint.y, shape.stImagePoint.x, count);
    }
    static int* ListColumn(CcRoiPoint& shape, int column, int* count) {
        return ListEntry(shape, column == shape.stImagePoint.x, shape.stImagePoint.y, count);
    }
};

using Members = KestShapeMembers<CcRoiPoint>;

CcRoiPoint::CcRoiPoint()
    : stSubPixelImagePoint{}, stImagePoint{}, stWindowPoint{}, stLastMouse{}, iDragMode(-1), iBoundaryEntry(0) {
    iROIType = Members::Traits::typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "P.%d", kest::NextNumber(iPointROICount));
}

CcRoiPoint::~CcRoiPoint() { kest::AbandonDrag(hDragDC, iDragMode); }

#define ROI_CLASS CcRoiPoint
#include "roi/ShapeOverrides.inl"
