// CcRoiBase: what all regions of interest share.
#include "CcRoiBase.h"

#include "core/Platform.h"
#include "roi/BoundaryBuffer.h"
#include "roi/ClassWide.h"

namespace {

constexpr RGBTRIPLE red = {0, 0, 255};
constexpr RGBTRIPLE green = {0, 255, 0};

void ReleasePen(HPEN& pen) {
    if (pen) kest::DeletePen(pen);
    pen = nullptr;
}

/// Replaces the pen by a new one; the old one stays when that cannot be made.
bool RenewPen(HPEN& pen, const RGBTRIPLE& colour, int width) {
    const HPEN renewed = kest::MakePen(colour, width);
    if (!renewed) return false;
    ReleasePen(pen);
    pen = renewed;
    return true;
}

int SetColour(HPEN& pen, RGBTRIPLE& own, const RGBTRIPLE* colour) {
    const kest::ClassWideGuard guard;
    if (!colour || !RenewPen(pen, *colour, 1)) return KEST_FAILED;
    own = *colour;
    return KEST_OK;
}

int GetColour(const RGBTRIPLE& own, RGBTRIPLE* colour) {
    if (!colour) return KEST_FAILED;
    *colour = own;
    return KEST_OK;
}

}  // namespace

RGBTRIPLE CcRoiBase::stSelectedColor = red;
RGBTRIPLE CcRoiBase::stUnSelectedColor = green;
HPEN CcRoiBase::hSelectedPen = nullptr;
HPEN CcRoiBase::hUnSelectedPen = nullptr;
int CcRoiBase::iNumOfROIs = 0;

CcRoiBase::CcRoiBase()
    : iROIType(KEST_ROI_NONE),
      iZoom(1),
      iHitCode(-1),
      bSelected(0),
      stCurrentBoundingRect{},
      stBoundingRect{},
      piBoundary(nullptr),
      iBoundarySize(0) {
    SetType(KEST_TYPE_ROI);
    const kest::ClassWideGuard guard;
    // Destroyed copies were never counted, so the count can have fallen below the objects alive, and below 0.
    if (iNumOfROIs <= 0) {
        iNumOfROIs = 0;
        stSelectedColor = red;
        stUnSelectedColor = green;
        RenewPen(hSelectedPen, stSelectedColor, 1);
        RenewPen(hUnSelectedPen, stUnSelectedColor, 1);
    }
    ++iNumOfROIs;
}

CcRoiBase::~CcRoiBase() {
    const kest::ClassWideGuard guard;
    if (--iNumOfROIs <= 0) {
        ReleasePen(hSelectedPen);
        ReleasePen(hUnSelectedPen);
    }
}

int CcRoiBase::Save(const char*) { return KEST_FAILED; }
int CcRoiBase::Restore(const char*) { return KEST_FAILED; }
int CcRoiBase::SetRoiImageCord(void*) { return KEST_FAILED; }
void* CcRoiBase::GetRoiImageCord() { return nullptr; }
int CcRoiBase::StartMouseDrag(HWND, int, int, unsigned short, CcImage*, POINT, int, CcRoiBase*, int) {
    return KEST_FAILED;
}
int CcRoiBase::DoMouseDrag(HWND, int, int, unsigned short, CcImage*, POINT, int) { return KEST_FAILED; }
int CcRoiBase::StopMouseDrag(HWND, int, int, unsigned short, CcImage*, POINT) { return KEST_FAILED; }
RECT* CcRoiBase::GetCurrentBoundingRect() { return nullptr; }
int CcRoiBase::ShowROI(HDC, RECT*, int, int, unsigned short, CcImage*, int, int) { return KEST_FAILED; }
int CcRoiBase::ShowROI(HDC, HWND, int, int, unsigned short, CcImage*, int, int) { return KEST_FAILED; }
int CcRoiBase::ShowROI(HWND, int, int, unsigned short, CcImage*, int, int) { return KEST_FAILED; }
int CcRoiBase::MouseHitTest(HWND, int, int, unsigned short, CcImage*, POINT, int) { return KEST_FAILED; }
RECT* CcRoiBase::GetBoundingRect() { return nullptr; }

int* CcRoiBase::GetYBoundary(int, int* piCount) {
    if (piCount) *piCount = 0;
    return nullptr;
}

int* CcRoiBase::GetXBoundary(int, int* piCount) {
    if (piCount) *piCount = 0;
    return nullptr;
}

int CcRoiBase::UpdateImageIfNeeded(HWND, int, int, unsigned short, CcImage*, int) { return KEST_FAILED; }
int CcRoiBase::IsRoiAGraphicObject() { return 0; }

int CcRoiBase::GetROIType() { return iROIType; }

int CcRoiBase::SetSelected(int bSelect) {
    bSelected = bSelect == 1;
    return KEST_OK;
}

int CcRoiBase::IsROISelected() { return bSelected; }

int CcRoiBase::SetSelectedColor(RGBTRIPLE* pColor) { return SetColour(hSelectedPen, stSelectedColor, pColor); }
int CcRoiBase::SetUnSelectedColor(RGBTRIPLE* pColor) { return SetColour(hUnSelectedPen, stUnSelectedColor, pColor); }
int CcRoiBase::GetSelectedColor(RGBTRIPLE* pColor) { return GetColour(stSelectedColor, pColor); }
int CcRoiBase::GetUnSelectedColor(RGBTRIPLE* pColor) { return GetColour(stUnSelectedColor, pColor); }

int CcRoiBase::SetZoomPen(int iPenWidth) {
    const kest::ClassWideGuard guard;
    const bool renewed =
        RenewPen(hSelectedPen, stSelectedColor, iPenWidth) && RenewPen(hUnSelectedPen, stUnSelectedColor, iPenWidth);
    return renewed ? KEST_OK : KEST_FAILED;
}

bool CcRoiBase::SizeBoundary() { return Boundary().Prepare(); }

int* CcRoiBase::ListRange(int iFirst, int iLast, int* piCount) {
    return Boundary().ListSpan(true, {iFirst, iLast}, piCount);
}

kest::BoundaryBuffer CcRoiBase::Boundary() { return {*this, stBoundingRect, piBoundary, hBoundary, iBoundarySize}; }

HPEN CcRoiBase::PenFor(int iPenSelect) {
    const kest::ClassWideGuard guard;
    // The pens went with the last counted object; a ROI that is drawn after that gets them back.
    if (!hSelectedPen) RenewPen(hSelectedPen, stSelectedColor, 1);
    if (!hUnSelectedPen) RenewPen(hUnSelectedPen, stUnSelectedColor, 1);
    const bool selected = iPenSelect == 1 || (iPenSelect == -1 && bSelected);
    return selected ? hSelectedPen : hUnSelectedPen;
}
