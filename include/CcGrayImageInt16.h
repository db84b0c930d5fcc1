// CcGrayImageInt16: the grayscale image of unsigned 16-bit samples.
#pragma once

#include "CcGrayImage256.h"

namespace kest {
template <class Sample>
struct WideImage;
}

/// Samples of 16 bits, 0 to 65535, in an array beside an 8-bit grayscale image that displays them: pixel (x, y) is
/// sample y * width + x. A display range of samples is mapped onto the levels 0 to 255; what lies below shows as 0,
/// what lies above as 255. The levels are coloured through the display tables. Streams, prints and the clipboard carry
/// the display image only; the class name is the 8-bit image's.
///
/// The samples travel in a raw file beside the BMP file, of the same name with the extension ".i16": file code 5,
/// height, width (32-bit signed each), then the samples, bottom row first, rows unpadded, all little-endian.
///
/// A change of samples (through `operator=`, a raw file or a new blank image) makes the statistics and the display
/// stale: GetMinPixelValue and GetMaxPixelValue bring the statistics up to date, Show also the display.
class KEST_API CcGrayImageInt16 : public CcGrayImage256 {
public:
    CcGrayImageInt16();
    CcGrayImageInt16(const CcGrayImageInt16&) = default;
    CcGrayImageInt16& operator=(const CcGrayImageInt16&) = default;
    ~CcGrayImageInt16() override;  // slot 0

    /// As the 8-bit image's; the image then has no samples until OpenBMPFile or MakeBlankBMP (a null storage changes
    /// nothing).
    int Load(CcObjectStorage* pStorage) override;  // slot 1
    /// The samples, of type unsigned short; null without any.
    void* GetBitMapImageData() override;  // slot 7
    /// @name Show
    /// -1 without samples or display image, and while memory for a display table is short, else 0, whether or not the
    /// picture could be drawn. When the samples or the display range changed, the display image is computed first, and
    /// with automatic display the point lists are spread over the display range.
    /// @{
    int Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 8
    int Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 9
    int Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 10
    /// @}
    /// A point's x is a sample value, its y the level shown for it. LUTs, channels and failures as the 8-bit image's.
    int GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) override;  // slot 12
    /// Any x values are taken; a level shows the y of the point that lies nearest to the level's sample value. First
    /// and last x become the display range when they differ from it by more than 0.1: the display image is computed
    /// again, and all point lists are spread over the new range. 0, also for an unknown LUT or channel; -1, and nothing
    /// changed, for null points and while memory for a display table is short.
    int SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) override;  // slot 13
    /// Without a raw file of the class's code, the image's size and enough bytes the samples are the 8-bit values;
    /// statistics and display are then not made stale (ReScaleImageOnShow does so for an object that held another
    /// image before). -1 for a BMP file that is refused (old samples stay); without samples after "Unable to Allocate
    /// Memory for 16-bit Image", and after "Can't read file of 16-bit image data" when there is a raw file that cannot
    /// be opened or read: with 8-bit values in their place its samples would be lost at the next save.
    int OpenBMPFile(const char* pszPath) override;  // slot 14
    /// Writes the display image as BMP file and the raw file beside it; both are complete before an old one is
    /// replaced. -1 without samples, for a cancelled dialog and for a path of 260 or more characters; and with both old
    /// files as they were after "Can't open file for saving 16-bit image data" (the old raw file cannot be written to),
    /// "Can't write file of 16-bit image data" or "Could not write DIB file". Where no raw file can be made and there
    /// is none, as at a path that is too long for it, the BMP file is written before the first of these messages; and
    /// it may be new already when the system breaks off in the very replacing. A BMP file that cannot be created is
    /// passed over, as by the 8-bit image.
    int SaveBMPFile(const char* pszPath) override;  // slot 15
    /// Every sample gets iValue's low 16 bits. -1 after "Could not make Blank DIB", or after "Unable to Allocate
    /// Memory for Floating Point Image" (whatever the sample type). Refilling an image of that size already keeps
    /// statistics and display range.
    int MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) override;  // slot 16
    /// @name Thresholding
    /// The bounds are display levels, 0 to 255.
    /// @{
    int BeginThresholding(HWND hWnd, unsigned short usLUT) override;                                   // slot 17
    int ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) override;  // slot 18
    int ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount) override;                     // slot 19
    int EndThresholding() override;                                                                    // slot 20
    /// @}
    /// The smallest sample, scanned for when samples changed; 0.0 at first.
    float GetMinPixelValue() override;  // slot 21
    /// The largest sample; 255.0 at first.
    float GetMaxPixelValue() override;  // slot 22
    int SizeOf() override;              // slot 23
    /// 1: the display range follows the smallest and largest sample from the next Show on; anything else: it stays as
    /// it is, or as SetDisplayLUT sets it. 0.
    int SetAutoUpdateDisplay(int iOn) override;  // slot 24
    int GetAutoUpdateDisplay() override;         // slot 25
    /// Bilinear, within the centres of the border pixels.
    float& operator()(float fX, float fY) override;  // slot 26
    float& operator()(int iX, int iY) override;      // slot 27
    /// Stores the low 16 bits of the truncated value.
    void operator=(float fValue) override;  // slot 28
    /// A CcGrayImageInt16, with the samples under the ROI.
    CcImage* GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) override;  // slot 29

    /// Computes the display bytes of iRows * iColumns samples (iMode 0), or only their statistics (iMode 1), which are
    /// taken only when samples changed. -1 for a null array that is needed, or a size below 1.
    int NormalizeInt16ToByteImage(const unsigned short* pSource, unsigned char* pBytes, int iRows, int iColumns,
                                  int iMode);
    /// Every sample becomes the byte at its place. -1 for a null array.
    int Copy8BitToInt16(const unsigned char* pBytes, unsigned short* pTarget, int iRows, int iColumns);
    /// Spreads the x values of a point list (0 to 2 red, green and blue of LUT 101, 3 to 5 LUTs 102 to 104) evenly over
    /// the display range. Always -1.
    int ReconfigureDisplayLUT(int iList);
    /// Computes the display table that a point list feeds. -1 for an unknown LUT or channel.
    int ReconfigureColorTable(int iLUT, int iChannel);

protected:
    unsigned short* pSamples = nullptr;  ///< null without samples
    KestGlobalBlock hSamples;            ///< the block behind pSamples
    float fDataMax = 255.0F;             ///< as last scanned
    float fDataMin = 0.0F;               ///< as last scanned
    float fDisplayMax = 255.0F;          ///< the sample shown as 255
    float fDisplayMin = 0.0F;            ///< the sample shown as 0
    float fScale = 1.0F;                 ///< levels a sample unit
    float fOffset = 0.0F;                ///< the level of sample 0
    int bAutoUpdateDisplay = 1;          ///< 1: the display range follows the samples

private:
    kest::WideImage<unsigned short> Wide();

    bool bKeepsDisplayRange = false;  ///< while thresholding puts point lists back
};
