// Counts pixels by the sample type of the image's class.
#include "Histogram.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace {

void CountBytes(Histogram& histogram, std::span<const unsigned char> pixels, int channels) {
    histogram.channels = channels;
    histogram.highest = 255;
    // A colour pixel is blue, green, red.
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const auto channel = channels - 1 - static_cast<int>(i % channels);
        ++histogram.counts[channel][pixels[i]];
    }
}

/// Samples that are no finite number are left out.
template <class Sample>
void CountSamples(Histogram& histogram, std::span<const Sample> samples) {
    bool any = false;
    for (const Sample sample : samples) {
        const double value = sample;
        if (!std::isfinite(value)) continue;
        histogram.lowest = any ? std::min(histogram.lowest, value) : value;
        histogram.highest = any ? std::max(histogram.highest, value) : value;
        any = true;
    }
    if (!any) return;
    histogram.channels = 1;
    const double range = histogram.highest - histogram.lowest;
    const double stepsPerUnit = range > 0 ? (Histogram::steps - 1) / range : 0;
    for (const Sample sample : samples)
        if (std::isfinite(static_cast<double>(sample)))
            ++histogram.counts[0][static_cast<int>((sample - histogram.lowest) * stepsPerUnit)];
}

void Count(Histogram& histogram, const unsigned char* pixels, std::size_t count) {
    CountBytes(histogram, {pixels, count}, 1);
}

void Count(Histogram& histogram, const RGBTRIPLE* pixels, std::size_t count) {
    CountBytes(histogram, {&pixels->rgbtBlue, 3 * count}, 3);
}

template <class Sample>
void Count(Histogram& histogram, const Sample* samples, std::size_t count) {
    CountSamples<Sample>(histogram, {samples, count});
}

}  // namespace

unsigned Histogram::Peak() const {
    unsigned peak = 0;
    for (int channel = 0; channel < channels; ++channel)
        peak = std::max(peak, *std::max_element(counts[channel], counts[channel] + steps));
    return peak;
}

double Histogram::ValueOf(int step) const { return lowest + (highest - lowest) * step / (steps - 1); }

Histogram CountPixels(CcImage* image) {
    Histogram histogram;
    int height = 0, width = 0;
    if (!image || !image->GetBitMapImageData()) return histogram;
    image->GetHeightWidth(&height, &width);
    const auto count = static_cast<std::size_t>(height) * width;
    KestVisitSamples(*image, [&](const auto* pixels) { Count(histogram, pixels, count); });
    return histogram;
}
