// Draws a DIB into a device context. The one place where pixels meet the platform: rows in memory are unpadded, the
// platform reads rows padded to four bytes, so widths that differ in that go through a padded copy of what is drawn.
#pragma once

#include <cstdint>

#include "KestPlatform.h"
#include "image/kernel/BlitPlan.h"

namespace kest {

/// An unpadded DIB and the colours to show it in.
struct DibPicture {
    const std::uint8_t* bits;
    int width;
    int height;
    int bitCount;         ///< 8 or 24
    const void* colours;  ///< RGBQUADs, or 16-bit palette indices (8-bit DIBs only)
    int colourBytes;      ///< at most 1024; what is missing counts as zero
    UINT colourUse;       ///< DIB_RGB_COLORS or DIB_PAL_COLORS
};

/// Draws what the plan names, as far as the picture has it and the device context shows it, with the given raster
/// operation. What is left out when it is made smaller is rows and columns. False when memory is short or the platform
/// did not draw; true when there was nothing to draw.
bool DrawDib(HDC dc, const DibPicture& picture, const BlitPlan& plan, DWORD rasterOperation);

}  // namespace kest
