// The rules of WideSamples for one sample, straight down: what the vector loops equal, and what their tails use.
#pragma once

#include <algorithm>
#include <type_traits>

#include "core/kernel/CheckedSize.h"
#include "core/kernel/Numbers.h"
#include "image/kernel/WideSamples.h"

namespace kest {

/// The ends of a display range as samples of a type are compared with them: those of integers lose their fraction. One
/// that is no number bounds nothing.
template <class Sample>
struct SampleBounds {
    using Bound = std::conditional_t<std::is_floating_point_v<Sample>, float, Size64>;
    Bound low, high;

    explicit SampleBounds(const DisplayMapping& mapping)
        : low(BoundAt(mapping.displayMin, -beyond)), high(BoundAt(mapping.displayMax, beyond)) {}

private:
    static constexpr float beyond = 4e9F;  ///< what no integer sample reaches
    static Bound BoundAt(float end, float ifNoNumber) {
        if constexpr (std::is_floating_point_v<Sample>)
            return end;
        else
            return static_cast<Bound>(std::clamp(end == end ? end : ifNoNumber, -beyond, beyond));
    }
};

template <class Sample>
void TakeIntoRange(SampleRange<Sample>& range, Sample sample) {
    if (sample > range.largest) range.largest = sample;
    if (sample < range.smallest) range.smallest = sample;
}

template <class Sample>
std::uint8_t MapSample(Sample sample, const DisplayMapping& mapping) {
    const SampleBounds<Sample> bounds(mapping);
    if (sample > bounds.high) return 255;
    if (sample < bounds.low) return 0;
    const float product = static_cast<float>(sample) * mapping.scale;
    return TruncateToByte(product + mapping.offset);
}

}  // namespace kest
