// Sizes are computed in 64 bits and narrowed once, after their check.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

namespace kest {

using Size64 = std::int64_t;

/// The largest block the library asks for: what a 32-bit process can address in one piece.
constexpr Size64 LargestBlockBytes = 0x7FFFFFFF;

/// True when `bytes` is a size that a block can have.
constexpr bool IsBlockSize(Size64 bytes) { return bytes >= 1 && bytes <= LargestBlockBytes; }

/// Product of two 32-bit counts; it cannot overflow.
constexpr Size64 Product(std::int32_t a, std::int32_t b) { return Size64{a} * b; }

/// True when the `bytes` bytes from `offset` on lie inside a block of `blockBytes` bytes.
constexpr bool LiesInside(Size64 offset, Size64 bytes, Size64 blockBytes) {
    return offset >= 0 && bytes >= 0 && offset <= blockBytes && bytes <= blockBytes - offset;
}

/// The nearest 32-bit integer.
constexpr std::int32_t Saturate(Size64 value) {
    constexpr Size64 low = std::numeric_limits<std::int32_t>::min();
    constexpr Size64 high = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(value < low ? low : value > high ? high : value);
}

}  // namespace kest
