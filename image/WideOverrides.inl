// The overrides of a wide grayscale class: each calls the member that the three classes have in common, or the 8-bit
// image that displays the samples. The including file names the class as WIDE_CLASS.
#include "image/WideMembers.h"

using Members = KestWideMembers<WIDE_CLASS>;

WIDE_CLASS::WIDE_CLASS()
    : pSamples(nullptr),
      fDataMax(255.0F),
      fDataMin(0.0F),
      fDisplayMax(255.0F),
      fDisplayMin(0.0F),
      fScale(1.0F),
      fOffset(0.0F),
      bAutoUpdateDisplay(1),
      bKeepsDisplayRange(false) {
    iImageType = Members::Traits::typeCode;
    iReScaleOnShow = Members::SamplesChanged;
}

WIDE_CLASS::~WIDE_CLASS() = default;

int WIDE_CLASS::Load(CcObjectStorage* pStorage) { return Members::Load(*this, pStorage); }

void* WIDE_CLASS::GetBitMapImageData() { return pSamples; }

int WIDE_CLASS::Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                     int iZoom) {
    return Members::Show(*this, hDC != nullptr, [&] {
        return CcGrayImage256::Show(hDC, pRect, usLUT, usMode, iXOffset, iYOffset, iZoom);
    });
}

int WIDE_CLASS::Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                     int iZoom) {
    return Members::Show(*this, hDC && hWnd, [&] {
        return CcGrayImage256::Show(hDC, hWnd, usLUT, usMode, iXOffset, iYOffset, iZoom);
    });
}

int WIDE_CLASS::Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset, int iZoom) {
    return Members::Show(
        *this, hWnd != nullptr, [&] { return CcGrayImage256::Show(hWnd, usLUT, usMode, iXOffset, iYOffset, iZoom); });
}

int WIDE_CLASS::GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    return CcGrayImage256::GetDisplayLUT(iLUT, iChannel, pPoints);
}

int WIDE_CLASS::SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    return Members::SetList(*this, iLUT, iChannel, pPoints);
}

int WIDE_CLASS::OpenBMPFile(const char* pszPath) { return Members::Open(*this, pszPath); }

int WIDE_CLASS::SaveBMPFile(const char* pszPath) { return Members::Save(*this, pszPath); }

int WIDE_CLASS::MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) {
    return Members::MakeBlank(*this, iNewHeight, iNewWidth, iValue, pszName);
}

int WIDE_CLASS::BeginThresholding(HWND hWnd, unsigned short usLUT) {
    return Members::Threshold(*this, [&] { return CcGrayImage256::BeginThresholding(hWnd, usLUT); });
}

int WIDE_CLASS::ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) {
    return Members::Threshold(
        *this, [&] { return CcGrayImage256::ThresholdImage(hWnd, fLow, fHigh, iRed, iGreen, iBlue); });
}

int WIDE_CLASS::ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount) {
    return Members::Threshold(*this, [&] { return CcGrayImage256::ThresholdImageMulti(hWnd, pBands, iCount); });
}

int WIDE_CLASS::EndThresholding() {
    return Members::Threshold(*this, [&] { return CcGrayImage256::EndThresholding(); });
}

float WIDE_CLASS::GetMinPixelValue() {
    Members::UpdateStatistics(*this);
    return fDataMin;
}

float WIDE_CLASS::GetMaxPixelValue() {
    Members::UpdateStatistics(*this);
    return fDataMax;
}

int WIDE_CLASS::SizeOf() { return static_cast<int>(sizeof(Members::Sample)); }

int WIDE_CLASS::SetAutoUpdateDisplay(int iOn) { return Members::SetAutoUpdate(*this, iOn); }

int WIDE_CLASS::GetAutoUpdateDisplay() { return bAutoUpdateDisplay; }

float& WIDE_CLASS::operator()(float fX, float fY) { return Members::ReadPosition(*this, fX, fY); }

float& WIDE_CLASS::operator()(int iX, int iY) { return Members::ReadPixel(*this, iX, iY); }

void WIDE_CLASS::operator=(float fValue) { Members::WritePixel(*this, fValue); }

int WIDE_CLASS::ReconfigureDisplayLUT(int iList) { return Members::SpreadList(*this, iList); }

int WIDE_CLASS::ReconfigureColorTable(int iLUT, int iChannel) { return Members::RebuildTable(*this, iLUT, iChannel); }
