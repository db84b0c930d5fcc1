// Display look-up tables (LUTs): lists of points whose y is the display level for input x. A list of n points covers
// the levels 0 to 255 in steps of 256 / n.
#pragma once

#include <cstdint>
#include <span>

#include "KestTypes.h"

namespace kest {

/// Point k at x = k * (256 / n), y = x.
void MakeIdentity(std::span<tagPoints> points);

/// True when every point k has x exactly k * (256 / n).
bool HasLevelSteps(std::span<const tagPoints> points);

/// A level clamped to 0..top after scaling: y not below 255 gives `top`, y below 0 (or no number) 0, else y * scale
/// truncated.
std::uint8_t ClampLevel(float y, double scale, std::uint8_t top);

/// Writes the levels of 256 points into one byte (0 blue, 1 green, 2 red) of each of 256 four-byte colours.
/// An image without pixels has no table: an empty one is left alone, here and below.
void FillColourChannel(std::span<const tagPoints> points, std::span<std::uint8_t> colours, int byteInColour);

/// Writes the levels of n points, scaled to n levels, into 256 palette indices: each into 256 / n of them.
void FillGrayIndices(std::span<const tagPoints> points, std::span<std::uint16_t> indices);

/// Turns 256 palette indices into the four-byte grays (i, i, i) of their values.
void SpreadIndices(const std::uint16_t* indices, std::span<std::uint8_t> colours);

}  // namespace kest
