// CcCurve: the points of one curve of a graph, and how they are drawn.
#pragma once

#include "CcHLObject.h"
#include "KestBlocks.h"

/// What CcCurve::SetCurveStyle takes besides the platform's pen styles 0 (PS_SOLID) to 4 (PS_DASHDOTDOT).
constexpr int KEST_CURVE_SQUARES = 5;  ///< no lines, only a square at every point

/// A named reference to an array of points with a drawing style. The array stays the caller's: the curve neither copies
/// nor frees it, and moving a point with the mouse writes into it.
///
/// A curve has no class name and cannot be written to an object stream.
class KEST_API CcCurve : public CcHLObject {
public:
    CcCurve();
    CcCurve(const CcCurve&) = default;
    CcCurve& operator=(const CcCurve&) = default;

    ~CcCurve() override;  // slot 0

    /// `iStyle`: a pen style or KEST_CURVE_SQUARES; `ulColor`: a COLORREF; `iWidth`: of the pen, in pixels, 0 and 1
    /// alike. Nothing is checked.
    int SetCurveStyle(int iStyle, unsigned long ulColor, int iWidth);
    /// The three values; a null argument is skipped.
    int GetCurveStyle(int* piStyle, unsigned long* pulColor, int* piWidth);
    /// Keeps the caller's array of `iCount` points, which must outlive its use here. -1, and nothing kept, for null.
    int SetCurveData(tagPoints* pData, int iCount);
    /// The caller's array; null before it is set.
    tagPoints* GetCurveData();
    /// -1 before the data is set.
    int GetNumberOfPoints();

protected:
    unsigned long ulCurveColor;  ///< a COLORREF
    int iCurveStyle;             ///< as SetCurveStyle takes it
    int iCurveWidth;             ///< pixels
    int iNumberOfPoints;         ///< points behind pCurveData, -1 at first
    tagPoints* pCurveData;       ///< the caller's array, or null
    KestGlobalBlock hCurveData;  ///< a block that a derived class may keep its points in; freed with the curve
};
