// Which part of an image is drawn where.
#include "image/kernel/BlitPlan.h"

#include <algorithm>
#include <cstdlib>

namespace kest {
namespace {

/// Where the source position `source` of `sourceSize` lies in a target of `targetSize`: the first target pixel that
/// shows it.
long long TargetOf(long long source, long long sourceSize, long long targetSize) {
    const long long scaled = source * targetSize;
    return scaled >= 0 ? (scaled + sourceSize - 1) / sourceSize : scaled / sourceSize;
}

/// Cuts [first, first + size) to [0, limit) and the target with it; positions grow in the same direction in both.
bool ClipAxis(long long& first, long long& size, long long& target, long long& targetSize, long long limit) {
    const long long begin = std::max(first, 0LL);
    const long long end = std::min(first + size, limit);
    if (begin >= end) return false;
    if (begin == first && end == first + size) return true;
    const long long targetBegin = TargetOf(begin - first, size, targetSize);
    const long long targetEnd = TargetOf(end - first, size, targetSize);
    target += targetBegin;
    targetSize = targetEnd - targetBegin;
    first = begin;
    size = end - begin;
    return targetSize != 0;
}

}  // namespace

BlitPlan PlanForWindow(const View& view) {
    const bool isPixelForPixel = !view.IsStretched() && view.zoom == 1;
    return isPixelForPixel ? PlanForRect(view, {0, 0, 0, 0}) : PlanForVisiblePart(view);
}

BlitPlan PlanForVisiblePart(const View& view) {
    if (view.IsStretched()) return {0, 0, view.clientWidth, view.clientHeight, 0, 0, view.imageWidth, view.imageHeight};
    const long long columns = view.clientWidth / view.zoom;
    const long long rows = view.clientHeight / view.zoom;
    return {0,       0,   view.clientWidth, view.clientHeight, view.xOffset, view.imageHeight - rows - view.yOffset,
            columns, rows};
}

BlitPlan PlanForRect(const View& view, const IntRect& rect) {
    if (view.IsStretched())
        return {rect.left,
                rect.top,
                static_cast<long long>(rect.right) - rect.left,
                static_cast<long long>(rect.bottom) - rect.top,
                0,
                0,
                view.imageWidth,
                view.imageHeight};
    const long long zoom = view.zoom;
    return {rect.left,
            rect.top,
            view.imageWidth * zoom,
            view.imageHeight * zoom,
            view.xOffset,
            -static_cast<long long>(view.yOffset),
            view.imageWidth,
            view.imageHeight,
            zoom == 1};
}

bool ClipToImage(BlitPlan& plan, int imageWidth, int imageHeight) {
    if (plan.targetWidth == 0 || plan.targetHeight == 0) return false;
    if (!ClipAxis(plan.sourceX, plan.sourceWidth, plan.targetX, plan.targetWidth, imageWidth)) return false;
    // The target grows downward: rows are counted from the image's top for the cut.
    long long fromTop = imageHeight - (plan.sourceY + plan.sourceHeight);
    if (!ClipAxis(fromTop, plan.sourceHeight, plan.targetY, plan.targetHeight, imageHeight)) return false;
    plan.sourceY = imageHeight - fromTop - plan.sourceHeight;
    return true;
}

AxisCut::AxisCut(long long sourceExtent, long long targetBegin, long long targetExtent, long long low, long long high,
                 double pixelsPerUnit, bool isScaled)
    : sourceSize(sourceExtent),
      target(targetBegin),
      targetSize(std::llabs(targetExtent)),
      // Positions are integers, too, where very many make a pixel.
      unit(std::max(pixelsPerUnit, 1.0 / 256)),
      isMirrored(targetExtent < 0),
      pixelCount(sourceSize),
      pixelsPerPart(sourceSize) {
    const bool isTooLarge = IsTooLarge(sourceSize, targetSize);
    if (!isTooLarge && (isScaled || targetSize != sourceSize)) return;
    if (isTooLarge) {
        const auto farthest = static_cast<long long>(LargestBlitExtent / 4 / unit) + 1;
        low = std::max(low, -farthest);
        high = std::min(high, farthest);
    }
    // Platforms differ in whether a mirrored target begins with the pixel at its position or the one before: both
    // count.
    visibleBegin = std::max(isMirrored ? target - high : low - target, 0LL);
    visibleEnd = std::min(isMirrored ? target - low + 1 : high - target, targetSize);
    pixelCount = 0;
    if (visibleBegin >= visibleEnd) return;
    firstPixel = visibleBegin * sourceSize / targetSize;
    pixelCount = pixelsPerPart = (visibleEnd * sourceSize + targetSize - 1) / targetSize - firstPixel;
    while (pixelsPerPart > 1 && IsTooLarge(pixelsPerPart, PositionOf(pixelsPerPart))) pixelsPerPart /= 2;
}

bool AxisCut::IsTooLarge(long long pixels, long long positions) const {
    const double extent = static_cast<double>(positions) * unit;
    return extent > LargestBlitExtent || extent * static_cast<double>(pixels) > LargestBlitProduct;
}

long long AxisCut::PositionOf(long long pixel) const { return TargetOf(pixel, sourceSize, targetSize); }

AxisCut::Part AxisCut::At(long long index) const {
    const long long first = firstPixel + index * pixelsPerPart;
    const long long count = std::min(pixelsPerPart, firstPixel + pixelCount - first);
    long long begin = PositionOf(first), end = PositionOf(first + count);
    if (count == 1 && IsTooLarge(count, end - begin)) {
        begin = std::max(begin, visibleBegin);
        end = std::min(end, visibleEnd);
    }
    return isMirrored ? Part{first, count, target - begin, begin - end}
                      : Part{first, count, target + begin, end - begin};
}

}  // namespace kest
