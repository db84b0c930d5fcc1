// Drawing an outline of pixels, and what the user is told while drawing one.
#include "roi/OutlineDrawing.h"

#include "core/Messages.h"
#include "core/kernel/CheckedSize.h"
#include "roi/OutlineDrag.h"

namespace kest {

void TellSegmentLimit() { ShowMessage("You have exceded 100000 points in FreeHand ROI", "Error..."); }

void DrawOutlinePixels(HDC dc, const View& view, std::span<const IntPoint> outline, bool isClosed) {
    // Long outlines go to the system in pieces that overlap by a point.
    constexpr std::size_t pieceSize = 4096;
    POINT piece[pieceSize];
    std::size_t used = 0;
    const auto add = [&](IntPoint pixel) {
        const IntPoint window = ImageToWindow(view, pixel);
        if (used > 0 && piece[used - 1].x == window.x && piece[used - 1].y == window.y) return;
        if (used == pieceSize) {
            Polyline(dc, piece, static_cast<int>(used));
            piece[0] = piece[used - 1];
            used = 1;
        }
        piece[used++] = {window.x, window.y};
    };
    for (const IntPoint& pixel : outline) add(pixel);
    if (isClosed && !outline.empty()) add(outline.front());
    if (used == 1) {
        // A single position is a line of one pixel.
        piece[1] = {Saturate(Size64{piece[0].x} + 1), piece[0].y};
        used = 2;
    }
    if (used > 1) Polyline(dc, piece, static_cast<int>(used));
}

}  // namespace kest
