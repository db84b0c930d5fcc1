// Conversion of floating-point values to integers: truncation toward zero, defined for every input.
#pragma once

#include <cstdint>
#include <limits>

namespace kest {

/// Truncates toward zero. A value that fits no 32-bit integer (infinities and NaN too) gives the smallest one, as the
/// processor's own conversion does; its low 8 and 16 bits are 0.
constexpr std::int32_t TruncateToInt(double value) {
    if (value > -2147483649.0 && value < 2147483648.0) return static_cast<std::int32_t>(value);
    return std::numeric_limits<std::int32_t>::min();
}

/// The low 8 bits of the truncated value: 256.0 gives 0, 300.7 gives 44, -1.0 gives 255.
constexpr std::uint8_t TruncateToByte(double value) { return static_cast<std::uint8_t>(TruncateToInt(value)); }

}  // namespace kest
