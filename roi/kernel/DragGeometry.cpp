// The geometry of dragging a shape with the mouse.
#include "roi/kernel/DragGeometry.h"

#include <utility>

namespace kest {
namespace {

constexpr int handleTolerance = 5;

int Add(int a, Size64 b) { return Saturate(a + b); }

Size64 Distance(int a, int b) {
    const Size64 difference = Size64{a} - b;
    return difference < 0 ? -difference : difference;
}

bool IsNear(int a, int b) { return Distance(a, b) < handleTolerance; }

int Middle(int a, int b) { return static_cast<int>((Size64{a} + b) / 2); }

}  // namespace

unsigned SidesOfHandle(int hitCode) {
    switch (hitCode) {
        case 1: return TopSide;
        case 2: return BottomSide;
        case 3: return LeftSide;
        case 4: return RightSide;
        case 5: return TopSide | LeftSide;
        case 6: return TopSide | RightSide;
        case 7: return BottomSide | LeftSide;
        case 8: return BottomSide | RightSide;
        default: return 0;
    }
}

void MoveSides(IntRect& shape, unsigned sides, Size64 dx, Size64 dy) {
    if (sides & LeftSide) shape.left = Add(shape.left, dx);
    if (sides & TopSide) shape.top = Add(shape.top, dy);
    if (sides & RightSide) shape.right = Add(shape.right, dx);
    if (sides & BottomSide) shape.bottom = Add(shape.bottom, dy);
}

void KeepExtent(IntRect& shape, IntPoint mouse) {
    if (shape.bottom == mouse.y) shape.bottom = Add(mouse.y, 1);
    if (shape.right == mouse.x) shape.right = Add(mouse.x, 1);
}

IntRect Normalised(const IntRect& shape) {
    IntRect result = shape;
    if (result.top > result.bottom) std::swap(result.top, result.bottom);
    if (result.right < result.left) std::swap(result.left, result.right);
    return result;
}

IntRect ClipForMove(const IntRect& clip, const IntRect& shape, IntPoint mouse) {
    return {Add(clip.left, Distance(mouse.x, shape.left)), Add(clip.top, Distance(mouse.y, shape.top)),
            Add(clip.right, -Distance(mouse.x, shape.right)), Add(clip.bottom, -Distance(mouse.y, shape.bottom))};
}

IntRect ClipForResize(const IntRect& clip, const IntRect& shape, IntPoint mouse, unsigned sides) {
    IntRect result = clip;
    const auto shift = [](int& low, int& high, Size64 distance) {
        low = Add(low, distance);
        high = Add(high, distance);
    };
    if (sides & TopSide) shift(result.top, result.bottom, Size64{mouse.y} - shape.top);
    if (sides & BottomSide) shift(result.top, result.bottom, Size64{mouse.y} - shape.bottom);
    if (sides & LeftSide) shift(result.left, result.right, Size64{mouse.x} - shape.left);
    if (sides & RightSide) shift(result.left, result.right, Size64{mouse.x} - shape.right);
    return result;
}

int HitRectangle(const IntRect& window, IntPoint mouse) {
    const bool nearLeft = IsNear(window.left, mouse.x), nearRight = IsNear(window.right, mouse.x);
    const bool nearTop = IsNear(window.top, mouse.y), nearBottom = IsNear(window.bottom, mouse.y);
    if (IsNear(Middle(window.left, window.right), mouse.x)) {
        if (nearTop) return 1;
        if (nearBottom) return 2;
    }
    if (IsNear(Middle(window.top, window.bottom), mouse.y)) {
        if (nearLeft) return 3;
        if (nearRight) return 4;
    }
    if (nearLeft && nearTop) return 5;
    if (nearRight && nearTop) return 6;
    if (nearLeft && nearBottom) return 7;
    if (nearRight && nearBottom) return 8;
    const bool isInside =
        window.left < mouse.x && mouse.x < window.right && window.top < mouse.y && mouse.y < window.bottom;
    return isInside ? 0 : -1;
}

}  // namespace kest
