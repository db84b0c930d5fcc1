// CcGrayImage256: the 8-bit grayscale image. What it shares with the binary image is done by Dib8Image; its
// thresholding stands in CcGrayImage256Threshold.cpp.
#include "CcGrayImage256.h"

#include <algorithm>

#include "core/ClassName.h"
#include "image/Dib8Image.h"
#include "image/RegionExtract.h"
#include "image/kernel/DisplayLut.h"

char CcGrayImage256::cFullFilePathOpen[KEST_NAME_SIZE] = KEST_NO_BMP_PATH;
char CcGrayImage256::cFullFilePathSave[KEST_NAME_SIZE] = KEST_NO_BMP_PATH;

CcGrayImage256::CcGrayImage256() : iNumColors(0), iColorTableBytes(0) {
    iImageType = KEST_IMAGE_GRAY256;
    kest::MakeIdentity(stLUTRed);
    kest::MakeIdentity(stLUTGreen);
    kest::MakeIdentity(stLUTBlue);
    kest::MakeIdentity(stLUT256);
    kest::MakeIdentity(stLUT128);
    kest::MakeIdentity(stLUT64);
}

CcGrayImage256::~CcGrayImage256() = default;

KEST_COMPILED_ONCE kest::Dib8Image CcGrayImage256::Dib8() {
    return {false,
            Parts(),
            {{&stTable100, &stTable101, &stTable102, &stTable103, &stTable104},
             {stLUTRed, stLUTGreen, stLUTBlue, stLUT256, stLUT128, stLUT64}},
            iNumColors,
            iColorTableBytes,
            cFullFilePathOpen,
            cFullFilePathSave};
}

int CcGrayImage256::Load(CcObjectStorage* pStorage) { return Dib8().Load(pStorage); }

int CcGrayImage256::Store(CcObjectStorage* pStorage) { return Dib8().Store(pStorage); }

int CcGrayImage256::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, "CcGrayImage256");
}

int CcGrayImage256::CopyToClipboard(HWND hWnd, unsigned short usLUT, RECT* pRect) {
    return Dib8().CopyToClipboard(hWnd, usLUT, pRect);
}

void* CcGrayImage256::GetBitMapImageData() { return lpBits; }

int CcGrayImage256::Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                         int iZoom) {
    return Dib8().Show(hDC, pRect, usLUT, {usMode, iXOffset, iYOffset, iZoom});
}

int CcGrayImage256::Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                         int iZoom) {
    return Dib8().Show(hDC, hWnd, usLUT, {usMode, iXOffset, iYOffset, iZoom});
}

int CcGrayImage256::Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                         int iZoom) {
    return Dib8().Show(hWnd, usLUT, {usMode, iXOffset, iYOffset, iZoom});
}

int CcGrayImage256::Print(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                          int iZoom) {
    return Dib8().Print(hWnd, usLUT, {usMode, iXOffset, iYOffset, iZoom});
}

int CcGrayImage256::GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    return Dib8().tables.GetPoints(iLUT, iChannel, pPoints);
}

int CcGrayImage256::SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    if (!pPoints) return KEST_FAILED;
    const kest::Dib8Image image = Dib8();
    const std::span<tagPoints> own = image.tables.Points(iLUT, iChannel);
    if (own.empty()) {
        // A colour list for a channel that does not exist is checked like the others, and then changes nothing.
        const bool isColourList = iLUT == kest::ColourLut && kest::HasLevelSteps({pPoints, 256});
        return isColourList ? KEST_OK : KEST_FAILED;
    }
    if (!kest::HasLevelSteps({pPoints, own.size()}) || !image.MakeTables()) return KEST_FAILED;
    std::copy_n(pPoints, own.size(), own.begin());
    image.tables.Fill(iLUT, iChannel, own);
    return KEST_OK;
}

int CcGrayImage256::OpenBMPFile(const char* pszPath) { return Dib8().Open(pszPath); }

int CcGrayImage256::SaveBMPFile(const char* pszPath) { return Dib8().Save(pszPath); }

int CcGrayImage256::MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) {
    return Dib8().MakeBlank(iNewHeight, iNewWidth, iValue, pszName);
}

float CcGrayImage256::GetMinPixelValue() { return 0.0F; }

float CcGrayImage256::GetMaxPixelValue() { return 255.0F; }

int CcGrayImage256::SizeOf() { return 1; }

int CcGrayImage256::SetAutoUpdateDisplay(int) { return KEST_OK; }

int CcGrayImage256::GetAutoUpdateDisplay() { return KEST_FAILED; }

float& CcGrayImage256::operator()(float fX, float fY) { return kest::ReadByte(Parts(), fX, fY); }

float& CcGrayImage256::operator()(int iX, int iY) { return kest::ReadByte(Parts(), iX, iY); }

void CcGrayImage256::operator=(float fValue) { kest::WriteByte(Parts(), fValue); }

CcImage* CcGrayImage256::GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) {
    return kest::CutRegion<CcGrayImage256>(Parts(), 1, pRoi, iFillValue, iAlign);
}
