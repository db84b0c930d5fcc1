// CcBinaryImage: the two-level image.
#pragma once

#include "CcImage.h"
#include "KestDisplayTable.h"

/// A mask: values 0 and 1 in the same 8-bit DIB, and the same BMP files, as the 8-bit grayscale image. Values are not
/// checked; what is written and loaded stays as it is.
///
/// It has one display table, three curves of 256 points. A new, loaded or opened image takes the working look: value 1
/// black, all others white. Thresholding colours the values 0 and 1.
class KEST_API CcBinaryImage : public CcImage {
public:
    CcBinaryImage();
    CcBinaryImage(const CcBinaryImage&) = default;
    CcBinaryImage& operator=(const CcBinaryImage&) = default;
    ~CcBinaryImage() override;  // slot 0

    /// As CcGrayImage256.
    int Load(CcObjectStorage* pStorage) override;               // slot 1
    int Store(CcObjectStorage* pStorage) override;              // slot 2
    int GetClassNameA(char* pszBuffer, long lLength) override;  // slot 3
    // Copying, showing and printing always use the one display table; usLUT is not looked at.
    int CopyToClipboard(HWND hWnd, unsigned short usLUT, RECT* pRect) override;  // slot 6
    void* GetBitMapImageData() override;                                         // slot 7
    int Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 8
    int Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 9
    int Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 10
    int Print(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
              int iZoom) override;  // slot 11
    /// LUT 101, channels 1 red, 2 green, 3 blue: 256 points. -1 for anything else.
    int GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) override;  // slot 12
    /// As CcGrayImage256 for LUT 101; -1, and nothing copied, for anything else.
    int SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) override;  // slot 13
    /// As CcGrayImage256, with remembered paths of its own.
    int OpenBMPFile(const char* pszPath) override;  // slot 14
    int SaveBMPFile(const char* pszPath) override;  // slot 15
    /// Every pixel gets the low 8 bits of iValue; the working look comes back.
    int MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) override;  // slot 16
    /// Does nothing, 0.
    int BeginThresholding(HWND hWnd, unsigned short usLUT) override;  // slot 17
    /// The working look with a colour for value 1 (band 1.0 to 1.0), value 0 (0.0 to 0.0) or both (0.0 to 1.0); any
    /// other band colours nothing. The window is told to redraw itself. Always 0.
    int ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) override;  // slot 18
    // slot 19: ThresholdImageMulti is not provided
    /// The working look. Always 0.
    int EndThresholding() override;  // slot 20
    /// Always 0.0.
    float GetMinPixelValue() override;  // slot 21
    /// Always 1.0.
    float GetMaxPixelValue() override;  // slot 22
    int SizeOf() override;              // slot 23
    /// Does nothing, 0.
    int SetAutoUpdateDisplay(int iOn) override;  // slot 24
    /// Always -1.
    int GetAutoUpdateDisplay() override;  // slot 25
    // Pixels as in CcGrayImage256.
    float& operator()(float fX, float fY) override;  // slot 26
    float& operator()(int iX, int iY) override;      // slot 27
    void operator=(float fValue) override;           // slot 28
    /// A CcBinaryImage.
    CcImage* GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) override;  // slot 29

    static char cFullFilePathOpen[KEST_NAME_SIZE];  ///< the file opened last by any image of this class
    static char cFullFilePathSave[KEST_NAME_SIZE];  ///< the file saved last

protected:
    KestDisplayTable stTable;   ///< from the three curves
    tagPoints stLUTRed[256];    ///< curve of channel 1
    tagPoints stLUTGreen[256];  ///< curve of channel 2
    tagPoints stLUTBlue[256];   ///< curve of channel 3
    int iNumColors;             ///< entries of the DIB's colour table
    int iColorTableBytes;       ///< bytes of it

private:
    kest::Dib8Image Dib8();
};
