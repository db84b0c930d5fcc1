// Painting of bands and boxes, against a model that takes one pixel after another.
#include "image/kernel/ColourThreshold.h"
#include "support/KernelTests.h"

using namespace kest;

namespace {

using Pixels = std::vector<std::uint8_t>;

Pixels RandomPixels(unsigned seed) {
    std::mt19937 random(seed);
    Pixels pixels(3 * 5003);
    for (auto& byte : pixels) byte = static_cast<std::uint8_t>(random());
    // Grays and extremes are rare among random colours.
    for (std::size_t i = 0; i < 768; ++i) pixels[i] = static_cast<std::uint8_t>(i / 3);
    for (std::size_t i = 768; i < 900; ++i) pixels[i] = pixels[i] < 128 ? 0 : 255;
    return pixels;
}

/// Paints from a picture kept aside and in place; both give what the model paints pixel by pixel.
void ExpectPainted(const Pixels& source, const std::function<void(SourcePlane, TargetPlane, InstructionSet)>& paint,
                   const std::function<void(std::uint8_t*)>& model) {
    Pixels expected = source;
    for (std::size_t i = 0; i < expected.size(); i += 3) model(&expected[i]);
    for (const InstructionSet instructions : {InstructionSet::Baseline, BestInstructionSet()}) {
        Pixels target(source.size(), 99), inPlace = source;
        paint(source, target, instructions);
        ASSERT_EQ(target, expected);
        paint(inPlace, inPlace, instructions);
        ASSERT_EQ(inPlace, expected);
    }
}

float LuminanceOf(const std::uint8_t* pixel) {
    return static_cast<float>(0.299 * pixel[2] + 0.587 * pixel[1] + 0.114 * pixel[0]);
}

void Put(std::uint8_t* pixel, int red, int green, int blue) {
    pixel[0] = static_cast<std::uint8_t>(blue);
    pixel[1] = static_cast<std::uint8_t>(green);
    pixel[2] = static_cast<std::uint8_t>(red);
}

using Bands = std::vector<ThresholdTag>;

const Bands overlapping = {
    {10.0F, 120.0F, 200, 300, -1}, {100.0F, 180.5F, 7, 8, 9}, {7.0F, 9.0F, 250, 0, 0}, {240.0F, NAN, 1, 1, 1}};

/// More than the vector loops take.
Bands TwentyBands() {
    Bands bands;
    for (int i = 0; i < 20; ++i)
        bands.push_back({static_cast<float>(i * 12), static_cast<float>(i * 12 + 7), i, 250 - i, 2 * i});
    return bands;
}

void PutIfHeld(std::uint8_t* pixel, const ThresholdTag& band, float value) {
    if (value >= band.fLow && value <= band.fHigh) Put(pixel, band.iRed, band.iGreen, band.iBlue);
}

/// The pixel's own luminance counts for all bands.
void ExpectLuminances(const Pixels& source, const Bands& bands) {
    const auto model = [&](std::uint8_t* pixel) {
        const float luminance = LuminanceOf(pixel);
        for (const ThresholdTag& band : bands) PutIfHeld(pixel, band, luminance);
    };
    const auto paint = [&](SourcePlane from, TargetPlane to, InstructionSet set) {
        PaintLuminance(from, to, bands, set);
    };
    const auto paintOne = [&](SourcePlane from, TargetPlane to, InstructionSet set) {
        PaintLuminance(from, to, bands[0].fLow, bands[0].fHigh, {1, 2, 3}, set);
    };
    ExpectPainted(source, paint, model);
    if (bands.size() == 1) ExpectPainted(source, paintOne, model);
}

/// What an earlier band has painted is what a later one looks at.
void ExpectChannel(const Pixels& source, int byte, const Bands& bands) {
    ChannelPainter painter(byte);
    for (const ThresholdTag& band : bands)
        painter.AddBand(band.fLow, band.fHigh, LowBytes(band.iRed, band.iGreen, band.iBlue));
    ExpectPainted(
        source, [&](SourcePlane from, TargetPlane to, InstructionSet set) { painter.Paint(from, to, set); },
        [&](std::uint8_t* pixel) {
            for (const ThresholdTag& band : bands) PutIfHeld(pixel, band, pixel[byte]);
        });
}

}  // namespace

TEST(ColourThreshold, LuminanceBands) {
    const Pixels source = RandomPixels(1);
    const std::uint8_t gray[] = {128, 128, 128};
    const float exact = LuminanceOf(gray);
    for (const auto& [low, high] : {std::pair{exact, exact},
                                    {0.0F, 255.0F},
                                    {-5.0F, 90.3F},
                                    {90.3F, INFINITY},
                                    {128.0F, 128.0F},
                                    {NAN, 255.0F},
                                    {300.0F, 400.0F}})
        ExpectLuminances(source, {{low, high, 1, 2, 3}});
    ExpectLuminances(source, overlapping);
    ExpectLuminances(source, TwentyBands());
}

TEST(ColourThreshold, LuminanceOfEveryColour) {
    Pixels colours(3 * 65536);
    const std::uint8_t colour[] = {77, 142, 61};
    const float exact = LuminanceOf(colour), next = std::nextafter(exact, 255.0F);
    for (int red = 0; red < 256; ++red) {
        for (int i = 0; i < 65536; ++i) Put(&colours[3 * i], red, i >> 8, i & 255);
        ExpectLuminances(colours, {{exact, exact, 1, 2, 3}});
        ExpectLuminances(colours, {{next, 200.7F, 1, 2, 3}});
    }
}

TEST(ColourThreshold, ChannelBands) {
    for (const int channel : {0, 1, 2}) {
        ExpectChannel(RandomPixels(2), channel, overlapping);
        ExpectChannel(RandomPixels(5), channel, TwentyBands());
        ChannelPainter truncated(channel);
        truncated.AddBand(ToByteBand(100.9F, 1000.0F), LowBytes(1, 2, 3));
        ExpectPainted(
            RandomPixels(2),
            [&](SourcePlane from, TargetPlane to, InstructionSet set) { truncated.Paint(from, to, set); },
            [channel](std::uint8_t* pixel) {
                PutIfHeld(pixel, {100, 255, 1, 2, 3}, pixel[channel]);
            });
    }
}

TEST(ColourThreshold, BoxesAndTheirSides) {
    const ByteBand box[] = {ToBoxSide(-3, 200), ToBoxSide(20, 500), ToBoxSide(300, 400)};
    EXPECT_TRUE(ToByteBand(-1.0F, NAN).Has(0));
    BandList list;
    EXPECT_TRUE(ListBands(overlapping.data(), 1, list) && list.size() == 1);
    EXPECT_TRUE(ListBands(nullptr, 0, list) && list.empty());
    EXPECT_FALSE(ListBands(nullptr, 1, list) || HasEmptyBand(Bands{{7, 7, 0, 0, 0}}));
    ExpectPainted(
        RandomPixels(3),
        [&](SourcePlane from, TargetPlane to, InstructionSet set) {
            PaintBox(from, to, box, Clamped(300, -1, 17), set);
        },
        [](std::uint8_t* pixel) {
            if (pixel[0] <= 200 && pixel[1] >= 20 && pixel[2] >= 44) Put(pixel, 255, 0, 17);
        });
}
