// CcRoiRect: the rectangle, the model of the shape classes.
#include "CcRoiRect.h"

#include <algorithm>
#include <cstdio>

#include "roi/ShapeDrawing.h"
#include "roi/ShapeMembers.h"

int CcRoiRect::iRectROICount = 0;

template <>
struct KestShapeTraits<CcRoiRect> {
    using Record = RECT;
    static constexpr char className[] = "CcRoiRect";
    static constexpr char recordKey[] = "CcRoiRect::stImageRect";
    static constexpr int typeCode = KEST_ROI_RECT;
    static constexpr bool isNormalised = true;

    static const Record& RecordOf(const CcRoiRect& shape) { return shape.stImageRect; }
    static kest::IntRect CornersOf(const CcRoiRect& shape) { return kest::ToRect(shape.stImageRect); }
    /// Clamps outward only: a top below the image or a left beyond it is kept.
    static void TakeCorners(CcRoiRect& shape, const kest::View& view, const kest::IntRect& corners) {
        shape.stImageRect = {std::max(corners.left, 0), std::min(corners.top, view.imageHeight - 1),
                             std::min(corners.right, view.imageWidth - 1), std::max(corners.bottom, 0)};
    }
    static kest::IntRect WindowOf(const CcRoiRect& shape) { return kest::ToRect(shape.stWindowRect); }
    static void SetWindow(CcRoiRect& shape, const kest::IntRect& place) { shape.stWindowRect = kest::FromRect(place); }

    static void DrawOutline(HDC dc, const kest::IntRect& place) { kest::DrawRectangle(dc, place); }
    static void DrawDecoration(HDC dc, const kest::IntRect& place, CcRoiRect&) { kest::DrawEdgeHandles(dc, place); }
    static void FollowCreation(kest::IntRect& place, kest::IntPoint mouse) {
        place.right = mouse.x;
        place.bottom = mouse.y;
    }
    /// The sides stay where the last movement left them.
    static void FinishCreation(kest::IntRect& place, kest::IntPoint mouse) { kest::KeepExtent(place, mouse); }
};

using Members = KestShapeMembers<CcRoiRect>;
using Traits = KestShapeTraits<CcRoiRect>;

CcRoiRect::CcRoiRect()
    : stImageRect{}, stWindowRect{}, stLastMouse{}, hDragDC(nullptr), iDragMode(-1), hDragWindow(nullptr) {
    iROIType = Traits::typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "Rect.%d", ++iRectROICount);
}

CcRoiRect::~CcRoiRect() { Members::Abandon(*this); }

int CcRoiRect::Load(CcObjectStorage* pStorage) { return Members::Load(*this, pStorage); }
int CcRoiRect::Store(CcObjectStorage* pStorage) { return Members::Store(*this, pStorage); }
int CcRoiRect::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, Traits::className);
}
int CcRoiRect::Save(const char* pszFileName) { return Members::Save(*this, pszFileName); }
int CcRoiRect::Restore(const char* pszFileName) { return Members::Restore(*this, pszFileName); }

int CcRoiRect::SetRoiImageCord(void* pRecord) {
    if (!pRecord) return KEST_FAILED;
    std::memcpy(&stImageRect, pRecord, sizeof stImageRect);
    return KEST_OK;
}

void* CcRoiRect::GetRoiImageCord() { return &stImageRect; }

int CcRoiRect::SetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                int iShowZoom) {
    return Members::TakeWindowCorners(*this, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
}

RECT* CcRoiRect::GetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                  int iShowZoom) {
    Members::MakeWindowCorners(*this, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return &stWindowRect;
}

int CcRoiRect::StartMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                              POINT stMouse, int iNewDragMode, CcRoiBase* pSourceROI, int iNewZoom) {
    return Members::StartDrag(*this, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iNewZoom}, stMouse, iNewDragMode,
                              pSourceROI);
}

int CcRoiRect::DoMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                           POINT stMouse, int) {
    return Members::ContinueDrag(*this, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

int CcRoiRect::StopMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                             POINT stMouse) {
    return Members::StopDrag(*this, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

RECT* CcRoiRect::GetCurrentBoundingRect() {
    stCurrentBoundingRect = stImageRect;
    return &stCurrentBoundingRect;
}

int CcRoiRect::ShowROI(HDC hDC, RECT* pRect, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                       int iShowZoom, int iPenSelect) {
    return Members::Show(*this, hDC, pRect, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom}, iPenSelect);
}

int CcRoiRect::ShowROI(HDC hDC, HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                       int iShowZoom, int iPenSelect) {
    return Members::Show(*this, hDC, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom}, iPenSelect);
}

int CcRoiRect::ShowROI(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                       int iShowZoom, int iPenSelect) {
    return Members::Show(*this, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom}, iPenSelect);
}

int CcRoiRect::MouseHitTest(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                            POINT stMouse, int iTestZoom) {
    kest::View view;
    const kest::DisplayArguments display = {iXOffset, iYOffset, usDisplayMode, pImage, iTestZoom};
    if (!display.MakeView(hWnd, view)) return KEST_FAILED;
    Members::MakeWindowCorners(*this, view);
    const int code = kest::HitRectangle(Traits::WindowOf(*this), kest::ToPoint(stMouse));
    if (code != -1) iHitCode = code;
    return code;
}

RECT* CcRoiRect::GetBoundingRect() {
    stBoundingRect = stImageRect;
    return SizeBoundary() ? &stBoundingRect : nullptr;
}

int* CcRoiRect::GetYBoundary(int, int* piCount) {
    return ListRange(stImageRect.bottom, stImageRect.top, piCount);
}

int* CcRoiRect::GetXBoundary(int, int* piCount) {
    return ListRange(stImageRect.left, stImageRect.right, piCount);
}

int CcRoiRect::UpdateImageIfNeeded(HWND, int, int, unsigned short, CcImage*, int) { return KEST_OK; }
int CcRoiRect::IsRoiAGraphicObject() { return 0; }
