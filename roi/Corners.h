// The way along a ROI, from corner to corner.
#pragma once

#include "KestRoiFacts.h"

namespace kest {

/// What a walk along a ROI is asked for.
struct CornerWalk {
    int border;  ///< one of KestRoiBorder
    int ellipseCorners;
    KestCornerVisitor visit;
    void* context;

    void Visit(double x, double y) const { visit(context, x, y); }
};

// Each of these visits the corners of a record and tells how many there are.

int CornerOfPoint(const void* record, const CornerWalk& walk);
int CornersOfLine(const void* record, const CornerWalk& walk);
int CornersOfRect(const void* record, const CornerWalk& walk);
int CornersOfEllipse(const void* record, const CornerWalk& walk);
int CornersOfOutline(const void* record, const CornerWalk& walk);

}  // namespace kest
