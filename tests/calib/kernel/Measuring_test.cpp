// Straight lines in pixel chains, and the pixels under a ROI.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>
#include <vector>

#include "calib/kernel/OutlineLines.h"
#include "calib/kernel/PixelRuns.h"
#include "roi/kernel/OutlineRaster.h"

using kest::IntPoint;

namespace {

double Distance(IntPoint a, IntPoint b) {
    return std::hypot(static_cast<double>(b.x) - a.x, static_cast<double>(b.y) - a.y);
}

std::vector<IntPoint> Rasterise(const std::vector<IntPoint>& vertices) {
    const std::span<const IntPoint> all(vertices);
    const auto starts = all.first(all.size() - 1), ends = all.subspan(1);
    std::vector<IntPoint> chain(static_cast<std::size_t>(kest::RasterLength(starts, ends)));
    kest::RasteriseOutline(starts, ends, chain);
    return chain;
}

struct Lines {
    int count = 0;
    double length = 0;
};

Lines LinesOf(std::span<const IntPoint> chain, bool isClosed) {
    Lines lines;
    kest::VisitStraightLines(chain, isClosed, [&](IntPoint from, IntPoint to) {
        ++lines.count;
        lines.length += Distance(from, to);
    });
    return lines;
}

}  // namespace

TEST(OutlineLines, MeasureTheShapeAndNotTheStairs) {
    EXPECT_EQ(LinesOf({}, true).count, 0);
    const IntPoint one[] = {{4, 4}};
    EXPECT_EQ(LinesOf(one, true).length, 0);
    // Gaps and repeated pixels.
    const IntPoint gaps[] = {
        {0, 0}, {0, 0}, {30, 40}, {30, 41}, {30, 41}, {30, 42}, {std::numeric_limits<int>::max(), 42}};
    EXPECT_DOUBLE_EQ(LinesOf(gaps, false).length, 50.0 + 2.0 + std::numeric_limits<int>::max() - 30.0);

    std::mt19937 random(9);
    std::uniform_int_distribution<int> coordinate(0, 2000);
    for (int i = 0; i < 50; ++i) {
        const IntPoint end = {coordinate(random), coordinate(random)};
        const std::vector<IntPoint> chain = Rasterise({{0, 0}, end});
        if (chain.size() < 50) continue;
        const Lines lines = LinesOf(chain, false);
        EXPECT_EQ(lines.count, 1);
        EXPECT_NEAR(lines.length, Distance({0, 0}, end), 1.5);
    }
    std::vector<IntPoint> circle;
    for (int degree = 0; degree <= 360; degree += 2) {
        const double angle = degree * std::numbers::pi / 180;
        circle.push_back({static_cast<int>(std::lround(300 * std::cos(angle))),
                          static_cast<int>(std::lround(300 * std::sin(angle)))});
    }
    // Along the stairs it would be 5 % longer.
    EXPECT_NEAR(LinesOf(Rasterise(circle), true).length / (600 * std::numbers::pi), 1.0, 0.005);
}

TEST(PixelRuns, AreClippedSortedAndJoined) {
    KestSpan runs[] = {{12, 14}, {-5, 2}, {7, 7}, {3, 4}, {13, 20}, {40, 30}, {-9, -1}, {100, 200}};
    const std::span<KestSpan> left = kest::DistinctRuns(runs, 16);
    ASSERT_EQ(left.size(), 3U);
    const int wanted[][2] = {{0, 4}, {7, 7}, {12, 15}};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(left[i].iFirst, wanted[i][0]);
        EXPECT_EQ(left[i].iLast, wanted[i][1]);
    }
}

TEST(PixelStatistics, AreThoseOfTheFormulaInTwoPasses) {
    std::mt19937 random(1);
    std::vector<std::uint8_t> bytes(30000);
    std::vector<std::uint16_t> words(10000);
    std::vector<std::int32_t> integers(10000);
    std::vector<float> floats(10000);
    for (auto& value : bytes) value = static_cast<std::uint8_t>(random());
    for (auto& value : words) value = static_cast<std::uint16_t>(random() | 0xF000);
    // Large values with a small spread lose everything in a sum of squares.
    for (auto& value : integers)
        value = std::numeric_limits<std::int32_t>::max() - static_cast<std::int32_t>(random() % 5);
    for (auto& value : floats) value = 1e6F + static_cast<float>(random() % 4) / 4;
    const auto expect = [](const kest::PixelStatistics& statistics, const std::vector<double>& values) {
        double mean = 0, squares = 0;
        for (const double value : values) mean += value / static_cast<double>(values.size());
        for (const double value : values) squares += (value - mean) * (value - mean);
        EXPECT_EQ(statistics.count, static_cast<std::int64_t>(values.size()));
        EXPECT_NEAR(statistics.mean / mean, 1.0, 1e-12);
        EXPECT_NEAR(statistics.StandardDeviation(), std::sqrt(squares / static_cast<double>(values.size())), 1e-6);
        EXPECT_DOUBLE_EQ(statistics.minimum, *std::min_element(values.begin(), values.end()));
        EXPECT_DOUBLE_EQ(statistics.maximum, *std::max_element(values.begin(), values.end()));
    };
    // In runs of many lengths, the empty one included.
    const auto inRuns = [](const auto& values, std::size_t unit, auto add) {
        kest::PixelStatistics statistics;
        const std::span all(values);
        for (std::size_t first = 0, length = 0; first < all.size(); first += length * unit, length = 3 * length + 1)
            add(statistics, all.subspan(first, std::min(length * unit, all.size() - first)));
        return statistics;
    };
    expect(inRuns(bytes, 1, kest::AddBytes), {bytes.begin(), bytes.end()});
    expect(inRuns(words, 1, kest::AddUnsigned16), {words.begin(), words.end()});
    expect(inRuns(integers, 1, kest::AddSigned32), {integers.begin(), integers.end()});
    expect(inRuns(floats, 1, kest::AddFloats), {floats.begin(), floats.end()});
    std::vector<double> luminances;
    for (std::size_t i = 0; i < bytes.size(); i += 3)
        luminances.push_back((114 * bytes[i] + 587 * bytes[i + 1] + 299 * bytes[i + 2]) / 1000.0);
    expect(inRuns(bytes, 3, kest::AddColours), luminances);

    kest::PixelStatistics statistics;
    const float odd[] = {NAN, -std::numeric_limits<float>::infinity(), 2.0F, 4.0F};
    kest::AddFloats(statistics, odd);
    EXPECT_EQ(statistics.notFinite, 2);
    EXPECT_EQ(statistics.mean, 3.0);
    EXPECT_EQ(statistics.StandardDeviation(), 1.0);
}
