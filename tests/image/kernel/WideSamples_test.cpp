// Wide samples: the vector loops against the rules written straight down, over all 16-bit samples and over random sets
// with every extreme; point lists and raw file headers.
#include "image/kernel/WideSamples.h"
#include "image/kernel/WideSamplesLut.h"
#include "support/KernelTests.h"

using namespace kest;

namespace {

constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

long long Truncated(float value) {
    return std::fabs(value) < 2147483648.0F ? static_cast<long long>(value) : -2147483648LL;
}

template <class Sample>
unsigned LevelByRule(Sample sample, const DisplayMapping& mapping) {
    constexpr bool isFloat = std::is_same_v<Sample, float>;
    // Bounds are compared as numbers, without their fractions where the samples have none.
    if (sample > (isFloat ? mapping.displayMax : std::trunc(double{mapping.displayMax}))) return 255;
    if (sample < (isFloat ? mapping.displayMin : std::trunc(double{mapping.displayMin}))) return 0;
    const volatile float product = static_cast<float>(sample) * mapping.scale;
    const volatile float level = product + mapping.offset;
    return static_cast<unsigned>(Truncated(level) & 0xFF);
}

template <class Sample>
void ExpectMapped(const std::vector<Sample>& samples, const DisplayMapping& mapping) {
    std::vector<std::uint8_t> bytes(samples.size() + 1, 0xEE);
    MapSamples(std::span<const Sample>(samples), mapping, bytes.data());
    for (std::size_t i = 0; i < samples.size(); ++i)
        ASSERT_EQ(bytes[i], LevelByRule(samples[i], mapping))
            << +samples[i] << " in " << mapping.displayMin << " to " << mapping.displayMax << ", at " << i;
    ASSERT_EQ(bytes.back(), 0xEE);
}

/// Bounds of every kind; the seldom ones are drawn often.
class Bounds {
public:
    float Next() {
        switch (random() % 8) {
            case 0: return std::vector{0.0F, -0.0F, 1024.0F, 65535.0F, 65536.0F, -1.0F, 0.5F}[random() % 7];
            case 1:
                return std::vector{noNumber, infinity, -infinity, 3e38F, -2147483648.0F, 2147483648.0F}[random() % 6];
            case 2: return static_cast<float>(static_cast<int>(random()));
            case 3: return last = last + static_cast<float>(random() % 1000) / 500.0F;
            case 4: return static_cast<float>(random() % 70000) - 2000.0F;
            default: return last = static_cast<float>(random() % 65536);
        }
    }
    std::mt19937 random{7};

private:
    float last = 0.0F;
};

constexpr float extremes[] = {noNumber, infinity, -infinity, 0.0F, -0.0F, 1e-45F, 3.4e38F, -3.4e38F};

template <class Sample>
std::vector<Sample> RandomSamples(std::mt19937& random, std::size_t count) {
    std::vector<Sample> samples(count);
    const auto narrow = random() % 3;
    for (Sample& sample : samples) {
        const auto bits = static_cast<std::uint32_t>(random());
        if constexpr (std::is_same_v<Sample, float>) {
            if (random() % 8 == 0)
                sample = extremes[bits % 8];
            else if (narrow == 0)
                std::memcpy(&sample, &bits, sizeof sample);
            else
                sample = static_cast<float>(static_cast<int>(bits) >> 12) / 7.0F;
        } else {
            sample = static_cast<Sample>(narrow ? static_cast<int>(bits) >> 14 : static_cast<int>(bits));
            if (random() % 16 == 0)
                sample = bits % 2 ? std::numeric_limits<Sample>::max() : std::numeric_limits<Sample>::min();
        }
    }
    return samples;
}

template <class Sample>
bool SameBits(Sample a, Sample b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

template <class Sample>
void ExpectScansByRule() {
    std::mt19937 random(5);
    for (int round = 0; round < 3000; ++round) {
        const std::vector<Sample> samples = RandomSamples<Sample>(random, 1 + random() % 200);
        Sample low = samples[0], high = samples[0];
        for (const Sample sample : samples) {
            if (sample > high) high = sample;
            if (sample < low) low = sample;
        }
        const auto range = ScanSamples(std::span<const Sample>(samples));
        ASSERT_TRUE(SameBits(range.smallest, low)) << range.smallest << " for " << low;
        ASSERT_TRUE(SameBits(range.largest, high)) << range.largest << " for " << high;
    }
}

}  // namespace

TEST(WideSamples, ScansFindTheRangeBitForBit) {
    ExpectScansByRule<std::uint16_t>();
    ExpectScansByRule<std::int32_t>();
    ExpectScansByRule<float>();
    std::vector<float> zeros(64, 0.0F);
    zeros[0] = -1.0F;
    zeros[1] = -0.0F;
    EXPECT_TRUE(std::signbit(ScanSamples(std::span<const float>(zeros)).largest));
}

TEST(WideSamples, MapsAll16BitSamplesByTheRule) {
    std::vector<std::uint16_t> all(65536);
    std::iota(all.begin(), all.end(), std::uint16_t{0});
    Bounds bounds;
    std::vector<std::pair<float, float>> ranges = {
        {0.0F, 65535.0F},      {100.0F, 300.0F},      {0.0F, 255.0F}, {100.9F, 101.8F}, {7.0F, 7.0F},
        {500.0F, 20.0F},       {-10.5F, 70000.0F},    {-9.0F, -3.0F}, {7e4F, 8e4F},     {0.0F, 1e-3F},
        {0.0F, infinity},      {noNumber, 5.0F},      {0.0F, 1e-30F}, {0.0F, 3e9F},     {10.5F, 138.0F},
        {2147483648.0F, 3e9F}, {-3e9F, 4294967296.0F}};
    while (ranges.size() < 213) ranges.push_back({bounds.Next(), bounds.Next()});
    for (const auto& [low, high] : ranges) ExpectMapped(all, DisplayMapping::Of(low, high));
    // The line can also be any other one, as after a range that was set before.
    for (const DisplayMapping& line : {DisplayMapping{20.0F, 30.0F, 0.01F, 7.0F},
                                       {20.0F, 60.0F, 4.25F, 0.0F},
                                       {0.0F, 60.0F, 5.0F, 0.0F},
                                       {0.0F, 65535.0F, -3.0F, 300.0F}})
        ExpectMapped(all, line);
}

TEST(WideSamples, MapsRandom32BitAndFloatSamplesByTheRule) {
    Bounds bounds;
    for (int round = 0; round < 4000; ++round) {
        const float low = bounds.Next(), high = bounds.Next();
        const DisplayMapping mapping = DisplayMapping::Of(low, high);
        ExpectMapped(RandomSamples<std::int32_t>(bounds.random, 300 + bounds.random() % 40), mapping);
        ExpectMapped(RandomSamples<float>(bounds.random, 300 + bounds.random() % 40), mapping);
    }
    // The largest int is no float, so a range up to it ends above it.
    const std::int32_t upToLargest[] = {0, 1000000000, 2000000000, 2147483647};
    std::uint8_t levels[4];
    MapSamples(std::span(upToLargest), DisplayMapping::Of(0.0F, 2147483647.0F), levels);
    EXPECT_EQ(std::vector<int>(levels, levels + 4), (std::vector<int>{0, 118, 237, 255}))
        << "as does the largest int itself in single precision";
}

TEST(WideSamples, PowersOfTwoAreShifted) {
    for (const float other : {256.0F, 512.0F, 2048.0F, 1024.1F, 262144.0F, noNumber})
        EXPECT_EQ(ShiftOfDisplayRange(0.0F, other), 0);
    EXPECT_EQ(ShiftOfDisplayRange(0.1F, 1024.0F), 0);
    std::mt19937 random(2);
    const auto narrow = RandomSamples<std::uint16_t>(random, 1000);
    const auto wide = RandomSamples<std::int32_t>(random, 1000);
    std::vector<std::uint8_t> bytes(1000);
    for (const int shift : {2, 4, 6, 8}) {
        EXPECT_EQ(ShiftOfDisplayRange(0.0F, std::ldexp(256.0F, shift)), shift);
        ShiftSamples(std::span<const std::uint16_t>(narrow), shift, bytes.data());
        for (std::size_t i = 0; i < 1000; ++i) ASSERT_EQ(bytes[i], narrow[i] / (1 << shift) % 256);
        ShiftSamples(std::span<const std::int32_t>(wide), shift, bytes.data());
        for (std::size_t i = 0; i < 1000; ++i)
            ASSERT_EQ(bytes[i], static_cast<int>(std::floor(wide[i] / std::ldexp(1.0, shift))) & 0xFF);
    }
}

TEST(WideSamples, PointListsOverADisplayRange) {
    std::vector<tagPoints> points(64), levels(64);
    SpreadPoints(points, -100.0F, 530.0F);
    EXPECT_NEAR(points[63].x, 530.0, 0.01);
    // Level 4k of the range is sample -100 + 630 * 4k / 255; the nearest point gives the level.
    for (std::size_t k = 0; k < 64; ++k) points[k].y = static_cast<float>(k);
    PickLevels(points, DisplayMapping::Of(-100.0F, 530.0F), levels);
    for (std::size_t k = 0; k < 64; ++k)
        EXPECT_EQ(levels[k].y, static_cast<float>(std::lround(63.0 * 4.0 * static_cast<double>(k) / 255.0))) << k;
    // Of equally near points the first one counts.
    for (std::size_t k = 0; k < 64; ++k) points[k].x = k < 32 ? 10.0F : 20.0F;
    PickLevels(points, DisplayMapping::Of(0.0F, 255.0F), levels);
    EXPECT_EQ(levels[3].y, 0.0F);
    EXPECT_EQ(levels[4].y, 32.0F);
    // No number leads out of the list.
    points[7].x = noNumber;
    for (const float bound : {5.0F, noNumber, infinity, -infinity})
        PickLevels(points, DisplayMapping::Of(5.0F, bound), levels);
}
