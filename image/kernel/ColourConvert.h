// Conversion between red, green, blue and hue, saturation, lightness. In double precision, each result truncated to a
// byte, so there and back is not quite the same colour.
#pragma once

#include <cstdint>
#include <span>

#include "core/kernel/InstructionSet.h"
#include "image/kernel/Colours.h"

namespace kest {

/// Grays have hue 0.
Hsl RgbToHsl(Rgb colour);

/// No component may be above LargestHslValue.
Rgb HslToRgb(Hsl colour);

/// One component of the conversion back, 0 to 1. The hue is in degrees; one turn too much or too little is taken off.
double HslComponent(double m1, double m2, double hueDegrees);

// Planes of three bytes a pixel; both have the same size and may be the same plane. Bit for bit what the functions for
// one colour give.

void ConvertRgbToHsl(std::span<const std::uint8_t> rgb, std::span<std::uint8_t> hsl,
                     InstructionSet instructions = BestInstructionSet());

/// With `clips` values above LargestHslValue count as that; else false at the first of them, the pixels before it
/// converted.
bool ConvertHslToRgb(std::span<const std::uint8_t> hsl, std::span<std::uint8_t> rgb, bool clips,
                     InstructionSet instructions = BestInstructionSet());

}  // namespace kest
