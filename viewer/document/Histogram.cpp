// How often each value occurs in a picture or under a ROI.
#include "document/Histogram.h"

#include <algorithm>
#include <cmath>

#include "document/Runs.h"
#include "platform/Busy.h"

namespace kestview {
namespace {

template <class Sample>
void CountWide(Document& document, CcRoiBase* roi, Histogram& histogram) {
    const auto* samples = static_cast<const Sample*>(document.Image().GetBitMapImageData());
    if (!samples) return;
    const double low = static_cast<double>(histogram.low);
    const double span = static_cast<double>(histogram.high) - low;
    const double scale = span > 0 ? (histogramBins - 1) / span : 0;
    auto& counts = histogram.channels[0].counts;
    ForEachRun(document, roi, [&](std::size_t first, int count) {
        for (int i = 0; i < count; ++i) {
            const auto value = static_cast<double>(samples[first + static_cast<std::size_t>(i)]);
            if (!std::isfinite(value)) continue;
            ++counts[static_cast<std::size_t>(std::clamp((value - low) * scale + 0.5, 0.0, histogramBins - 1.0))];
            ++histogram.pixels;
        }
    });
}

}  // namespace

Histogram MakeHistogram(Document& document, CcRoiBase* roi) {
    const PlainPixels plain(document);
    Busy busy("Counting");
    Histogram histogram;
    CcImage& image = document.Image();
    if (document.Class().isColour) {
        histogram.channels = {{"Red", RGB(220, 0, 0), {}}, {"Green", RGB(0, 150, 0), {}}, {"Blue", RGB(0, 0, 220), {}}};
        const auto* pixels = static_cast<const unsigned char*>(image.GetBitMapImageData());
        ForEachRun(document, roi, [&](std::size_t first, int count) {
            const unsigned char* pixel = pixels + 3 * first;
            for (int i = 0; i < count; ++i, pixel += 3)
                for (std::size_t c = 0; c < 3; ++c)
                    ++histogram.channels[c].counts[pixel[2 - c]];
            histogram.pixels += count;
        });
        return histogram;
    }
    histogram.channels = {{"Pixels", RGB(40, 70, 130), {}}};
    if (document.Class().isWide) {
        histogram.low = image.GetMinPixelValue();
        histogram.high = image.GetMaxPixelValue();
        if (!std::isfinite(histogram.low) || !std::isfinite(histogram.high)) histogram.low = 0, histogram.high = 1;
    }
    switch (image.GetImageType()) {
        case KEST_IMAGE_INT16:
            CountWide<unsigned short>(document, roi, histogram);
            break;
        case KEST_IMAGE_INT32:
            CountWide<int>(document, roi, histogram);
            break;
        case KEST_IMAGE_FLOAT:
            CountWide<float>(document, roi, histogram);
            break;
        default:
            CountWide<unsigned char>(document, roi, histogram);
            break;
    }
    return histogram;
}

}  // namespace kestview
