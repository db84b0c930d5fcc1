// CcImage: what all images share, and the interface that each of them fills in.
#pragma once

#include "CcHLObject.h"
#include "CcList.h"
#include "KestBlocks.h"
#include "KestPlatform.h"

class CcCalibration;
class CcRoiBase;

namespace kest {
struct ImageParts;
}

/// What CcImage::GetImageType returns.
enum KestImageType : int {
    KEST_IMAGE_NONE = -1,    ///< CcImage itself
    KEST_IMAGE_GRAY256 = 0,  ///< CcGrayImage256
    KEST_IMAGE_INT32 = 1,    ///< CcGrayImageInt32
    KEST_IMAGE_FLOAT = 2,    ///< CcGrayImageFloat
    KEST_IMAGE_RGB = 3,      ///< Cc24BitRGBImage
    KEST_IMAGE_BINARY = 4,   ///< CcBinaryImage
    KEST_IMAGE_INT16 = 5,    ///< CcGrayImageInt16
    KEST_IMAGE_HSL = 6,      ///< Cc24BitHSLImage
};

/// The abstract image: a device-independent bitmap (DIB) in one global memory block, a list of regions of interest, an
/// 8-bit overlay, a link to a calibration, and the interface of all images.
///
/// Coordinates: x counts columns from the left, y rows from the BOTTOM. Rows in memory follow one another without
/// padding, bottom row first.
///
/// Pixel access takes two steps. `image(x, y)` addresses a pixel and returns a reference to a cell of the image that
/// holds its value; `image = value` then writes the addressed pixel. Assigning to the returned reference changes only
/// the cell, never the image.
///
/// Display arguments, the same in every call: `usMode` 1 shows the image at the whole-number zoom `iZoom` (at least 1)
/// with column `iXOffset` at the window's left edge and `iYOffset` rows hidden above its top edge; any other mode
/// stretches the whole image to the target. `usLUT` selects a display table, 100 to 104.
///
/// Results: 0, or -1 for failure (-1.0 and null for floats and pointers). In this base class each operation of the
/// interface but GetRegion beeps and shows "This is a Virtual Function"; those for thresholding return 0 after it.
///
/// While a message box, a dialog or a print job is open the application goes on: its timers and paint handlers may give
/// the image another picture, and what is drawn, printed, copied or saved afterwards is the one that is there then.
/// They must not delete the image.
///
/// A copy shares its source's blocks (see KestBlocks.h), its list members included.
class KEST_API CcImage : public CcHLObject {
public:
    CcImage();
    CcImage(const CcImage&) = default;
    CcImage& operator=(const CcImage&) = default;

    // Virtual operations in slot order
    /// Deletes the ROIs of the list, whatever its destruction type was set to; does not release the calibration link.
    ~CcImage() override;  // slot 0
    /// Reads the ROI list. -1 when a read fails or a member is no ROI; the ROIs before it stay in the list.
    int Load(CcObjectStorage* pStorage) override;  // slot 1
    /// Writes the ROI list.
    int Store(CcObjectStorage* pStorage) override;  // slot 2
    // slots 3 to 5: GetClassNameA, GetObjectName, SetObjectName, inherited
    /// Puts the image, or the part of it under `pRect` (image coordinates, top above bottom), with its overlay on the
    /// clipboard as CF_BITMAP. -1, with the clipboard as it was, when it could not be drawn.
    virtual int CopyToClipboard(HWND hWnd, unsigned short usLUT, RECT* pRect);  // slot 6
    /// The first byte of the pixel rows (or of the samples); null without pixels. No box in the base.
    virtual void* GetBitMapImageData();  // slot 7
    /// Draws into `pRect` of the device context. Zooms, offsets and rectangles may be as large as integers are; what
    /// lies outside the surface is left out.
    virtual int Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                     int iZoom);  // slot 8
    /// Draws into the device context, as large as the window's client area.
    virtual int Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                     int iZoom);  // slot 9
    /// Draws into the window's client area.
    virtual int Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                     int iZoom);  // slot 10
    /// Prints one page after the print dialog; -1 when it is cancelled, or when the page could not be drawn or printed
    /// whole (the job is then given up).
    virtual int Print(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                      int iZoom);  // slot 11
    /// Copies the point list of a display table's channel out.
    virtual int GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints);  // slot 12
    /// Replaces the point list of a display table's channel and recomputes the table.
    virtual int SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints);  // slot 13
    /// Reads a BMP file; a null path asks the user. The image takes the file's name without directory and extension.
    virtual int OpenBMPFile(const char* pszPath);  // slot 14
    /// Writes a BMP file; a null path asks the user.
    virtual int SaveBMPFile(const char* pszPath);  // slot 15
    /// Makes an image of iNewHeight rows and iNewWidth columns (in this order), filled with iValue.
    virtual int MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName);  // slot 16
    /// Begins a session of thresholding; EndThresholding ends it.
    virtual int BeginThresholding(HWND hWnd, unsigned short usLUT);  // slot 17
    /// Shows the values from fLow to fHigh in a colour.
    virtual int ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue);  // slot 18
    /// The same for iCount bands; where bands overlap, what counts is said by each class.
    virtual int ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount);  // slot 19
    /// Shows the image as it was before BeginThresholding.
    virtual int EndThresholding();  // slot 20
    /// The smallest pixel value, of the type or of the samples.
    virtual float GetMinPixelValue();  // slot 21
    /// The largest pixel value, likewise.
    virtual float GetMaxPixelValue();  // slot 22
    /// Bytes a pixel.
    virtual int SizeOf();  // slot 23
    /// 1: the display range of a wide image follows its samples.
    virtual int SetAutoUpdateDisplay(int iOn);  // slot 24
    /// What SetAutoUpdateDisplay set.
    virtual int GetAutoUpdateDisplay();  // slot 25
    /// Addresses a position between pixels and reads its value, interpolated; -1.0 outside the image.
    virtual float& operator()(float fX, float fY);  // slot 26
    /// Addresses a pixel and reads its value; -1.0 outside the image.
    virtual float& operator()(int iX, int iY);  // slot 27
    /// Writes the pixel addressed last; does nothing when that lay outside the image.
    virtual void operator=(float fValue);  // slot 28
    /// Cuts the pixels under a ROI into a new image of the ROI's bounding size, which belongs to the caller. Pixels
    /// outside the ROI, or where it reaches out of the image, get iFillValue; iAlign 1 widens the image to
    /// (width / 4) * 4 + 4 columns. Null on failure.
    virtual CcImage* GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign);  // slot 29

    /// One of KestImageType.
    int GetImageType();
    /// Either pointer may be null. Always 0.
    int GetHeightWidth(int* piHeight, int* piWidth);
    /// The image's own list; the ROIs in it are deleted with the image.
    CcList* GetListROI();
    /// Asks a wide image to scan its samples again at the next Show.
    int ReScaleImageOnShow();
    /// A number that the application may attach.
    int GetInstance();
    int SetInstance(int iNewInstance);  ///< always 0

    /// What the pixel operators address: 0 the image, 1 the overlay (-1 while there is none).
    int SetOperatorOverloadAccess(int iMode);

    /// @name Overlay
    /// A byte a pixel in one block, rows of exactly the image's width, bottom row first. A byte selects one of the
    /// 20 system colours by its value modulo 20 (13 red, 14 green, 16 blue, 19 white); black, as 0, 20 and all from
    /// 240 on, lets the image show (Print paints every value but 0). The overlay keeps its size when the image gets
    /// another one; make it anew then.
    /// @{

    /// Replaces the overlay by an empty one of the image's size. -1 without an image, or after a message.
    int CreateOverlay();
    /// Frees the pixels but leaves the overlay noted as present: GetOverlay then gives null until CreateOverlay.
    int FreeOverlay();
    /// Empties the overlay, making it if there is none. -1 without an image.
    int ClearOverlay();
    /// The overlay's first byte, made if there is none. Null without an image.
    unsigned char* GetOverlay();
    /// ORs the overlay onto what the window shows. -1, after a message when there is no overlay, and when it could not
    /// be drawn.
    int ShowOverlay(HWND hWnd, unsigned short usMode, int iXOffset, int iYOffset, int iZoom);
    /// The same into a device context of the window, without a message.
    int ShowOverlay(HDC hDC, HWND hWnd, unsigned short usMode, int iXOffset, int iYOffset, int iZoom);
    /// @}

    /// The image pixel shown at a client point of the window. At a zoom above 1 the zoom itself, not 1, is subtracted
    /// in the row. -1 for a null argument or a zoom below 1.
    int ConvertPointToImageCoords(HWND hWnd, int iXOffset, int iYOffset, unsigned short usMode, POINT* pptWindow,
                                  POINT* pptImage, int iZoom);
    /// The same as a position with fractions.
    int ConvertPointToImageCoords(HWND hWnd, int iXOffset, int iYOffset, unsigned short usMode, POINT* pptWindow,
                                  tagPoints* pptImage, int iZoom);

    /// @name Calibration
    /// It is the caller's: images share it and count themselves in its reference count, but an image that is
    /// deleted does not count itself out. Unlink it before it is deleted.
    /// @{

    /// Links a calibration in place of the one before. -1, with the link unchanged, for null, an object that is no
    /// calibration, or one whose area map is not of the image's size.
    int SetCalibrationObject(CcCalibration* pNewCalibration);
    /// Null when none is linked.
    CcCalibration* GetCalibrationObject();
    /// Always 0.
    int ClearCalibrationObject();
    /// The world point of an image point through the calibration; the point itself without one. -1 for a null argument.
    int ConvertImagePointToWorldCoords(tagPoints* pptImage, tagPoints* pptWorld);
    /// @}

    static PRINTDLGA stPrintSetup;  ///< the printer chosen once, kept for all images
    static int iPrinterSetupFlag;   ///< 1 once the first image was constructed

protected:
    CcList cListROI;               ///< destruction type 1 from the constructor on
    BITMAPINFO* lpOverlayInfo;     ///< not null once there was an overlay; its memory is live while lpOverlayBits is
    KestGlobalBlock hOverlay;      ///< header, colour table and bytes of the overlay
    unsigned char* lpOverlayBits;  ///< the overlay's first byte; null without one
    RGBQUAD* lpOverlayColors;      ///< the overlay's colour table
    KestPalette hPalette;          ///< the palette of the DIB's colour table
    BITMAPINFO* lpBitmapInfo;      ///< null without a DIB
    KestGlobalBlock hDib;          ///< header, colour table and pixels
    unsigned char* lpBits;         ///< null without usable pixels, also while a refused file's block is attached
    RGBQUAD* lpColors;             ///< the DIB's colour table
    int iHeight;                   ///< rows
    int iWidth;                    ///< columns
    int iImageType;                ///< one of KestImageType
    int iOperatorAccess;           ///< 0 image, 1 overlay
    int iReScaleOnShow;            ///< 2 samples changed, 1 display stale, 0 up to date
    float fPixelValue;             ///< the cell that the pixel operators return
    int iPixelIndex;               ///< of the pixel addressed last, -1 outside
    int iInstance;                 ///< the application's number
    DOCINFOA stDocInfo;            ///< of the last print job
    CcCalibration* pCalibration;   ///< the linked calibration, or null

    long long llPixelBlockBytes;  ///< bytes from lpBits to the end of the DIB's block

    /// The members above, as the library's own functions work on them (internal).
    kest::ImageParts Parts();
};
