// Samples to display bytes, 16 at a time in vector registers, which compute every bit as the plain rule does.
#include <algorithm>
#include <cstddef>
#include <limits>

#include "image/kernel/Sse2.h"
#include "image/kernel/WideSamplesPlain.h"

namespace kest {
namespace {

/// Bounds in a lane of integer samples: one beyond all samples counts as the outermost sample.
template <class Sample>
struct LaneBounds {
    std::int32_t low, high;
    bool areSamplesInside;  ///< false: one bound is beyond all samples on the other's side

    explicit LaneBounds(const DisplayMapping& mapping) {
        constexpr Size64 smallest = std::numeric_limits<Sample>::min(), largest = std::numeric_limits<Sample>::max();
        const SampleBounds<Sample> bounds(mapping);
        areSamplesInside = bounds.low <= largest && bounds.high >= smallest;
        low = static_cast<std::int32_t>(std::clamp(bounds.low, smallest, largest));
        high = static_cast<std::int32_t>(std::clamp(bounds.high, smallest, largest));
    }
};

#if KEST_HAS_SSE2

/// The line, for four samples.
struct Line {
    const __m128 scale, offset;

    explicit Line(const DisplayMapping& mapping)
        : scale(_mm_set1_ps(mapping.scale)), offset(_mm_set1_ps(mapping.offset)) {}
    __m128i At(__m128 samples) const { return _mm_cvttps_epi32(_mm_add_ps(_mm_mul_ps(samples, scale), offset)); }
    __m128i LowByteAt(__m128 samples) const { return _mm_and_si128(At(samples), _mm_set1_epi32(0xFF)); }
};

/// `levels` but 0 where `below` is set, and all bits where `above` is.
__m128i WithBounds(__m128i levels, __m128i below, __m128i above) {
    return _mm_or_si128(_mm_andnot_si128(below, levels), above);
}

// Each Mapper gives the bytes of 16 samples.

/// Samples and bounds are compared as signed numbers, with the sign bit turned.
struct Mapper16 {
    const Line line;
    const __m128i low, high;

    explicit Mapper16(const DisplayMapping& mapping)
        : line(mapping),
          low(Turned(LaneBounds<std::uint16_t>(mapping).low)),
          high(Turned(LaneBounds<std::uint16_t>(mapping).high)) {}
    static __m128i Turned(int bound) { return _mm_set1_epi16(static_cast<short>(bound - 0x8000)); }
    __m128i Map8(const std::uint16_t* samples) const {
        const __m128i taken = LoadVector(samples), zero = _mm_setzero_si128();
        const __m128i first = line.LowByteAt(_mm_cvtepi32_ps(_mm_unpacklo_epi16(taken, zero)));
        const __m128i second = line.LowByteAt(_mm_cvtepi32_ps(_mm_unpackhi_epi16(taken, zero)));
        const __m128i turned = _mm_xor_si128(taken, _mm_set1_epi16(-0x8000));
        return WithBounds(_mm_packs_epi32(first, second), _mm_cmpgt_epi16(low, turned),
                          _mm_srli_epi16(_mm_cmpgt_epi16(turned, high), 8));
    }
    __m128i Map(const std::uint16_t* samples) const { return _mm_packus_epi16(Map8(samples), Map8(samples + 8)); }
};

/// For lines that leave the levels 0 to 255 where the samples leave the display range: cutting them off is all that is
/// left to do.
struct CuttingMapper16 {
    const Line line;

    explicit CuttingMapper16(const DisplayMapping& mapping) : line(mapping) {}
    __m128i Map8(const std::uint16_t* samples) const {
        const __m128i taken = LoadVector(samples), zero = _mm_setzero_si128();
        return _mm_packs_epi32(line.At(_mm_cvtepi32_ps(_mm_unpacklo_epi16(taken, zero))),
                               line.At(_mm_cvtepi32_ps(_mm_unpackhi_epi16(taken, zero))));
    }
    __m128i Map(const std::uint16_t* samples) const { return _mm_packus_epi16(Map8(samples), Map8(samples + 8)); }
};

template <class Mapper4, class Sample>
__m128i MapFours(const Mapper4& mapper, const Sample* samples) {
    return _mm_packus_epi16(_mm_packs_epi32(mapper.Map4(samples), mapper.Map4(samples + 4)),
                            _mm_packs_epi32(mapper.Map4(samples + 8), mapper.Map4(samples + 12)));
}

struct Mapper32 {
    const Line line;
    const __m128i low, high;

    explicit Mapper32(const DisplayMapping& mapping)
        : line(mapping),
          low(_mm_set1_epi32(LaneBounds<std::int32_t>(mapping).low)),
          high(_mm_set1_epi32(LaneBounds<std::int32_t>(mapping).high)) {}
    __m128i Map4(const std::int32_t* samples) const {
        const __m128i taken = LoadVector(samples);
        return WithBounds(line.LowByteAt(_mm_cvtepi32_ps(taken)), _mm_cmpgt_epi32(low, taken),
                          _mm_srli_epi32(_mm_cmpgt_epi32(taken, high), 24));
    }
    __m128i Map(const std::int32_t* samples) const { return MapFours(*this, samples); }
};

struct MapperFloat {
    const Line line;
    const __m128 low, high;

    explicit MapperFloat(const DisplayMapping& mapping)
        : line(mapping), low(_mm_set1_ps(mapping.displayMin)), high(_mm_set1_ps(mapping.displayMax)) {}
    __m128i Map4(const float* samples) const {
        const __m128 taken = _mm_loadu_ps(samples);
        return WithBounds(line.LowByteAt(taken), _mm_castps_si128(_mm_cmplt_ps(taken, low)),
                          _mm_srli_epi32(_mm_castps_si128(_mm_cmpgt_ps(taken, high)), 24));
    }
    __m128i Map(const float* samples) const { return MapFours(*this, samples); }
};

struct Shifter16 {
    const __m128i shift;
    explicit Shifter16(int bits) : shift(_mm_cvtsi32_si128(bits)) {}
    __m128i Shift8(const std::uint16_t* samples) const {
        return _mm_and_si128(_mm_srl_epi16(LoadVector(samples), shift), _mm_set1_epi16(0xFF));
    }
    __m128i Map(const std::uint16_t* samples) const { return _mm_packus_epi16(Shift8(samples), Shift8(samples + 8)); }
};

struct Shifter32 {
    const __m128i shift;
    explicit Shifter32(int bits) : shift(_mm_cvtsi32_si128(bits)) {}
    __m128i Map4(const std::int32_t* samples) const {
        return _mm_and_si128(_mm_srl_epi32(LoadVector(samples), shift), _mm_set1_epi32(0xFF));
    }
    __m128i Map(const std::int32_t* samples) const { return MapFours(*this, samples); }
};

/// Maps the whole cache lines, and gives their number of samples.
template <class Mapper, class Sample, class Rule>
std::size_t MapLines(std::span<const Sample> samples, const Rule& rule, std::uint8_t* bytes) {
    constexpr std::size_t line = CacheLineBytes / sizeof(Sample);
    const std::size_t whole = samples.size() - samples.size() % line;
    const Mapper mapper(rule);
    for (const Sample *next = samples.data(), *end = next + whole; next != end; next += line) {
        ReadAhead(next);
        for (std::size_t i = 0; i < line; i += 16, bytes += 16) StoreVector(bytes, mapper.Map(next + i));
    }
    return whole;
}

#else

template <class Mapper, class Sample, class Rule>
std::size_t MapLines(std::span<const Sample>, const Rule&, std::uint8_t*) {
    return 0;
}
using Mapper16 = void;
using CuttingMapper16 = void;
using Mapper32 = void;
using MapperFloat = void;
using Shifter16 = void;
using Shifter32 = void;

#endif

template <class Sample>
void MapOneByOne(std::span<const Sample> samples, std::size_t first, const DisplayMapping& mapping,
                 std::uint8_t* bytes) {
    for (std::size_t i = first; i < samples.size(); ++i) bytes[i] = MapSample(samples[i], mapping);
}

template <class Mapper, class Sample>
void Map(std::span<const Sample> samples, const DisplayMapping& mapping, std::uint8_t* bytes) {
    MapOneByOne(samples, MapLines<Mapper>(samples, mapping, bytes), mapping, bytes);
}

template <class Shifter, class Sample>
void Shift(std::span<const Sample> samples, int shift, std::uint8_t* bytes) {
    for (std::size_t i = MapLines<Shifter>(samples, shift, bytes); i < samples.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(samples[i] >> shift);
}

/// True when cutting the line's levels off at 0 and 255 gives what the bounds from `low` to `high` give. A rising line
/// stays one when it is rounded, so its values at the bounds and beside them tell of all others.
bool IsCutByLevels(const DisplayMapping& mapping, int low, int high) {
    const auto at = [&](int sample) {
        const float product = static_cast<float>(sample) * mapping.scale;
        return product + mapping.offset;
    };
    return mapping.scale >= 0.0F && at(0) >= -1e9F && at(0xFFFF) <= 1e9F && at(low) > -1.0F && at(high) < 256.0F &&
           (low == 0 || at(low - 1) < 1.0F) && (high == 0xFFFF || at(high + 1) >= 255.0F);
}

}  // namespace

DisplayMapping DisplayMapping::Of(float displayMin, float displayMax) {
    DisplayMapping mapping = {displayMin, displayMax, 0.0F, 0.0F};
    if (displayMax != displayMin) {
        mapping.scale = static_cast<float>(255.0 / (double{displayMax} - displayMin));
        mapping.offset = static_cast<float>(255.0 - double{mapping.scale} * displayMax);
    }
    return mapping;
}

void MapSamples(std::span<const std::uint16_t> samples, const DisplayMapping& mapping, std::uint8_t* bytes) {
    const LaneBounds<std::uint16_t> bounds(mapping);
    if (!bounds.areSamplesInside)
        MapOneByOne(samples, 0, mapping, bytes);
    else if (IsCutByLevels(mapping, bounds.low, bounds.high))
        Map<CuttingMapper16>(samples, mapping, bytes);
    else
        Map<Mapper16>(samples, mapping, bytes);
}

void MapSamples(std::span<const std::int32_t> samples, const DisplayMapping& mapping, std::uint8_t* bytes) {
    if (LaneBounds<std::int32_t>(mapping).areSamplesInside)
        Map<Mapper32>(samples, mapping, bytes);
    else
        MapOneByOne(samples, 0, mapping, bytes);
}

void MapSamples(std::span<const float> samples, const DisplayMapping& mapping, std::uint8_t* bytes) {
    Map<MapperFloat>(samples, mapping, bytes);
}

int ShiftOfDisplayRange(float displayMin, float displayMax) {
    if (displayMin != 0.0F) return 0;
    for (int shift = 2; shift <= 8; shift += 2)
        if (displayMax == static_cast<float>(256 << shift)) return shift;
    return 0;
}

void ShiftSamples(std::span<const std::uint16_t> samples, int shift, std::uint8_t* bytes) {
    Shift<Shifter16>(samples, shift, bytes);
}

void ShiftSamples(std::span<const std::int32_t> samples, int shift, std::uint8_t* bytes) {
    Shift<Shifter32>(samples, shift, bytes);
}

}  // namespace kest
