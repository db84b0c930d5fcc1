// Colours as values, and how they lie in a plane of three bytes a pixel.
#pragma once

#include <cstdint>

namespace kest {

struct Rgb {
    std::uint8_t red, green, blue;
};

/// Hue 0 to 239 for 0 to 360 degrees, saturation and lightness 0 to 240 for 0 to 1.
struct Hsl {
    std::uint8_t hue, saturation, lightness;
};

constexpr int PlaneBytesPerPixel = 3;
constexpr int LargestHslValue = 240;

/// A pixel's bytes in memory order: blue, green, red, or lightness, saturation, hue.
struct PixelBytes {
    std::uint8_t bytes[PlaneBytesPerPixel];

    PixelBytes() = default;
    bool operator==(const PixelBytes&) const = default;
    PixelBytes(Rgb colour) : bytes{colour.blue, colour.green, colour.red} {}
    PixelBytes(Hsl colour) : bytes{colour.lightness, colour.saturation, colour.hue} {}
};
static_assert(sizeof(PixelBytes) == PlaneBytesPerPixel);

inline Rgb RgbAt(const std::uint8_t* pixel) { return {pixel[2], pixel[1], pixel[0]}; }
inline Hsl HslAt(const std::uint8_t* pixel) { return {pixel[2], pixel[1], pixel[0]}; }

/// A colour from three integers, of each its low 8 bits.
inline Rgb LowBytes(int red, int green, int blue) {
    return {static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green), static_cast<std::uint8_t>(blue)};
}

/// A colour from three integers, each cut to 0..255.
inline Rgb Clamped(int red, int green, int blue) {
    const auto clamp = [](int value) { return static_cast<std::uint8_t>(value < 0 ? 0 : value > 255 ? 255 : value); };
    return {clamp(red), clamp(green), clamp(blue)};
}

}  // namespace kest
