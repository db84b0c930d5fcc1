// Drawing shapes.
#include "roi/ShapeDrawing.h"

#include "KestTypes.h"
#include "core/GdiGuards.h"
#include "core/TextDrawing.h"
#include "core/kernel/CheckedSize.h"
#include "core/kernel/TextField.h"
#include "roi/FarDrawing.h"
#include "roi/ShapePlace.h"

namespace kest {

int ShowShape(const ShapeParts& shape, HDC dc, const std::optional<View>& view, HPEN pen) {
    if (!dc || !view) return KEST_FAILED;
    MakeWindowPlace(shape, view);
    const SelectedObject selectedPen(dc, pen);
    const SelectedObject brush(dc, GetStockObject(NULL_BRUSH));
    shape.kind.draw(dc, shape.window.Get(), shape.roi.GetName());
    return KEST_OK;
}

int ShowShape(const ShapeParts& shape, HWND window, const std::optional<View>& view, HPEN pen) {
    return ShowShape(shape, WindowDc(window), view, pen);
}

void DrawRectangle(HDC dc, const IntRect& place) {
    const IntRect limited = Reach(dc).Limited(place);
    Rectangle(dc, limited.left, limited.top, Saturate(Size64{limited.right} + 1), Saturate(Size64{limited.bottom} + 1));
}

void DrawEllipse(HDC dc, const IntRect& place, int beyond) {
    const IntRect box = {place.left, place.top, Saturate(Size64{place.right} + beyond),
                         Saturate(Size64{place.bottom} + beyond)};
    const Reach reach(dc);
    if (reach.Includes(box))
        Ellipse(dc, box.left, box.top, box.right, box.bottom);
    else
        reach.DrawFarEllipse(box);
}

void DrawLine(HDC dc, const IntRect& place) {
    Reach(dc).DrawLine({place.left, place.top}, {place.right, place.bottom});
}

void DrawPointMark(HDC dc, const IntRect& place) {
    constexpr int radius = 10, arm = 15;
    const int x = place.left, y = place.top;
    if (!Reach(dc).Includes(IntPoint{x, y})) return;
    Ellipse(dc, x - radius, y - radius, x + radius, y + radius);
    DrawLine(dc, {x - arm, y, x + arm, y});
    DrawLine(dc, {x, y - arm, x, y + arm});
}

void DrawName(HDC dc, const IntRect& place, const char* name) {
    if (!Reach(dc).Includes(IntPoint{place.left, place.top})) return;
    const BackgroundModeGuard background(dc, TRANSPARENT);
    const TextAlignGuard align(dc, TA_BOTTOM);
    DrawProcessText(dc, place.left + 8, place.top - 8, name, static_cast<int>(FieldLength(name, KEST_NAME_SIZE)));
}

void DrawEdgeHandles(HDC dc, const IntRect& place) {
    const SelectedObject pen(dc, GetStockObject(WHITE_PEN));
    const SelectedObject brush(dc, GetStockObject(WHITE_BRUSH));
    const int middleX = Saturate((Size64{place.left} + place.right) / 2);
    const int middleY = Saturate((Size64{place.top} + place.bottom) / 2);
    const Reach reach(dc);
    const auto drawHandle = [&](int x, int y) {
        if (reach.Includes(IntPoint{x, y})) Rectangle(dc, x - 2, y - 2, x + 2, y + 2);
    };
    drawHandle(middleX, place.top);
    drawHandle(middleX, place.bottom);
    drawHandle(place.left, middleY);
    drawHandle(place.right, middleY);
}

}  // namespace kest
