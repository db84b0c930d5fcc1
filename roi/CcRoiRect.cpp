// CcRoiRect: the rectangle, the model of the shape classes.
#include "CcRoiRect.h"

#include <cstdio>

#include "core/ClassName.h"
#include "core/kernel/NameCounter.h"
#include "roi/ShapeDrag.h"
#include "roi/ShapeDrawing.h"
#include "roi/ShapePlace.h"
#include "roi/ShapeRecord.h"
#include "roi/kernel/DragGeometry.h"

namespace {

constexpr kest::ShapeKind kind = {
    .className = "CcRoiRect",
    .recordKey = "CcRoiRect::stImageRect",
    .typeCode = KEST_ROI_RECT,
    .recordBytes = sizeof(RECT),
    .isNormalised = true,
    .keepsExtent = true,
    .takeCorners = kest::TakeClampedOutward,
    .windowCorners = kest::WindowCornersOf,
    .drawRubberBand = kest::DrawRectangle,
    .draw =
        [](HDC dc, const kest::IntRect& place, const char*) {
            kest::DrawRectangle(dc, place);
            kest::DrawEdgeHandles(dc, place);
        },
};

}  // namespace

int CcRoiRect::iRectROICount = 0;

CcRoiRect::CcRoiRect() : stImageRect{}, stWindowRect{}, stLastMouse{}, iDragMode(-1) {
    iROIType = kind.typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "Rect.%d", kest::NextNumber(iRectROICount));
}

CcRoiRect::~CcRoiRect() { kest::AbandonDrag(Parts().drag); }

kest::ShapeParts CcRoiRect::Parts() {
    return {kind,
            *this,
            stBoundingRect,
            stCurrentBoundingRect,
            Boundary(),
            &stImageRect,
            kest::CornersIn(stImageRect),
            kest::CornersIn(stWindowRect),
            {iZoom, iDragMode, hDragDC, stLastMouse},
            iHitCode};
}

int CcRoiRect::Load(CcObjectStorage* pStorage) { return kest::LoadShape(Parts(), pStorage); }
int CcRoiRect::Store(CcObjectStorage* pStorage) { return kest::StoreShape(Parts(), pStorage); }

int CcRoiRect::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, kind.className);
}

int CcRoiRect::Save(const char* pszFileName) { return kest::SaveShape(Parts(), pszFileName); }
int CcRoiRect::Restore(const char* pszFileName) { return kest::RestoreShape(Parts(), pszFileName); }
int CcRoiRect::SetRoiImageCord(void* pRecord) { return kest::TakeShapeRecord(Parts(), pRecord); }
void* CcRoiRect::GetRoiImageCord() { return &stImageRect; }

int CcRoiRect::StartMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                              POINT stMouse, int iNewDragMode, CcRoiBase* pSourceROI, int iNewZoom) {
    return kest::StartShapeDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iNewZoom}, stMouse,
                                iNewDragMode, pSourceROI);
}

// During a drag the zoom of its start counts.
int CcRoiRect::DoMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                           POINT stMouse, int) {
    return kest::ContinueShapeDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

int CcRoiRect::StopMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                             POINT stMouse) {
    return kest::StopShapeDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

RECT* CcRoiRect::GetCurrentBoundingRect() { return kest::CurrentShapeBounds(Parts()); }

int CcRoiRect::ShowROI(HDC hDC, RECT* pRect, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                       int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(pRect, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowShape(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiRect::ShowROI(HDC hDC, HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                       int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowShape(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiRect::ShowROI(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                       int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowShape(Parts(), hWnd, view, PenFor(iPenSelect));
}

int CcRoiRect::MouseHitTest(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                            POINT stMouse, int iTestZoom) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iTestZoom});
    if (!view) return KEST_FAILED;
    kest::MakeWindowPlace(Parts(), view);
    const int code = kest::HitRectangle(kest::ToRect(stWindowRect), kest::ToPoint(stMouse));
    if (code != -1) iHitCode = code;
    return code;
}

RECT* CcRoiRect::GetBoundingRect() { return kest::PrepareShape(Parts()); }
int* CcRoiRect::GetYBoundary(int, int* piCount) { return ListRange(stImageRect.bottom, stImageRect.top, piCount); }
int* CcRoiRect::GetXBoundary(int, int* piCount) { return ListRange(stImageRect.left, stImageRect.right, piCount); }
int CcRoiRect::UpdateImageIfNeeded(HWND, int, int, unsigned short, CcImage*, int) { return KEST_OK; }
int CcRoiRect::IsRoiAGraphicObject() { return 0; }

int CcRoiRect::SetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                int iShowZoom) {
    return kest::TakeWindowPlace(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
}

RECT* CcRoiRect::GetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                  int iShowZoom) {
    kest::MakeWindowPlace(Parts(), kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom}));
    return &stWindowRect;
}
