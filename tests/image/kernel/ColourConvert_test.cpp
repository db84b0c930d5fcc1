// Colour conversion over all colours, against the same arithmetic written down another way.
#include "image/kernel/ColourConvert.h"
#include "support/KernelTests.h"

using namespace kest;

namespace {

using Triple = std::uint32_t;  // hue or red, saturation or green, lightness or blue, from the top byte down

Triple Pack(double high, double middle, double low) {
    return static_cast<Triple>(std::trunc(high)) << 16 | static_cast<Triple>(std::trunc(middle)) << 8 |
           static_cast<Triple>(std::trunc(low));
}

Triple ExpectedHsl(int red, int green, int blue) {
    const double c[] = {red * (1 / 255.0), green * (1 / 255.0), blue * (1 / 255.0)};
    int largest = 0;
    for (const int i : {1, 2})
        if (c[i] > c[largest]) largest = i;
    const double top = c[largest], bottom = std::fmin(c[0], std::fmin(c[1], c[2])), span = top - bottom;
    const double light = (top + bottom) * 0.5;
    if (span == 0) return Pack(0, 0, light * 240);
    double degrees = 60 * ((c[(largest + 1) % 3] - c[(largest + 2) % 3]) / span + 2 * largest);
    if (degrees < 0) degrees += 360;
    return Pack(degrees * 0.6666666666666667, 240 * (light > 0.5 ? span / (2.0 - top - bottom) : span / (top + bottom)),
                light * 240);
}

double ExpectedComponent(double m1, double m2, double degrees) {
    if (degrees > 360) degrees -= 360;
    if (degrees < 0) degrees += 360;
    if (degrees >= 240) return m1;
    if (degrees >= 60 && degrees < 180) return m2;
    return m1 + (m2 - m1) * (degrees < 60 ? degrees : 240 - degrees) * (1 / 60.0);
}

Triple ExpectedRgb(int hue, int saturation, int lightness) {
    const double degrees = hue * 1.5, s = saturation * (1 / 240.0), l = lightness * (1 / 240.0);
    const double m2 = l > 0.5 ? l + s - l * s : l * (1 + s), m1 = 2 * l - m2;
    if (saturation == 0) return Pack(l * 255, l * 255, l * 255);
    return Pack(255 * ExpectedComponent(m1, m2, degrees + 120), 255 * ExpectedComponent(m1, m2, degrees),
                255 * ExpectedComponent(m1, m2, degrees - 120));
}

Triple At(const std::vector<std::uint8_t>& plane, std::size_t pixel) {
    return static_cast<Triple>(plane[3 * pixel + 2]) << 16 | static_cast<Triple>(plane[3 * pixel + 1]) << 8 |
           plane[3 * pixel];
}

const InstructionSet instructionSets[] = {InstructionSet::Baseline, BestInstructionSet()};

/// A plane of all triples below `count` with this top byte.
std::vector<std::uint8_t> AllWithTop(int top, int count) {
    std::vector<std::uint8_t> plane;
    for (int middle = 0; middle < count; ++middle)
        for (int low = 0; low < count; ++low)
            for (const int byte : {low, middle, top}) plane.push_back(static_cast<std::uint8_t>(byte));
    return plane;
}

}  // namespace

TEST(ColourConvert, AllColoursToHsl) {
    std::vector<std::uint8_t> hsl(3 * 65536);
    for (int red = 0; red < 256; ++red) {
        std::vector<std::uint8_t> rgb = AllWithTop(red, 256);
        ConvertRgbToHsl(rgb, hsl, InstructionSet::Baseline);
        ConvertRgbToHsl(rgb, rgb);
        ASSERT_EQ(rgb, hsl) << red;
        for (int i = 0; i < 65536; ++i)
            if (At(hsl, i) != ExpectedHsl(red, i >> 8, i & 255)) FAIL() << red << ' ' << (i >> 8) << ' ' << (i & 255);
    }
}

TEST(ColourConvert, AllTriplesToRgb) {
    std::vector<std::uint8_t> rgb(3 * 241 * 241);
    for (int hue = 0; hue <= 240; ++hue) {
        std::vector<std::uint8_t> hsl = AllWithTop(hue, 241);
        ASSERT_TRUE(ConvertHslToRgb(hsl, rgb, hue % 2 != 0, InstructionSet::Baseline));
        ASSERT_TRUE(ConvertHslToRgb(hsl, hsl, hue % 2 == 0));
        ASSERT_EQ(hsl, rgb) << hue;
        for (int i = 0; i < 241 * 241; ++i)
            if (At(rgb, i) != ExpectedRgb(hue, i / 241, i % 241)) FAIL() << hue << ' ' << i / 241 << ' ' << i % 241;
    }
}

TEST(ColourConvert, ValuesAboveTheScale) {
    for (const InstructionSet instructions : instructionSets)
        for (const std::size_t bad : {0, 1, 2, 66, 67, 150, 298, 299}) {
            std::vector<std::uint8_t> hsl(300, 240), clipped(300), stopped(300, 7);
            hsl[bad] = 241;
            EXPECT_TRUE(ConvertHslToRgb(hsl, clipped, true, instructions));
            EXPECT_FALSE(ConvertHslToRgb(hsl, stopped, false, instructions));
            for (std::size_t i = 0; i < 100; ++i) {
                EXPECT_EQ(At(clipped, i), ExpectedRgb(240, 240, 240));
                EXPECT_EQ(At(stopped, i), i < bad / 3 ? At(clipped, i) : 0x070707u) << bad << ' ' << i;
            }
        }
}
