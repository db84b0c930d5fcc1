// Records of the four freehand ROIs.
#pragma once

#include <windows.h>

#include "KestBlocks.h"

// How the classes of the family share their members (internal).
template <class Roi>
struct KestOutlineMembers;
template <class Roi>
struct KestOutlineTraits;

/// The most segments that one outline can be drawn with.
constexpr int KEST_MAX_SEGMENTS = 100000;

/// The coordinate record of a freehand ROI. In a stream it takes 24 bytes, pointer and handle written as zeros and never
/// read.
struct PixelGroupTag {
    int iRed;  ///< colour that the outline was last drawn in, 0 to 255
    int iGreen;
    int iBlue;
    int iNumOfPoints;
    POINT* stPOINTS;  ///< the outline's pixels in the order drawn: x from the left, y from the bottom
    HGLOBAL hPOINTS;  ///< the block behind them
};

/// A pixel of the outline on the row or column that is queried: position and index along the outline. Each class has a
/// record of its own.
struct CommPerPointsTag {
    int x;
    int y;
    int iIndex;
};
struct CommPerPointsLineTag : CommPerPointsTag {};
struct CommPerPolyPointsTag : CommPerPointsTag {};
struct CommPerPointsPolyLineTag : CommPerPointsTag {};

/// What a freehand ROI keeps for its boundary queries: its pixels sorted by row and by column (internal). A copy starts
/// with nothing sorted.
struct KestOutlineQueries {
    KestOutlineQueries() = default;
    KestOutlineQueries(const KestOutlineQueries&) {}
    KestOutlineQueries& operator=(const KestOutlineQueries& other) {
        if (this != &other) {
            iSortedPoints = 0;
            bColumnsSorted = false;
        }
        return *this;
    }

    KestHeapBlock cRows;
    KestHeapBlock cColumns;
    KestHeapBlock cSpans;
    int iSortedPoints = 0;  ///< 0: nothing is sorted
    bool bColumnsSorted = false;
    RECT stBounds = {};
};
