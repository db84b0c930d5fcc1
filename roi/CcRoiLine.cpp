// CcRoiLine: the straight line.
#include "CcRoiLine.h"

#include <cstdio>

#include "core/kernel/NameCounter.h"
#include "roi/ShapeDrawing.h"
#include "roi/ShapeMembers.h"
#include "roi/kernel/HitTest.h"
#include "roi/kernel/LinePixels.h"

int CcRoiLine::iLineROICount = 0;

template <>
struct KestShapeTraits<CcRoiLine> {
    using Record = tagROILINE;
    using WindowRecord = tagROILINE;
    static constexpr char className[] = "CcRoiLine";
    static constexpr char recordKey[] = "CcRoiLine::stImageLine";
    static constexpr int typeCode = KEST_ROI_LINE;
    static constexpr bool isNormalised = false;
    enum HitCode { StartPoint = 5, EndPoint = 8 };

    static kest::IntRect Corners(const tagROILINE& line) {
        return {line.iStartX, line.iStartY, line.iEndX, line.iEndY};
    }
    static tagROILINE Line(const kest::IntRect& corners) {
        return {corners.left, corners.top, corners.right, corners.bottom};
    }
    static kest::IntPoint Start(const CcRoiLine& shape) { return {shape.stImageLine.iStartX, shape.stImageLine.iStartY}; }
    static kest::IntPoint End(const CcRoiLine& shape) { return {shape.stImageLine.iEndX, shape.stImageLine.iEndY}; }

    static Record& RecordOf(CcRoiLine& shape) { return shape.stImageLine; }
    static void TakeRecord(CcRoiLine& shape, const Record& record) { shape.stImageLine = record; }
    static kest::IntRect CornersOf(CcRoiLine& shape) { return Corners(shape.stImageLine); }
    static void TakeCorners(CcRoiLine& shape, const kest::View& view, const kest::IntRect& corners) {
        shape.stImageLine = Line(kest::ClampToImage(view, corners));
    }
    static kest::IntRect WindowCornersOf(CcRoiLine& shape, const kest::View& view) {
        return kest::WindowCorners(view, CornersOf(shape));
    }
    static WindowRecord& WindowRecordOf(CcRoiLine& shape) { return shape.stWindowLine; }
    static kest::IntRect WindowOf(CcRoiLine& shape) { return Corners(shape.stWindowLine); }
    static void SetWindow(CcRoiLine& shape, const kest::IntRect& place) { shape.stWindowLine = Line(place); }

    static void DrawRubberBand(HDC dc, const kest::IntRect& place) { kest::DrawLine(dc, place); }
    static void DrawOutline(HDC dc, const kest::IntRect& place) { kest::DrawLine(dc, place); }
    static void DrawDecoration(HDC, const kest::IntRect&, CcRoiLine&) {}
    static void FollowCreation(kest::IntRect& place, kest::IntPoint mouse) {
        place.right = mouse.x;
        place.bottom = mouse.y;
    }
    static void FinishCreation(kest::IntRect& place, kest::IntPoint mouse) { FollowCreation(place, mouse); }

    static int HitTest(CcRoiLine& shape, const kest::View& view, kest::IntPoint mouse) {
        const kest::IntPoint position = kest::WindowToImage(view, mouse);
        const int tolerance = kest::LineTolerance(view);
        const kest::IntPoint start = Start(shape), end = End(shape);
        int code = -1;
        if (kest::IsAnyNear({&start, 1}, position, tolerance)) {
            code = StartPoint;
        } else if (kest::IsAnyNear({&end, 1}, position, tolerance)) {
            code = EndPoint;
        } else if (shape.GetBoundingRect() && IsOnLine(start, end, position, tolerance)) {
            code = 0;
        }
        if (code != -1) shape.iHitCode = code;
        return code;
    }

    static bool IsOnLine(kest::IntPoint start, kest::IntPoint end, kest::IntPoint position, int tolerance) {
        KestSpan span;
        return (kest::LineRow(start, end, position.y, span) && kest::IsNearSpan(span, position.x, tolerance)) ||
               (kest::LineColumn(start, end, position.x, span) && kest::IsNearSpan(span, position.y, tolerance));
    }
    static int* ListRow(CcRoiLine& shape, int row, int* count) {
        KestSpan span;
        const bool isHit = kest::LineRow(Start(shape), End(shape), row, span);
        return isHit ? shape.ListRange(span.iFirst, span.iLast, count) : shape.ListNothing(count);
    }
    static int* ListColumn(CcRoiLine& shape, int column, int* count) {
        KestSpan span;
        const bool isHit = kest::LineColumn(Start(shape), End(shape), column, span);
        return isHit ? shape.ListRange(span.iFirst, span.iLast, count) : shape.ListNothing(count);
    }
};

using Members = KestShapeMembers<CcRoiLine>;

CcRoiLine::CcRoiLine()
    : stImageLine{}, stWindowLine{}, stLastMouse{}, iDragMode(-1) {
    iROIType = Members::Traits::typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "Line.%d", kest::NextNumber(iLineROICount));
}

CcRoiLine::~CcRoiLine() { kest::AbandonDrag(hDragDC, iDragMode); }

#define ROI_CLASS CcRoiLine
#include "roi/ShapeOverrides.inl"
