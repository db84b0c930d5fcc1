// CcBinaryImage: the two-level image. What it shares with the 8-bit grayscale image is done by Dib8Image.
#include "CcBinaryImage.h"

#include <algorithm>

#include "core/ClassName.h"
#include "core/Platform.h"
#include "image/Dib8Image.h"
#include "image/RegionExtract.h"
#include "image/kernel/DisplayLut.h"

char CcBinaryImage::cFullFilePathOpen[KEST_NAME_SIZE] = KEST_NO_BMP_PATH;
char CcBinaryImage::cFullFilePathSave[KEST_NAME_SIZE] = KEST_NO_BMP_PATH;

CcBinaryImage::CcBinaryImage() : iNumColors(0), iColorTableBytes(0) {
    iImageType = KEST_IMAGE_BINARY;
    for (tagPoints* curve : {stLUTRed, stLUTGreen, stLUTBlue}) kest::MakeIdentity({curve, kest::GrayColours});
    Dib8().SetCurves(255.0F, 0.0F);
}

CcBinaryImage::~CcBinaryImage() = default;

KEST_COMPILED_ONCE kest::Dib8Image CcBinaryImage::Dib8() {
    return {true,
            Parts(),
            {{nullptr, &stTable}, {stLUTRed, stLUTGreen, stLUTBlue}},
            iNumColors,
            iColorTableBytes,
            cFullFilePathOpen,
            cFullFilePathSave};
}

int CcBinaryImage::Load(CcObjectStorage* pStorage) { return Dib8().Load(pStorage); }

int CcBinaryImage::Store(CcObjectStorage* pStorage) { return Dib8().Store(pStorage); }

int CcBinaryImage::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, "CcBinaryImage");
}

int CcBinaryImage::CopyToClipboard(HWND hWnd, unsigned short usLUT, RECT* pRect) {
    return Dib8().CopyToClipboard(hWnd, usLUT, pRect);
}

void* CcBinaryImage::GetBitMapImageData() { return lpBits; }

int CcBinaryImage::Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                        int iZoom) {
    return Dib8().Show(hDC, pRect, usLUT, {usMode, iXOffset, iYOffset, iZoom});
}

int CcBinaryImage::Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                        int iZoom) {
    return Dib8().Show(hDC, hWnd, usLUT, {usMode, iXOffset, iYOffset, iZoom});
}

int CcBinaryImage::Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset, int iZoom) {
    return Dib8().Show(hWnd, usLUT, {usMode, iXOffset, iYOffset, iZoom});
}

int CcBinaryImage::Print(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                         int iZoom) {
    return Dib8().Print(hWnd, usLUT, {usMode, iXOffset, iYOffset, iZoom});
}

int CcBinaryImage::GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    return Dib8().tables.GetPoints(iLUT, iChannel, pPoints);
}

int CcBinaryImage::SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    const kest::DisplayTables tables = Dib8().tables;
    const std::span<tagPoints> curve = tables.Points(iLUT, iChannel);
    if (!pPoints || curve.empty() || !kest::HasLevelSteps({pPoints, curve.size()})) return KEST_FAILED;
    std::copy_n(pPoints, curve.size(), curve.begin());
    tables.Fill(iLUT, iChannel, curve);
    return KEST_OK;
}

int CcBinaryImage::OpenBMPFile(const char* pszPath) { return Dib8().Open(pszPath); }

int CcBinaryImage::SaveBMPFile(const char* pszPath) { return Dib8().Save(pszPath); }

int CcBinaryImage::MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) {
    return Dib8().MakeBlank(iNewHeight, iNewWidth, iValue, pszName);
}

int CcBinaryImage::BeginThresholding(HWND, unsigned short) { return KEST_OK; }

int CcBinaryImage::ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) {
    const bool coloursOne = (fLow == 1.0F || fLow == 0.0F) && fHigh == 1.0F;
    const bool coloursZero = fLow == 0.0F && (fHigh == 0.0F || fHigh == 1.0F);
    const kest::Dib8Image image = Dib8();
    image.SetCurves(0.0F, 255.0F);
    const int colour[] = {iRed, iGreen, iBlue};
    for (int channel = 1; channel <= 3; ++channel) {
        const std::span<tagPoints> curve = image.tables.Points(kest::ColourLut, channel);
        if (coloursZero) curve[0].y = static_cast<float>(colour[channel - 1]);
        if (coloursOne) curve[1].y = static_cast<float>(colour[channel - 1]);
        SetDisplayLUT(kest::ColourLut, channel, curve.data());
    }
    kest::Invalidate(hWnd);
    return KEST_OK;
}

int CcBinaryImage::EndThresholding() {
    Dib8().TakeWorkingLook();
    return KEST_OK;
}

float CcBinaryImage::GetMinPixelValue() { return 0.0F; }

float CcBinaryImage::GetMaxPixelValue() { return 1.0F; }

int CcBinaryImage::SizeOf() { return 1; }

int CcBinaryImage::SetAutoUpdateDisplay(int) { return KEST_OK; }

int CcBinaryImage::GetAutoUpdateDisplay() { return KEST_FAILED; }

float& CcBinaryImage::operator()(float fX, float fY) { return kest::ReadByte(Parts(), fX, fY); }

float& CcBinaryImage::operator()(int iX, int iY) { return kest::ReadByte(Parts(), iX, iY); }

void CcBinaryImage::operator=(float fValue) { kest::WriteByte(Parts(), fValue); }

CcImage* CcBinaryImage::GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) {
    return kest::CutRegion<CcBinaryImage>(Parts(), 1, pRoi, iFillValue, iAlign);
}
