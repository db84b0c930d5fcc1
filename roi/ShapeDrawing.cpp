// The figures that shapes are drawn with.
#include "roi/ShapeDrawing.h"

#include "core/GdiGuards.h"
#include "core/kernel/CheckedSize.h"

namespace kest {

void DrawRectangle(HDC dc, const IntRect& place) {
    Rectangle(dc, place.left, place.top, Saturate(Size64{place.right} + 1), Saturate(Size64{place.bottom} + 1));
}

void DrawEdgeHandles(HDC dc, const IntRect& place) {
    const SelectedObject pen(dc, GetStockObject(WHITE_PEN));
    const SelectedObject brush(dc, GetStockObject(WHITE_BRUSH));
    const Size64 middleX = (Size64{place.left} + place.right) / 2;
    const Size64 middleY = (Size64{place.top} + place.bottom) / 2;
    const auto drawHandle = [dc](Size64 x, Size64 y) {
        Rectangle(dc, Saturate(x - 2), Saturate(y - 2), Saturate(x + 2), Saturate(y + 2));
    };
    drawHandle(middleX, place.top);
    drawHandle(middleX, place.bottom);
    drawHandle(place.left, middleY);
    drawHandle(place.right, middleY);
}

}  // namespace kest
