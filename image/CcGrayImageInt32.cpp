// CcGrayImageInt32: the grayscale image of signed 32-bit samples. What it shares with the other wide images is done by
// WideImage.
#include "CcGrayImageInt32.h"

#include "image/WideImage.h"

namespace {

constexpr kest::WideClass int32Image = {
    kest::Int32Raw, "Unable to Allocate Memory for 32-bit Image", "Can't open file for saving 32-bit image data",
    "Can't write file of 32-bit image data", "Can't read file of 32-bit image data"};

}  // namespace

CcGrayImageInt32::CcGrayImageInt32() {
    iImageType = KEST_IMAGE_INT32;
    iReScaleOnShow = kest::SamplesChanged;
}

CcGrayImageInt32::~CcGrayImageInt32() = default;

KEST_COMPILED_ONCE kest::WideImage<int> CcGrayImageInt32::Wide() {
    return {int32Image,
            {Dib8(), {fDisplayMax, fDisplayMin, fScale, fOffset}},
            {pSamples, hSamples},
            fDataMax,
            fDataMin,
            bAutoUpdateDisplay,
            iReScaleOnShow,
            bKeepsDisplayRange};
}

int CcGrayImageInt32::Load(CcObjectStorage* pStorage) {
    if (pStorage) Wide().samples.Release();
    return CcGrayImage256::Load(pStorage);
}

void* CcGrayImageInt32::GetBitMapImageData() { return pSamples; }

// Without samples each Show fails; what becomes of the drawing is not reported.

int CcGrayImageInt32::Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset,
                           int iYOffset, int iZoom) {
    if (Wide().UpdateDisplay() < 0) return KEST_FAILED;
    if (hDC) CcGrayImage256::Show(hDC, pRect, usLUT, usMode, iXOffset, iYOffset, iZoom);
    return KEST_OK;
}

int CcGrayImageInt32::Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                           int iZoom) {
    if (Wide().UpdateDisplay() < 0) return KEST_FAILED;
    if (hDC && hWnd) CcGrayImage256::Show(hDC, hWnd, usLUT, usMode, iXOffset, iYOffset, iZoom);
    return KEST_OK;
}

int CcGrayImageInt32::Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                           int iZoom) {
    if (Wide().UpdateDisplay() < 0) return KEST_FAILED;
    if (hWnd) CcGrayImage256::Show(hWnd, usLUT, usMode, iXOffset, iYOffset, iZoom);
    return KEST_OK;
}

int CcGrayImageInt32::GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    return CcGrayImage256::GetDisplayLUT(iLUT, iChannel, pPoints);
}

int CcGrayImageInt32::SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    return Wide().SetList(iLUT, iChannel, pPoints);
}

int CcGrayImageInt32::OpenBMPFile(const char* pszPath) {
    return CcGrayImage256::OpenBMPFile(pszPath) < 0 ? KEST_FAILED : Wide().OpenSamples();
}

int CcGrayImageInt32::SaveBMPFile(const char* pszPath) { return Wide().Save(pszPath); }

int CcGrayImageInt32::MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) {
    const bool isRefill = Wide().HasSize(iNewHeight, iNewWidth);
    if (CcGrayImage256::MakeBlankBMP(iNewHeight, iNewWidth, 0, pszName) < 0) return KEST_FAILED;
    return Wide().MakeBlankSamples(iValue, isRefill);
}

// Thresholding colours display levels.

int CcGrayImageInt32::BeginThresholding(HWND hWnd, unsigned short usLUT) {
    const kest::DisplayRangeKeeper keeper(bKeepsDisplayRange);
    return CcGrayImage256::BeginThresholding(hWnd, usLUT);
}

int CcGrayImageInt32::ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) {
    const kest::DisplayRangeKeeper keeper(bKeepsDisplayRange);
    return CcGrayImage256::ThresholdImage(hWnd, fLow, fHigh, iRed, iGreen, iBlue);
}

int CcGrayImageInt32::ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount) {
    const kest::DisplayRangeKeeper keeper(bKeepsDisplayRange);
    return CcGrayImage256::ThresholdImageMulti(hWnd, pBands, iCount);
}

int CcGrayImageInt32::EndThresholding() {
    const kest::DisplayRangeKeeper keeper(bKeepsDisplayRange);
    return CcGrayImage256::EndThresholding();
}

float CcGrayImageInt32::GetMinPixelValue() {
    Wide().UpdateStatistics();
    return fDataMin;
}

float CcGrayImageInt32::GetMaxPixelValue() {
    Wide().UpdateStatistics();
    return fDataMax;
}

int CcGrayImageInt32::SizeOf() { return sizeof *pSamples; }

int CcGrayImageInt32::SetAutoUpdateDisplay(int iOn) { return Wide().SetAutomatic(iOn == 1); }

int CcGrayImageInt32::GetAutoUpdateDisplay() { return bAutoUpdateDisplay; }

float& CcGrayImageInt32::operator()(float fX, float fY) {
    return kest::ReadSample<int>(Parts(), {pSamples, hSamples}, fX, fY);
}

float& CcGrayImageInt32::operator()(int iX, int iY) {
    return kest::ReadSample<int>(Parts(), {pSamples, hSamples}, iX, iY);
}

void CcGrayImageInt32::operator=(float fValue) {
    iReScaleOnShow = kest::SamplesChanged;
    kest::WriteSample<int>(Parts(), {pSamples, hSamples}, fValue);
}

int CcGrayImageInt32::NormalizeInt32ToByteImage(const int* pSource, unsigned char* pBytes, int iRows, int iColumns,
                                                int iMode) {
    return Wide().Normalise(pSource, pBytes, iRows, iColumns, iMode);
}

int CcGrayImageInt32::Copy8BitToInt32(const unsigned char* pBytes, int* pTarget, int iRows, int iColumns) {
    return Wide().CopyBytes(pBytes, pTarget, iRows, iColumns);
}

int CcGrayImageInt32::ReconfigureDisplayLUT(int iList) {
    Wide().lists.Spread(iList);
    // Callers have no use for the result; it always reads as a failure.
    return KEST_FAILED;
}

int CcGrayImageInt32::ReconfigureColorTable(int iLUT, int iChannel) { return Wide().lists.Rebuild(iLUT, iChannel); }
