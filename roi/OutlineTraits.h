// What the four freehand classes differ in.
#pragma once

#include "CcRoiFreeHand.h"
#include "CcRoiFreeHandLine.h"
#include "CcRoiPolyFreeHand.h"
#include "CcRoiPolyLine.h"
#include "roi/kernel/OutlineIndex.h"

template <>
struct KestOutlineTraits<CcRoiFreeHand> {
    static constexpr char className[] = "CcRoiFreeHand";
    static constexpr char recordKey[] = "CcRoiFreeHand::stImageFreeHand";
    static constexpr char pointsKey[] = "CcRoiFreeHand::stImageFreeHand::stPOINTS";
    static constexpr int typeCode = KEST_ROI_FREEHAND;
    static constexpr bool isClosed = true;
    static constexpr bool hasVertices = false;
    static constexpr kest::RowOrder order = kest::RowOrder::Filled;
    using PerimeterRecord = CommPerPointsTag;
};

template <>
struct KestOutlineTraits<CcRoiFreeHandLine> {
    static constexpr char className[] = "CcRoiFreeHandLine";
    static constexpr char recordKey[] = "CcRoiFreeHandLine::stImageFreeHand";
    static constexpr char pointsKey[] = "CcRoiFreeHandLine::stImageFreeHand::stPOINTS";
    static constexpr int typeCode = KEST_ROI_FREEHANDLINE;
    static constexpr bool isClosed = false;
    static constexpr bool hasVertices = false;
    static constexpr kest::RowOrder order = kest::RowOrder::Ascending;
    using PerimeterRecord = CommPerPointsLineTag;
};

template <>
struct KestOutlineTraits<CcRoiPolyLine> {
    static constexpr char className[] = "CcRoiPolyLine";
    static constexpr char recordKey[] = "CcRoiPolyLine::stImageFreeHand";
    static constexpr char pointsKey[] = "CcRoiPolyLine::stImageFreeHand::stPOINTS";
    static constexpr int typeCode = KEST_ROI_POLYLINE;
    static constexpr bool isClosed = false;
    static constexpr bool hasVertices = true;
    static constexpr kest::RowOrder order = kest::RowOrder::Drawn;
    using PerimeterRecord = CommPerPointsPolyLineTag;
};

template <>
struct KestOutlineTraits<CcRoiPolyFreeHand> {
    static constexpr char className[] = "CcRoiPolyFreeHand";
    static constexpr char recordKey[] = "CcRoiPolyFreeHand::stImageFreeHand";
    static constexpr char pointsKey[] = "CcRoiPolyFreeHand::stImageFreeHand::stPOINTS";
    static constexpr int typeCode = KEST_ROI_POLYFREEHAND;
    static constexpr bool isClosed = true;
    static constexpr bool hasVertices = true;
    static constexpr kest::RowOrder order = kest::RowOrder::Filled;
    using PerimeterRecord = CommPerPolyPointsTag;
};
