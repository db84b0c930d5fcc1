// Cc24BitHSLImage: the 24-bit colour image with a plane of hue, saturation and lightness.
#pragma once

#include "CcImage.h"

namespace kest {
struct ColourImage;
}

/// What the pixel operators and the bands of a Cc24BitHSLImage look at (SetAccess).
enum KestHslChannel : int {
    KEST_CHANNEL_HUE = 4,         ///< 0 to 239
    KEST_CHANNEL_SATURATION = 5,  ///< 0 to 240
    KEST_CHANNEL_LIGHTNESS = 6,   ///< 0 to 240
};

/// The DIB of Cc24BitRGBImage, and beside it the HSL plane: for each pixel three bytes, lightness, saturation, hue, at
/// the same index. Hue 0 to 239 stands for 0 to 360 degrees (red 0, green 80, blue 160), saturation and lightness 0 to
/// 240 for 0 to 1.
///
/// The DIB is what is shown, printed, copied, saved and stored; pixel access and thresholding look at the plane.
/// Writing a pixel changes only the plane, UpdateRGB makes the DIB follow. Conversion truncates, so there and back is
/// not quite the same colour: thresholding, which rewrites the DIB from the plane, changes the other pixels slightly
/// until EndThresholding puts the DIB back.
class KEST_API Cc24BitHSLImage : public CcImage {
public:
    Cc24BitHSLImage();
    Cc24BitHSLImage(const Cc24BitHSLImage&) = default;
    Cc24BitHSLImage& operator=(const Cc24BitHSLImage&) = default;
    ~Cc24BitHSLImage() override;  // slot 0

    /// As Cc24BitRGBImage. Only the DIB is stored: the plane keeps what it holds, or is made with zeros where it has
    /// another size; DoConvert then computes it.
    int Load(CcObjectStorage* pStorage) override;               // slot 1
    int Store(CcObjectStorage* pStorage) override;              // slot 2
    int GetClassNameA(char* pszBuffer, long lLength) override;  // slot 3
    // Copying, showing and printing as Cc24BitRGBImage.
    int CopyToClipboard(HWND hWnd, unsigned short usLUT, RECT* pRect) override;  // slot 6
    // slot 7: GetBitMapImageData, inherited, gives the DIB's pixels
    int Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 8
    int Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 9
    int Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
             int iZoom) override;  // slot 10
    int Print(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
              int iZoom) override;  // slot 11
    /// Always -1: there are no display tables.
    int GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) override;  // slot 12
    int SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) override;  // slot 13
    /// As Cc24BitRGBImage, with the plane computed, and remembered directories of its own.
    int OpenBMPFile(const char* pszPath) override;  // slot 14
    /// As Cc24BitRGBImage: what UpdateRGB has not brought into the DIB is not saved.
    int SaveBMPFile(const char* pszPath) override;  // slot 15
    /// A gray image: an existing one of that size is refilled with the low 8 bits of iValue, for a new one iValue is
    /// cut to 0..255.
    int MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) override;  // slot 16
    /// Keeps a copy of the DIB's pixels, in place of an earlier one. -1 without pixels or memory.
    int BeginThresholding(HWND hWnd, unsigned short usLUT) override;  // slot 17
    // The three below start from the copy, with the plane computed anew, where there is one. -1 also when the plane
    // cannot be converted, as with values above 240 in it.
    /// Paints the pixels whose access channel lies in the band, cut to 0..255 and truncated, both ends included. The
    /// colour counts as its low 8 bits. An empty band changes nothing, 0.
    int ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) override;  // slot 18
    /// Several bands in order, each looking at what earlier ones have painted. Any empty band: nothing changes, 0. Null
    /// with a count is -1.
    int ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount) override;  // slot 19
    /// Puts the copy back, computes the plane anew and frees the copy. -1, and the copy kept, when the plane cannot be
    /// computed.
    int EndThresholding() override;  // slot 20
    /// Always 0.0.
    float GetMinPixelValue() override;  // slot 21
    /// Always 255.0, although the plane's values end at 240.
    float GetMaxPixelValue() override;  // slot 22
    /// 3.
    int SizeOf() override;  // slot 23
    /// Does nothing, 0.
    int SetAutoUpdateDisplay(int iOn) override;  // slot 24
    /// Always 1.
    int GetAutoUpdateDisplay() override;  // slot 25
    /// Bilinear in the access channel, hue included. Inside as in Cc24BitRGBImage.
    float& operator()(float fX, float fY) override;  // slot 26
    /// The access channel's value.
    float& operator()(int iX, int iY) override;  // slot 27
    /// The access channel's byte in the plane gets the low 8 bits of the truncated value; the DIB stays.
    void operator=(float fValue) override;  // slot 28
    /// A Cc24BitHSLImage, its plane cut out of this one's.
    CcImage* GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) override;  // slot 29

    /// One of KestHslChannel; -1, and nothing changed, for anything else.
    virtual int SetAccess(int iChannel);  // slot 30
    /// KEST_CHANNEL_HUE at first.
    virtual int GetAccess();  // slot 31
    /// Paints the pixels of a box of hue, saturation and lightness, ends included, whatever the access channel. -1 when
    /// a low end is not below its high end. Low ends are raised to 0, high ends lowered to 255; of each end its
    /// low 8 bits count then. The colour is cut to 0..255.
    virtual int ThresholdImageHSL(HWND hWnd, int iHueLow, int iHueHigh, int iSatLow, int iSatHigh, int iLightLow,
                                  int iLightHigh, int iRed, int iGreen, int iBlue);  // slot 32

    /// One colour: hue into rgbRed, saturation into rgbGreen, lightness into rgbBlue; a gray has hue 0. -1 for null.
    int RGB2HSL(unsigned char ucRed, unsigned char ucGreen, unsigned char ucBlue, RGBQUAD* pHsl);
    /// And back. -1 for null or a value above 240.
    int HSL2RGB(unsigned char ucHue, unsigned char ucSat, unsigned char ucLight, RGBQUAD* pRgb);
    /// One component, 0 to 1: it rises from dM1 to dM2 over the hues 0 to 60 degrees, stays until 180 and falls until
    /// 240. dHue from -360 to 720 degrees.
    double HSL2RGB_Helper(double dM1, double dM2, double dHue);
    /// Whether ConvertHSLDibToRGB takes values above 240 as 240, instead of failing (as it does at first).
    void SetClipping(bool bClip);
    /// Converts iRows * iColumns pixels of three bytes, rows unpadded. -1 for a null pointer or a count below 1.
    int ConvertRGBDibToHSL(unsigned char* pRgb, unsigned char* pHsl, int iRows, int iColumns);
    /// And back. -1 also at the first value above 240 (see SetClipping), with the pixels before it converted.
    int ConvertHSLDibToRGB(unsigned char* pRgb, unsigned char* pHsl, int iRows, int iColumns);
    /// Computes the plane from the DIB. -1, after "Error in DoConvert.", without either.
    int DoConvert();
    /// Computes the DIB from the plane. -1, after "Error in UpdateRGB.", without either, or for a value above 240.
    int UpdateRGB();
    /// Reads a BMP file as OpenBMPFile does, into a block of its own that belongs to the caller (locked; its handle
    /// goes to `*phDIB`). Returns its header; null after a message. The plane of this object becomes the file's.
    unsigned char* ReadDibBM24HSL(const char* pszPath, void** phDIB);
    /// Makes a gray DIB in a block of its own that belongs to the caller, as above, with iValue cut to 0..255. The
    /// plane of this object becomes that of the new DIB.
    unsigned char* MakeBlankDibBM24HSL(int iNewHeight, int iNewWidth, int iValue, void** phDIB);
    /// The HSL plane; null when there is none.
    void* GetBitMapImageDataHSL();

    static char cFullFilePathOpen[KEST_NAME_SIZE];  ///< the directory of the file opened last, without drive
    static char cFullFilePathSave[KEST_NAME_SIZE];  ///< the directory last chosen to save in

protected:
    int iAccess;                       ///< one of KestHslChannel
    unsigned char* pHSLData;           ///< the plane; null without one
    KestGlobalBlock hHSLData;          ///< the block behind it
    int bThresholdActive;              ///< 1 while a copy of the DIB's pixels is kept
    KestGlobalBlock hThresholdBackup;  ///< the block behind pThresholdBackup
    unsigned char* pThresholdBackup;   ///< that copy; null without one
    bool bClipping;                    ///< as SetClipping set it

private:
    kest::ColourImage Colour();
};
