// CcGrayImageFloat: the grayscale image of floating-point samples. What it shares with the other wide images is done by
// WideImage.
#include "CcGrayImageFloat.h"

#include "image/WideImage.h"

namespace {

constexpr kest::WideClass floatImage = {kest::FloatRaw, "Unable to Allocate Memory for Floating Point Image",
                                        "Can't open file for saving floating point image data",
                                        "Can't write file of floating point image data",
                                        "Can't read file of floating point image data"};

}  // namespace

CcGrayImageFloat::CcGrayImageFloat() {
    iImageType = KEST_IMAGE_FLOAT;
    iReScaleOnShow = kest::SamplesChanged;
}

CcGrayImageFloat::~CcGrayImageFloat() = default;

KEST_COMPILED_ONCE kest::WideImage<float> CcGrayImageFloat::Wide() {
    return {floatImage,
            {Dib8(), {fDisplayMax, fDisplayMin, fScale, fOffset}},
            {pSamples, hSamples},
            fDataMax,
            fDataMin,
            bAutoUpdateDisplay,
            iReScaleOnShow,
            bKeepsDisplayRange};
}

int CcGrayImageFloat::Load(CcObjectStorage* pStorage) {
    if (pStorage) Wide().samples.Release();
    return CcGrayImage256::Load(pStorage);
}

void* CcGrayImageFloat::GetBitMapImageData() { return pSamples; }

// Without samples each Show fails; what becomes of the drawing is not reported.

int CcGrayImageFloat::Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset,
                           int iYOffset, int iZoom) {
    if (Wide().UpdateDisplay() < 0) return KEST_FAILED;
    if (hDC) CcGrayImage256::Show(hDC, pRect, usLUT, usMode, iXOffset, iYOffset, iZoom);
    return KEST_OK;
}

int CcGrayImageFloat::Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                           int iZoom) {
    if (Wide().UpdateDisplay() < 0) return KEST_FAILED;
    if (hDC && hWnd) CcGrayImage256::Show(hDC, hWnd, usLUT, usMode, iXOffset, iYOffset, iZoom);
    return KEST_OK;
}

int CcGrayImageFloat::Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                           int iZoom) {
    if (Wide().UpdateDisplay() < 0) return KEST_FAILED;
    if (hWnd) CcGrayImage256::Show(hWnd, usLUT, usMode, iXOffset, iYOffset, iZoom);
    return KEST_OK;
}

int CcGrayImageFloat::GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    return CcGrayImage256::GetDisplayLUT(iLUT, iChannel, pPoints);
}

int CcGrayImageFloat::SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    return Wide().SetList(iLUT, iChannel, pPoints);
}

int CcGrayImageFloat::OpenBMPFile(const char* pszPath) {
    return CcGrayImage256::OpenBMPFile(pszPath) < 0 ? KEST_FAILED : Wide().OpenSamples();
}

int CcGrayImageFloat::SaveBMPFile(const char* pszPath) { return Wide().Save(pszPath); }

int CcGrayImageFloat::MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) {
    const bool isRefill = Wide().HasSize(iNewHeight, iNewWidth);
    if (CcGrayImage256::MakeBlankBMP(iNewHeight, iNewWidth, 0, pszName) < 0) return KEST_FAILED;
    return Wide().MakeBlankSamples(iValue, isRefill);
}

// Thresholding colours display levels.

int CcGrayImageFloat::BeginThresholding(HWND hWnd, unsigned short usLUT) {
    const kest::DisplayRangeKeeper keeper(bKeepsDisplayRange);
    return CcGrayImage256::BeginThresholding(hWnd, usLUT);
}

int CcGrayImageFloat::ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) {
    const kest::DisplayRangeKeeper keeper(bKeepsDisplayRange);
    return CcGrayImage256::ThresholdImage(hWnd, fLow, fHigh, iRed, iGreen, iBlue);
}

int CcGrayImageFloat::ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount) {
    const kest::DisplayRangeKeeper keeper(bKeepsDisplayRange);
    return CcGrayImage256::ThresholdImageMulti(hWnd, pBands, iCount);
}

int CcGrayImageFloat::EndThresholding() {
    const kest::DisplayRangeKeeper keeper(bKeepsDisplayRange);
    return CcGrayImage256::EndThresholding();
}

float CcGrayImageFloat::GetMinPixelValue() {
    Wide().UpdateStatistics();
    return fDataMin;
}

float CcGrayImageFloat::GetMaxPixelValue() {
    Wide().UpdateStatistics();
    return fDataMax;
}

int CcGrayImageFloat::SizeOf() { return sizeof *pSamples; }

int CcGrayImageFloat::SetAutoUpdateDisplay(int iOn) { return Wide().SetAutomatic(iOn == 1); }

int CcGrayImageFloat::GetAutoUpdateDisplay() { return bAutoUpdateDisplay; }

float& CcGrayImageFloat::operator()(float fX, float fY) {
    return kest::ReadSample<float>(Parts(), {pSamples, hSamples}, fX, fY);
}

float& CcGrayImageFloat::operator()(int iX, int iY) {
    return kest::ReadSample<float>(Parts(), {pSamples, hSamples}, iX, iY);
}

void CcGrayImageFloat::operator=(float fValue) {
    iReScaleOnShow = kest::SamplesChanged;
    kest::WriteSample<float>(Parts(), {pSamples, hSamples}, fValue);
}

int CcGrayImageFloat::NormalizeFloatToByteImage(const float* pSource, unsigned char* pBytes, int iRows, int iColumns,
                                                int iMode) {
    return Wide().Normalise(pSource, pBytes, iRows, iColumns, iMode);
}

int CcGrayImageFloat::Copy8BitToFloat(const unsigned char* pBytes, float* pTarget, int iRows, int iColumns) {
    return Wide().CopyBytes(pBytes, pTarget, iRows, iColumns);
}

int CcGrayImageFloat::ReconfigureDisplayLUT(int iList) {
    Wide().lists.Spread(iList);
    // Callers have no use for the result; it always reads as a failure.
    return KEST_FAILED;
}

int CcGrayImageFloat::ReconfigureColorTable(int iLUT, int iChannel) { return Wide().lists.Rebuild(iLUT, iChannel); }
