// Vector registers of 16 bytes, which every processor that the library runs on has. Kernels keep a plain path for other
// systems.
#pragma once

#if defined(__SSE2__) || defined(_M_X64) || (defined(_M_IX86_FP) && _M_IX86_FP >= 2)
#define KEST_HAS_SSE2 1
#include <emmintrin.h>

#include <cstddef>
#include <cstdint>

namespace kest {

inline __m128i LoadVector(const void* bytes) { return _mm_loadu_si128(static_cast<const __m128i*>(bytes)); }

/// Asks for what lies some 4 KB further on in a plane that is read from its first to its last byte. The processor's own
/// look-ahead ends at each page; nothing is read here, so it may lie behind the plane.
inline void ReadAhead(const void* bytes) {
    _mm_prefetch(reinterpret_cast<const char*>(reinterpret_cast<std::uintptr_t>(bytes) + 4096), _MM_HINT_T0);
}

/// What is read ahead at once.
constexpr std::size_t CacheLineBytes = 64;

inline void StoreVector(void* bytes, __m128i vector) { _mm_storeu_si128(static_cast<__m128i*>(bytes), vector); }

}  // namespace kest
#else
#define KEST_HAS_SSE2 0
#endif
