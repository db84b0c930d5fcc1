// Where a picture and its overlay come to lie on a printed page.
#pragma once

#include <algorithm>
#include <cstdint>

#include "image/kernel/BlitPlan.h"

namespace kest {

/// The power of two, from 1 on, at which a picture's size first exceeds half of the page in one direction.
int PrintScale(int sourceWidth, int sourceHeight, int pageWidth, int pageHeight);

struct PrintPlan {
    BlitPlan picture;
    long long blockPixels;                   ///< page pixels for one overlay pixel
    long long firstColumn, firstRow;         ///< overlay column at the page's left edge, row (from the top) at its upper
    long long columnCount, rowCount;         ///< of the overlay, from there on, that are printed
};

/// Prints the view: what the window shows of the image at a whole-number zoom, else the whole image. A view without a
/// client size is one of the image's size.
PrintPlan PlanForPage(const View& view, int pageWidth, int pageHeight);

/// One byte a pixel, rows unpadded, bottom row first.
struct OverlayPlane {
    const std::uint8_t* bits;
    int width, height;
};

/// A run of equal overlay pixels on the page, all edges included.
struct PrintedRun {
    long long left, top, right, bottom;
    std::uint8_t value;
};

/// Calls `paint(run)` for all runs of pixels other than 0, in the order in which later ones cover earlier ones. A pixel
/// covers a block one page pixel wider and higher than the scale, one block below the pixel that it marks; rows and
/// columns beyond the page are left out.
template <class Paint>
void ForEachPrintedRun(const OverlayPlane& overlay, int imageHeight, const PrintPlan& plan, int pageWidth,
                       int pageHeight, Paint paint) {
    const long long scale = plan.blockPixels;
    const long long endColumn = std::min<long long>(plan.firstColumn + plan.columnCount, overlay.width);
    for (long long row = 0; row < std::min(overlay.height, imageHeight); ++row) {
        const long long line = imageHeight - row - plan.firstRow;
        const long long top = line * scale;
        if (line < 1 || line > plan.rowCount || top >= pageHeight) continue;
        const std::uint8_t* values = overlay.bits + row * overlay.width;
        for (long long column = std::max(plan.firstColumn, 0LL); column < endColumn;) {
            const std::uint8_t value = values[column];
            long long end = column + 1;
            while (end < endColumn && values[end] == value) ++end;
            const long long left = (column - plan.firstColumn) * scale;
            if (left >= pageWidth) break;
            if (value != 0)
                paint(PrintedRun{left, top, (end - plan.firstColumn) * scale, top + scale, value});
            column = end;
        }
    }
}

}  // namespace kest
