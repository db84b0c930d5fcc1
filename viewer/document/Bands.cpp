// Bands of values with their colours.
#include "document/Bands.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

#include "document/ImageClasses.h"

namespace kestview {
namespace {

constexpr double endless = std::numeric_limits<double>::infinity();

/// Calls visit(first sample, count) with the samples of a wide image.
template <class Visit>
void WithSamples(CcImage& image, Visit visit) {
    if (!ImageClassOf(image).isWide) return;
    const SIZE size = SizeOf(image);
    const auto count = static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy);
    KestVisitSamples(image, [&]<class Sample>(const Sample* samples) {
        if constexpr (std::is_arithmetic_v<Sample>) visit(samples, samples ? count : 0);
    });
}

template <class Sample>
struct Bounds {
    Sample low, high;
    bool isEmpty;
};

template <class Sample>
Bounds<Sample> BoundsOf(const Band& band) {
    if constexpr (std::is_floating_point_v<Sample>) {
        const auto low = static_cast<Sample>(band.low), high = static_cast<Sample>(band.high);
        return {low, high, !(low <= high)};
    } else {
        constexpr double least = std::numeric_limits<Sample>::min(), most = std::numeric_limits<Sample>::max();
        const double low = std::max(std::ceil(band.low), least), high = std::min(std::floor(band.high), most);
        if (!(low <= high)) return {0, 0, true};
        return {static_cast<Sample>(low), static_cast<Sample>(high), false};
    }
}

/// The samples that lie at one level, or at some neighbouring ones.
struct Extent {
    double low = endless, high = -endless;

    bool IsEmpty() const { return low > high; }
    void Add(double value) {
        low = std::min(low, value);
        high = std::max(high, value);
    }
    void Add(const Extent& other) {
        low = std::min(low, other.low);
        high = std::max(high, other.high);
    }
};

/// Bounds in the wrong order, for a band that holds no sample: its neighbours, as far as there are some.
Extent Between(const Extent& below, const Extent& above) {
    Extent empty = {above.low, below.high};
    if (above.IsEmpty()) empty.low = empty.high + 1 + std::abs(empty.high);
    if (below.IsEmpty()) empty.high = empty.low - 1 - std::abs(empty.low);
    return empty;
}

}  // namespace

ThresholdTag TagOf(const Band& band) {
    return {static_cast<float>(band.low), static_cast<float>(band.high), GetRValue(band.colour), GetGValue(band.colour),
            GetBValue(band.colour)};
}

Band BandOf(const ThresholdTag& tag) {
    return {static_cast<double>(tag.fLow), static_cast<double>(tag.fHigh), RGB(tag.iRed, tag.iGreen, tag.iBlue)};
}

SampleRange RangeOfSamples(CcImage& image) {
    SampleRange range = {0, 255};
    WithSamples(image, [&](const auto* samples, std::size_t count) {
        bool isAny = false;
        auto low = std::remove_cvref_t<decltype(*samples)>{}, high = low;
        for (std::size_t i = 0; i < count; ++i) {
            if (!std::isfinite(static_cast<double>(samples[i]))) continue;
            low = isAny ? std::min(low, samples[i]) : samples[i];
            high = isAny ? std::max(high, samples[i]) : samples[i];
            isAny = true;
        }
        if (isAny) range = {static_cast<double>(low), static_cast<double>(high)};
    });
    return range;
}

void NumberBands(CcImage& image, const std::vector<Band>& bands, std::uint8_t* numbers) {
    WithSamples(image, [&](const auto* samples, std::size_t count) {
        using Sample = std::remove_cvref_t<decltype(*samples)>;
        std::fill_n(numbers, count, std::uint8_t{0});
        std::uint8_t number = 0;
        for (const Band& band : bands) {
            ++number;
            const Bounds<Sample> bounds = BoundsOf<Sample>(band);
            if (bounds.isEmpty) continue;
            for (std::size_t i = 0; i < count; ++i)
                numbers[i] = samples[i] >= bounds.low && samples[i] <= bounds.high ? number : numbers[i];
        }
    });
}

std::vector<Band> SampleBandsOf(CcImage& image, const std::vector<Band>& levelBands) {
    constexpr int levelCount = 256;
    const std::vector<std::uint8_t> levels = ShownLevels(image);
    if (levels.empty()) return {};
    // Levels rise with the samples, so what lies at neighbouring levels is a range of samples.
    Extent at[levelCount];
    WithSamples(image, [&](const auto* samples, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            if (const auto value = static_cast<double>(samples[i]); !std::isnan(value)) at[levels[i]].Add(value);
    });
    std::vector<Band> bands;
    for (const Band& levelBand : levelBands) {
        Extent below, inside, above;
        for (int level = 0; level < levelCount; ++level)
            (level < std::floor(levelBand.low)   ? below
             : level > std::ceil(levelBand.high) ? above
                                                 : inside)
                .Add(at[level]);
        if (inside.IsEmpty()) inside = Between(below, above);
        bands.push_back({inside.low, inside.high, levelBand.colour});
    }
    return bands;
}

}  // namespace kestview
