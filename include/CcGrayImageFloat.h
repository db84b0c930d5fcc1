// CcGrayImageFloat: the grayscale image of floating-point samples.
#pragma once

#include "CcGrayImage256.h"

namespace kest {
template <class Sample>
struct WideImage;
}

/// Samples in single precision, beside an 8-bit grayscale image that displays them, as CcGrayImageInt16 tells it; what
/// differs is told here. The raw file has the extension ".flt" and the file code 2, the messages say "Floating Point"
/// and "floating point", and regions are 8-bit images, cut from the display image. NaN samples show as 0.
class KEST_API CcGrayImageFloat : public CcGrayImage256 {
public:
    CcGrayImageFloat();
    CcGrayImageFloat(const CcGrayImageFloat&) = default;
    CcGrayImageFloat& operator=(const CcGrayImageFloat&) = default;
    ~CcGrayImageFloat() override;  // slot 0

    int Load(CcObjectStorage* pStorage) override;  // slot 1
    /// The samples, of type float; null without any.
    void* GetBitMapImageData() override;  // slot 7
    int Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 8
    int Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 9
    int Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;                                                                      // slot 10
    int GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) override;                            // slot 12
    int SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) override;                            // slot 13
    int OpenBMPFile(const char* pszPath) override;                                                     // slot 14
    int SaveBMPFile(const char* pszPath) override;                                                     // slot 15
    int MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) override;         // slot 16
    int BeginThresholding(HWND hWnd, unsigned short usLUT) override;                                   // slot 17
    int ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) override;  // slot 18
    int ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount) override;                     // slot 19
    int EndThresholding() override;                                                                    // slot 20
    float GetMinPixelValue() override;                                                                 // slot 21
    float GetMaxPixelValue() override;                                                                 // slot 22
    int SizeOf() override;                                                                             // slot 23
    int SetAutoUpdateDisplay(int iOn) override;                                                        // slot 24
    int GetAutoUpdateDisplay() override;                                                               // slot 25
    float& operator()(float fX, float fY) override;                                                    // slot 26
    float& operator()(int iX, int iY) override;                                                        // slot 27
    /// Stores the value as it is.
    void operator=(float fValue) override;  // slot 28

    /// As CcGrayImageInt16::NormalizeInt16ToByteImage.
    int NormalizeFloatToByteImage(const float* pSource, unsigned char* pBytes, int iRows, int iColumns, int iMode);
    /// As CcGrayImageInt16::Copy8BitToInt16.
    int Copy8BitToFloat(const unsigned char* pBytes, float* pTarget, int iRows, int iColumns);
    /// As CcGrayImageInt16::ReconfigureDisplayLUT.
    int ReconfigureDisplayLUT(int iList);
    /// As CcGrayImageInt16::ReconfigureColorTable.
    int ReconfigureColorTable(int iLUT, int iChannel);

protected:
    float* pSamples = nullptr;   ///< null without samples
    KestGlobalBlock hSamples;    ///< the block behind pSamples
    float fDataMax = 255.0F;     ///< as last scanned
    float fDataMin = 0.0F;       ///< as last scanned
    float fDisplayMax = 255.0F;  ///< the sample shown as 255
    float fDisplayMin = 0.0F;    ///< the sample shown as 0
    float fScale = 1.0F;         ///< levels a sample unit
    float fOffset = 0.0F;        ///< the level of sample 0
    int bAutoUpdateDisplay = 1;  ///< 1: the display range follows the samples

private:
    kest::WideImage<float> Wide();

    bool bKeepsDisplayRange = false;  ///< while thresholding puts point lists back
};
