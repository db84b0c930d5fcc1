// CcBinaryImage: the two-level image. Its DIB, files, pixels and regions are those of all images of one byte a pixel;
// here stands its one display table with what sets it.
#include "CcBinaryImage.h"

#include <algorithm>

#include "image/Dib8Members.h"
#include "image/DisplayTables.h"
#include "image/ImageClipboard.h"
#include "image/PrintImage.h"
#include "image/ShowImage.h"
#include "image/kernel/DisplayLut.h"

template <>
struct KestDib8Traits<CcBinaryImage> {
    static constexpr char className[] = "CcBinaryImage";
};

#define IMAGE_CLASS CcBinaryImage
#include "image/Dib8Overrides.inl"

CcBinaryImage::CcBinaryImage() : iNumColors(0), iColorTableBytes(0) {
    iImageType = KEST_IMAGE_BINARY;
    for (tagPoints* curve : {stLUTRed, stLUTGreen, stLUTBlue}) kest::MakeIdentity({curve, kest::GrayColours});
    SetCurves(255.0F, 0.0F);
}

CcBinaryImage::~CcBinaryImage() = default;

float CcBinaryImage::GetMinPixelValue() { return 0.0F; }

float CcBinaryImage::GetMaxPixelValue() { return 1.0F; }

// The display table

void CcBinaryImage::SetCurves(float fOne, float fOthers) {
    for (tagPoints* curve : {stLUTRed, stLUTGreen, stLUTBlue}) {
        for (int level = 0; level < kest::GrayColours; ++level) curve[level].y = fOthers;
        curve[1].y = fOne;
    }
}

void CcBinaryImage::ReleaseTables() { kest::ReleaseTable(stTable); }

bool CcBinaryImage::MakeTables() {
    if (!lpBits) return true;
    CountDibColors(&iNumColors, &iColorTableBytes);
    const bool isNew = !stTable.pTable;
    if (!kest::MakeColourTable(stTable)) return false;
    if (isNew)
        for (int channel = 1; channel <= 3; ++channel) FillChannel(channel);
    return true;
}

void CcBinaryImage::FillChannel(int iChannel) {
    kest::FillColourChannel({CurveOf(101, iChannel), kest::GrayColours}, kest::ColoursOf(stTable), 3 - iChannel);
}

void CcBinaryImage::TakeDefaultLook() {
    SetCurves(0.0F, 255.0F);
    for (int channel = 1; channel <= 3; ++channel) SetDisplayLUT(101, channel, CurveOf(101, channel));
}

tagPoints* CcBinaryImage::CurveOf(int iLUT, int iChannel) {
    if (iLUT != 101 || iChannel < 1 || iChannel > 3) return nullptr;
    tagPoints* const curves[] = {stLUTRed, stLUTGreen, stLUTBlue};
    return curves[iChannel - 1];
}

int CcBinaryImage::GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    const tagPoints* curve = CurveOf(iLUT, iChannel);
    if (!pPoints || !curve) return KEST_FAILED;
    std::copy_n(curve, kest::GrayColours, pPoints);
    return KEST_OK;
}

int CcBinaryImage::SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    tagPoints* curve = CurveOf(iLUT, iChannel);
    if (!pPoints || !curve || !kest::HasLevelSteps({pPoints, kest::GrayColours})) return KEST_FAILED;
    std::copy_n(pPoints, kest::GrayColours, curve);
    FillChannel(iChannel);
    return KEST_OK;
}

kest::ImageLook CcBinaryImage::Look(unsigned short) {
    kest::ImageLook look;
    look.bits = lpBits;
    look.width = iWidth;
    look.height = iHeight;
    look.dibColours = lpColors;
    look.dibColourBytes = iColorTableBytes;
    look.usesPalette = true;
    look.palette = stTable.hPalette;
    look.displayTable = stTable.pTable;
    return look;
}

int CcBinaryImage::CopyToClipboard(HWND hWnd, unsigned short usLUT, RECT* pRect) {
    if (!lpBits || !MakeTables()) return KEST_FAILED;
    GetOverlay();
    return kest::CopyToClipboard(
        hWnd, [&] { return Look(usLUT); }, [&] { return OverlayPicture(); }, pRect);
}

int CcBinaryImage::Print(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                         int iZoom) {
    if (!lpBits || !MakeTables()) return KEST_FAILED;
    const kest::PrinterDc printer(stPrintSetup);
    if (!printer) return KEST_FAILED;
    GetOverlay();
    return kest::PrintImage(
        printer, stDocInfo, szObjectName, [&] { return Look(usLUT); }, [&] { return OverlayPicture(); }, hWnd,
        {usMode, iXOffset, iYOffset, iZoom});
}

// Thresholding

int CcBinaryImage::BeginThresholding(HWND, unsigned short) { return KEST_OK; }

int CcBinaryImage::ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) {
    const bool coloursOne = (fLow == 1.0F || fLow == 0.0F) && fHigh == 1.0F;
    const bool coloursZero = fLow == 0.0F && (fHigh == 0.0F || fHigh == 1.0F);
    SetCurves(0.0F, 255.0F);
    const int colour[] = {iRed, iGreen, iBlue};
    for (int channel = 1; channel <= 3; ++channel) {
        tagPoints* curve = CurveOf(101, channel);
        if (coloursZero) curve[0].y = static_cast<float>(colour[channel - 1]);
        if (coloursOne) curve[1].y = static_cast<float>(colour[channel - 1]);
        SetDisplayLUT(101, channel, curve);
    }
    InvalidateRect(hWnd, nullptr, TRUE);
    return KEST_OK;
}

int CcBinaryImage::EndThresholding() {
    TakeDefaultLook();
    return KEST_OK;
}
