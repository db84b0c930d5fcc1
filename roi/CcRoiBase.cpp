// CcRoiBase: what all regions of interest share.
#include "CcRoiBase.h"

#include <algorithm>
#include <numeric>

#include "core/kernel/CheckedSize.h"
#include "roi/ClassWide.h"

namespace {

constexpr RGBTRIPLE red = {0, 0, 255};
constexpr RGBTRIPLE green = {0, 255, 0};

/// The functions that make and release the class-wide pens.
HPEN MakePen(const RGBTRIPLE& colour, int width) {
    return CreatePen(PS_SOLID, width, RGB(colour.rgbtRed, colour.rgbtGreen, colour.rgbtBlue));
}

void ReleasePen(HPEN& pen) {
    if (pen) DeleteObject(pen);
    pen = nullptr;
}

/// Replaces the pen by a new one; the old one stays when that cannot be made.
bool RenewPen(HPEN& pen, const RGBTRIPLE& colour, int width) {
    const HPEN renewed = MakePen(colour, width);
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
    const bool renewed = RenewPen(hSelectedPen, stSelectedColor, iPenWidth) &&
                         RenewPen(hUnSelectedPen, stUnSelectedColor, iPenWidth);
    return renewed ? KEST_OK : KEST_FAILED;
}

bool CcRoiBase::PrepareCopy() {
    if (!piBoundary || Boundary()) return true;
    GetBoundingRect();
    // An outline whose points are gone leaves its source's buffer named.
    return piBoundary != nullptr;
}

long long CcRoiBase::BoundaryRoom() const {
    const kest::Size64 width = kest::Size64{stBoundingRect.right} - stBoundingRect.left;
    const kest::Size64 height = kest::Size64{stBoundingRect.top} - stBoundingRect.bottom;
    // Two entries for each pixel of the larger side hold its two ends as well; a shape of one pixel needs one.
    return std::max({2 * width, 2 * height, kest::Size64{2}, kest::Size64{Boundary() ? iBoundarySize : 0}});
}

bool CcRoiBase::SizeBoundary() {
    // A side beyond that of a picture is rarely listed, and a file can claim any: its list is made when it is asked for.
    constexpr kest::Size64 mostPrepared = 131072;
    const kest::Size64 room = BoundaryRoom();
    if (Boundary() && iBoundarySize == room) return true;
    const kest::Size64 entries = std::min(room, mostPrepared);
    if (Boundary() && iBoundarySize == entries) return true;
    hBoundary.Release();
    piBoundary = nullptr;
    iBoundarySize = 0;
    return GrowBoundary(entries);
}

bool CcRoiBase::GrowBoundary(long long llEntries) {
    if (Boundary() && iBoundarySize >= llEntries) return true;
    // Doubled, as the rows of a shape that widens are asked for one after the other.
    const long long roomy = Boundary() ? std::min(BoundaryRoom(), 2LL * iBoundarySize) : llEntries;
    KestGlobalBlock grown;
    for (const long long entries : {std::max(roomy, llEntries), llEntries}) {
        if (!grown.Allocate(entries * static_cast<long long>(sizeof(int)))) continue;
        hBoundary.Swap(grown);
        piBoundary = static_cast<int*>(hBoundary.Get());
        iBoundarySize = static_cast<int>(entries);
        return true;
    }
    return false;
}

int* CcRoiBase::ListRange(int iFirst, int iLast, int* piCount) {
    // A buffer that was made ready for other coordinates, or not at all, is no answer.
    const kest::Size64 count = kest::Size64{iLast} - iFirst + 1;
    if (!piCount || count < 1 || !Boundary() || count > BoundaryRoom()) return ListNothing(piCount);
    if (!GrowBoundary(count)) return ListFailed(piCount);
    *piCount = static_cast<int>(count);
    std::iota(piBoundary, piBoundary + *piCount, iFirst);
    return piBoundary;
}

int* CcRoiBase::ListNothing(int* piCount) {
    if (piCount) *piCount = 0;
    return nullptr;
}

int* CcRoiBase::ListFailed(int* piCount) {
    if (piCount) *piCount = KEST_FAILED;
    return nullptr;
}

HPEN CcRoiBase::PenFor(int iPenSelect) {
    const kest::ClassWideGuard guard;
    // The pens went with the last counted object; a ROI that is drawn after that gets them back.
    if (!hSelectedPen) RenewPen(hSelectedPen, stSelectedColor, 1);
    if (!hUnSelectedPen) RenewPen(hUnSelectedPen, stUnSelectedColor, 1);
    const bool selected = iPenSelect == 1 || (iPenSelect == -1 && bSelected);
    return selected ? hSelectedPen : hUnSelectedPen;
}
