// Region extraction.
#include "image/RegionExtract.h"

#include <cstdio>

#include "CcRoiRows.h"
#include "core/kernel/CheckedSize.h"

namespace kest {

bool FrameRegion(CcRoiBase* roi, int align, const char* imageName, int imageWidth, int imageHeight,
                 RegionFrame& frame) {
    const RECT* bounds = roi ? roi->GetBoundingRect() : nullptr;
    if (!bounds) return false;
    Size64 width = Size64{bounds->right} - bounds->left;
    if (align == 1) width = width / 4 * 4 + 4;
    const Size64 height = Size64{bounds->top} - bounds->bottom;
    if (width > imageWidth || height > imageHeight) return false;
    frame.left = bounds->left;
    frame.bottom = bounds->bottom;
    frame.top = bounds->top;
    frame.width = Saturate(width);
    frame.height = Saturate(height);
    // Two names of up to 259 characters are cut to one.
    std::snprintf(frame.name, sizeof frame.name, "%.259s-%.259s", imageName, roi->GetName());
    return true;
}

bool CopyRegion(CcRoiBase& roi, const RegionFrame& frame, const Plane<const std::uint8_t>& source,
                const Plane<std::uint8_t>& target) {
    CcRoiRows rows(&roi);
    // Rows outside the image have nothing to copy, however far the ROI reaches.
    const int first = frame.bottom < 0 ? 0 : frame.bottom;
    const int end = frame.top > source.height ? source.height : frame.top;
    for (int row = first; row < end; ++row) {
        int count = 0;
        const KestSpan* spans = rows.GetSpans(row, &count);
        if (count < 0) return false;
        if (spans)
            CopyRegionRow(source, target, row, {spans, static_cast<std::size_t>(count)}, frame.left, frame.bottom);
    }
    return true;
}

}  // namespace kest
