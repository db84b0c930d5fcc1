// Cc24BitRGBImage: the 24-bit colour image.
#pragma once

#include "CcImage.h"

namespace kest {
struct ColourImage;
}

/// What the pixel operators and the bands of a Cc24BitRGBImage look at (SetAccess).
enum KestRgbChannel : int {
    KEST_CHANNEL_LUMINANCE = 0,  ///< 0.299 red + 0.587 green + 0.114 blue, with fractions
    KEST_CHANNEL_RED = 1,        ///< the red component, 0 to 255
    KEST_CHANNEL_GREEN = 2,      ///< the green component
    KEST_CHANNEL_BLUE = 3,       ///< the blue component
};

/// Pixels of three bytes, blue, green, red, in a DIB without colour table: pixel (x, y) begins at byte
/// 3 * (y * width + x).
///
/// Thresholding paints the pixels themselves. BeginThresholding keeps a copy of them; each following call starts from
/// that copy, and EndThresholding puts it back. Without BeginThresholding a band stays painted.
class KEST_API Cc24BitRGBImage : public CcImage {
public:
    Cc24BitRGBImage();
    Cc24BitRGBImage(const Cc24BitRGBImage&) = default;
    Cc24BitRGBImage& operator=(const Cc24BitRGBImage&) = default;
    ~Cc24BitRGBImage() override;  // slot 0

    /// A record that cannot be read leaves the image as it is, one that holds no usable DIB an image without pixels:
    /// -1. The name is not part of the record. The depth of a stored DIB is not checked; its colour table and three
    /// bytes a pixel must lie inside its block.
    int Load(CcObjectStorage* pStorage) override;  // slot 1
    /// Writes DIB and ROI list. -1 when one of them cannot be written.
    int Store(CcObjectStorage* pStorage) override;              // slot 2
    int GetClassNameA(char* pszBuffer, long lLength) override;  // slot 3
    // Copying, showing and printing use no palette; usLUT is not looked at.
    /// Needs an image; copies nothing for an empty or turned rectangle (-1). Makes no overlay where there is none.
    int CopyToClipboard(HWND hWnd, unsigned short usLUT, RECT* pRect) override;  // slot 6
    // slot 7: GetBitMapImageData, inherited
    /// @name Show
    /// Always 0; nothing is drawn without an image or something to draw into.
    /// @{
    int Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 8
    int Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 9
    int Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 10
    /// @}
    /// Needs an image. -1 also when the page cannot be printed whole.
    int Print(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
              int iZoom) override;  // slot 11
    /// Always -1: there are no display tables.
    int GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) override;  // slot 12
    int SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) override;  // slot 13
    /// 24-bit files without colour table whose rows need no padding. -1 after messages: the file's fault, then "Could
    /// not open DIB file"; for a file with a colour table "This type of Object only handles 24Bit RBG Color BitMaps".
    /// The image then has no pixels. A path of 260 or more characters gives -1 without a message. The name is the
    /// file's up to its first dot.
    int OpenBMPFile(const char* pszPath) override;  // slot 14
    /// -1 without an image, after "No Image to save"; when the disk does not take the file, after "Can't write file",
    /// with the old one as it was; for a cancelled dialog; and for a path of 260 or more characters. 0 also when the
    /// file cannot be created, after "Can't open file".
    int SaveBMPFile(const char* pszPath) override;  // slot 15
    /// Every byte gets the low 8 bits of iValue. An image of that size already is refilled.
    int MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) override;  // slot 16
    /// Keeps a copy of the pixels, in place of an earlier one. -1 without pixels or memory. The arguments are not used.
    int BeginThresholding(HWND hWnd, unsigned short usLUT) override;  // slot 17
    /// Paints the pixels whose access channel lies in the band, both ends included. The band of a colour channel is cut
    /// to 0..255 and truncated. Colours count as their low 8 bits. An empty band changes nothing, 0.
    int ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) override;  // slot 18
    /// Several bands in order; later ones win. Luminance bands look at the pixel as it was, channel bands at what
    /// earlier ones have painted. Any empty band: nothing changes, 0. Null with a count is -1.
    int ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount) override;  // slot 19
    /// Puts the copy back and frees it. Always 0.
    int EndThresholding() override;  // slot 20
    /// Always 0.0.
    float GetMinPixelValue() override;  // slot 21
    /// Always 255.0.
    float GetMaxPixelValue() override;  // slot 22
    /// 3.
    int SizeOf() override;  // slot 23
    /// Does nothing, 0.
    int SetAutoUpdateDisplay(int iOn) override;  // slot 24
    /// Always 1.
    int GetAutoUpdateDisplay() override;  // slot 25
    /// Bilinear in the access channel. Inside is what has all its neighbours inside: 0.0 to width - 1 and height - 1.
    float& operator()(float fX, float fY) override;  // slot 26
    /// The access channel's value.
    float& operator()(int iX, int iY) override;  // slot 27
    /// A colour channel gets the low 8 bits of the truncated value. Luminance: all three components move by the same
    /// amount, cut to 0..255.
    void operator=(float fValue) override;  // slot 28
    /// A Cc24BitRGBImage.
    CcImage* GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) override;  // slot 29

    /// One of KestRgbChannel; -1, and nothing changed, for anything else.
    virtual int SetAccess(int iChannel);  // slot 30
    /// KEST_CHANNEL_LUMINANCE at first.
    virtual int GetAccess();  // slot 31
    /// Paints the pixels of a box of colours, ends included, whatever the access channel. -1 when a low end is not
    /// below its high end. Low ends are raised to 0, high ends lowered to 255; of each end its low 8 bits count
    /// then. The new colour is cut to 0..255.
    virtual int ThresholdImageRGB(HWND hWnd, int iRedLow, int iRedHigh, int iGreenLow, int iGreenHigh, int iBlueLow,
                                  int iBlueHigh, int iNewRed, int iNewGreen, int iNewBlue);  // slot 32

    static char cFullFilePathOpen[KEST_NAME_SIZE];  ///< the directory of the file opened last, without drive
    static char cFullFilePathSave[KEST_NAME_SIZE];  ///< the directory last chosen to save in

protected:
    int iAccess;                       ///< one of KestRgbChannel
    int bThresholdActive;              ///< 1 while a copy of the pixels is kept
    KestGlobalBlock hThresholdBackup;  ///< the block behind pThresholdBackup
    unsigned char* pThresholdBackup;   ///< that copy; null without one

private:
    kest::ColourImage Colour();
};
