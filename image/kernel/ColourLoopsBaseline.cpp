// The loops over colour planes with SSE2, 16 pixels a group; on other systems none.
#include "image/kernel/ColourLoops.h"
#include "image/kernel/Sse2.h"

#if KEST_HAS_SSE2

#include <algorithm>
#include <bit>
#include <cstring>

#include "image/kernel/ColourConvert.h"

namespace kest {
namespace {

/// Four 32-bit numbers, or four pixels.
struct Ints {
    __m128i v;
};
struct Floats {
    __m128 v;
};
struct Doubles {
    __m128d v;
};

constexpr std::size_t intLanes = 4, groupPixels = 16;

inline Ints Same(int value) { return {_mm_set1_epi32(value)}; }
inline Ints operator+(Ints a, Ints b) { return {_mm_add_epi32(a.v, b.v)}; }
inline Ints operator-(Ints a, Ints b) { return {_mm_sub_epi32(a.v, b.v)}; }
inline Ints operator&(Ints a, Ints b) { return {_mm_and_si128(a.v, b.v)}; }
inline Ints operator|(Ints a, Ints b) { return {_mm_or_si128(a.v, b.v)}; }
inline Ints operator<<(Ints a, int bits) { return {_mm_slli_epi32(a.v, bits)}; }
inline Ints operator>>(Ints a, int bits) { return {_mm_srli_epi32(a.v, bits)}; }
inline Ints operator==(Ints a, Ints b) { return {_mm_cmpeq_epi32(a.v, b.v)}; }
inline Ints operator>(Ints a, Ints b) { return {_mm_cmpgt_epi32(a.v, b.v)}; }
inline Ints SignOf(Ints a) { return {_mm_srai_epi32(a.v, 31)}; }
inline Ints Without(Ints a, Ints b) { return {_mm_andnot_si128(b.v, a.v)}; }
inline Ints Select(Ints mask, Ints a, Ints b) {
    return {_mm_or_si128(_mm_and_si128(mask.v, a.v), _mm_andnot_si128(mask.v, b.v))};
}
inline int LaneBits(Ints mask) { return _mm_movemask_ps(_mm_castsi128_ps(mask.v)); }

// By halves of 16 bits.
inline Ints Max16(Ints a, Ints b) { return {_mm_max_epi16(a.v, b.v)}; }
inline Ints Min16(Ints a, Ints b) { return {_mm_min_epi16(a.v, b.v)}; }
inline Ints Add16(Ints a, Ints b) { return {_mm_add_epi16(a.v, b.v)}; }
inline Ints Multiply16(Ints a, Ints b) { return {_mm_mullo_epi16(a.v, b.v)}; }
inline Ints HighBytes16(Ints a) { return {_mm_srli_epi16(a.v, 8)}; }
inline Ints SumOfProducts16(Ints a, Ints b) { return {_mm_madd_epi16(a.v, b.v)}; }
// By bytes.
inline Ints Excess8(Ints a, Ints b) { return {_mm_subs_epu8(a.v, b.v)}; }
inline Ints Min8(Ints a, Ints b) { return {_mm_min_epu8(a.v, b.v)}; }

inline Floats SameFloat(float value) { return {_mm_set1_ps(value)}; }
inline Floats ToFloats(Ints a) { return {_mm_cvtepi32_ps(a.v)}; }
inline Floats operator*(Floats a, Floats b) { return {_mm_mul_ps(a.v, b.v)}; }
inline Floats operator/(Floats a, Floats b) { return {_mm_div_ps(a.v, b.v)}; }
inline Ints operator==(Floats a, Floats b) { return {_mm_castps_si128(_mm_cmpeq_ps(a.v, b.v))}; }
inline Ints Truncated(Floats a) { return {_mm_cvttps_epi32(a.v)}; }

inline Doubles SameDouble(double value) { return {_mm_set1_pd(value)}; }
inline Doubles LowHalf(Ints a) { return {_mm_cvtepi32_pd(a.v)}; }
inline Doubles HighHalf(Ints a) { return {_mm_cvtepi32_pd(_mm_unpackhi_epi64(a.v, a.v))}; }
inline Doubles operator+(Doubles a, Doubles b) { return {_mm_add_pd(a.v, b.v)}; }
inline Doubles operator-(Doubles a, Doubles b) { return {_mm_sub_pd(a.v, b.v)}; }
inline Doubles operator*(Doubles a, Doubles b) { return {_mm_mul_pd(a.v, b.v)}; }
inline Doubles operator/(Doubles a, Doubles b) { return {_mm_div_pd(a.v, b.v)}; }
/// `a` where `b` is below 0, else 0.
inline Doubles WhereNegative(Doubles b, Doubles a) { return {_mm_and_pd(_mm_cmplt_pd(b.v, _mm_setzero_pd()), a.v)}; }
inline Ints Truncated(Doubles low, Doubles high) {
    return {_mm_unpacklo_epi64(_mm_cvttpd_epi32(low.v), _mm_cvttpd_epi32(high.v))};
}

/// The 48 bytes of a group.
struct Bytes {
    __m128i v[3];
};

inline Bytes LoadBytes(const std::uint8_t* group) {
    return {LoadVector(group), LoadVector(group + 16), LoadVector(group + 32)};
}
inline void StoreBytes(std::uint8_t* group, const Bytes& bytes) {
    for (int i = 0; i < 3; ++i) StoreVector(group + 16 * i, bytes.v[i]);
}
inline Bytes Select(const Bytes& mask, const Bytes& a, const Bytes& b) {
    Bytes selected;
    for (int i = 0; i < 3; ++i) selected.v[i] = Select(Ints{mask.v[i]}, Ints{a.v[i]}, Ints{b.v[i]}).v;
    return selected;
}

/// The pixels of a quarter of the group, the fourth byte being any. Reads up to four bytes behind the group.
inline Ints LoadPixels(const std::uint8_t* group, int quarter) {
    const __m128i v = LoadVector(group + 12 * quarter);
    const __m128i first = _mm_unpacklo_epi32(v, _mm_srli_si128(v, 3));
    const __m128i second = _mm_unpacklo_epi32(_mm_srli_si128(v, 6), _mm_srli_si128(v, 9));
    return {_mm_unpacklo_epi64(first, second)};
}

/// Three bytes of each pixel, side by side in the first twelve.
inline __m128i Pack(Ints pixels) {
    const __m128i even = _mm_and_si128(pixels.v, _mm_set_epi32(0, 0xFFFFFF, 0, 0xFFFFFF));
    const __m128i odd =
        _mm_and_si128(_mm_srli_epi64(pixels.v, 8), _mm_set_epi32(0xFFFF, -0x1000000, 0xFFFF, -0x1000000));
    const __m128i pairs = _mm_or_si128(even, odd);
    const __m128i upper = _mm_and_si128(_mm_srli_si128(pairs, 2), _mm_set_epi32(0, -1, -0x10000, 0));
    return _mm_or_si128(_mm_move_epi64(pairs), upper);
}

inline Bytes PackGroup(const Ints (&quarters)[4]) {
    const __m128i a = Pack(quarters[0]), b = Pack(quarters[1]), c = Pack(quarters[2]), d = Pack(quarters[3]);
    return {_mm_or_si128(a, _mm_slli_si128(b, 12)), _mm_or_si128(_mm_srli_si128(b, 4), _mm_slli_si128(c, 8)),
            _mm_or_si128(_mm_srli_si128(c, 8), _mm_slli_si128(d, 4))};
}

/// Where in the group a lane of a quarter stands.
constexpr int PixelOf(int quarter, int lane) { return 4 * quarter + lane; }

inline void StoreLanes(std::uint32_t* group, int quarter, Ints lanes) { StoreVector(group + 4 * quarter, lanes.v); }

inline Ints LoadInts(const std::uint32_t* list) { return {LoadVector(list)}; }
inline void StoreInts(std::uint32_t* list, Ints ints) { StoreVector(list, ints.v); }

inline Ints LookUp(const LightnessTable& table, Ints index) {
    std::uint32_t places[intLanes];
    StoreInts(places, index);
    const auto at = [&](int lane) {
        int entries;
        std::memcpy(&entries, table + places[lane], sizeof entries);
        return _mm_cvtsi32_si128(entries);
    };
    const __m128i first = _mm_unpacklo_epi32(at(0), at(1)), second = _mm_unpacklo_epi32(at(2), at(3));
    return Ints{_mm_unpacklo_epi64(first, second)} & Same(0xFFFF);
}

#include "image/kernel/ColourLoops.inl"

}  // namespace

const ColourLoops baselineColourLoops = {ConvertGroupsToHsl, ConvertGroupsToRgb, PaintGroups<LuminanceKey>,
                                         PaintGroups<BoxKey>};

}  // namespace kest

#else

namespace kest {

const ColourLoops baselineColourLoops = {
    [](const std::uint8_t*, std::uint8_t*, std::size_t, const LightnessTable&) { return std::size_t{0}; },
    [](const std::uint8_t*, std::uint8_t*, std::size_t, bool) { return std::size_t{0}; },
    [](const std::uint8_t*, std::uint8_t*, std::size_t, std::span<const LuminanceRule>) { return std::size_t{0}; },
    [](const std::uint8_t*, std::uint8_t*, std::size_t, std::span<const BoxRule>) { return std::size_t{0}; }};

}  // namespace kest

#endif
