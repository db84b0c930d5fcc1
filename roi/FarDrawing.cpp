// Drawing what reaches farther than the platform draws safely.
#include "roi/FarDrawing.h"

#include <algorithm>

#include "core/GdiGuards.h"
#include "core/kernel/CheckedSize.h"
#include "roi/kernel/FarFigures.h"

namespace kest {
namespace {

/// Device pixels from the surface's origin. Curves cost time and memory for each pixel of their extent, and systems
/// hold device coordinates in few bits.
constexpr int safeDevicePixels = 0x8000;
/// Half the width of any pen, and the ends that are not drawn.
constexpr int penMargin = 0x400;

IntRect InOrder(POINT a, POINT b) {
    return {std::min<int>(a.x, b.x), std::min<int>(a.y, b.y), std::max<int>(a.x, b.x), std::max<int>(a.y, b.y)};
}

IntRect Widened(const IntRect& rect, int margin) {
    return {Saturate(Size64{rect.left} - margin), Saturate(Size64{rect.top} - margin),
            Saturate(Size64{rect.right} + margin), Saturate(Size64{rect.bottom} + margin)};
}

}  // namespace

Reach::Reach(HDC target) : dc(target) {
    POINT corners[] = {{-safeDevicePixels, -safeDevicePixels}, {safeDevicePixels, safeDevicePixels}};
    DPtoLP(dc, corners, 2);
    visible = safe = InOrder(corners[0], corners[1]);
    RECT clip;
    const int kind = GetClipBox(dc, &clip);
    // Without a surface, as in a recording, nothing is known of what will show.
    if (kind != SIMPLEREGION && kind != COMPLEXREGION) return;
    visible = Widened(InOrder({clip.left, clip.top}, {clip.right, clip.bottom}), penMargin);
    safe = {std::min(safe.left, visible.left), std::min(safe.top, visible.top), std::max(safe.right, visible.right),
            std::max(safe.bottom, visible.bottom)};
}

bool Reach::Includes(IntPoint point) const { return Holds(safe, point); }

bool Reach::Includes(const IntRect& place) const {
    return Includes(IntPoint{place.left, place.top}) && Includes(IntPoint{place.right, place.bottom});
}

IntRect Reach::Limited(const IntRect& place) const {
    return {std::clamp(place.left, safe.left, safe.right), std::clamp(place.top, safe.top, safe.bottom),
            std::clamp(place.right, safe.left, safe.right), std::clamp(place.bottom, safe.top, safe.bottom)};
}

void Reach::DrawLine(IntPoint start, IntPoint end) const {
    if (!Includes(start) || !Includes(end)) return DrawFarLine(start, end);
    POINT position = {};
    MoveToEx(dc, start.x, start.y, &position);
    LineTo(dc, end.x, end.y);
    MoveToEx(dc, position.x, position.y, nullptr);
}

void Reach::DrawFarLine(IntPoint start, IntPoint end) const {
    IntPoint from = start, to = end;
    if (!ClipLine(visible, from, to)) return;
    Stroke stroke(dc);
    if (IsPixelExact()) {
        TraceLine(start, end, visible, stroke);
        return;
    }
    // The farther away its ends are, the less their rounding turns the line.
    from = start;
    to = end;
    ClipLine(safe, from, to);
    stroke.Add(from);
    stroke.Add(to);
    stroke.End();
}

/// Whether a line drawn pixel by pixel looks like one that is drawn whole.
bool Reach::IsPixelExact() const {
    LOGPEN pen;
    const bool isThin =
        GetObjectA(GetCurrentObject(dc, OBJ_PEN), sizeof pen, &pen) == sizeof pen && pen.lopnWidth.x <= 1;
    return isThin && GetMapMode(dc) == MM_TEXT && GetGraphicsMode(dc) == GM_COMPATIBLE;
}

void Reach::DrawFarEllipse(const IntRect& place) const {
    const IntRect box = InOrder({place.left, place.top}, {place.right, place.bottom});
    if (box.left == box.right || box.top == box.bottom) return;
    Stroke stroke(dc);
    TraceEllipse({box.left, box.top, box.right - 1, box.bottom - 1}, visible, stroke);
}

void Stroke::Add(IntPoint point) {
    const POINT added = {point.x, point.y};
    if (!hasFirst) first = added;
    hasFirst = true;
    if (used > 0 && piece[used - 1].x == added.x && piece[used - 1].y == added.y) return;
    if (used == pieceSize) {
        Polyline(dc, piece, used);
        piece[0] = piece[used - 1];
        used = 1;
    }
    piece[used++] = added;
}

void Stroke::End() {
    if (used > 1) Polyline(dc, piece, used);
    used = 0;
    hasEnded = true;
}

void Stroke::Close() {
    if (used > 0 && !hasEnded) Add({first.x, first.y});
    End();
}

}  // namespace kest
