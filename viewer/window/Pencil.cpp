// Small pictures: drawn four times as large on white and on black, which tells colour and transparency of each pixel,
// and averaged.
#include "window/Pencil.h"

#include <algorithm>

#include "platform/Drawing.h"

namespace kestview {

Pencil::Tools::Tools(HDC dc, HPEN newPen, HBRUSH newBrush)
    : pen(newPen), brush(newBrush), selectedPen(dc, pen), selectedBrush(dc, brush) {}

void Pencil::Use(COLORREF line, double width, COLORREF fill) {
    const LOGBRUSH brush = {BS_SOLID, line, 0};
    const HPEN pen = ExtCreatePen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_ROUND | PS_JOIN_ROUND,
                                  static_cast<DWORD>(std::max(1, At(width))), &brush, 0, nullptr);
    // Deleting a stock brush does nothing.
    tools.emplace(dc, pen,
                  fill == CLR_INVALID ? static_cast<HBRUSH>(GetStockObject(NULL_BRUSH)) : CreateSolidBrush(fill));
}

void Pencil::Scale(std::vector<POINT>& points) const {
    for (POINT& point : points) point = {At(point.x), At(point.y)};
}

void Pencil::Lines(std::vector<POINT> points) {
    Scale(points);
    Polyline(dc, points.data(), static_cast<int>(points.size()));
}

void Pencil::Shape(std::vector<POINT> points) {
    Scale(points);
    Polygon(dc, points.data(), static_cast<int>(points.size()));
}

void Pencil::Curve(std::vector<POINT> points) {
    Scale(points);
    PolyBezier(dc, points.data(), static_cast<DWORD>(points.size()));
}

void Pencil::Box(int left, int top, int right, int bottom) { Rectangle(dc, At(left), At(top), At(right), At(bottom)); }

void Pencil::Oval(int left, int top, int right, int bottom) { Ellipse(dc, At(left), At(top), At(right), At(bottom)); }

void Pencil::Dot(int x, int y) {
    constexpr COLORREF rim = RGB(30, 110, 200), inside = RGB(255, 255, 255);
    Use(rim, 1, inside);
    Box(x - 2, y - 2, x + 2, y + 2);
}

namespace {

constexpr int oversampling = 4;

/// A bitmap of 32 bits a pixel, top row first.
struct Pixels {
    explicit Pixels(int side) : bitmap(MakeDibSection({side, -side}, memory)) { bits = static_cast<unsigned*>(memory); }
    void* memory = nullptr;
    unsigned* bits;
    kest::GdiObject<HBITMAP> bitmap;
};

/// The picture four times as large on a background.
std::vector<unsigned> Large(Drawing draw, int side, COLORREF background) {
    const Pixels pixels(side);
    if (!pixels.bits) return {};
    const kest::MemoryDc dc(nullptr);
    {
        const kest::SelectedObject selected(dc, pixels.bitmap);
        const RECT all = {0, 0, side, side};
        const kest::GdiObject brush(CreateSolidBrush(background));
        FillRect(dc, &all, brush);
        Pencil pencil(dc, side);
        draw(pencil);
    }
    GdiFlush();
    return std::vector<unsigned>(pixels.bits, pixels.bits + static_cast<std::size_t>(side) * side);
}

}  // namespace

HBITMAP MakePicture(Drawing draw, int size, bool isEnabled) {
    const int large = size * oversampling;
    const std::vector<unsigned> onWhite = Large(draw, large, RGB(255, 255, 255)), onBlack = Large(draw, large, 0);
    Pixels result(size);
    if (!result.bits || onWhite.empty() || onBlack.empty()) return result.bitmap.Detach();
    constexpr int samples = oversampling * oversampling;
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            int white[3] = {}, black[3] = {};
            for (int i = 0; i < samples; ++i) {
                const std::size_t at = static_cast<std::size_t>(y * oversampling + i / oversampling) * large +
                                       static_cast<std::size_t>(x * oversampling + i % oversampling);
                for (int c = 0; c < 3; ++c) {
                    white[c] += onWhite[at] >> (8 * c) & 255;
                    black[c] += onBlack[at] >> (8 * c) & 255;
                }
            }
            // What the background adds on white and not on black is transparent.
            const int alpha = 255 - std::clamp((white[1] - black[1]) / samples, 0, 255);
            unsigned pixel = 0;
            const int brightness = alpha ? (black[0] + black[1] + black[2]) * 255 / (3 * samples * alpha) : 0;
            for (int c = 0; c < 3; ++c) {
                int level = alpha ? std::min(255, black[c] * 255 / (samples * alpha)) : 0;
                if (!isEnabled) level = 130 + std::min(brightness, 255) * 2 / 5;
                pixel |= static_cast<unsigned>(level) << (8 * c);
            }
            result.bits[y * size + x] = pixel | static_cast<unsigned>(isEnabled ? alpha : alpha * 2 / 3) << 24;
        }
    return result.bitmap.Detach();
}

HBITMAP MakePicture(HBITMAP other, int size) {
    BITMAP record = {};
    GetObjectA(other, sizeof record, &record);
    Pixels result(size);
    if (!result.bits) return nullptr;
    {
        const kest::MemoryDc from(nullptr), to(nullptr);
        const kest::SelectedObject selectedFrom(from, other), selectedTo(to, result.bitmap);
        const kest::StretchModeGuard mode(to, COLORONCOLOR);
        StretchBlt(to, 0, 0, size, size, from, 0, 0, record.bmWidth, record.bmHeight, SRCCOPY);
    }
    GdiFlush();
    for (int i = 0; i < size * size; ++i) result.bits[i] |= 0xFF000000u;
    return result.bitmap.Detach();
}

}  // namespace kestview
