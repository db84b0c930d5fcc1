// CcGrayImageInt16: the grayscale image of unsigned 16-bit samples. What it shares with the other wide images is done
// by WideImage.
#include "CcGrayImageInt16.h"

#include "image/RegionExtract.h"
#include "image/WideImage.h"

namespace {

constexpr kest::WideClass int16Image = {
    kest::Int16Raw, "Unable to Allocate Memory for 16-bit Image", "Can't open file for saving 16-bit image data",
    "Can't write file of 16-bit image data", "Can't read file of 16-bit image data"};

}  // namespace

CcGrayImageInt16::CcGrayImageInt16() {
    iImageType = KEST_IMAGE_INT16;
    iReScaleOnShow = kest::SamplesChanged;
}

CcGrayImageInt16::~CcGrayImageInt16() = default;

KEST_COMPILED_ONCE kest::WideImage<unsigned short> CcGrayImageInt16::Wide() {
    return {int16Image,
            {Dib8(), {fDisplayMax, fDisplayMin, fScale, fOffset}},
            {pSamples, hSamples},
            fDataMax,
            fDataMin,
            bAutoUpdateDisplay,
            iReScaleOnShow,
            bKeepsDisplayRange};
}

int CcGrayImageInt16::Load(CcObjectStorage* pStorage) {
    if (pStorage) Wide().samples.Release();
    return CcGrayImage256::Load(pStorage);
}

void* CcGrayImageInt16::GetBitMapImageData() { return pSamples; }

// Without samples each Show fails; what becomes of the drawing is not reported.

int CcGrayImageInt16::Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset,
                           int iYOffset, int iZoom) {
    if (Wide().UpdateDisplay() < 0) return KEST_FAILED;
    if (hDC) CcGrayImage256::Show(hDC, pRect, usLUT, usMode, iXOffset, iYOffset, iZoom);
    return KEST_OK;
}

int CcGrayImageInt16::Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                           int iZoom) {
    if (Wide().UpdateDisplay() < 0) return KEST_FAILED;
    if (hDC && hWnd) CcGrayImage256::Show(hDC, hWnd, usLUT, usMode, iXOffset, iYOffset, iZoom);
    return KEST_OK;
}

int CcGrayImageInt16::Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                           int iZoom) {
    if (Wide().UpdateDisplay() < 0) return KEST_FAILED;
    if (hWnd) CcGrayImage256::Show(hWnd, usLUT, usMode, iXOffset, iYOffset, iZoom);
    return KEST_OK;
}

int CcGrayImageInt16::GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    return CcGrayImage256::GetDisplayLUT(iLUT, iChannel, pPoints);
}

int CcGrayImageInt16::SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    return Wide().SetList(iLUT, iChannel, pPoints);
}

int CcGrayImageInt16::OpenBMPFile(const char* pszPath) {
    return CcGrayImage256::OpenBMPFile(pszPath) < 0 ? KEST_FAILED : Wide().OpenSamples();
}

int CcGrayImageInt16::SaveBMPFile(const char* pszPath) { return Wide().Save(pszPath); }

int CcGrayImageInt16::MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) {
    const bool isRefill = Wide().HasSize(iNewHeight, iNewWidth);
    if (CcGrayImage256::MakeBlankBMP(iNewHeight, iNewWidth, 0, pszName) < 0) return KEST_FAILED;
    return Wide().MakeBlankSamples(iValue, isRefill);
}

// Thresholding colours display levels.

int CcGrayImageInt16::BeginThresholding(HWND hWnd, unsigned short usLUT) {
    const kest::DisplayRangeKeeper keeper(bKeepsDisplayRange);
    return CcGrayImage256::BeginThresholding(hWnd, usLUT);
}

int CcGrayImageInt16::ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) {
    const kest::DisplayRangeKeeper keeper(bKeepsDisplayRange);
    return CcGrayImage256::ThresholdImage(hWnd, fLow, fHigh, iRed, iGreen, iBlue);
}

int CcGrayImageInt16::ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount) {
    const kest::DisplayRangeKeeper keeper(bKeepsDisplayRange);
    return CcGrayImage256::ThresholdImageMulti(hWnd, pBands, iCount);
}

int CcGrayImageInt16::EndThresholding() {
    const kest::DisplayRangeKeeper keeper(bKeepsDisplayRange);
    return CcGrayImage256::EndThresholding();
}

float CcGrayImageInt16::GetMinPixelValue() {
    Wide().UpdateStatistics();
    return fDataMin;
}

float CcGrayImageInt16::GetMaxPixelValue() {
    Wide().UpdateStatistics();
    return fDataMax;
}

int CcGrayImageInt16::SizeOf() { return sizeof *pSamples; }

int CcGrayImageInt16::SetAutoUpdateDisplay(int iOn) { return Wide().SetAutomatic(iOn == 1); }

int CcGrayImageInt16::GetAutoUpdateDisplay() { return bAutoUpdateDisplay; }

float& CcGrayImageInt16::operator()(float fX, float fY) {
    return kest::ReadSample<unsigned short>(Parts(), {pSamples, hSamples}, fX, fY);
}

float& CcGrayImageInt16::operator()(int iX, int iY) {
    return kest::ReadSample<unsigned short>(Parts(), {pSamples, hSamples}, iX, iY);
}

void CcGrayImageInt16::operator=(float fValue) {
    iReScaleOnShow = kest::SamplesChanged;
    kest::WriteSample<unsigned short>(Parts(), {pSamples, hSamples}, fValue);
}

CcImage* CcGrayImageInt16::GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) {
    kest::RegionFrame frame;
    if (Wide().Samples().empty() || !kest::FrameRegion(pRoi, iAlign, szObjectName, iWidth, iHeight, frame))
        return nullptr;
    return kest::MakeRegion<CcGrayImageInt16>(frame, iFillValue, [&](CcGrayImageInt16& region) {
        return kest::CopyRegion(
            *pRoi, frame, {reinterpret_cast<const std::uint8_t*>(pSamples), iWidth, iHeight, SizeOf()},
            {reinterpret_cast<std::uint8_t*>(region.pSamples), frame.width, frame.height, SizeOf()});
    });
}

int CcGrayImageInt16::NormalizeInt16ToByteImage(const unsigned short* pSource, unsigned char* pBytes, int iRows,
                                                int iColumns, int iMode) {
    return Wide().Normalise(pSource, pBytes, iRows, iColumns, iMode);
}

int CcGrayImageInt16::Copy8BitToInt16(const unsigned char* pBytes, unsigned short* pTarget, int iRows, int iColumns) {
    return Wide().CopyBytes(pBytes, pTarget, iRows, iColumns);
}

int CcGrayImageInt16::ReconfigureDisplayLUT(int iList) {
    Wide().lists.Spread(iList);
    // Callers have no use for the result; it always reads as a failure.
    return KEST_FAILED;
}

int CcGrayImageInt16::ReconfigureColorTable(int iLUT, int iChannel) { return Wide().lists.Rebuild(iLUT, iChannel); }
