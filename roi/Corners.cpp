// The way along a ROI, from corner to corner.
#include "roi/Corners.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

#include "CcRoiLine.h"
#include "KestOutline.h"
#include "core/Platform.h"
#include "roi/kernel/OutlineLines.h"

namespace kest {
namespace {

/// A box as the walk goes along it.
struct Border {
    double left, bottom, right, top;

    Border(const RECT& box, double margin)
        : left(box.left - margin), bottom(box.bottom - margin), right(box.right + margin), top(box.top + margin) {}
};

/// Half a pixel out for the edges of the pixels.
double MarginOf(const CornerWalk& walk) { return walk.border == KEST_BORDER_EDGES ? 0.5 : 0.0; }

/// A drag beyond the image leaves crossed sides, which no pixel lies between.
bool HasBorder(const RECT& box, const CornerWalk& walk) {
    return walk.border != KEST_BORDER_EDGES || (box.left <= box.right && box.bottom <= box.top);
}

/// The pixels of a drawn outline, in the order drawn.
std::span<const IntPoint> ChainOf(const PixelGroupTag& outline) {
    if (!outline.stPOINTS || !outline.hPOINTS || outline.iNumOfPoints < 1) return {};
    static_assert(sizeof(POINT) == sizeof(IntPoint));
    const std::size_t count = std::min<std::size_t>(static_cast<std::size_t>(outline.iNumOfPoints),
                                                    SizeOfBlock(outline.hPOINTS) / sizeof(POINT));
    return {reinterpret_cast<const IntPoint*>(outline.stPOINTS), count};
}

}  // namespace

int CornerOfPoint(const void* record, const CornerWalk& walk) {
    const auto& point = *static_cast<const tagPoints*>(record);
    walk.Visit(point.x, point.y);
    return 1;
}

int CornersOfLine(const void* record, const CornerWalk& walk) {
    const auto& line = *static_cast<const tagROILINE*>(record);
    walk.Visit(line.iStartX, line.iStartY);
    walk.Visit(line.iEndX, line.iEndY);
    return 2;
}

int CornersOfRect(const void* record, const CornerWalk& walk) {
    const auto& box = *static_cast<const RECT*>(record);
    if (!HasBorder(box, walk)) return 0;
    const Border border(box, MarginOf(walk));
    walk.Visit(border.left, border.bottom);
    walk.Visit(border.right, border.bottom);
    walk.Visit(border.right, border.top);
    walk.Visit(border.left, border.top);
    return 4;
}

int CornersOfEllipse(const void* record, const CornerWalk& walk) {
    const auto& box = *static_cast<const RECT*>(record);
    if (!HasBorder(box, walk)) return 0;
    const Border border(box, MarginOf(walk));
    for (int i = 0; i < walk.ellipseCorners; ++i) {
        const double angle = 2 * std::numbers::pi * i / walk.ellipseCorners;
        walk.Visit((border.left + border.right) / 2 + (border.right - border.left) / 2 * std::cos(angle),
                   (border.bottom + border.top) / 2 + (border.top - border.bottom) / 2 * std::sin(angle));
    }
    return std::max(walk.ellipseCorners, 0);
}

int CornersOfOutline(const void* record, const CornerWalk& walk) {
    return VisitCorners(ChainOf(*static_cast<const PixelGroupTag*>(record)),
                        [&walk](IntPoint corner) { walk.Visit(corner.x, corner.y); });
}

}  // namespace kest
