// Records of the four freehand ROIs.
#pragma once

#include "KestBlocks.h"
#include "KestPlatform.h"

namespace kest {
struct OutlineParts;  // of the library's own
}

/// The most segments that one outline can be drawn with.
constexpr int KEST_MAX_SEGMENTS = 100000;

/// The coordinate record of a freehand ROI. In a stream it takes 24 bytes, pointer and handle written as zeros and
/// never read.
struct PixelGroupTag {
    int iRed;          ///< colour that the outline was last drawn in, 0 to 255
    int iGreen;        ///< as iRed
    int iBlue;         ///< as iRed
    int iNumOfPoints;  ///< points behind stPOINTS
    POINT* stPOINTS;   ///< the outline's pixels in the order drawn: x from the left, y from the bottom
    HGLOBAL hPOINTS;   ///< the block behind them
};

/// A pixel of the outline on the row or column that is queried: position and index along the outline. Each class has a
/// record of its own.
struct CommPerPointsTag {
    int x;       ///< column
    int y;       ///< row, from the bottom
    int iIndex;  ///< index along the outline
};
/// The record of CcRoiFreeHandLine.
struct CommPerPointsLineTag : CommPerPointsTag {};
/// The record of CcRoiPolyFreeHand.
struct CommPerPolyPointsTag : CommPerPointsTag {};
/// The record of CcRoiPolyLine.
struct CommPerPointsPolyLineTag : CommPerPointsTag {};

/// What a freehand ROI keeps for its boundary queries: its pixels sorted by row and by column (internal). A copy starts
/// with nothing sorted.
struct KestOutlineQueries {
    KestOutlineQueries() = default;
    /// Starts with nothing sorted.
    KestOutlineQueries(const KestOutlineQueries&) {}
    /// Keeps its own memory, with nothing sorted.
    KestOutlineQueries& operator=(const KestOutlineQueries& other) {
        if (this != &other) {
            iSortedPoints = 0;
            bColumnsSorted = false;
        }
        return *this;
    }

    KestHeapBlock cRows;          ///< pixels sorted by row
    KestHeapBlock cColumns;       ///< pixels sorted by column
    KestHeapBlock cSpans;         ///< runs of the row queried last
    int iSortedPoints = 0;        ///< 0: nothing is sorted
    bool bColumnsSorted = false;  ///< whether cColumns holds what cRows holds
    RECT stBounds = {};           ///< bounding rectangle of the sorted pixels, top above bottom
};
