// CcRoiFreeHandLine: the open line drawn freely. What it does stands in roi/Outline*.cpp.
#include "CcRoiFreeHandLine.h"

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
    .className = "CcRoiFreeHandLine",
    .recordKey = "CcRoiFreeHandLine::stImageFreeHand",
    .pointsKey = "CcRoiFreeHandLine::stImageFreeHand::stPOINTS",
    .typeCode = KEST_ROI_FREEHANDLINE,
    .order = kest::RowOrder::Ascending,
    .classWide = kest::ClassWideOf<CcRoiFreeHandLine>(),
};

}  // namespace

int CcRoiFreeHandLine::iFLineROICount = 0;
POINT CcRoiFreeHandLine::stDrawSegStartPoint[KEST_MAX_SEGMENTS];
POINT CcRoiFreeHandLine::stDrawSegStopPoint[KEST_MAX_SEGMENTS];
POINT CcRoiFreeHandLine::stDrawSegStartPointImg[KEST_MAX_SEGMENTS];
POINT CcRoiFreeHandLine::stDrawSegStopPointImg[KEST_MAX_SEGMENTS];
PixelGroupTag CcRoiFreeHandLine::stWindowFreeHand = {};
int CcRoiFreeHandLine::iSizeOfWindowFreeHand = 0;
CommPerPointsLineTag* CcRoiFreeHandLine::stXCommonPerimPoints = nullptr;
CommPerPointsLineTag* CcRoiFreeHandLine::stYCommonPerimPoints = nullptr;
HGLOBAL CcRoiFreeHandLine::hstXCommonPerimPoints = nullptr;
HGLOBAL CcRoiFreeHandLine::hstYCommonPerimPoints = nullptr;
int CcRoiFreeHandLine::iSizeOfCommonPerimPointsArr = 0;
int CcRoiFreeHandLine::iNumOfFreeHandROIs = 0;

CcRoiFreeHandLine::CcRoiFreeHandLine() {
    iROIType = kind.typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "FreeLine.%d", kest::NextNumber(iFLineROICount));
    kest::BeginOutline(Parts());
}

CcRoiFreeHandLine::~CcRoiFreeHandLine() { kest::EndOutline(Parts()); }

kest::OutlineParts CcRoiFreeHandLine::Parts() {
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

int CcRoiFreeHandLine::Load(CcObjectStorage* pStorage) { return kest::LoadOutline(Parts(), pStorage); }
int CcRoiFreeHandLine::Store(CcObjectStorage* pStorage) { return kest::StoreOutline(Parts(), pStorage); }

int CcRoiFreeHandLine::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, kind.className);
}

int CcRoiFreeHandLine::Save(const char* pszFileName) { return kest::SaveOutline(Parts(), pszFileName); }
int CcRoiFreeHandLine::Restore(const char* pszFileName) { return kest::RestoreOutline(Parts(), pszFileName); }
int CcRoiFreeHandLine::SetRoiImageCord(void* pRecord) { return kest::TakeOutlineRecord(Parts(), pRecord); }
void* CcRoiFreeHandLine::GetRoiImageCord() { return &stImageFreeHand; }

int CcRoiFreeHandLine::StartMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                                      CcImage* pImage, POINT stMouse, int iNewDragMode, CcRoiBase* pSourceROI,
                                      int iNewZoom) {
    return kest::StartOutlineDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iNewZoom}, stMouse,
                                  iNewDragMode, pSourceROI);
}

// During a drag the zoom of its start counts.
int CcRoiFreeHandLine::DoMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                   POINT stMouse, int iAddVertex) {
    return kest::ContinueOutlineDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse,
                                     iAddVertex);
}

int CcRoiFreeHandLine::StopMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                                     CcImage* pImage, POINT stMouse) {
    return kest::StopOutlineDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

RECT* CcRoiFreeHandLine::GetCurrentBoundingRect() { return kest::CurrentOutlineBounds(Parts()); }

int CcRoiFreeHandLine::ShowROI(HDC hDC, RECT* pRect, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                               CcImage* pImage, int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(pRect, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowOutline(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiFreeHandLine::ShowROI(HDC hDC, HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                               CcImage* pImage, int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowOutline(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiFreeHandLine::ShowROI(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                               int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowOutline(Parts(), hWnd, view, PenFor(iPenSelect));
}

int CcRoiFreeHandLine::MouseHitTest(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                                    CcImage* pImage, POINT stMouse, int iTestZoom) {
    return kest::HitOutline(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iTestZoom}, stMouse);
}

RECT* CcRoiFreeHandLine::GetBoundingRect() { return kest::PrepareOutline(Parts()); }

int* CcRoiFreeHandLine::GetYBoundary(int iColumn, int* piCount) {
    return kest::ListOutlineColumn(Parts(), iColumn, piCount);
}

int* CcRoiFreeHandLine::GetXBoundary(int iRow, int* piCount) { return kest::ListOutlineRow(Parts(), iRow, piCount); }
int CcRoiFreeHandLine::UpdateImageIfNeeded(HWND, int, int, unsigned short, CcImage*, int) { return KEST_OK; }
int CcRoiFreeHandLine::IsRoiAGraphicObject() { return 0; }

int CcRoiFreeHandLine::PrintPerimiterPointsToFile(const char* pszFileName) {
    return kest::PrintOutline(Parts(), pszFileName);
}
