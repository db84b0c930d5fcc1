// How often each value occurs in a picture or under a ROI.
#include "document/Histogram.h"

#include <algorithm>
#include <cmath>

#include "document/Runs.h"
#include "platform/Busy.h"

namespace kestview {
namespace {

/// False when memory was short.
template <class Sample>
bool Count(const Sample* samples, Document& document, CcRoiBase* roi, Histogram& histogram, Busy& busy) {
    if (!samples) return true;
    const double low = static_cast<double>(histogram.low);
    const double span = static_cast<double>(histogram.high) - low;
    const double scale = span > 0 ? (histogramBins - 1) / span : 0;
    auto& counts = histogram.channels[0].counts;
    const long long all = SampleBytes(document.Image()) / static_cast<long long>(sizeof(Sample));
    return ForEachRun(document, roi, [&](std::size_t first, int count) {
        busy.Report(static_cast<long long>(first), all);
        for (int i = 0; i < count; ++i) {
            const auto value = static_cast<double>(samples[first + static_cast<std::size_t>(i)]);
            if (!std::isfinite(value)) continue;
            ++counts[static_cast<std::size_t>(std::clamp((value - low) * scale + 0.5, 0.0, histogramBins - 1.0))];
            ++histogram.pixels;
        }
    });
}

/// The first channel stands last in a pixel. False when memory was short.
bool Count(const RGBTRIPLE* colours, Document& document, CcRoiBase* roi, Histogram& histogram, Busy& busy) {
    CcImage& image = document.Image();
    const auto* pixels = reinterpret_cast<const unsigned char*>(colours);
    if (auto* hsl = dynamic_cast<Cc24BitHSLImage*>(&image)) {
        histogram.channels = {
            {"Hue", RGB(200, 120, 0), {}}, {"Saturation", RGB(150, 0, 150), {}}, {"Lightness", RGB(90, 90, 90), {}}};
        pixels = static_cast<const unsigned char*>(hsl->GetBitMapImageDataHSL());
    } else {
        histogram.channels = {{"Red", RGB(220, 0, 0), {}}, {"Green", RGB(0, 150, 0), {}}, {"Blue", RGB(0, 0, 220), {}}};
    }
    if (!pixels) return true;
    const long long all = SampleBytes(image) / 3;
    return ForEachRun(document, roi, [&](std::size_t first, int count) {
        busy.Report(static_cast<long long>(first), all);
        const unsigned char* pixel = pixels + 3 * first;
        for (int i = 0; i < count; ++i, pixel += 3)
            for (std::size_t c = 0; c < 3; ++c) ++histogram.channels[c].counts[pixel[2 - c]];
        histogram.pixels += count;
    });
}

}  // namespace

std::optional<Histogram> MakeHistogram(Document& document, CcRoiBase* roi) {
    const PlainPixels plain(document);
    Busy busy("Counting");
    Histogram histogram;
    CcImage& image = document.Image();
    histogram.channels = {{"Pixels", RGB(40, 70, 130), {}}};
    // The two values stand apart from the frame, at whole marks.
    if (image.GetImageType() == KEST_IMAGE_BINARY) histogram.low = -1, histogram.high = 4;
    if (document.Class().isWide) {
        histogram.low = document.WholeRange().x;
        histogram.high = document.WholeRange().y;
    }
    const bool isCounted =
        KestVisitSamples(image, [&](const auto* pixels) { return Count(pixels, document, roi, histogram, busy); });
    if (!isCounted) return std::nullopt;
    return histogram;
}

}  // namespace kestview
