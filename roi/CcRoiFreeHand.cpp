// CcRoiFreeHand: the closed outline drawn freely. What it does stands in roi/Outline*.cpp.
#include "CcRoiFreeHand.h"

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
    .className = "CcRoiFreeHand",
    .recordKey = "CcRoiFreeHand::stImageFreeHand",
    .pointsKey = "CcRoiFreeHand::stImageFreeHand::stPOINTS",
    .typeCode = KEST_ROI_FREEHAND,
    .order = kest::RowOrder::Filled,
    .classWide = kest::ClassWideOf<CcRoiFreeHand>(),
};

}  // namespace

int CcRoiFreeHand::iFreehandROICount = 0;
POINT CcRoiFreeHand::stDrawSegStartPoint[KEST_MAX_SEGMENTS];
POINT CcRoiFreeHand::stDrawSegStopPoint[KEST_MAX_SEGMENTS];
POINT CcRoiFreeHand::stDrawSegStartPointImg[KEST_MAX_SEGMENTS];
POINT CcRoiFreeHand::stDrawSegStopPointImg[KEST_MAX_SEGMENTS];
PixelGroupTag CcRoiFreeHand::stWindowFreeHand = {};
int CcRoiFreeHand::iSizeOfWindowFreeHand = 0;
CommPerPointsTag* CcRoiFreeHand::stXCommonPerimPoints = nullptr;
CommPerPointsTag* CcRoiFreeHand::stYCommonPerimPoints = nullptr;
HGLOBAL CcRoiFreeHand::hstXCommonPerimPoints = nullptr;
HGLOBAL CcRoiFreeHand::hstYCommonPerimPoints = nullptr;
int CcRoiFreeHand::iSizeOfCommonPerimPointsArr = 0;
int CcRoiFreeHand::iNumOfFreeHandROIs = 0;

CcRoiFreeHand::CcRoiFreeHand() {
    iROIType = kind.typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "Freehand.%d", kest::NextNumber(iFreehandROICount));
    kest::BeginOutline(Parts());
}

CcRoiFreeHand::~CcRoiFreeHand() { kest::EndOutline(Parts()); }

kest::OutlineParts CcRoiFreeHand::Parts() {
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

int CcRoiFreeHand::Load(CcObjectStorage* pStorage) { return kest::LoadOutline(Parts(), pStorage); }
int CcRoiFreeHand::Store(CcObjectStorage* pStorage) { return kest::StoreOutline(Parts(), pStorage); }

int CcRoiFreeHand::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, kind.className);
}

int CcRoiFreeHand::Save(const char* pszFileName) { return kest::SaveOutline(Parts(), pszFileName); }
int CcRoiFreeHand::Restore(const char* pszFileName) { return kest::RestoreOutline(Parts(), pszFileName); }
int CcRoiFreeHand::SetRoiImageCord(void* pRecord) { return kest::TakeOutlineRecord(Parts(), pRecord); }
void* CcRoiFreeHand::GetRoiImageCord() { return &stImageFreeHand; }

int CcRoiFreeHand::StartMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                  POINT stMouse, int iNewDragMode, CcRoiBase* pSourceROI, int iNewZoom) {
    return kest::StartOutlineDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iNewZoom}, stMouse,
                                  iNewDragMode, pSourceROI);
}

// During a drag the zoom of its start counts.
int CcRoiFreeHand::DoMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                               POINT stMouse, int iAddVertex) {
    return kest::ContinueOutlineDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse,
                                     iAddVertex);
}

int CcRoiFreeHand::StopMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                 POINT stMouse) {
    return kest::StopOutlineDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

RECT* CcRoiFreeHand::GetCurrentBoundingRect() { return kest::CurrentOutlineBounds(Parts()); }

int CcRoiFreeHand::ShowROI(HDC hDC, RECT* pRect, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                           CcImage* pImage, int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(pRect, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowOutline(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiFreeHand::ShowROI(HDC hDC, HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                           CcImage* pImage, int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowOutline(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiFreeHand::ShowROI(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                           int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowOutline(Parts(), hWnd, view, PenFor(iPenSelect));
}

int CcRoiFreeHand::MouseHitTest(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                POINT stMouse, int iTestZoom) {
    return kest::HitOutline(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iTestZoom}, stMouse);
}

RECT* CcRoiFreeHand::GetBoundingRect() { return kest::PrepareOutline(Parts()); }

int* CcRoiFreeHand::GetYBoundary(int iColumn, int* piCount) {
    return kest::ListOutlineColumn(Parts(), iColumn, piCount);
}

int* CcRoiFreeHand::GetXBoundary(int iRow, int* piCount) { return kest::ListOutlineRow(Parts(), iRow, piCount); }
int CcRoiFreeHand::UpdateImageIfNeeded(HWND, int, int, unsigned short, CcImage*, int) { return KEST_OK; }
int CcRoiFreeHand::IsRoiAGraphicObject() { return 0; }

int CcRoiFreeHand::PrintPerimiterPointsToFile(const char* pszFileName) {
    return kest::PrintOutline(Parts(), pszFileName);
}
