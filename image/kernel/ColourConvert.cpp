// Conversion between red, green, blue and hue, saturation, lightness.
#include "image/kernel/ColourConvert.h"

#include <algorithm>
#include <cstring>

namespace kest {

Hsl RgbToHsl(Rgb colour) {
    const double red = colour.red * (1.0 / 255), green = colour.green * (1.0 / 255), blue = colour.blue * (1.0 / 255);
    const double max = std::max({red, green, blue}), min = std::min({red, green, blue});
    const double lightness = (max + min) * 0.5;

    double saturation = 0.0, hueDegrees = 1.0;
    if (max != min) {
        const double range = max - min;
        saturation = lightness <= 0.5 ? range / (max + min) : range / (2.0 - max - min);
        double sextant;
        if (red == max)
            sextant = (green - blue) / range;
        else if (green == max)
            sextant = (blue - red) / range + 2.0;
        else
            sextant = (red - green) / range + 4.0;
        hueDegrees = sextant * 60.0;
        if (hueDegrees < 0.0) hueDegrees += 360.0;
    }
    return {static_cast<std::uint8_t>(hueDegrees * 0.6666666666666667), static_cast<std::uint8_t>(saturation * 240.0),
            static_cast<std::uint8_t>(lightness * 240.0)};
}

double HslComponent(double m1, double m2, double hueDegrees) {
    if (hueDegrees > 360.0) hueDegrees -= 360.0;
    if (hueDegrees < 0.0) hueDegrees += 360.0;
    if (hueDegrees < 60.0) return m1 + (m2 - m1) * hueDegrees * (1.0 / 60);
    if (hueDegrees < 180.0) return m2;
    if (hueDegrees < 240.0) return m1 + (m2 - m1) * (240.0 - hueDegrees) * (1.0 / 60);
    return m1;
}

Rgb HslToRgb(Hsl colour) {
    const double hueDegrees = colour.hue * 1.5;
    const double saturation = colour.saturation * (1.0 / 240), lightness = colour.lightness * (1.0 / 240);
    const double m2 =
        lightness <= 0.5 ? lightness * (1.0 + saturation) : lightness + saturation - lightness * saturation;
    const double m1 = 2 * lightness - m2;

    double red = lightness, green = lightness, blue = lightness;
    if (saturation != 0.0) {
        red = HslComponent(m1, m2, hueDegrees + 120.0);
        green = HslComponent(m1, m2, hueDegrees);
        blue = HslComponent(m1, m2, hueDegrees - 120.0);
    }
    return {static_cast<std::uint8_t>(red * 255.0), static_cast<std::uint8_t>(green * 255.0),
            static_cast<std::uint8_t>(blue * 255.0)};
}

void ConvertRgbToHsl(std::span<const std::uint8_t> rgb, std::span<std::uint8_t> hsl) {
    for (std::size_t i = 0; i + PlaneBytesPerPixel <= rgb.size(); i += PlaneBytesPerPixel) {
        const PixelBytes converted = RgbToHsl(RgbAt(&rgb[i]));
        std::memcpy(&hsl[i], converted.bytes, PlaneBytesPerPixel);
    }
}

bool ConvertHslToRgb(std::span<const std::uint8_t> hsl, std::span<std::uint8_t> rgb, bool clips) {
    const auto clip = [](std::uint8_t value) { return std::min(value, std::uint8_t{LargestHslValue}); };
    for (std::size_t i = 0; i + PlaneBytesPerPixel <= hsl.size(); i += PlaneBytesPerPixel) {
        Hsl colour = HslAt(&hsl[i]);
        if (clips)
            colour = {clip(colour.hue), clip(colour.saturation), clip(colour.lightness)};
        else if (std::max({colour.hue, colour.saturation, colour.lightness}) > LargestHslValue)
            return false;
        const PixelBytes converted = HslToRgb(colour);
        std::memcpy(&rgb[i], converted.bytes, PlaneBytesPerPixel);
    }
    return true;
}

}  // namespace kest
