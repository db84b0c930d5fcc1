// CcCalibration: from image pixels to world units and back.
#pragma once

#include "CcHLObject.h"
#include "KestBlocks.h"
#include "KestPlatform.h"

/// Size of the name of a world unit, without its terminator.
constexpr int KEST_UNITS_SIZE = 80;

/// A perspective mapping between an image and a plane of the world, fitted to four point pairs, with the world area of
/// every pixel. It is kept in a file of its own (".cal"); an object stream does not take it.
///
/// Image points are pixels, x from the left column, y from the BOTTOM row, whole at pixel centres. World points and
/// lengths are in the calibration's unit (GetUnitsOfMeasure), areas in its square. A new calibration maps every point
/// to itself and has no area map.
///
/// Results: 0, or -1 for failure. Only a Save that the disk does not take shows a message. A copy shares its source's
/// area map (see KestBlocks.h).
class KEST_API CcCalibration : public CcHLObject {
public:
    CcCalibration();
    CcCalibration(const CcCalibration&) = default;
    CcCalibration& operator=(const CcCalibration&) = default;
    ~CcCalibration() override;  // slot 0; slots 1 to 5 are inherited

    /// Fits the mapping to four pairs of points and computes the area map of an image of iWidth columns and iHeight
    /// rows. -1, with the mapping unchanged, for a null pointer, a count other than 4, or when three image points lie
    /// on a line; -1, with the new mapping but no map, for a size below 1 or without memory.
    int DoCalibration(tagPoints* pImagePoints, tagPoints* pWorldPoints, int iCount, int iWidth, int iHeight);

    /// Image to world. The result is not finite on the plane's horizon. -1 for a null pointer.
    int ConvertPoint(float fX, float fY, float* pfWorldX, float* pfWorldY);
    int ConvertPoint(tagPoints* pImage, tagPoints* pWorld);  ///< the same; both may be one record
    /// The same for iCount points, much faster than one by one; both arrays may be the same. -1 for a null pointer or a
    /// negative count.
    int ConvertPoints(const tagPoints* pImage, tagPoints* pWorld, int iCount);
    /// Image to world in double precision throughout, for lengths of many steps. -1 for a null pointer.
    int ConvertPointExactly(double dX, double dY, double* pdWorldX, double* pdWorldY) const;
    /// World to image, for a mapping with perspective. The result is not finite when one of four terms is 0: always
    /// when h3 = h6 = 0, as in a new calibration or one without perspective and rotation. -1 for a null pointer.
    int ReverseConvertPoint(float fWorldX, float fWorldY, float* pfX, float* pfY);

    /// The mapping, nine floats row by row: an image point (x, y, 1) times it is the world point times its third
    /// component.
    const float* GetTransform() const { return fTransform[0]; }

    /// World area of a pixel; 1.0 when there is no map, -1.0 outside the map.
    float GetAreaOfPixel(int iX, int iY);
    /// World area of a pixel, inside the image or not, with a map or without: what a map would hold there.
    float ComputeAreaOfPixel(int iX, int iY) const;
    /// The map, row by row from the bottom, GetSizeOfImage in size; null when there is none. It stays the calibration's
    /// and is gone with the next DoCalibration or Open.
    const float* GetAreaMap() const { return pAreaMap; }
    /// The map's size; -1 and -1 when there is none. Either pointer may be null. Always 0.
    int GetSizeOfImage(int* piWidth, int* piHeight);

    /// The calibration's own four image points, not a copy.
    tagPoints* GetImagePoints();
    /// The same for the world points.
    tagPoints* GetWorldPoints();

    /// The calibration's own name of the world unit, not a copy.
    char* GetUnitsOfMeasure();
    /// -1 for null or more than 80 characters; the unit then stays as it was.
    int SetUnitsOfMeasure(const char* pszUnits);

    /// Version of the files that Save writes: 2.
    int GetLatestVersionNumber();
    /// Version of the file that Open read last, 1 or 2; 2 at first.
    int GetLoadedVersionNumber();

    /// Writes a ".cal" file; a null path asks the user. -1 when that is cancelled or the file cannot be created. What
    /// the disk does not take is told by a message box "Problem writing calibration to file" with the caption "File I/O
    /// Error"; an old file is then as it was, and the result 0.
    int Save(const char* pszFileName);
    /// Reads a ".cal" file of version 1 (which has no points; they stay as they were) or 2; a null path asks the user.
    /// -1, with nothing changed, when that is cancelled or the file cannot be opened or read, is no calibration or is
    /// shorter than it says, or without memory for its area map beside the old one.
    int Open(const char* pszFileName);

    static int iCalibrationCount;  ///< calibrations named so far

protected:
    int iLatestVersionNumber;                    ///< 2
    int iLoadedVersionNumber;                    ///< 1 or 2
    float fTransform[3][3];                      ///< image to world, row by row
    char szUnitsOfMeasure[KEST_UNITS_SIZE + 1];  ///< name of the world unit
    int iAreaMapWidth;                           ///< columns, -1 without a map
    int iAreaMapHeight;                          ///< rows, -1 without a map
    KestGlobalBlock hAreaMap;                    ///< the block behind pAreaMap
    float* pAreaMap;                             ///< a world area for each pixel; null without a map
    tagPoints stImagePoints[4];                  ///< as given to DoCalibration
    tagPoints stWorldPoints[4];                  ///< as given to DoCalibration

private:
    void DropAreaMap();
    void TakeAreaMap(KestGlobalBlock& newMap, int iWidth, int iHeight);
    bool MakeAreaMap(int iWidth, int iHeight);
};
