// The luminance of colour pixels (blue, green, red in memory).
#pragma once

#include <cstdint>

namespace kest {

/// 0.299 red + 0.587 green + 0.114 blue, in double precision.
inline double Luminance(const std::uint8_t* pixel) { return 0.299 * pixel[2] + 0.587 * pixel[1] + 0.114 * pixel[0]; }

/// Moves all three components by what the luminance lacks to `luminance`; each is cut to 0..255 and truncated.
void SetLuminance(std::uint8_t* pixel, float luminance);

}  // namespace kest
