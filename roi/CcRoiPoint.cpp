// CcRoiPoint: the point, kept within a pixel as far as its coordinates are set and not dragged.
#include "CcRoiPoint.h"

#include <cstdio>

#include "core/ClassName.h"
#include "core/kernel/NameCounter.h"
#include "core/kernel/Numbers.h"
#include "roi/ShapeDrag.h"
#include "roi/ShapeDrawing.h"
#include "roi/ShapePlace.h"
#include "roi/ShapeRecord.h"
#include "roi/kernel/HitTest.h"

namespace {

kest::RealPoint PositionOf(const tagPoints& record) { return {record.x, record.y}; }
POINT PixelOf(const tagPoints& record) { return {kest::TruncateToInt(record.x), kest::TruncateToInt(record.y)}; }

/// A drag takes whole pixels.
void TakePixel(const kest::ShapeParts& shape, const kest::View& view, const kest::IntRect& corners) {
    const kest::IntRect clamped = kest::ClampToImage(view, corners);
    auto& record = *static_cast<tagPoints*>(shape.record);
    record = {static_cast<float>(clamped.left), static_cast<float>(clamped.top)};
    shape.image.first = PixelOf(record);
}

kest::IntRect WindowCorners(const kest::ShapeParts& shape, const kest::View& view) {
    const kest::IntPoint window = kest::ImageToWindow(view, PositionOf(*static_cast<const tagPoints*>(shape.record)));
    return {window.x, window.y, window.x, window.y};
}

constexpr kest::ShapeKind kind = {
    .className = "CcRoiPoint",
    .recordKey = "CcRoiPoint::stSubPixelImagePoint",
    .typeCode = KEST_ROI_POINT,
    .recordBytes = sizeof(tagPoints),
    .isNormalised = false,
    .keepsExtent = false,
    .takeCorners = TakePixel,
    .windowCorners = WindowCorners,
    .drawRubberBand = kest::DrawPointMark,
    .draw =
        [](HDC dc, const kest::IntRect& place, const char* name) {
            kest::DrawPointMark(dc, place);
            kest::DrawName(dc, place, name);
        },
};

}  // namespace

int CcRoiPoint::iPointROICount = 0;

CcRoiPoint::CcRoiPoint()
    : stSubPixelImagePoint{}, stImagePoint{}, stWindowPoint{}, stLastMouse{}, iDragMode(-1), iBoundaryEntry(0) {
    iROIType = kind.typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "P.%d", kest::NextNumber(iPointROICount));
}

CcRoiPoint::~CcRoiPoint() { kest::AbandonDrag(Parts().drag); }

kest::ShapeParts CcRoiPoint::Parts() {
    return {kind,
            *this,
            stBoundingRect,
            stCurrentBoundingRect,
            Boundary(),
            &stSubPixelImagePoint,
            {stImagePoint, stImagePoint},
            {stWindowPoint, stWindowPoint},
            {iZoom, iDragMode, hDragDC, stLastMouse},
            iHitCode};
}

int CcRoiPoint::Load(CcObjectStorage* pStorage) { return kest::LoadShape(Parts(), pStorage); }
int CcRoiPoint::Store(CcObjectStorage* pStorage) { return kest::StoreShape(Parts(), pStorage); }

int CcRoiPoint::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, kind.className);
}

int CcRoiPoint::Save(const char* pszFileName) { return kest::SaveShape(Parts(), pszFileName); }
int CcRoiPoint::Restore(const char* pszFileName) { return kest::RestoreShape(Parts(), pszFileName); }

int CcRoiPoint::SetRoiImageCord(void* pRecord) {
    if (kest::TakeShapeRecord(Parts(), pRecord) < 0) return KEST_FAILED;
    stImagePoint = PixelOf(stSubPixelImagePoint);
    return KEST_OK;
}

void* CcRoiPoint::GetRoiImageCord() { return &stSubPixelImagePoint; }

int CcRoiPoint::StartMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                               POINT stMouse, int iNewDragMode, CcRoiBase* pSourceROI, int iNewZoom) {
    return kest::StartShapeDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iNewZoom}, stMouse,
                                iNewDragMode, pSourceROI);
}

// During a drag the zoom of its start counts.
int CcRoiPoint::DoMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                            POINT stMouse, int) {
    return kest::ContinueShapeDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

int CcRoiPoint::StopMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                              POINT stMouse) {
    return kest::StopShapeDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

RECT* CcRoiPoint::GetCurrentBoundingRect() { return kest::CurrentShapeBounds(Parts()); }

int CcRoiPoint::ShowROI(HDC hDC, RECT* pRect, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                        int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(pRect, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowShape(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiPoint::ShowROI(HDC hDC, HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                        int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowShape(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiPoint::ShowROI(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                        int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowShape(Parts(), hWnd, view, PenFor(iPenSelect));
}

int CcRoiPoint::MouseHitTest(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                             POINT stMouse, int iTestZoom) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iTestZoom});
    if (!view) return KEST_FAILED;
    kest::MakeWindowPlace(Parts(), view);
    // The zoom counts whatever the display mode: at 0 the point is under every mouse position, below 0 under none.
    const double tolerance = 5.0 / view->zoom;
    const kest::RealPoint position = kest::WindowToImageExact(*view, kest::ToPoint(stMouse));
    return kest::IsNear(PositionOf(stSubPixelImagePoint), position, tolerance) ? 0 : -1;
}

RECT* CcRoiPoint::GetBoundingRect() { return kest::PrepareShape(Parts()); }

int* CcRoiPoint::GetYBoundary(int iColumn, int* piCount) {
    if (!Boundary().PrepareCopy()) return kest::ListFailed(piCount);
    if (!piCount || iColumn != stImagePoint.x) return kest::ListNothing(piCount);
    iBoundaryEntry = stImagePoint.y;
    *piCount = 1;
    return &iBoundaryEntry;
}

int* CcRoiPoint::GetXBoundary(int iRow, int* piCount) {
    if (!Boundary().PrepareCopy()) return kest::ListFailed(piCount);
    if (!piCount || iRow != stImagePoint.y) return kest::ListNothing(piCount);
    iBoundaryEntry = stImagePoint.x;
    *piCount = 1;
    return &iBoundaryEntry;
}

int CcRoiPoint::UpdateImageIfNeeded(HWND, int, int, unsigned short, CcImage*, int) { return KEST_OK; }
int CcRoiPoint::IsRoiAGraphicObject() { return 0; }

int CcRoiPoint::SetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                 int iShowZoom) {
    return kest::TakeWindowPlace(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
}

POINT* CcRoiPoint::GetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                                    CcImage* pImage, int iShowZoom) {
    kest::MakeWindowPlace(Parts(), kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom}));
    return &stWindowPoint;
}
