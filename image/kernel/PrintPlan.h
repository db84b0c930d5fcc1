// Where a picture and its overlay come to lie on a printed page.
#pragma once

#include <algorithm>
#include <cstdint>

#include "image/kernel/BlitPlan.h"

namespace kest {

/// Of the printable area, in its pixels.
struct PageSize {
    int width, height;
};

/// The power of two, from 1 on, at which a picture's size first exceeds half of the page in one direction.
int PrintScale(int sourceWidth, int sourceHeight, const PageSize& page);

struct PrintPlan {
    BlitPlan picture;
    long long blockPixels;            ///< page pixels for one overlay pixel
    long long firstColumn, firstRow;  ///< overlay column at the page's left edge, row (from the top) at its upper
    long long columnCount, rowCount;  ///< of the overlay, from there on, that are printed
};

/// Prints the view: what the window shows of the image at a whole-number zoom, else the whole image. A view without a
/// client size is one of the image's size.
PrintPlan PlanForPage(const View& view, const PageSize& page);

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

/// Calls `paint(run)` for all runs of pixels other than 0, in the order in which later ones cover earlier ones; stops,
/// with false, when one returns false. A pixel covers a block one page pixel wider and higher than the scale, one block
/// below the pixel that it marks; rows and columns beyond the page are left out.
template <class Paint>
bool ForEachPrintedRun(const OverlayPlane& overlay, int imageHeight, const PrintPlan& plan, const PageSize& page,
                       Paint paint) {
    const long long scale = plan.blockPixels;
    // Blocks that begin on the page. Only these are multiplied: offsets and zooms may be as large as integers are.
    const long long columnsOnPage = (page.width + scale - 1) / scale;
    const long long linesOnPage = (page.height + scale - 1) / scale;
    const long long beginColumn = std::max(plan.firstColumn, 0LL);
    const long long endColumn =
        std::min<long long>(plan.firstColumn + std::min(plan.columnCount, columnsOnPage), overlay.width);
    for (long long row = 0; row < std::min(overlay.height, imageHeight); ++row) {
        const long long line = imageHeight - row - plan.firstRow;
        if (line < 1 || line > plan.rowCount || line >= linesOnPage) continue;
        const std::uint8_t* values = overlay.bits + row * overlay.width;
        for (long long column = beginColumn; column < endColumn;) {
            const std::uint8_t value = values[column];
            long long end = column + 1;
            while (end < endColumn && values[end] == value) ++end;
            const PrintedRun run = {(column - plan.firstColumn) * scale, line * scale, (end - plan.firstColumn) * scale,
                                    (line + 1) * scale, value};
            if (value != 0 && !paint(run)) return false;
            column = end;
        }
    }
    return true;
}

}  // namespace kest
