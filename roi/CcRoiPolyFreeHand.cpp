// CcRoiPolyFreeHand: the closed polygon. What it does stands in roi/Outline*.cpp.
#include "CcRoiPolyFreeHand.h"

#include <cstdio>

#include "core/ClassName.h"
#include "core/kernel/NameCounter.h"
#include "roi/OutlineDrag.h"
#include "roi/OutlineDrawing.h"
#include "roi/OutlineLife.h"
#include "roi/OutlineQueries.h"
#include "roi/OutlineRecord.h"

namespace {

constexpr kest::OutlineKind kind = {
    .className = "CcRoiPolyFreeHand",
    .recordKey = "CcRoiPolyFreeHand::stImageFreeHand",
    .pointsKey = "CcRoiPolyFreeHand::stImageFreeHand::stPOINTS",
    .typeCode = KEST_ROI_POLYFREEHAND,
    .order = kest::RowOrder::Filled,
    .classWide = kest::ClassWideOf<CcRoiPolyFreeHand>(),
};

}  // namespace

int CcRoiPolyFreeHand::iPFreeROICount = 0;
POINT CcRoiPolyFreeHand::stDrawSegStartPoint[KEST_MAX_SEGMENTS];
POINT CcRoiPolyFreeHand::stDrawSegStopPoint[KEST_MAX_SEGMENTS];
POINT CcRoiPolyFreeHand::stDrawSegStartPointImg[KEST_MAX_SEGMENTS];
POINT CcRoiPolyFreeHand::stDrawSegStopPointImg[KEST_MAX_SEGMENTS];
PixelGroupTag CcRoiPolyFreeHand::stWindowFreeHand = {};
int CcRoiPolyFreeHand::iSizeOfWindowFreeHand = 0;
CommPerPolyPointsTag* CcRoiPolyFreeHand::stXCommonPerimPoints = nullptr;
CommPerPolyPointsTag* CcRoiPolyFreeHand::stYCommonPerimPoints = nullptr;
HGLOBAL CcRoiPolyFreeHand::hstXCommonPerimPoints = nullptr;
HGLOBAL CcRoiPolyFreeHand::hstYCommonPerimPoints = nullptr;
int CcRoiPolyFreeHand::iSizeOfCommonPerimPointsArr = 0;
int CcRoiPolyFreeHand::iNumOfFreeHandROIs = 0;

CcRoiPolyFreeHand::CcRoiPolyFreeHand() {
    iROIType = kind.typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "PolyFree.%d", kest::NextNumber(iPFreeROICount));
    kest::BeginOutline(Parts());
}

CcRoiPolyFreeHand::~CcRoiPolyFreeHand() { kest::EndOutline(Parts()); }

kest::OutlineParts CcRoiPolyFreeHand::Parts() {
    return {kind,
            *this,
            stBoundingRect,
            stCurrentBoundingRect,
            Boundary(),
            stImageFreeHand,
            hPoints,
            stQueries,
            {iZoom, iDragMode, hDragDC, stLastMouse},
            stLastMouseImg,
            iSegIndex};
}

int CcRoiPolyFreeHand::Load(CcObjectStorage* pStorage) { return kest::LoadOutline(Parts(), pStorage); }
int CcRoiPolyFreeHand::Store(CcObjectStorage* pStorage) { return kest::StoreOutline(Parts(), pStorage); }

int CcRoiPolyFreeHand::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, kind.className);
}

int CcRoiPolyFreeHand::Save(const char* pszFileName) { return kest::SaveOutline(Parts(), pszFileName); }
int CcRoiPolyFreeHand::Restore(const char* pszFileName) { return kest::RestoreOutline(Parts(), pszFileName); }
int CcRoiPolyFreeHand::SetRoiImageCord(void* pRecord) { return kest::TakeOutlineRecord(Parts(), pRecord); }
void* CcRoiPolyFreeHand::GetRoiImageCord() { return &stImageFreeHand; }

int CcRoiPolyFreeHand::StartMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                                      CcImage* pImage, POINT stMouse, int iNewDragMode, CcRoiBase* pSourceROI,
                                      int iNewZoom) {
    return kest::StartOutlineDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iNewZoom}, stMouse,
                                  iNewDragMode, pSourceROI);
}

// During a drag the zoom of its start counts.
int CcRoiPolyFreeHand::DoMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                   POINT stMouse, int iAddVertex) {
    return kest::ContinueOutlineDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse,
                                     iAddVertex);
}

int CcRoiPolyFreeHand::StopMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                                     CcImage* pImage, POINT stMouse) {
    return kest::StopOutlineDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

RECT* CcRoiPolyFreeHand::GetCurrentBoundingRect() { return kest::CurrentOutlineBounds(Parts()); }

int CcRoiPolyFreeHand::ShowROI(HDC hDC, RECT* pRect, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                               CcImage* pImage, int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(pRect, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowOutline(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiPolyFreeHand::ShowROI(HDC hDC, HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                               CcImage* pImage, int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowOutline(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiPolyFreeHand::ShowROI(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                               int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowOutline(Parts(), hWnd, view, PenFor(iPenSelect));
}

int CcRoiPolyFreeHand::MouseHitTest(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                                    CcImage* pImage, POINT stMouse, int iTestZoom) {
    return kest::HitOutline(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iTestZoom}, stMouse);
}

RECT* CcRoiPolyFreeHand::GetBoundingRect() { return kest::PrepareOutline(Parts()); }

int* CcRoiPolyFreeHand::GetYBoundary(int iColumn, int* piCount) {
    return kest::ListOutlineColumn(Parts(), iColumn, piCount);
}

int* CcRoiPolyFreeHand::GetXBoundary(int iRow, int* piCount) { return kest::ListOutlineRow(Parts(), iRow, piCount); }
int CcRoiPolyFreeHand::UpdateImageIfNeeded(HWND, int, int, unsigned short, CcImage*, int) { return KEST_OK; }
int CcRoiPolyFreeHand::IsRoiAGraphicObject() { return 0; }

int CcRoiPolyFreeHand::PrintPerimiterPointsToFile(const char* pszFileName) {
    return kest::PrintOutline(Parts(), pszFileName);
}
