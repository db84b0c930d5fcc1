// The range of samples. Comparisons lane by lane find what one after another finds: the order matters only to a NaN,
// which stays when it is the first sample and counts for nothing elsewhere, and to zeros of either sign.
#include <algorithm>
#include <cstddef>

#include "image/kernel/Sse2.h"
#include "image/kernel/WideSamplesPlain.h"

namespace kest {
namespace {

#if KEST_HAS_SSE2

// Smallest and largest so far in each lane.

/// Unsigned 16-bit samples, compared as signed ones with their sign bit turned.
struct Lanes16 {
    static constexpr std::size_t count = 8;
    __m128i smallest, largest;

    explicit Lanes16(std::uint16_t first) : smallest(Turned(_mm_set1_epi16(static_cast<short>(first)))) {
        largest = smallest;
    }
    static __m128i Turned(__m128i samples) { return _mm_xor_si128(samples, _mm_set1_epi16(-0x8000)); }
    void Take(const std::uint16_t* samples) {
        const __m128i turned = Turned(LoadVector(samples));
        smallest = _mm_min_epi16(smallest, turned);
        largest = _mm_max_epi16(largest, turned);
    }
    void Store(std::uint16_t* low, std::uint16_t* high) const {
        StoreVector(low, Turned(smallest));
        StoreVector(high, Turned(largest));
    }
};

struct Lanes32 {
    static constexpr std::size_t count = 4;
    __m128i smallest, largest;

    explicit Lanes32(std::int32_t first) : smallest(_mm_set1_epi32(first)), largest(smallest) {}
    static __m128i Select(__m128i mask, __m128i taken, __m128i kept) {
        return _mm_or_si128(_mm_and_si128(mask, taken), _mm_andnot_si128(mask, kept));
    }
    void Take(const std::int32_t* samples) {
        const __m128i taken = LoadVector(samples);
        smallest = Select(_mm_cmpgt_epi32(smallest, taken), taken, smallest);
        largest = Select(_mm_cmpgt_epi32(taken, largest), taken, largest);
    }
    void Store(std::int32_t* low, std::int32_t* high) const {
        StoreVector(low, smallest);
        StoreVector(high, largest);
    }
};

/// The second operand of min and max stays unless the first one is less or greater, so no NaN gets in.
struct LanesFloat {
    static constexpr std::size_t count = 4;
    __m128 smallest, largest;

    explicit LanesFloat(float first) : smallest(_mm_set1_ps(first)), largest(smallest) {}
    void Take(const float* samples) {
        const __m128 taken = _mm_loadu_ps(samples);
        smallest = _mm_min_ps(taken, smallest);
        largest = _mm_max_ps(taken, largest);
    }
    void Store(float* low, float* high) const {
        _mm_storeu_ps(low, smallest);
        _mm_storeu_ps(high, largest);
    }
};

/// Takes the whole cache lines into the range, and gives their number of samples.
template <class Lanes, class Sample>
std::size_t ScanLines(std::span<const Sample> samples, SampleRange<Sample>& range) {
    constexpr std::size_t line = CacheLineBytes / sizeof(Sample);
    const std::size_t whole = samples.size() - samples.size() % line;
    // Two accumulators hide the time that one comparison takes.
    Lanes lanes[] = {Lanes(samples[0]), Lanes(samples[0])};
    for (const Sample *next = samples.data(), *end = next + whole; next != end; next += line) {
        ReadAhead(next);
        for (std::size_t i = 0; i < line; i += 2 * Lanes::count) {
            lanes[0].Take(next + i);
            lanes[1].Take(next + i + Lanes::count);
        }
    }
    Sample low[Lanes::count], high[Lanes::count];
    for (const Lanes& found : lanes) {
        found.Store(low, high);
        for (std::size_t lane = 0; lane < Lanes::count; ++lane) {
            TakeIntoRange(range, low[lane]);
            TakeIntoRange(range, high[lane]);
        }
    }
    return whole;
}

#else

template <class Lanes, class Sample>
std::size_t ScanLines(std::span<const Sample>, SampleRange<Sample>&) {
    return 0;
}
using Lanes16 = void;
using Lanes32 = void;
using LanesFloat = void;

#endif

template <class Lanes, class Sample>
SampleRange<Sample> Scan(std::span<const Sample> samples) {
    SampleRange<Sample> range = {samples[0], samples[0]};
    for (const Sample sample : samples.subspan(ScanLines<Lanes>(samples, range))) TakeIntoRange(range, sample);
    return range;
}

}  // namespace

SampleRange<std::uint16_t> ScanSamples(std::span<const std::uint16_t> samples) { return Scan<Lanes16>(samples); }

SampleRange<std::int32_t> ScanSamples(std::span<const std::int32_t> samples) { return Scan<Lanes32>(samples); }

SampleRange<float> ScanSamples(std::span<const float> samples) {
    SampleRange<float> range = Scan<LanesFloat>(samples);
    // Of zeros of both signs the first one counts.
    for (float* bound : {&range.smallest, &range.largest})
        if (*bound == 0.0F) *bound = *std::find(samples.begin(), samples.end(), 0.0F);
    return range;
}

}  // namespace kest
