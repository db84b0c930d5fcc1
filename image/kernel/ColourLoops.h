// The loops over colour planes in vector registers, once for every processor and once for those with AVX2.
//
// A loop takes whole groups of pixels from the planes' start and returns the number of pixels that it has dealt with;
// the caller deals with the rest one by one. Source and target have the same size and may be the same plane.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "core/kernel/InstructionSet.h"
#include "image/kernel/ColourThreshold.h"
#include "image/kernel/Colours.h"

namespace kest {

/// Lightness (low byte) and saturation by the largest component * 256 + the smallest. Entries are read two at once.
using LightnessTable = std::uint16_t[256 * 256 + 1];

/// Paints pixels with 299 red + 587 green + 114 blue from `first` to `last`.
struct LuminanceRule {
    int first, last;
    PixelBytes paint;
};

/// Paints pixels of which each byte lies in its side of the box.
struct BoxRule {
    ByteBand box[PlaneBytesPerPixel];
    PixelBytes paint;
};

struct ColourLoops {
    /// As many rules as a painting loop takes; where several rules have a pixel, the last one counts.
    static constexpr std::size_t mostRules = 8;

    std::size_t (*toHsl)(const std::uint8_t* rgb, std::uint8_t* hsl, std::size_t pixels, const LightnessTable& table);
    /// Stops before a group with a value above LargestHslValue, unless it clips.
    std::size_t (*toRgb)(const std::uint8_t* hsl, std::uint8_t* rgb, std::size_t pixels, bool clips);
    std::size_t (*paintLuminance)(const std::uint8_t* source, std::uint8_t* target, std::size_t pixels,
                                  std::span<const LuminanceRule> rules);
    std::size_t (*paintBoxes)(const std::uint8_t* source, std::uint8_t* target, std::size_t pixels,
                              std::span<const BoxRule> rules);
};

extern const ColourLoops baselineColourLoops;
extern const ColourLoops avx2ColourLoops;

inline const ColourLoops& ColourLoopsFor(InstructionSet instructions) {
    return instructions == InstructionSet::Avx2 ? avx2ColourLoops : baselineColourLoops;
}

}  // namespace kest
