// What the functions of the freehand family work on: the members of one object, and what its class differs in. Each
// class makes this value in its function Parts. The functions stand in OutlineLife, OutlineDrag, OutlineDrawing,
// OutlineQueries and OutlineRecord.
#pragma once

#include <optional>
#include <span>

#include "CcRoiBase.h"
#include "KestOutline.h"
#include "KestPlatform.h"
#include "core/kernel/Geometry.h"
#include "roi/BoundaryBuffer.h"
#include "roi/MouseDrag.h"
#include "roi/SegmentArrays.h"
#include "roi/kernel/OutlineIndex.h"

namespace kest {

/// A class-wide block of records, which is held locked.
struct PixelRecords {
    HGLOBAL& block;
    /// The class's pointer to the records. Each class has a pointer type of its own; the records are the same.
    void* pointer;

    CommPerPointsTag*& Records() const { return *static_cast<CommPerPointsTag**>(pointer); }
};

/// What all objects of a class share: its static members.
struct OutlineClassWide {
    POINT* starts;  ///< drawn segments, as in SegmentArrays
    POINT* stops;
    POINT* imageStarts;
    POINT* imageStops;
    PixelGroupTag& window;
    int& windowSize;
    PixelRecords row;     ///< the pixels of the row queried last
    PixelRecords column;  ///< the pixels of the column queried last
    int& capacity;        ///< records in each of the two
    int& objects;         ///< alive
};

template <class Roi>
constexpr OutlineClassWide ClassWideOf() {
    static_assert(sizeof *Roi::stXCommonPerimPoints == sizeof(CommPerPointsTag));
    return {Roi::stDrawSegStartPoint,
            Roi::stDrawSegStopPoint,
            Roi::stDrawSegStartPointImg,
            Roi::stDrawSegStopPointImg,
            Roi::stWindowFreeHand,
            Roi::iSizeOfWindowFreeHand,
            {Roi::hstXCommonPerimPoints, &Roi::stXCommonPerimPoints},
            {Roi::hstYCommonPerimPoints, &Roi::stYCommonPerimPoints},
            Roi::iSizeOfCommonPerimPointsArr,
            Roi::iNumOfFreeHandROIs};
}

/// What a class differs in, besides its row in RoiClasses.cpp.
struct OutlineKind {
    const char* className;
    const char* recordKey;  ///< of the record in a stream
    const char* pointsKey;  ///< of the points in a stream
    KestRoiType typeCode;
    RowOrder order;  ///< what a row of the outline lists
    OutlineClassWide classWide;
};

struct OutlineParts {
    const OutlineKind& kind;
    CcRoiBase& roi;
    RECT& bounds;
    RECT& currentBounds;
    BoundaryBuffer buffer;
    PixelGroupTag& record;
    KestGlobalBlock& points;  ///< behind the record's
    KestOutlineQueries& queries;
    DragState drag;
    POINT& lastMouseInImage;
    int& segment;  ///< index of the one that is being drawn

    /// Of any ROI, if it is an outline.
    static std::optional<OutlineParts> Of(CcRoiBase& roi);

    /// Whether the last point is joined with the first.
    bool IsClosed() const;
    /// Whether a segment ends only at a clicked vertex.
    bool HasVertices() const;
    std::span<const IntPoint> Pixels() const;
    SegmentArrays Segments() const;
};

}  // namespace kest
