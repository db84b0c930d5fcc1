// Copies the pixels of a region, row by row, from an image into a smaller one.
#pragma once

#include <cstdint>
#include <span>

#include "KestTypes.h"

namespace kest {

/// A plane of unpadded pixel rows.
template <class Byte>
struct Plane {
    Byte* pixels;
    int width;
    int height;
    int bytesPerPixel;
};

/// Copies the columns of row `row` that `spans` names, but for the last one named, to row `row - bottom` and columns
/// `x - left` of the target. What lies outside either plane is left out.
void CopyRegionRow(const Plane<const std::uint8_t>& source, const Plane<std::uint8_t>& target, int row,
                   std::span<const KestSpan> spans, int left, int bottom);

}  // namespace kest
