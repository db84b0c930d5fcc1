// The loops over colour planes with AVX2, 32 pixels a group: one half of a register holds its first 16, the other half
// the rest. On other systems than Intel's the baseline loops stand in.
#include "image/kernel/ColourLoops.h"

#if defined(__x86_64__) || defined(__i386__) || defined(_M_X64) || defined(_M_IX86)

#include <immintrin.h>

#include <algorithm>
#include <bit>
#include <cstring>

#include "image/kernel/ColourConvert.h"
#include "image/kernel/Sse2.h"

// What the headers define stays as it is for every processor; from here on the compiler may use AVX2.
#if defined(__clang__)
#pragma clang attribute push(__attribute__((target("avx2"))), apply_to = function)
#elif defined(__GNUC__)
#pragma GCC push_options
#pragma GCC target("avx2")
#endif

namespace kest {
namespace {

/// Eight 32-bit numbers, or eight pixels.
struct Ints {
    __m256i v;
};
struct Floats {
    __m256 v;
};
struct Doubles {
    __m256d v;
};

constexpr std::size_t intLanes = 8, groupPixels = 32;

inline Ints Same(int value) { return {_mm256_set1_epi32(value)}; }
inline Ints operator+(Ints a, Ints b) { return {_mm256_add_epi32(a.v, b.v)}; }
inline Ints operator-(Ints a, Ints b) { return {_mm256_sub_epi32(a.v, b.v)}; }
inline Ints operator&(Ints a, Ints b) { return {_mm256_and_si256(a.v, b.v)}; }
inline Ints operator|(Ints a, Ints b) { return {_mm256_or_si256(a.v, b.v)}; }
inline Ints operator<<(Ints a, int bits) { return {_mm256_slli_epi32(a.v, bits)}; }
inline Ints operator>>(Ints a, int bits) { return {_mm256_srli_epi32(a.v, bits)}; }
inline Ints operator==(Ints a, Ints b) { return {_mm256_cmpeq_epi32(a.v, b.v)}; }
inline Ints operator>(Ints a, Ints b) { return {_mm256_cmpgt_epi32(a.v, b.v)}; }
inline Ints SignOf(Ints a) { return {_mm256_srai_epi32(a.v, 31)}; }
inline Ints Without(Ints a, Ints b) { return {_mm256_andnot_si256(b.v, a.v)}; }
inline Ints Select(Ints mask, Ints a, Ints b) { return {_mm256_blendv_epi8(b.v, a.v, mask.v)}; }
inline int LaneBits(Ints mask) { return _mm256_movemask_ps(_mm256_castsi256_ps(mask.v)); }

// By halves of 16 bits.
inline Ints Max16(Ints a, Ints b) { return {_mm256_max_epi16(a.v, b.v)}; }
inline Ints Min16(Ints a, Ints b) { return {_mm256_min_epi16(a.v, b.v)}; }
inline Ints Add16(Ints a, Ints b) { return {_mm256_add_epi16(a.v, b.v)}; }
inline Ints Multiply16(Ints a, Ints b) { return {_mm256_mullo_epi16(a.v, b.v)}; }
inline Ints HighBytes16(Ints a) { return {_mm256_srli_epi16(a.v, 8)}; }
inline Ints SumOfProducts16(Ints a, Ints b) { return {_mm256_madd_epi16(a.v, b.v)}; }
// By bytes.
inline Ints Excess8(Ints a, Ints b) { return {_mm256_subs_epu8(a.v, b.v)}; }
inline Ints Min8(Ints a, Ints b) { return {_mm256_min_epu8(a.v, b.v)}; }

inline Floats SameFloat(float value) { return {_mm256_set1_ps(value)}; }
inline Floats ToFloats(Ints a) { return {_mm256_cvtepi32_ps(a.v)}; }
inline Floats operator*(Floats a, Floats b) { return {_mm256_mul_ps(a.v, b.v)}; }
inline Floats operator/(Floats a, Floats b) { return {_mm256_div_ps(a.v, b.v)}; }
inline Ints operator==(Floats a, Floats b) { return {_mm256_castps_si256(_mm256_cmp_ps(a.v, b.v, _CMP_EQ_OQ))}; }
inline Ints Truncated(Floats a) { return {_mm256_cvttps_epi32(a.v)}; }

inline Doubles SameDouble(double value) { return {_mm256_set1_pd(value)}; }
inline Doubles LowHalf(Ints a) { return {_mm256_cvtepi32_pd(_mm256_castsi256_si128(a.v))}; }
inline Doubles HighHalf(Ints a) { return {_mm256_cvtepi32_pd(_mm256_extracti128_si256(a.v, 1))}; }
inline Doubles operator+(Doubles a, Doubles b) { return {_mm256_add_pd(a.v, b.v)}; }
inline Doubles operator-(Doubles a, Doubles b) { return {_mm256_sub_pd(a.v, b.v)}; }
inline Doubles operator*(Doubles a, Doubles b) { return {_mm256_mul_pd(a.v, b.v)}; }
inline Doubles operator/(Doubles a, Doubles b) { return {_mm256_div_pd(a.v, b.v)}; }
/// `a` where `b` is below 0, else 0.
inline Doubles WhereNegative(Doubles b, Doubles a) {
    return {_mm256_and_pd(_mm256_cmp_pd(b.v, _mm256_setzero_pd(), _CMP_LT_OQ), a.v)};
}
inline __m256i Joined(__m128i low, __m128i high) {
    return _mm256_inserti128_si256(_mm256_castsi128_si256(low), high, 1);
}
inline Ints Truncated(Doubles low, Doubles high) {
    return {Joined(_mm256_cvttpd_epi32(low.v), _mm256_cvttpd_epi32(high.v))};
}

constexpr int halfBytes = 48;

/// The 96 bytes of a group.
struct Bytes {
    __m256i v[3];
};

inline __m256i LoadHalves(const std::uint8_t* bytes) {
    return Joined(LoadVector(bytes), LoadVector(bytes + halfBytes));
}

inline Bytes LoadBytes(const std::uint8_t* group) {
    return {LoadHalves(group), LoadHalves(group + 16), LoadHalves(group + 32)};
}
inline void StoreBytes(std::uint8_t* group, const Bytes& bytes) {
    for (int i = 0; i < 3; ++i) {
        StoreVector(group + 16 * i, _mm256_castsi256_si128(bytes.v[i]));
        StoreVector(group + halfBytes + 16 * i, _mm256_extracti128_si256(bytes.v[i], 1));
    }
}
inline Bytes Select(const Bytes& mask, const Bytes& a, const Bytes& b) {
    Bytes selected;
    for (int i = 0; i < 3; ++i) selected.v[i] = _mm256_blendv_epi8(b.v[i], a.v[i], mask.v[i]);
    return selected;
}

/// The pixels of a quarter of each half, the fourth byte 0. Reads up to four bytes behind the group.
inline Ints LoadPixels(const std::uint8_t* group, int quarter) {
    const __m256i order = _mm256_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1,  //
                                           0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1);
    return {_mm256_shuffle_epi8(LoadHalves(group + 12 * quarter), order)};
}

/// Three bytes of each pixel, side by side in the first twelve of each half.
inline __m256i Pack(Ints pixels) {
    const __m256i order = _mm256_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1,  //
                                           0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1);
    return _mm256_shuffle_epi8(pixels.v, order);
}

inline Bytes PackGroup(const Ints (&quarters)[4]) {
    const __m256i a = Pack(quarters[0]), b = Pack(quarters[1]), c = Pack(quarters[2]), d = Pack(quarters[3]);
    return {_mm256_or_si256(a, _mm256_slli_si256(b, 12)),
            _mm256_or_si256(_mm256_srli_si256(b, 4), _mm256_slli_si256(c, 8)),
            _mm256_or_si256(_mm256_srli_si256(c, 8), _mm256_slli_si256(d, 4))};
}

/// Where in the group a lane of a quarter stands.
constexpr int PixelOf(int quarter, int lane) { return 4 * quarter + lane + (lane < 4 ? 0 : 12); }

inline void StoreLanes(std::uint32_t* group, int quarter, Ints lanes) {
    StoreVector(group + 4 * quarter, _mm256_castsi256_si128(lanes.v));
    StoreVector(group + 16 + 4 * quarter, _mm256_extracti128_si256(lanes.v, 1));
}

inline Ints LoadInts(const std::uint32_t* list) { return {_mm256_loadu_si256(reinterpret_cast<const __m256i*>(list))}; }
inline void StoreInts(std::uint32_t* list, Ints ints) { _mm256_storeu_si256(reinterpret_cast<__m256i*>(list), ints.v); }

inline Ints LookUp(const LightnessTable& table, Ints index) {
    const auto* entries = reinterpret_cast<const int*>(table);
    return Ints{_mm256_i32gather_epi32(entries, index.v, sizeof table[0])} & Same(0xFFFF);
}

#include "image/kernel/ColourLoops.inl"

}  // namespace

const ColourLoops avx2ColourLoops = {ConvertGroupsToHsl, ConvertGroupsToRgb, PaintGroups<LuminanceKey>,
                                     PaintGroups<BoxKey>};

}  // namespace kest

#if defined(__clang__)
#pragma clang attribute pop
#elif defined(__GNUC__)
#pragma GCC pop_options
#endif

#else

namespace kest {
const ColourLoops avx2ColourLoops = baselineColourLoops;
}

#endif
