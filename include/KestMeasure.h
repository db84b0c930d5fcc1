// Measuring: lengths and areas in pixels and in world units, and the pixels under a ROI.
//
// What counts, the same in all functions:
//
// Pixels. The pixels under a ROI are those that its rows list, first and last column included, each once and only
// inside the image: a rectangle from column 10 to 19 and row 5 to 9 has 10 x 5 = 50. (A region cut out by
// CcImage::GetRegion is one column and one row smaller.) The closed shapes are rectangle, ellipse, freehand and polygon
// outline, with their interior; a point, line or open line has the pixels it is drawn along.
//
// Area. That of the pixels: each has area 1 in square pixels, and the area that the calibration's map gives it in
// square world units. Where the calibration has no map, the area follows from its transform.
//
// Length. Of a rectangle the perimeter of its pixels, so 2 x (10 + 5) in the example; of an ellipse that of the ellipse
// inscribed in the rectangle of its pixels; of a line from its start to its end; of a drawn outline along its pixels'
// centres, back to the first one if the shape is closed; of a point 0, and of a rectangle or ellipse whose sides a drag
// beyond the image has crossed. A drawn outline is a staircase of pixels, so the longest straight lines that have these
// pixels are measured, not the stairs. World lengths are those of the straight lines between the converted points.
//
// How exact. Lengths are as exact as the calibration. The map takes a pixel's two directions as perpendicular in the
// world; under a strong tilt they are not everywhere, and areas come out larger than they are (by 0.4 % where they
// differ from a right angle by 5 degrees).
#pragma once

#include "KestExport.h"
#include "KestTypes.h"

class CcCalibration;
class CcImage;
class CcRoiBase;

/// What KestMeasureRoi finds.
struct KestRoiMeasurement {
    int bCalibrated;        ///< 1: world units are those of the image's calibration; 0: they are pixels
    char szUnits[84];       ///< name of the world unit; "Pixels" without a calibration
    double dLengthPixels;   ///< length or perimeter, in pixels; -1.0 for a shape of a host's own
    double dLengthWorld;    ///< the same in world units
    double dAreaPixels;     ///< area inside the image, in square pixels
    double dAreaWorld;      ///< the same in square world units
    long long llPixels;     ///< pixels under the ROI and inside the image
    long long llNotFinite;  ///< samples among them that are infinite or not a number; the values below leave them out
    double dMean;           ///< of the pixel values; 0.0, as the next three, when there is none
    double dMinimum;        ///< smallest pixel value
    double dMaximum;        ///< largest pixel value
    double dStandardDeviation;  ///< of all the pixels (divided by their number, not by one less)
};

/// Measures a ROI of an image, with the image's calibration if it has one. The values are bytes of 8-bit and binary
/// images, samples of the wide images, and the luminance 0.299 R + 0.587 G + 0.114 B of the colour images, all as the
/// image holds them now (so recoloured while a colour image is being thresholded). Prepares the ROI's boundary queries.
/// 0; -1, with `*pResult` zeroed, for a null pointer, an image without pixels, an outline without points, or without
/// memory.
KEST_API int KestMeasureRoi(CcImage* pImage, CcRoiBase* pRoi, KestRoiMeasurement* pResult);

/// Length in pixels of a ROI of any size and place; -1.0 for null or a shape of a host's own.
KEST_API double KestRoiLengthPixels(CcRoiBase* pRoi);
/// The same in world units of the calibration. Not finite where the ROI meets the calibrated plane's horizon.
KEST_API double KestRoiLengthWorld(CcRoiBase* pRoi, CcCalibration* pCalibration);

/// The corners of a drawn outline: where the straight lines begin and end along which its length is measured, from the
/// first pixel to the last; those of a closed outline go back to the first one. At most iMost of them are written to
/// pCorners, which may be null for none. How many there are; 0 for another shape, -1 for a null ROI.
KEST_API int KestOutlineCorners(CcRoiBase* pRoi, tagPoints* pCorners, int iMost);

/// Length in pixels of the straight lines from point to point, and from the last to the first if bClosed is not 0.
/// -1.0 for null or a count below 1.
KEST_API double KestLengthPixels(const tagPoints* pPoints, int iCount, int bClosed);
/// Length in world units of the calibration, of the same lines between image points.
KEST_API double KestLengthWorld(CcCalibration* pCalibration, const tagPoints* pPoints, int iCount, int bClosed);
