// Copies the pixels of a region, row by row.
#include "image/kernel/RegionCopy.h"

#include <algorithm>
#include <cstring>

#include "core/kernel/CheckedSize.h"

namespace kest {

void CopyRegionRow(const Plane<const std::uint8_t>& source, const Plane<std::uint8_t>& target, int row,
                   std::span<const KestSpan> spans, int left, int bottom) {
    const Size64 targetRow = Size64{row} - bottom;
    if (row < 0 || row >= source.height || targetRow < 0 || targetRow >= target.height) return;
    const std::size_t pixelBytes = static_cast<std::size_t>(source.bytesPerPixel);
    const std::uint8_t* from = source.pixels + static_cast<std::size_t>(Product(row, source.width)) * pixelBytes;
    std::uint8_t* to = target.pixels + static_cast<std::size_t>(targetRow * target.width) * pixelBytes;

    for (std::size_t i = 0; i < spans.size(); ++i) {
        const bool isLast = i + 1 == spans.size();
        const Size64 first = std::max({Size64{spans[i].iFirst}, Size64{0}, Size64{left}});
        const Size64 end =
            std::min({Size64{spans[i].iLast} + (isLast ? 0 : 1), Size64{source.width}, Size64{left} + target.width});
        if (first >= end) continue;
        std::memcpy(to + static_cast<std::size_t>(first - left) * pixelBytes,
                    from + static_cast<std::size_t>(first) * pixelBytes,
                    static_cast<std::size_t>(end - first) * pixelBytes);
    }
}

}  // namespace kest
