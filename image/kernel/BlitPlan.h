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

/// What a blit's target is drawn on.
struct BlitSurface {
    IntRect visible;              ///< in the target's units
    double unitX = 1, unitY = 1;  ///< pixels that a unit of the target is long
    bool isScaled = false;        ///< a blit of 1:1 may be none in pixels
};

/// Platforms multiply a blit's extents, in pixels, with those of its source, in 32 bits. Beyond these limits they draw
/// nothing or elsewhere, or end the process; no surface is a quarter as large as the first one.
constexpr long long LargestBlitExtent = 1 << 22, LargestBlitProduct = 1 << 30;

/// What a blit along one axis shows of the target positions [low, high), in whole source pixels. Two kinds of blits are
/// cut: copies pixel for pixel, of which only what shows is handed on, and what is too large for platforms. All others
/// are left as they are: there the platform's own rounding counts. Where a source pixel is a whole number of positions,
/// every position shows the same as before; at other ratios the platform's rounding begins anew in each part, and a
/// border between two pixels can lie one position beside. A source pixel that is itself too large becomes a part of its
/// own, cut to what shows.
class AxisCut {
public:
    /// Positions are `unit` pixels long. `targetSize` is negative in a mirrored blit.
    AxisCut(long long sourceSize, long long target, long long targetSize, long long low, long long high,
            double unit = 1, bool isScaled = false);

    struct Part {
        long long first, count;  ///< source pixels, counted from the one at `target`
        long long target, targetSize;
    };
    /// 0 when nothing shows.
    long long PartCount() const { return (pixelCount + pixelsPerPart - 1) / pixelsPerPart; }
    Part At(long long index) const;

private:
    bool IsTooLarge(long long pixels, long long positions) const;
    long long PositionOf(long long pixel) const;

    long long sourceSize, target, targetSize;
    double unit;
    bool isMirrored;
    long long visibleBegin = 0, visibleEnd = 0;  ///< counted from the target's beginning, in its direction
    long long firstPixel = 0, pixelCount, pixelsPerPart;
};

/// Calls `draw(part)` for the parts of the plan that show; stops, with false, when one returns false.
template <class Draw>
bool ForEachVisiblePart(const BlitPlan& plan, const BlitSurface& surface, Draw draw) {
    // Nothing is multiplied there, and the target's position, unlike its size, is in the surface's own units.
    if (surface.isScaled && plan.countsDevicePixels) return draw(plan);
    const IntRect& visible = surface.visible;
    const AxisCut columns(plan.sourceWidth, plan.targetX, plan.targetWidth, visible.left, visible.right, surface.unitX,
                          surface.isScaled);
    const AxisCut rows(plan.sourceHeight, plan.targetY, plan.targetHeight, visible.top, visible.bottom, surface.unitY,
                       surface.isScaled);
    for (long long j = 0; j < rows.PartCount(); ++j)
        for (long long i = 0; i < columns.PartCount(); ++i) {
            const AxisCut::Part across = columns.At(i), down = rows.At(j);
            if (across.targetSize == 0 || down.targetSize == 0) continue;
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
