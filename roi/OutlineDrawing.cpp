// Drawing an outline of pixels, and what the user is told while drawing one.
#include "roi/OutlineDrawing.h"

#include "core/Messages.h"
#include "core/kernel/CheckedSize.h"
#include "roi/FarDrawing.h"
#include "roi/OutlineDrag.h"

namespace kest {

void TellSegmentLimit() { ShowMessage("You have exceded 100000 points in FreeHand ROI", "Error..."); }

void DrawOutlinePixels(HDC dc, const View& view, std::span<const IntPoint> outline, bool isClosed) {
    if (outline.empty()) return;
    const Reach reach(dc);
    Stroke stroke(dc);
    IntPoint last = ImageToWindow(view, outline.front());
    bool isLine = false;
    if (reach.Includes(last)) stroke.Add(last);
    const auto add = [&](IntPoint pixel) {
        const IntPoint window = ImageToWindow(view, pixel);
        if (window.x == last.x && window.y == last.y) return;
        const bool isNear = reach.Includes(window);
        if (!isNear || !reach.Includes(last)) {
            stroke.End();
            reach.DrawLine(last, window);
        }
        if (isNear) stroke.Add(window);
        last = window;
        isLine = true;
    };
    for (const IntPoint& pixel : outline) add(pixel);
    if (isClosed) add(outline.front());
    // A single position is a line of one pixel.
    if (!isLine && reach.Includes(last)) stroke.Add({Saturate(Size64{last.x} + 1), last.y});
    stroke.End();
}

void SegmentArrays::Draw(HDC dc) const {
    Reach(dc).DrawLine({starts[index].x, starts[index].y}, {stops[index].x, stops[index].y});
}

}  // namespace kest
