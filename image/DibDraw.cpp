// Draws a DIB into a device context.
#include "image/DibDraw.h"

#include <algorithm>
#include <cstring>

#include "KestBlocks.h"
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

/// Leaves out what the device context would cut off anyway.
bool ClipToTarget(HDC dc, BlitPlan& plan, const DibPicture& picture) {
    RECT box;
    const bool countsPixels = GetMapMode(dc) == MM_TEXT && GetGraphicsMode(dc) == GM_COMPATIBLE;
    if (!plan.IsOneToOne() || !countsPixels || GetClipBox(dc, &box) == ERROR) return true;
    BlitPlan visible = plan;
    const long long left = std::max<long long>(plan.targetX, box.left);
    const long long top = std::max<long long>(plan.targetY, box.top);
    const long long right = std::min<long long>(plan.targetX + plan.targetWidth, box.right);
    const long long bottom = std::min<long long>(plan.targetY + plan.targetHeight, box.bottom);
    if (left >= right || top >= bottom) return false;
    visible.sourceX += left - plan.targetX;
    visible.sourceY += plan.targetY + plan.targetHeight - bottom;
    visible.targetX = left;
    visible.targetY = top;
    visible.targetWidth = visible.sourceWidth = right - left;
    visible.targetHeight = visible.sourceHeight = bottom - top;
    plan = visible;
    return ClipToImage(plan, picture.width, picture.height);
}

void Blit(HDC dc, const void* bits, const BitmapInfo& info, UINT use, const BlitPlan& plan, DWORD operation) {
    const int targetX = Saturate(plan.targetX), targetY = Saturate(plan.targetY);
    const int sourceX = Saturate(plan.sourceX), sourceY = Saturate(plan.sourceY);
    const int width = Saturate(plan.sourceWidth), height = Saturate(plan.sourceHeight);
    if (plan.countsDevicePixels && operation == SRCCOPY)
        SetDIBitsToDevice(dc, targetX, targetY, static_cast<DWORD>(width), static_cast<DWORD>(height), sourceX, sourceY,
                          0, static_cast<UINT>(info.header.biHeight), bits, info.Get(), use);
    else
        StretchDIBits(dc, targetX, targetY, Saturate(plan.targetWidth), Saturate(plan.targetHeight), sourceX, sourceY,
                      width, height, bits, info.Get(), use, operation);
}

}  // namespace

void DrawDib(HDC dc, const DibPicture& picture, const BlitPlan& wanted, DWORD rasterOperation) {
    BlitPlan plan = wanted;
    if (!ClipToImage(plan, picture.width, picture.height) || !ClipToTarget(dc, plan, picture)) return;

    const Size64 pixelBytes = picture.bitCount / 8;
    const Size64 rowBytes = picture.width * pixelBytes;
    if (rowBytes % 4 == 0) {
        const BitmapInfo info(picture, picture.width, picture.height);
        Blit(dc, picture.bits, info, picture.colourUse, plan, rasterOperation);
        return;
    }

    const Size64 usedBytes = plan.sourceWidth * pixelBytes;
    const Size64 paddedBytes = (usedBytes + 3) / 4 * 4;
    KestHeapBlock padded;
    if (!padded.Reserve(paddedBytes * plan.sourceHeight)) return;
    for (Size64 row = 0; row < plan.sourceHeight; ++row)
        std::memcpy(padded.Get() + row * paddedBytes,
                    picture.bits + (plan.sourceY + row) * rowBytes + plan.sourceX * pixelBytes,
                    static_cast<std::size_t>(usedBytes));
    const BitmapInfo info(picture, static_cast<int>(plan.sourceWidth), static_cast<int>(plan.sourceHeight));
    plan.sourceX = plan.sourceY = 0;
    Blit(dc, padded.Get(), info, picture.colourUse, plan, rasterOperation);
}

}  // namespace kest
