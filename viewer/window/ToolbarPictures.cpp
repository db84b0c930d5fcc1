// The toolbar's pictures: drawn four times as large on white and on black, which tells colour and transparency of each
// pixel, and averaged.
#include "window/ToolbarPictures.h"

#include <algorithm>
#include <vector>

#include "platform/Drawing.h"

namespace kestview {
namespace {

constexpr int grid = 24, oversampling = 4;
constexpr COLORREF ink = RGB(60, 66, 74), blue = RGB(30, 110, 200), red = RGB(214, 48, 40), green = RGB(30, 150, 70),
                   paper = RGB(250, 250, 250), folder = RGB(240, 190, 70);

/// Draws in grid units.
class Pencil {
public:
    Pencil(HDC newDc, int newSide) : dc(newDc), side(newSide) {}

    void Use(COLORREF line, double width, COLORREF fill = CLR_INVALID) {
        const LOGBRUSH brush = {BS_SOLID, line, 0};
        Replace(pen, ExtCreatePen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_ROUND | PS_JOIN_ROUND,
                                  static_cast<DWORD>(std::max(1, At(width))), &brush, 0, nullptr));
        Replace(area, fill == CLR_INVALID ? static_cast<HBRUSH>(GetStockObject(NULL_BRUSH)) : CreateSolidBrush(fill));
    }
    ~Pencil() {
        SelectObject(dc, GetStockObject(BLACK_PEN));
        SelectObject(dc, GetStockObject(WHITE_BRUSH));
        DeleteObject(pen);
        DeleteObject(area);
    }
    Pencil(const Pencil&) = delete;
    Pencil& operator=(const Pencil&) = delete;

    void Lines(std::vector<POINT> points) {
        Scale(points);
        Polyline(dc, points.data(), static_cast<int>(points.size()));
    }
    void Shape(std::vector<POINT> points) {
        Scale(points);
        Polygon(dc, points.data(), static_cast<int>(points.size()));
    }
    void Curve(std::vector<POINT> points) {
        Scale(points);
        PolyBezier(dc, points.data(), static_cast<DWORD>(points.size()));
    }
    void Box(int left, int top, int right, int bottom) { Rectangle(dc, At(left), At(top), At(right), At(bottom)); }
    void Oval(int left, int top, int right, int bottom) { Ellipse(dc, At(left), At(top), At(right), At(bottom)); }
    void Dot(int x, int y) {
        Use(blue, 1, RGB(255, 255, 255));
        Box(x - 2, y - 2, x + 2, y + 2);
    }

private:
    int At(double units) const { return static_cast<int>(units * side / grid); }
    void Scale(std::vector<POINT>& points) const {
        for (POINT& point : points)
            point = {At(point.x), At(point.y)};
    }
    template <class Object>
    void Replace(Object& held, Object fresh) {
        SelectObject(dc, fresh);
        if (held) DeleteObject(held);
        held = fresh;
    }

    HDC dc;
    int side;
    HPEN pen = nullptr;
    HBRUSH area = nullptr;
};

void DrawGlass(Pencil& pencil, bool hasPlus, bool hasMinus) {
    pencil.Use(ink, 2, paper);
    pencil.Oval(3, 3, 17, 17);
    pencil.Use(ink, 3);
    pencil.Lines({{15, 15}, {21, 21}});
    pencil.Use(blue, 2);
    if (hasPlus || hasMinus) pencil.Lines({{7, 10}, {13, 10}});
    if (hasPlus) pencil.Lines({{10, 7}, {10, 13}});
}

void DrawArrowBack(Pencil& pencil, bool isMirrored) {
    const auto x = [isMirrored](LONG at) { return isMirrored ? grid - at : at; };
    pencil.Use(blue, 2);
    pencil.Curve({{x(6), 9}, {x(14), 5}, {x(21), 9}, {x(18), 19}});
    pencil.Use(blue, 1, blue);
    pencil.Shape({{x(3), 10}, {x(10), 4}, {x(10), 13}});
}

void Draw(Pencil& pencil, ToolbarPicture picture) {
    switch (picture) {
        case ToolbarPicture::Open:
            pencil.Use(ink, 1, folder);
            pencil.Shape({{3, 19}, {3, 6}, {9, 6}, {11, 8}, {19, 8}, {19, 19}});
            pencil.Use(ink, 1, RGB(255, 220, 120));
            pencil.Shape({{3, 19}, {7, 11}, {22, 11}, {19, 19}});
            break;
        case ToolbarPicture::Save:
            pencil.Use(ink, 1, blue);
            pencil.Box(4, 4, 21, 21);
            pencil.Use(ink, 1, paper);
            pencil.Box(8, 4, 17, 10);
            pencil.Box(7, 13, 18, 21);
            break;
        case ToolbarPicture::Undo:
            DrawArrowBack(pencil, false);
            break;
        case ToolbarPicture::Redo:
            DrawArrowBack(pencil, true);
            break;
        case ToolbarPicture::Select:
            pencil.Use(ink, 1, paper);
            pencil.Shape({{6, 3}, {6, 18}, {10, 15}, {13, 21}, {16, 20}, {13, 13}, {18, 13}});
            break;
        case ToolbarPicture::Point:
            pencil.Use(red, 2);
            pencil.Oval(6, 6, 18, 18);
            pencil.Use(ink, 1);
            pencil.Lines({{12, 2}, {12, 22}});
            pencil.Lines({{2, 12}, {22, 12}});
            break;
        case ToolbarPicture::Line:
            pencil.Use(red, 2);
            pencil.Lines({{4, 20}, {20, 4}});
            pencil.Dot(4, 20);
            pencil.Dot(20, 4);
            break;
        case ToolbarPicture::Rectangle:
            pencil.Use(red, 2);
            pencil.Lines({{3, 6}, {21, 6}, {21, 18}, {3, 18}, {3, 6}});
            break;
        case ToolbarPicture::Ellipse:
            pencil.Use(red, 2);
            pencil.Oval(2, 5, 22, 19);
            break;
        case ToolbarPicture::Freehand:
            pencil.Use(red, 2);
            pencil.Curve({{5, 14}, {0, 2}, {14, 2}, {15, 7}, {16, 11}, {24, 8}, {20, 17}, {17, 23}, {8, 21}, {5, 14}});
            break;
        case ToolbarPicture::FreehandLine:
            pencil.Use(red, 2);
            pencil.Curve({{3, 17}, {7, 2}, {10, 3}, {11, 10}, {12, 22}, {17, 20}, {21, 6}});
            break;
        case ToolbarPicture::Polygon:
            pencil.Use(red, 2);
            pencil.Lines({{4, 9}, {13, 4}, {20, 11}, {16, 20}, {6, 19}, {4, 9}});
            for (const POINT corner : {POINT{4, 9}, {13, 4}, {20, 11}, {16, 20}, {6, 19}})
                pencil.Dot(corner.x, corner.y);
            break;
        case ToolbarPicture::Polyline:
            pencil.Use(red, 2);
            pencil.Lines({{3, 18}, {9, 6}, {15, 16}, {21, 5}});
            for (const POINT corner : {POINT{3, 18}, {9, 6}, {15, 16}, {21, 5}})
                pencil.Dot(corner.x, corner.y);
            break;
        case ToolbarPicture::ZoomIn:
            DrawGlass(pencil, true, false);
            break;
        case ToolbarPicture::ZoomOut:
            DrawGlass(pencil, false, true);
            break;
        case ToolbarPicture::ZoomFit:
            pencil.Use(ink, 1, paper);
            pencil.Box(3, 5, 22, 20);
            pencil.Use(blue, 2);
            pencil.Lines({{7, 12}, {7, 9}, {10, 9}});
            pencil.Lines({{15, 9}, {18, 9}, {18, 12}});
            pencil.Lines({{7, 13}, {7, 16}, {10, 16}});
            pencil.Lines({{15, 16}, {18, 16}, {18, 13}});
            break;
        case ToolbarPicture::Threshold:
            pencil.Use(ink, 1, RGB(150, 150, 150));
            pencil.Box(3, 4, 22, 21);
            pencil.Use(red, 1, red);
            pencil.Shape({{3, 20}, {9, 11}, {14, 15}, {21, 7}, {21, 20}});
            break;
        case ToolbarPicture::DisplayTable:
            pencil.Use(ink, 1, paper);
            pencil.Box(3, 4, 22, 21);
            pencil.Use(blue, 2);
            pencil.Curve({{4, 19}, {9, 18}, {13, 6}, {20, 6}});
            pencil.Dot(12, 11);
            break;
        case ToolbarPicture::Histogram:
            pencil.Use(ink, 2);
            pencil.Lines({{3, 3}, {3, 21}, {22, 21}});
            pencil.Use(green, 1, green);
            pencil.Box(6, 14, 9, 20);
            pencil.Box(10, 6, 13, 20);
            pencil.Box(14, 10, 17, 20);
            pencil.Box(18, 16, 21, 20);
            break;
        case ToolbarPicture::Calibrate:
            pencil.Use(ink, 1, folder);
            pencil.Shape({{2, 16}, {16, 2}, {22, 8}, {8, 22}});
            pencil.Use(ink, 1);
            pencil.Lines({{6, 12}, {9, 15}});
            pencil.Lines({{9, 9}, {11, 11}});
            pencil.Lines({{12, 6}, {15, 9}});
            break;
        default:
            break;
    }
}

struct Pixels {
    HBITMAP bitmap;
    unsigned* bits;
};

Pixels MakePixels(int side) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = side;
    info.bmiHeader.biHeight = -side;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    return {bitmap, static_cast<unsigned*>(bits)};
}

/// The picture four times as large on a background.
std::vector<unsigned> Large(ToolbarPicture picture, int side, COLORREF background) {
    const Pixels pixels = MakePixels(side);
    if (!pixels.bits) return {};
    const HDC dc = CreateCompatibleDC(nullptr);
    {
        const Selected selected(dc, pixels.bitmap);
        const RECT all = {0, 0, side, side};
        const HBRUSH brush = CreateSolidBrush(background);
        FillRect(dc, &all, brush);
        DeleteObject(brush);
        Pencil pencil(dc, side);
        Draw(pencil, picture);
    }
    GdiFlush();
    std::vector<unsigned> copy(pixels.bits, pixels.bits + static_cast<std::size_t>(side) * side);
    DeleteDC(dc);
    DeleteObject(pixels.bitmap);
    return copy;
}

}  // namespace

HBITMAP MakeToolbarPicture(ToolbarPicture picture, int size, bool isEnabled) {
    const int large = size * oversampling;
    const std::vector<unsigned> onWhite = Large(picture, large, RGB(255, 255, 255)), onBlack = Large(picture, large, 0);
    const Pixels result = MakePixels(size);
    if (!result.bits || onWhite.empty() || onBlack.empty()) return result.bitmap;
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
    return result.bitmap;
}

HBITMAP MakeToolbarPicture(HBITMAP other, int size) {
    BITMAP record = {};
    GetObjectA(other, sizeof record, &record);
    const Pixels result = MakePixels(size);
    const HDC from = CreateCompatibleDC(nullptr), to = CreateCompatibleDC(nullptr);
    {
        const Selected selectedFrom(from, other), selectedTo(to, result.bitmap);
        SetStretchBltMode(to, COLORONCOLOR);
        StretchBlt(to, 0, 0, size, size, from, 0, 0, record.bmWidth, record.bmHeight, SRCCOPY);
    }
    GdiFlush();
    for (int i = 0; i < size * size; ++i)
        result.bits[i] |= 0xFF000000u;
    DeleteDC(from);
    DeleteDC(to);
    return result.bitmap;
}

}  // namespace kestview
