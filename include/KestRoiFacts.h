// What is known of a ROI class by its type code, and the way along a ROI of any class.
#pragma once

#include "CcRoiBase.h"

/// The record that GetRoiImageCord gives and SetRoiImageCord takes.
enum KestRoiRecord : int {
    KEST_RECORD_POINT = 0,    ///< tagPoints
    KEST_RECORD_LINE = 1,     ///< tagROILINE
    KEST_RECORD_BOX = 2,      ///< RECT
    KEST_RECORD_OUTLINE = 3,  ///< PixelGroupTag
};

/// What the ROIs of one class have in common.
struct KestRoiFacts {
    KestRoiRecord iRecord;  ///< its coordinate record
    bool bClosed;           ///< it has an interior, and its outline goes back to the beginning
    bool bVertices;         ///< clicks fix its vertices while it is drawn
};

/// The facts of a type code, one of KestRoiType. -1, with `*pFacts` unchanged, for null or another code.
KEST_API int KestGetRoiFacts(int iROIType, KestRoiFacts* pFacts);

/// Where the way along a rectangle or an ellipse runs.
enum KestRoiBorder : int {
    KEST_BORDER_CENTRES = 0,  ///< through the centres of its outermost pixels
    KEST_BORDER_EDGES = 1,    ///< around its pixels, so half a pixel further out; nowhere where its sides are crossed
};

/// Takes a corner in image coordinates.
using KestCornerVisitor = void (*)(void* pContext, double dX, double dY);

/// Calls pfnVisit(pContext, x, y) for each corner of a ROI, in order: the ends of a line; the corners of a rectangle;
/// iEllipseCorners points of an ellipse; where the straight lines begin and end that the pixels of a drawn outline
/// stand for, from its first pixel to its last; a point itself. The way along a closed ROI goes back from the last to
/// the first. iBorder is one of KestRoiBorder. How many corners there are; -1 for null and for a ROI class of a host's
/// own.
KEST_API int KestVisitRoiCorners(CcRoiBase* pRoi, int iBorder, int iEllipseCorners, KestCornerVisitor pfnVisit,
                                 void* pContext);

/// The same with visit(x, y), a lambda for instance.
template <class Visit>
int KestVisitRoiCorners(CcRoiBase* pRoi, int iBorder, int iEllipseCorners, Visit visit) {
    const auto call = [](void* pContext, double dX, double dY) { (*static_cast<Visit*>(pContext))(dX, dY); };
    return KestVisitRoiCorners(pRoi, iBorder, iEllipseCorners, call, &visit);
}
