// The pixels under a ROI.
#include "measure/kernel/PixelRuns.h"
#include "support/KernelTests.h"

TEST(PixelRuns, AreClippedSortedAndJoined) {
    KestSpan runs[] = {{12, 14}, {-5, 2}, {7, 7}, {3, 4}, {13, 20}, {40, 30}, {-9, -1}, {100, 200}};
    const std::span<KestSpan> left = kest::DistinctRuns(runs, 16);
    const int wanted[] = {0, 4, 7, 7, 12, 15};
    ASSERT_EQ(left.size_bytes(), sizeof wanted);
    EXPECT_EQ(std::memcmp(left.data(), wanted, sizeof wanted), 0);
}

TEST(PixelStatistics, AreThoseOfTheFormulaInTwoPasses) {
    const kest::PixelStatistics none;
    for (const double value : {none.mean, none.minimum, none.maximum, none.StandardDeviation()}) EXPECT_EQ(value, 0.0);
    std::mt19937 random(1);
    std::vector<std::uint8_t> bytes(30000);
    std::vector<std::int32_t> integers(10000);
    std::vector<float> floats(10000);
    for (auto& value : bytes) value = static_cast<std::uint8_t>(random());
    // Large values with a small spread lose everything in a sum of squares.
    for (auto& value : integers) value = INT32_MAX - static_cast<std::int32_t>(random() % 5);
    for (auto& value : floats) value = 1e6F + static_cast<float>(random() % 4) / 4;
    std::vector<double> luminances;
    for (std::size_t i = 0; i < bytes.size(); i += 3)
        luminances.push_back((114 * bytes[i] + 587 * bytes[i + 1] + 299 * bytes[i + 2]) / 1000.0);

    // Added in runs of many lengths, the empty one included.
    const auto expect = [](const std::vector<double>& values, const auto& cells, std::size_t unit, auto add) {
        kest::PixelStatistics statistics;
        const std::span all(cells);
        for (std::size_t first = 0, length = 0; first < all.size(); first += length * unit, length = 3 * length + 1)
            add(statistics, all.subspan(first, std::min(length * unit, all.size() - first)));
        double mean = 0, squares = 0;
        for (const double value : values) mean += value / static_cast<double>(values.size());
        for (const double value : values) squares += (value - mean) * (value - mean);
        EXPECT_EQ(statistics.count, static_cast<std::int64_t>(values.size()));
        EXPECT_NEAR(statistics.mean / mean, 1.0, 1e-12);
        EXPECT_NEAR(statistics.StandardDeviation(), std::sqrt(squares / static_cast<double>(values.size())), 1e-6);
        EXPECT_DOUBLE_EQ(statistics.minimum, *std::min_element(values.begin(), values.end()));
        EXPECT_DOUBLE_EQ(statistics.maximum, *std::max_element(values.begin(), values.end()));
    };
    expect({bytes.begin(), bytes.end()}, bytes, 1, kest::AddBytes);
    expect({integers.begin(), integers.end()}, integers, 1, kest::AddSigned32);
    expect({floats.begin(), floats.end()}, floats, 1, kest::AddFloats);
    expect(luminances, bytes, 3, kest::AddColours);
}
