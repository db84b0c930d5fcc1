// Conversion between red, green, blue and hue, saturation, lightness.
#include "image/kernel/ColourConvert.h"

#include <algorithm>
#include <cstring>

#include "image/kernel/ColourLoops.h"

namespace kest {
namespace {

/// Lightness and saturation depend on nothing but the largest and the smallest component.
const LightnessTable& TableOfLightness() {
    static LightnessTable table;
    static const bool isFilled = [] {
        for (int max = 0; max < 256; ++max)
            for (int min = 0; min <= max; ++min) {
                const auto high = static_cast<std::uint8_t>(max), low = static_cast<std::uint8_t>(min);
                const Hsl hsl = RgbToHsl({high, low, low});
                table[max << 8 | min] = static_cast<std::uint16_t>(hsl.lightness | hsl.saturation << 8);
            }
        return true;
    }();
    static_cast<void>(isFilled);
    return table;
}

}  // namespace

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

void ConvertRgbToHsl(std::span<const std::uint8_t> rgb, std::span<std::uint8_t> hsl, InstructionSet instructions) {
    const ColourLoops& loops = ColourLoopsFor(instructions);
    const std::size_t pixels = rgb.size() / PlaneBytesPerPixel;
    for (std::size_t i = loops.toHsl(rgb.data(), hsl.data(), pixels, TableOfLightness()); i < pixels; ++i) {
        const PixelBytes converted = RgbToHsl(RgbAt(&rgb[i * PlaneBytesPerPixel]));
        std::memcpy(&hsl[i * PlaneBytesPerPixel], converted.bytes, PlaneBytesPerPixel);
    }
}

bool ConvertHslToRgb(std::span<const std::uint8_t> hsl, std::span<std::uint8_t> rgb, bool clips,
                     InstructionSet instructions) {
    const auto clip = [](std::uint8_t value) { return std::min(value, std::uint8_t{LargestHslValue}); };
    const ColourLoops& loops = ColourLoopsFor(instructions);
    const std::size_t pixels = hsl.size() / PlaneBytesPerPixel;
    for (std::size_t i = loops.toRgb(hsl.data(), rgb.data(), pixels, clips); i < pixels; ++i) {
        Hsl colour = HslAt(&hsl[i * PlaneBytesPerPixel]);
        if (clips)
            colour = {clip(colour.hue), clip(colour.saturation), clip(colour.lightness)};
        else if (std::max({colour.hue, colour.saturation, colour.lightness}) > LargestHslValue)
            return false;
        const PixelBytes converted = HslToRgb(colour);
        std::memcpy(&rgb[i * PlaneBytesPerPixel], converted.bytes, PlaneBytesPerPixel);
    }
    return true;
}

}  // namespace kest
