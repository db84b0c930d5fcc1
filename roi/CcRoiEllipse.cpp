// CcRoiEllipse: the ellipse, dragged by its bounding rectangle.
#include "CcRoiEllipse.h"

#include <cstdio>

#include "core/ClassName.h"
#include "core/kernel/NameCounter.h"
#include "core/kernel/Numbers.h"
#include "roi/ShapeDrag.h"
#include "roi/ShapeDrawing.h"
#include "roi/ShapePlace.h"
#include "roi/ShapeRecord.h"
#include "roi/kernel/EllipseExtent.h"
#include "roi/kernel/HitTest.h"

namespace {

constexpr kest::ShapeKind kind = {
    .className = "CcRoiEllipse",
    .recordKey = "CcRoiEllipse::stImageEllipse",
    .typeCode = KEST_ROI_ELLIPSE,
    .recordBytes = sizeof(RECT),
    .isNormalised = true,
    .keepsExtent = false,
    .takeCorners = kest::TakeClampedOutward,
    .windowCorners = kest::WindowCornersOf,
    // The rubber band goes one pixel further than the shown ellipse, as the rectangle's does.
    .drawRubberBand = [](HDC dc, const kest::IntRect& place) { kest::DrawEllipse(dc, place, 1); },
    .draw = [](HDC dc, const kest::IntRect& place, const char*) { kest::DrawEllipse(dc, place, 0); },
};

bool IsInside(const kest::IntRect& box, kest::RealPoint position) {
    KestSpan columns;
    const int column = kest::TruncateToInt(position.x);
    return kest::EllipseRow(box, kest::TruncateToInt(position.y), columns) && column >= columns.iFirst &&
           column <= columns.iLast;
}

}  // namespace

int CcRoiEllipse::iEllipseROICount = 0;

CcRoiEllipse::CcRoiEllipse() : stImageEllipse{}, stWindowEllipse{}, stLastMouse{}, iDragMode(-1) {
    iROIType = kind.typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "Ellipse.%d", kest::NextNumber(iEllipseROICount));
}

CcRoiEllipse::~CcRoiEllipse() { kest::AbandonDrag(Parts().drag); }

kest::ShapeParts CcRoiEllipse::Parts() {
    return {kind,
            *this,
            stBoundingRect,
            stCurrentBoundingRect,
            Boundary(),
            &stImageEllipse,
            kest::CornersIn(stImageEllipse),
            kest::CornersIn(stWindowEllipse),
            {iZoom, iDragMode, hDragDC, stLastMouse},
            iHitCode};
}

int CcRoiEllipse::Load(CcObjectStorage* pStorage) { return kest::LoadShape(Parts(), pStorage); }
int CcRoiEllipse::Store(CcObjectStorage* pStorage) { return kest::StoreShape(Parts(), pStorage); }

int CcRoiEllipse::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, kind.className);
}

int CcRoiEllipse::Save(const char* pszFileName) { return kest::SaveShape(Parts(), pszFileName); }
int CcRoiEllipse::Restore(const char* pszFileName) { return kest::RestoreShape(Parts(), pszFileName); }
int CcRoiEllipse::SetRoiImageCord(void* pRecord) { return kest::TakeShapeRecord(Parts(), pRecord); }
void* CcRoiEllipse::GetRoiImageCord() { return &stImageEllipse; }

int CcRoiEllipse::StartMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                 POINT stMouse, int iNewDragMode, CcRoiBase* pSourceROI, int iNewZoom) {
    return kest::StartShapeDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iNewZoom}, stMouse,
                                iNewDragMode, pSourceROI);
}

// During a drag the zoom of its start counts.
int CcRoiEllipse::DoMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                              POINT stMouse, int) {
    return kest::ContinueShapeDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

int CcRoiEllipse::StopMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                POINT stMouse) {
    return kest::StopShapeDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

RECT* CcRoiEllipse::GetCurrentBoundingRect() { return kest::CurrentShapeBounds(Parts()); }

int CcRoiEllipse::ShowROI(HDC hDC, RECT* pRect, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                          CcImage* pImage, int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(pRect, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowShape(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiEllipse::ShowROI(HDC hDC, HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                          int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowShape(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiEllipse::ShowROI(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                          int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowShape(Parts(), hWnd, view, PenFor(iPenSelect));
}

int CcRoiEllipse::MouseHitTest(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                               POINT stMouse, int iTestZoom) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iTestZoom});
    if (!view) return KEST_FAILED;
    kest::MakeWindowPlace(Parts(), view);
    const kest::RealPoint position = kest::WindowToImageExact(*view, kest::ToPoint(stMouse));
    int code = kest::HitEllipseHandle(kest::ToRect(stImageEllipse), position);
    if (code == -1 && GetBoundingRect() && IsInside(kest::ToRect(stImageEllipse), position)) code = 0;
    if (code != -1) iHitCode = code;
    return code;
}

RECT* CcRoiEllipse::GetBoundingRect() { return kest::PrepareShape(Parts()); }

int* CcRoiEllipse::GetYBoundary(int iColumn, int* piCount) {
    KestSpan rows = {};
    const bool isHit = kest::EllipseColumn(kest::ToRect(stImageEllipse), iColumn, rows);
    return Boundary().ListSpan(isHit, rows, piCount);
}

int* CcRoiEllipse::GetXBoundary(int iRow, int* piCount) {
    KestSpan columns = {};
    const bool isHit = kest::EllipseRow(kest::ToRect(stImageEllipse), iRow, columns);
    return Boundary().ListSpan(isHit, columns, piCount);
}

int CcRoiEllipse::UpdateImageIfNeeded(HWND, int, int, unsigned short, CcImage*, int) { return KEST_OK; }
int CcRoiEllipse::IsRoiAGraphicObject() { return 0; }

int CcRoiEllipse::SetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                   int iShowZoom) {
    return kest::TakeWindowPlace(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
}

RECT* CcRoiEllipse::GetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                                     CcImage* pImage, int iShowZoom) {
    kest::MakeWindowPlace(Parts(), kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom}));
    return &stWindowEllipse;
}
