// The figures that shapes are drawn with.
#include "roi/ShapeDrawing.h"

#include "KestTypes.h"
#include "core/GdiGuards.h"
#include "core/TextDrawing.h"
#include "core/kernel/CheckedSize.h"
#include "core/kernel/TextField.h"

namespace kest {

void DrawRectangle(HDC dc, const IntRect& place) {
    Rectangle(dc, place.left, place.top, Saturate(Size64{place.right} + 1), Saturate(Size64{place.bottom} + 1));
}

void DrawEllipse(HDC dc, const IntRect& place, int beyond) {
    Ellipse(dc, place.left, place.top, Saturate(Size64{place.right} + beyond), Saturate(Size64{place.bottom} + beyond));
}

void DrawLine(HDC dc, const IntRect& place) {
    POINT position = {};
    MoveToEx(dc, place.left, place.top, &position);
    LineTo(dc, place.right, place.bottom);
    MoveToEx(dc, position.x, position.y, nullptr);
}

void DrawPointMark(HDC dc, const IntRect& place) {
    constexpr int radius = 10, arm = 15;
    const Size64 x = place.left, y = place.top;
    Ellipse(dc, Saturate(x - radius), Saturate(y - radius), Saturate(x + radius), Saturate(y + radius));
    DrawLine(dc, {Saturate(x - arm), place.top, Saturate(x + arm), place.top});
    DrawLine(dc, {place.left, Saturate(y - arm), place.left, Saturate(y + arm)});
}

void DrawName(HDC dc, const IntRect& place, const char* name) {
    const BackgroundModeGuard background(dc, TRANSPARENT);
    const TextAlignGuard align(dc, TA_BOTTOM);
    DrawProcessText(dc, Saturate(Size64{place.left} + 8), Saturate(Size64{place.top} - 8), name,
                    static_cast<int>(FieldLength(name, KEST_NAME_SIZE)));
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
