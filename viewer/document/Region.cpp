// The pixels under a ROI as a picture of their own.
#include "document/Region.h"

#include <algorithm>
#include <cstring>

#include "document/Runs.h"
#include "platform/Busy.h"

namespace kestview {
namespace {

/// The library gives what is shown of 32-bit and float samples; here they stay what they are.
std::unique_ptr<CcImage> CutSamples(Document& document, CcRoiBase& roi, SIZE size, const char* name) {
    CcImage& image = document.Image();
    auto region = MakeImage(image.GetImageType(), size.cy, size.cx, name);
    const RECT* bounds = roi.GetBoundingRect();
    if (!region || !bounds) return nullptr;
    const RECT from = *bounds;
    const auto sampleBytes = static_cast<std::size_t>(image.SizeOf());
    const auto* samples = static_cast<const unsigned char*>(image.GetBitMapImageData());
    auto* cut = static_cast<unsigned char*>(region->GetBitMapImageData());
    const auto width = static_cast<std::size_t>(document.Size().cx);
    ForEachRun(document, &roi, [&](std::size_t first, int count) {
        const long row = static_cast<long>(first / width) - from.bottom;
        const long begin = static_cast<long>(first % width) - from.left;
        const long end = std::min<long>(begin + count, size.cx);
        if (row < 0 || row >= size.cy || begin < 0 || begin >= end) return;
        std::memcpy(cut + (static_cast<std::size_t>(row) * static_cast<std::size_t>(size.cx) +
                           static_cast<std::size_t>(begin)) *
                              sampleBytes,
                    samples + first * sampleBytes, static_cast<std::size_t>(end - begin) * sampleBytes);
    });
    region->ReScaleImageOnShow();
    return region;
}

}  // namespace

std::unique_ptr<CcImage> CutOut(Document& document, CcRoiBase& roi) {
    const PlainPixels plain(document);
    CcImage& image = document.Image();
    const Busy busy("Cutting out", SampleBytes(image));
    std::unique_ptr<CcImage> region(image.GetRegion(&roi, 0, 0));
    const SIZE size = region ? SizeOf(*region) : SIZE{0, 0};
    if (size.cx < 1 || size.cy < 1) return nullptr;
    return region->GetImageType() == image.GetImageType() ? std::move(region)
                                                          : CutSamples(document, roi, size, region->GetName());
}

}  // namespace kestview
