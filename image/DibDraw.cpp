// Draws a DIB into a device context.
#include "image/DibDraw.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>

#include "KestBlocks.h"
#include "core/GdiGuards.h"
#include "image/kernel/DibLayout.h"

namespace kest {
namespace {

/// Header and colours as the platform wants them, made from what the class knows and not from what a file said.
struct BitmapInfo {
    BITMAPINFOHEADER header = {};
    RGBQUAD colours[GrayColours] = {};

    BitmapInfo(const DibPicture& picture, int width, int height) {
        header.biSize = sizeof header;
        header.biWidth = width;
        header.biHeight = height;
        header.biPlanes = 1;
        header.biBitCount = static_cast<WORD>(picture.bitCount);
        if (picture.bitCount == 8 && picture.colours)
            std::memcpy(colours, picture.colours,
                        static_cast<std::size_t>(std::clamp(picture.colourBytes, 0, ColourTableBytes)));
    }
    const BITMAPINFO* Get() const { return reinterpret_cast<const BITMAPINFO*>(&header); }
};

/// The pixels that a logical unit is long along each axis, into `surface`.
void MeasureUnits(HDC dc, BlitSurface& surface) {
    constexpr int units = 1024;
    POINT points[] = {{0, 0}, {units, 0}, {0, units}};
    LPtoDP(dc, points, 3);
    const auto lengthTo = [&](const POINT& end) {
        return std::hypot(static_cast<double>(end.x) - points[0].x, static_cast<double>(end.y) - points[0].y) / units;
    };
    surface.unitX = lengthTo(points[1]);
    surface.unitY = lengthTo(points[2]);
}

BlitSurface SurfaceOf(HDC dc) {
    BlitSurface surface = {{-INT_MAX, -INT_MAX, INT_MAX, INT_MAX}};
    surface.isScaled = GetMapMode(dc) != MM_TEXT || GetGraphicsMode(dc) != GM_COMPATIBLE;
    RECT box;
    if (GetClipBox(dc, &box) == ERROR) return surface;
    if (surface.isScaled) {
        // Mappings turn it round, and the edges are rounded to logical units.
        box = {std::min(box.left, box.right), std::min(box.top, box.bottom), std::max(box.left, box.right),
               std::max(box.top, box.bottom)};
        InflateRect(&box, 1, 1);
        MeasureUnits(dc, surface);
    }
    surface.visible = {box.left, box.top, box.right, box.bottom};
    return surface;
}

/// The platform copies no rows, too, where nothing shows.
bool ShowsNothing(HDC dc, const BlitPlan& plan) {
    const long long right = plan.targetX + plan.targetWidth, bottom = plan.targetY + plan.targetHeight;
    const RECT target = {Saturate(std::min(plan.targetX, right)), Saturate(std::min(plan.targetY, bottom)),
                         Saturate(std::max(plan.targetX, right)), Saturate(std::max(plan.targetY, bottom))};
    RECT box;
    return GetClipBox(dc, &box) != ERROR && !RectVisible(dc, &target);
}

bool Blit(HDC dc, const void* bits, const BitmapInfo& info, UINT use, const BlitPlan& plan, DWORD operation) {
    const int targetX = Saturate(plan.targetX), targetY = Saturate(plan.targetY);
    const int sourceX = Saturate(plan.sourceX), sourceY = Saturate(plan.sourceY);
    const int width = Saturate(plan.sourceWidth), height = Saturate(plan.sourceHeight);
    const int rows =
        plan.countsDevicePixels && operation == SRCCOPY
            ? SetDIBitsToDevice(dc, targetX, targetY, static_cast<DWORD>(width), static_cast<DWORD>(height), sourceX,
                                sourceY, 0, static_cast<UINT>(info.header.biHeight), bits, info.Get(), use)
            : StretchDIBits(dc, targetX, targetY, Saturate(plan.targetWidth), Saturate(plan.targetHeight), sourceX,
                            sourceY, width, height, bits, info.Get(), use, operation);
    return rows != 0 || ShowsNothing(dc, plan);
}

/// Draws a plan that lies inside the picture.
bool DrawPart(HDC dc, const DibPicture& picture, BlitPlan plan, DWORD rasterOperation) {
    const Size64 pixelBytes = picture.bitCount / 8;
    const Size64 rowBytes = picture.width * pixelBytes;
    if (rowBytes % 4 == 0) {
        const BitmapInfo info(picture, picture.width, picture.height);
        return Blit(dc, picture.bits, info, picture.colourUse, plan, rasterOperation);
    }

    const Size64 usedBytes = plan.sourceWidth * pixelBytes;
    const Size64 paddedBytes = (usedBytes + 3) / 4 * 4;
    KestHeapBlock padded;
    if (!padded.Reserve(paddedBytes * plan.sourceHeight)) return false;
    for (Size64 row = 0; row < plan.sourceHeight; ++row)
        std::memcpy(padded.Get() + row * paddedBytes,
                    picture.bits + (plan.sourceY + row) * rowBytes + plan.sourceX * pixelBytes,
                    static_cast<std::size_t>(usedBytes));
    const BitmapInfo info(picture, static_cast<int>(plan.sourceWidth), static_cast<int>(plan.sourceHeight));
    plan.sourceX = plan.sourceY = 0;
    return Blit(dc, padded.Get(), info, picture.colourUse, plan, rasterOperation);
}

}  // namespace

bool DrawDib(HDC dc, const DibPicture& picture, const BlitPlan& wanted, DWORD rasterOperation) {
    BlitPlan plan = wanted;
    if (!ClipToImage(plan, picture.width, picture.height)) return true;
    const StretchModeGuard stretchMode(dc, COLORONCOLOR);
    if (!stretchMode.IsSet()) return false;
    return ForEachVisiblePart(plan, SurfaceOf(dc),
                              [&](const BlitPlan& part) { return DrawPart(dc, picture, part, rasterOperation); });
}

}  // namespace kest
