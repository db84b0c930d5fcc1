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

}  // namespace kest
