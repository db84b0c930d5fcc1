// CcRoiEllipse: the ellipse, dragged by its bounding rectangle.
#include "CcRoiEllipse.h"

#include <cstdio>

#include "core/kernel/NameCounter.h"
#include "core/kernel/Numbers.h"
#include "roi/BoxTraits.h"
#include "roi/ShapeDrawing.h"
#include "roi/kernel/EllipseExtent.h"
#include "roi/kernel/HitTest.h"

int CcRoiEllipse::iEllipseROICount = 0;

template <>
struct KestShapeTraits<CcRoiEllipse> : kest::BoxTraits<CcRoiEllipse> {
    static constexpr char className[] = "CcRoiEllipse";
    static constexpr char recordKey[] = "CcRoiEllipse::stImageEllipse";
    static constexpr int typeCode = KEST_ROI_ELLIPSE;
    static constexpr auto record = &CcRoiEllipse::stImageEllipse;
    static constexpr auto window = &CcRoiEllipse::stWindowEllipse;

    /// The rubber band goes one pixel further than the shown ellipse, as the rectangle's does.
    static void DrawRubberBand(HDC dc, const kest::IntRect& place) { kest::DrawEllipse(dc, place, 1); }
    static void DrawOutline(HDC dc, const kest::IntRect& place) { kest::DrawEllipse(dc, place, 0); }
    static void DrawDecoration(HDC, const kest::IntRect&, CcRoiEllipse&) {}
    static void FinishCreation(kest::IntRect& place, kest::IntPoint mouse) { FollowCreation(place, mouse); }

    static int HitTest(CcRoiEllipse& shape, const kest::View& view, kest::IntPoint mouse) {
        const kest::RealPoint position = kest::WindowToImageExact(view, mouse);
        int code = kest::HitEllipseHandle(CornersOf(shape), position);
        if (code == -1 && IsInside(shape, position)) code = 0;
        if (code != -1) shape.iHitCode = code;
        return code;
    }
    static bool IsInside(CcRoiEllipse& shape, kest::RealPoint position) {
        KestSpan columns;
        const int column = kest::TruncateToInt(position.x);
        return shape.GetBoundingRect() && kest::EllipseRow(CornersOf(shape), kest::TruncateToInt(position.y), columns) &&
               column >= columns.iFirst && column <= columns.iLast;
    }
    static int* ListRow(CcRoiEllipse& shape, int row, int* count) {
        KestSpan span;
        const bool isHit = kest::EllipseRow(CornersOf(shape), row, span);
        return isHit ? shape.ListRange(span.iFirst, span.iLast, count) : shape.ListNothing(count);
    }
    static int* ListColumn(CcRoiEllipse& shape, int column, int* count) {
        KestSpan span;
        const bool isHit = kest::EllipseColumn(CornersOf(shape), column, span);
        return isHit ? shape.ListRange(span.iFirst, span.iLast, count) : shape.ListNothing(count);
    }
};

using Members = KestShapeMembers<CcRoiEllipse>;

CcRoiEllipse::CcRoiEllipse()
    : stImageEllipse{}, stWindowEllipse{}, stLastMouse{}, iDragMode(-1) {
    iROIType = Members::Traits::typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "Ellipse.%d", kest::NextNumber(iEllipseROICount));
}

CcRoiEllipse::~CcRoiEllipse() { kest::AbandonDrag(hDragDC, iDragMode); }

#define ROI_CLASS CcRoiEllipse
#include "roi/ShapeOverrides.inl"
