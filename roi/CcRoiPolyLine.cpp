// CcRoiPolyLine: the open chain of straight segments. What it does stands in roi/Outline*.cpp.
#include "CcRoiPolyLine.h"

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
    .className = "CcRoiPolyLine",
    .recordKey = "CcRoiPolyLine::stImageFreeHand",
    .pointsKey = "CcRoiPolyLine::stImageFreeHand::stPOINTS",
    .typeCode = KEST_ROI_POLYLINE,
    .order = kest::RowOrder::Drawn,
    .classWide = kest::ClassWideOf<CcRoiPolyLine>(),
};

}  // namespace

int CcRoiPolyLine::iPLineROICount = 0;
POINT CcRoiPolyLine::stDrawSegStartPoint[KEST_MAX_SEGMENTS];
POINT CcRoiPolyLine::stDrawSegStopPoint[KEST_MAX_SEGMENTS];
POINT CcRoiPolyLine::stDrawSegStartPointImg[KEST_MAX_SEGMENTS];
POINT CcRoiPolyLine::stDrawSegStopPointImg[KEST_MAX_SEGMENTS];
PixelGroupTag CcRoiPolyLine::stWindowFreeHand = {};
int CcRoiPolyLine::iSizeOfWindowFreeHand = 0;
CommPerPointsPolyLineTag* CcRoiPolyLine::stXCommonPerimPoints = nullptr;
CommPerPointsPolyLineTag* CcRoiPolyLine::stYCommonPerimPoints = nullptr;
HGLOBAL CcRoiPolyLine::hstXCommonPerimPoints = nullptr;
HGLOBAL CcRoiPolyLine::hstYCommonPerimPoints = nullptr;
int CcRoiPolyLine::iSizeOfCommonPerimPointsArr = 0;
int CcRoiPolyLine::iNumOfFreeHandROIs = 0;

CcRoiPolyLine::CcRoiPolyLine() {
    iROIType = kind.typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "PolyLine.%d", kest::NextNumber(iPLineROICount));
    kest::BeginOutline(Parts());
}

CcRoiPolyLine::~CcRoiPolyLine() { kest::EndOutline(Parts()); }

kest::OutlineParts CcRoiPolyLine::Parts() {
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

int CcRoiPolyLine::Load(CcObjectStorage* pStorage) { return kest::LoadOutline(Parts(), pStorage); }
int CcRoiPolyLine::Store(CcObjectStorage* pStorage) { return kest::StoreOutline(Parts(), pStorage); }

int CcRoiPolyLine::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, kind.className);
}

int CcRoiPolyLine::Save(const char* pszFileName) { return kest::SaveOutline(Parts(), pszFileName); }
int CcRoiPolyLine::Restore(const char* pszFileName) { return kest::RestoreOutline(Parts(), pszFileName); }
int CcRoiPolyLine::SetRoiImageCord(void* pRecord) { return kest::TakeOutlineRecord(Parts(), pRecord); }
void* CcRoiPolyLine::GetRoiImageCord() { return &stImageFreeHand; }

int CcRoiPolyLine::StartMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                  POINT stMouse, int iNewDragMode, CcRoiBase* pSourceROI, int iNewZoom) {
    return kest::StartOutlineDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iNewZoom}, stMouse,
                                  iNewDragMode, pSourceROI);
}

// During a drag the zoom of its start counts.
int CcRoiPolyLine::DoMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                               POINT stMouse, int iAddVertex) {
    return kest::ContinueOutlineDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse,
                                     iAddVertex);
}

int CcRoiPolyLine::StopMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                 POINT stMouse) {
    return kest::StopOutlineDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

RECT* CcRoiPolyLine::GetCurrentBoundingRect() { return kest::CurrentOutlineBounds(Parts()); }

int CcRoiPolyLine::ShowROI(HDC hDC, RECT* pRect, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                           CcImage* pImage, int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(pRect, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowOutline(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiPolyLine::ShowROI(HDC hDC, HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                           CcImage* pImage, int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowOutline(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiPolyLine::ShowROI(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                           int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowOutline(Parts(), hWnd, view, PenFor(iPenSelect));
}

int CcRoiPolyLine::MouseHitTest(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                POINT stMouse, int iTestZoom) {
    return kest::HitOutline(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iTestZoom}, stMouse);
}

RECT* CcRoiPolyLine::GetBoundingRect() { return kest::PrepareOutline(Parts()); }

int* CcRoiPolyLine::GetYBoundary(int iColumn, int* piCount) {
    return kest::ListOutlineColumn(Parts(), iColumn, piCount);
}

int* CcRoiPolyLine::GetXBoundary(int iRow, int* piCount) { return kest::ListOutlineRow(Parts(), iRow, piCount); }
int CcRoiPolyLine::UpdateImageIfNeeded(HWND, int, int, unsigned short, CcImage*, int) { return KEST_OK; }
int CcRoiPolyLine::IsRoiAGraphicObject() { return 0; }

int CcRoiPolyLine::PrintPerimiterPointsToFile(const char* pszFileName) {
    return kest::PrintOutline(Parts(), pszFileName);
}
