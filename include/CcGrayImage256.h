// CcGrayImage256: the 8-bit grayscale image.
#pragma once

#include "CcImage.h"
#include "KestDisplayTable.h"

/// Pixels of 8 bits, values 0 to 255, in a DIB with a 256-entry colour table: pixel (x, y) is byte y * width + x.
///
/// Five display tables decide how it is shown: 100 the file's own colours, 101 colours computed from a red, a green and
/// a blue curve, 102 to 104 grays of 256, 128 and 64 levels computed from a curve each. Drawing copies the table into
/// the DIB, so the DIB, its file and its stored record carry what was shown last (after 102 to 104 palette indices).
/// Thresholding colours bands in the curves of table 101.
class KEST_API CcGrayImage256 : public CcImage {
public:
    CcGrayImage256();
    CcGrayImage256(const CcGrayImage256&) = default;
    CcGrayImage256& operator=(const CcGrayImage256&) = default;
    ~CcGrayImage256() override;  // slot 0

    /// A record that cannot be read (the stream's own code) or holds no usable DIB (-1) leaves an image without pixels;
    /// -1 also when only the ROI list fails. The depth of a stored DIB is not checked; it must have a colour table,
    /// which lies inside its block with a byte a pixel.
    int Load(CcObjectStorage* pStorage) override;  // slot 1
    /// Writes name, DIB and ROI list. -1 when one of them cannot be written.
    int Store(CcObjectStorage* pStorage) override;              // slot 2
    int GetClassNameA(char* pszBuffer, long lLength) override;  // slot 3
    /// Needs an image and its display tables; copies nothing for an empty or turned rectangle (-1). An unknown LUT
    /// counts as 101.
    int CopyToClipboard(HWND hWnd, unsigned short usLUT, RECT* pRect) override;  // slot 6
    void* GetBitMapImageData() override;                                         // slot 7
    /// @name Show
    /// 0, also without an image; -1 for a null device context or window, and when the picture could not be drawn
    /// (memory is short, or the platform refused). An unknown LUT shows "Returned NULL from SelectPalette" and draws
    /// with the table that the DIB carries. The device context is left as it was.
    /// @{
    int Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 8
    int Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 9
    int Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 10
    /// @}
    /// Needs an image. LUT 102 to 104 print the palette indices as grays, so 103 and 104 come out darker than on
    /// screen. -1 also for an unknown LUT, after the dialog, and when the page cannot be printed whole.
    int Print(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
              int iZoom) override;  // slot 11
    /// LUT 101, channels 1 red, 2 green, 3 blue: 256 points. LUT 102, 103, 104, channel 0: 256, 128, 64 points. -1 for
    /// anything else.
    int GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) override;  // slot 12
    /// Point k must have x = k (LUT 101, 102), 2k (103) or 4k (104), else -1; its y is the level shown for input x,
    /// clamped to 0..255 and truncated. Between the points the table is constant. -1, and nothing changed, also while
    /// memory for a display table is short.
    int SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) override;  // slot 13
    /// -1 after a message: "Could not open DIB file", or for a file with other than 256 colours "This type of Object
    /// only handles 256 Color BitMaps" (until the next image arrives this one then has no pixels). A path of 260 or
    /// more characters gives -1 without one. Display tables for which memory is short are made when they are needed.
    int OpenBMPFile(const char* pszPath) override;  // slot 14
    /// 0 also, and without a message, when the file cannot be created (a folder that is not there, a file that is
    /// write-protected or in use): look for the file where that matters. -1 without an image, after "No Image to save";
    /// when the disk does not take the file, after "Could not write DIB file", with the old one as it was; for a
    /// cancelled dialog; and for a path of 260 or more characters. What is written after OpenBMPFile refused a colour
    /// count is that file's DIB.
    int SaveBMPFile(const char* pszPath) override;  // slot 15
    /// Every pixel gets the low 8 bits of iValue. An image of that size already is refilled and keeps its colours.
    int MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) override;  // slot 16
    /// @name Thresholding
    /// It sets the curves of LUT 101 and changes no pixel; show the image with LUT 101 to see it. Levels in a band
    /// (from fLow rounded down to fHigh rounded up) show the band's colour, all others their gray. A band from
    /// 255.0 on starts at 0. Window and usLUT are not used. -1, and nothing changed, while memory for a display table
    /// is short.
    /// @{

    /// All gray.
    int BeginThresholding(HWND hWnd, unsigned short usLUT) override;  // slot 17
    /// One band in place of those before; -1, and nothing changed, when it is empty.
    int ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) override;  // slot 18
    /// Later bands cover earlier ones, empty ones count for nothing. No band at all is gray; null with a count is -1.
    int ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount) override;  // slot 19
    /// All gray.
    int EndThresholding() override;  // slot 20
    /// @}
    /// Always 0.0.
    float GetMinPixelValue() override;  // slot 21
    /// Always 255.0.
    float GetMaxPixelValue() override;  // slot 22
    int SizeOf() override;              // slot 23
    /// Does nothing, 0.
    int SetAutoUpdateDisplay(int iOn) override;  // slot 24
    /// Always -1.
    int GetAutoUpdateDisplay() override;  // slot 25
    /// Bilinear. A position up to the image's width and height counts as inside; beyond its last column or row the
    /// byte that follows in memory is taken, or the nearest pixel where none follows.
    float& operator()(float fX, float fY) override;  // slot 26
    float& operator()(int iX, int iY) override;      // slot 27
    /// Stores the low 8 bits of the truncated value.
    void operator=(float fValue) override;  // slot 28
    /// A CcGrayImage256.
    CcImage* GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) override;  // slot 29

    static char cFullFilePathOpen[KEST_NAME_SIZE];  ///< the file opened last by any image of this class
    static char cFullFilePathSave[KEST_NAME_SIZE];  ///< the file saved last

protected:
    int iNumColors;               ///< entries of the DIB's colour table
    int iColorTableBytes;         ///< bytes of it
    KestDisplayTable stTable100;  ///< the file's colours
    KestDisplayTable stTable101;  ///< from the three curves
    tagPoints stLUTRed[256];      ///< point list of LUT 101, channel 1
    tagPoints stLUTGreen[256];    ///< point list of LUT 101, channel 2
    tagPoints stLUTBlue[256];     ///< point list of LUT 101, channel 3
    KestDisplayTable stTable102;  ///< 256 grays
    tagPoints stLUT256[256];      ///< point list of LUT 102
    KestDisplayTable stTable103;  ///< 128 grays
    tagPoints stLUT128[128];      ///< point list of LUT 103
    KestDisplayTable stTable104;  ///< 64 grays
    tagPoints stLUT64[64];        ///< point list of LUT 104

    /// The members above, as the library's own functions work on them (internal).
    kest::Dib8Image Dib8();
};
