// Which vector instructions a kernel may use. Each kernel computes the same bits with all of them.
#pragma once

#if defined(_MSC_VER) && (defined(_M_X64) || defined(_M_IX86))
#include <immintrin.h>
#include <intrin.h>
#endif

namespace kest {

/// What every processor has that the library runs on, and what some have besides.
enum class InstructionSet { Baseline, Avx2 };

/// Asks the processor, and the system whether it saves the wide registers.
inline bool HasAvx2() {
#if defined(__GNUC__) && (defined(__x86_64__) || defined(__i386__))
    return __builtin_cpu_supports("avx2") != 0;
#elif defined(_MSC_VER) && (defined(_M_X64) || defined(_M_IX86))
    int leaf[4];
    __cpuid(leaf, 0);
    if (leaf[0] < 7) return false;
    __cpuid(leaf, 1);
    constexpr int systemUsesXsave = 1 << 27, wideStatesSaved = 6;
    if (!(leaf[2] & systemUsesXsave) || (_xgetbv(0) & wideStatesSaved) != wideStatesSaved) return false;
    __cpuidex(leaf, 7, 0);
    return (leaf[1] & 1 << 5) != 0;
#else
    return false;
#endif
}

/// The widest one of this processor.
inline InstructionSet BestInstructionSet() {
    static const InstructionSet best = HasAvx2() ? InstructionSet::Avx2 : InstructionSet::Baseline;
    return best;
}

// KEST_INLINED makes a loop part of each function that calls it, and so compiled for that function's instructions;
// KEST_AVX2 lets a function use AVX2. Fused multiply-add stays off in both.
#if defined(__GNUC__)
#define KEST_INLINED __attribute__((always_inline)) inline
#else
#define KEST_INLINED inline
#endif
#if defined(__GNUC__) && (defined(__x86_64__) || defined(__i386__))
#define KEST_AVX2 __attribute__((target("avx2")))
#else
#define KEST_AVX2
#endif

}  // namespace kest
