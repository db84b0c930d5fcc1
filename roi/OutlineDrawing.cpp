// Drawing an outline of pixels.
#include "roi/OutlineDrawing.h"

#include "core/GdiGuards.h"
#include "core/kernel/CheckedSize.h"
#include "roi/FarDrawing.h"
#include "roi/OutlineRecord.h"

namespace kest {

int ShowOutline(const OutlineParts& outline, HDC dc, const std::optional<View>& view, HPEN pen) {
    if (!dc || !view) return KEST_FAILED;
    const bool isSelected = pen == CcRoiBase::hSelectedPen;
    TakeColour(outline.record, isSelected ? CcRoiBase::stSelectedColor : CcRoiBase::stUnSelectedColor);
    const SelectedObject selectedPen(dc, pen);
    const SelectedObject brush(dc, GetStockObject(NULL_BRUSH));
    DrawOutlinePixels(dc, *view, outline);
    return KEST_OK;
}

int ShowOutline(const OutlineParts& outline, HWND window, const std::optional<View>& view, HPEN pen) {
    return ShowOutline(outline, WindowDc(window), view, pen);
}

void DrawOutlinePixels(HDC dc, const View& view, const OutlineParts& outline) {
    const std::span<const IntPoint> pixels = outline.Pixels();
    if (pixels.empty()) return;
    const Reach reach(dc);
    Stroke stroke(dc);
    IntPoint last = ImageToWindow(view, pixels.front());
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
    for (const IntPoint& pixel : pixels) add(pixel);
    if (outline.IsClosed()) add(pixels.front());
    // A single position is a line of one pixel.
    if (!isLine && reach.Includes(last)) stroke.Add({Saturate(Size64{last.x} + 1), last.y});
    stroke.End();
}

}  // namespace kest
