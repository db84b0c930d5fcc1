// Which part of an image is drawn where: the geometry of Show, of the overlay, of printing and of the clipboard.
#pragma once

#include "core/kernel/Geometry.h"
#include "core/kernel/ViewTransform.h"

namespace kest {

/// A stretched copy. The target counts y downward from its top-left corner, the source counts y upward: sourceY is its
/// lowest row. A negative target size mirrors.
struct BlitPlan {
    long long targetX, targetY, targetWidth, targetHeight;
    long long sourceX, sourceY, sourceWidth, sourceHeight;
    bool countsDevicePixels = false;  ///< the target's size is in device pixels, whatever the mapping mode

    bool IsOneToOne() const { return targetWidth == sourceWidth && targetHeight == sourceHeight; }
};

/// Into the window's client area. At zoom 1 the whole image from the offsets on, for the device context to cut off;
/// above, only what fits.
BlitPlan PlanForWindow(const View& view);

/// The part of the image that fits the client area, at zoom 1 too.
BlitPlan PlanForVisiblePart(const View& view);

/// Into a rectangle: at a whole-number zoom the whole image from the rectangle's corner on, else stretched to it. The
/// view's client size is not used.
BlitPlan PlanForRect(const View& view, const IntRect& rect);

/// Cuts the plan to the columns and rows that the image has. False when nothing is left.
bool ClipToImage(BlitPlan& plan, int imageWidth, int imageHeight);

/// Beyond this extent platforms compute positions wrongly, or end the process; no surface is a quarter as large.
constexpr long long LargestBlitExtent = 1 << 22;

/// What a blit along one axis shows of the target positions [low, high), in whole source pixels so that every position
/// shows the same as before. An axis that is neither 1:1 nor too large is left as it is: there the platform's own
/// rounding counts. A source pixel that is itself too large becomes a part of its own, cut to what shows.
class AxisCut {
public:
    /// `targetSize` is negative in a mirrored blit.
    AxisCut(long long sourceSize, long long target, long long targetSize, long long low, long long high);

    struct Part {
        long long first, count;  ///< source pixels, counted from the one at `target`
        long long target, targetSize;
    };
    /// 0 when nothing shows.
    long long PartCount() const { return isSplit ? pixelCount : pixelCount > 0; }
    Part At(long long index) const;

private:
    long long PositionOf(long long pixel) const;

    long long sourceSize, target, targetSize;
    bool isMirrored;
    long long visibleBegin = 0, visibleEnd = 0;  ///< counted from the target's beginning, in its direction
    long long firstPixel = 0, pixelCount = 0;
    bool isSplit = false;
};

/// Calls `draw(part)` for the parts of the plan that lie in `visible`; stops, with false, when one returns false.
template <class Draw>
bool ForEachVisiblePart(const BlitPlan& plan, const IntRect& visible, Draw draw) {
    const AxisCut columns(plan.sourceWidth, plan.targetX, plan.targetWidth, visible.left, visible.right);
    const AxisCut rows(plan.sourceHeight, plan.targetY, plan.targetHeight, visible.top, visible.bottom);
    for (long long j = 0; j < rows.PartCount(); ++j)
        for (long long i = 0; i < columns.PartCount(); ++i) {
            const AxisCut::Part across = columns.At(i), down = rows.At(j);
            BlitPlan part = plan;
            part.targetX = across.target;
            part.targetWidth = across.targetSize;
            part.sourceX += across.first;
            part.sourceWidth = across.count;
            part.targetY = down.target;
            part.targetHeight = down.targetSize;
            part.sourceY += plan.sourceHeight - down.first - down.count;
            part.sourceHeight = down.count;
            if (!draw(part)) return false;
        }
    return true;
}

}  // namespace kest
