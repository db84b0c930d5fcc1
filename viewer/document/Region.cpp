// The pixels under a ROI as a picture of their own.
#include "document/Region.h"

#include <cstring>

#include "platform/Busy.h"

namespace kestview {
namespace {

/// The library gives what is shown of 32-bit and float samples; here they stay what they are. What lies outside of the
/// ROI is where regions with different fill values differ.
std::unique_ptr<CcImage> CutSamples(Document& document, CcRoiBase& roi, CcImage& shown) {
    constexpr int otherFill = 255;
    CcImage& image = document.Image();
    const std::unique_ptr<CcImage> other(image.GetRegion(&roi, otherFill, 0));
    const SIZE size = SizeOf(shown);
    auto region = MakeImage(image.GetImageType(), size.cy, size.cx, shown.GetName());
    const RECT* bounds = roi.GetBoundingRect();
    if (!other || !region || !bounds) return nullptr;
    const auto sampleBytes = static_cast<std::size_t>(image.SizeOf());
    const auto* samples = static_cast<const unsigned char*>(image.GetBitMapImageData());
    auto* cut = static_cast<unsigned char*>(region->GetBitMapImageData());
    const auto* a = static_cast<const unsigned char*>(shown.GetBitMapImageData());
    const auto* b = static_cast<const unsigned char*>(other->GetBitMapImageData());
    const SIZE all = document.Size();
    for (long y = 0; y < size.cy; ++y)
        for (long x = 0; x < size.cx; ++x, ++a, ++b, cut += sampleBytes) {
            const long fromX = bounds->left + x, fromY = bounds->bottom + y;
            if (*a != *b || fromX < 0 || fromY < 0 || fromX >= all.cx || fromY >= all.cy) continue;
            const std::size_t index =
                static_cast<std::size_t>(fromY) * static_cast<std::size_t>(all.cx) + static_cast<std::size_t>(fromX);
            std::memcpy(cut, samples + index * sampleBytes, sampleBytes);
        }
    region->ReScaleImageOnShow();
    return region;
}

}  // namespace

std::unique_ptr<CcImage> CutOut(Document& document, CcRoiBase& roi) {
    const PlainPixels plain(document);
    CcImage& image = document.Image();
    const RECT* bounds = roi.GetBoundingRect();
    if (!bounds || bounds->right <= bounds->left || bounds->top <= bounds->bottom) return nullptr;
    const Busy busy("Cutting out", SampleBytes(image));
    std::unique_ptr<CcImage> region(image.GetRegion(&roi, 0, 0));
    const SIZE size = region ? SizeOf(*region) : SIZE{0, 0};
    if (size.cx < 1 || size.cy < 1) return nullptr;
    return region->GetImageType() == image.GetImageType() ? std::move(region) : CutSamples(document, roi, *region);
}

}  // namespace kestview
