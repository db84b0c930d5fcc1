// The rules of WideSamples for one sample, straight down: what the vector loops equal, and what their tails use.
#pragma once

#include <type_traits>

#include "core/kernel/Numbers.h"
#include "image/kernel/WideSamples.h"

namespace kest {

/// A bound of the display range as samples of a type are compared with it.
template <class Sample>
auto BoundFor(float bound) {
    if constexpr (std::is_floating_point_v<Sample>)
        return bound;
    else
        return TruncateToInt(bound);
}

template <class Sample>
void TakeIntoRange(SampleRange<Sample>& range, Sample sample) {
    if (sample > range.largest) range.largest = sample;
    if (sample < range.smallest) range.smallest = sample;
}

template <class Sample>
std::uint8_t MapSample(Sample sample, const DisplayMapping& mapping) {
    if (sample > BoundFor<Sample>(mapping.displayMax)) return 255;
    if (sample < BoundFor<Sample>(mapping.displayMin)) return 0;
    const float product = static_cast<float>(sample) * mapping.scale;
    return TruncateToByte(product + mapping.offset);
}

}  // namespace kest
