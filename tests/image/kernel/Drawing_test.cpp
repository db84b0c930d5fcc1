// Where images are printed, the overlay's colours, and interpolation.
#include "image/kernel/Bilinear.h"
#include "image/kernel/BlitPlan.h"
#include "image/kernel/OverlayColours.h"
#include "image/kernel/PrintPlan.h"
#include "image/kernel/RegionCopy.h"
#include "support/KernelTests.h"

using namespace kest;

namespace {

using Quad = std::array<long long, 4>;

void ExpectPlan(const BlitPlan& plan, Quad target, Quad source) {
    EXPECT_EQ((Quad{plan.targetX, plan.targetY, plan.targetWidth, plan.targetHeight}), target);
    EXPECT_EQ((Quad{plan.sourceX, plan.sourceY, plan.sourceWidth, plan.sourceHeight}), source);
}

}  // namespace

TEST(BlitPlan, PartsOfTargetsLargerThanPlatformsMultiplyShowTheSamePixels) {
    for (const auto& [pixels, zoom] : {std::pair{7LL, 1LL},
                                       {7LL, 700'000LL},
                                       {7LL, 5'000'000LL},
                                       {7LL, 1LL << 30},
                                       {7LL, (1LL << 31) - 1},
                                       {4000LL, 140LL},
                                       {4000LL, 1040LL},
                                       {40'000LL, 1LL}})
        for (const long long begin : {-3 * zoom - 7, 11LL, 30LL - zoom, -(pixels / 2) * zoom})
            for (const int direction : {1, -1}) {
                // The surface is [0, 40).
                const AxisCut cut(pixels, begin, direction * pixels * zoom, 0, 40);
                ASSERT_LE(cut.PartCount(), 7);
                std::vector<long long> shown(40, -1), expected(40, -1);
                for (long long i = 0; i < cut.PartCount(); ++i) {
                    const AxisCut::Part part = cut.At(i);
                    const long long size = std::abs(part.targetSize);
                    EXPECT_LE(size, LargestBlitExtent);
                    EXPECT_LE(size * part.count, LargestBlitProduct);
                    for (int x = 0; x < 40; ++x) {
                        const long long along = direction * (x - part.target);
                        if (along >= 0 && along < size) shown[x] = part.first + along * part.count / size;
                    }
                }
                for (int x = 0; x < 40; ++x) {
                    const long long along = direction * (x - begin);
                    if (along >= 0 && along < pixels * zoom) expected[x] = along / zoom;
                }
                EXPECT_EQ(shown, expected) << pixels << " zoom " << zoom << ' ' << begin << ' ' << direction;
            }
    // The platform's own rounding counts where it can draw, and in a scaled device context at 1:1 too.
    for (const AxisCut& whole : {AxisCut(7, -50, 100, 0, 40), AxisCut(100, -50, 100, 0, 40, 0.5, true),
                                 AxisCut(4000, -50, 400'000, 0, 40, 0.5, true)})
        EXPECT_EQ(whole.PartCount() == 1 ? whole.At(0).target : 0, -50);
    // A surface that shows more than can be multiplied is drawn in parts that adjoin.
    const AxisCut large(50'000, 0, 60'000, 0, 60'000);
    long long end = 0;
    for (long long i = 0; i < large.PartCount(); ++i) {
        EXPECT_EQ(large.At(i).target, end);
        EXPECT_LE(large.At(i).targetSize * large.At(i).count, LargestBlitProduct);
        end += large.At(i).targetSize;
    }
    EXPECT_EQ(end, 60'000);
    // A copy that the platform does not scale is not cut in a scaled device context, where its positions are no pixels.
    for (const bool isScaled : {false, true}) {
        std::vector<Quad> targets;
        ForEachVisiblePart({-9'000, 7, 40'000, 1, 0, 0, 40'000, 1, true}, {{0, 0, 40'000, 40}, 1, 1, isScaled},
                           [&](const BlitPlan& part) {
                               targets.push_back({part.targetX, part.targetY, part.targetWidth, part.sourceX});
                               return true;
                           });
        EXPECT_EQ(targets, (std::vector<Quad>{isScaled ? Quad{-9'000, 7, 40'000, 0} : Quad{0, 7, 31'000, 9'000}}));
    }
}

TEST(PrintPlan, ScaleIsThePowerOfTwoThatFirstExceedsHalfThePage) {
    EXPECT_EQ(PrintScale(100, 100, {2400, 3300}), 16);
    EXPECT_EQ(PrintScale(1201, 1, {2400, 3300}), 1);
    EXPECT_EQ(PrintScale(1200, 1, {2400, 3300}), 2);
    EXPECT_EQ(PrintScale(0, 100, {2400, 3300}), 1);
}

TEST(PrintPlan, OverlayRunsOfTheVisiblePart) {
    // 4 columns, 3 rows, bottom row first.
    const std::uint8_t overlay[] = {7, 7, 0, 8, 0, 0, 0, 0, 9, 9, 9, 9};
    std::vector<std::array<long long, 5>> runs;
    const auto note = [&](const PrintedRun& run) {
        runs.push_back({run.left, run.top, run.right, run.bottom, run.value});
        return true;
    };
    constexpr PageSize page = {20, 60};
    PrintPlan plan = PlanForPage({0, 0, 4, 3, 0, 0, 0, 1}, page);
    ExpectPlan(plan.picture, {0, 0, 16, 12}, {0, 0, 4, 3});
    ForEachPrintedRun({overlay, 4, 3}, 3, plan, page, note);
    EXPECT_EQ(runs, (std::vector<std::array<long long, 5>>{{0, 12, 8, 16, 7}, {12, 12, 16, 16, 8}, {0, 4, 16, 8, 9}}));
    // Zoom 2 in a window of 4 x 4: two columns and two rows from column 1 and one row down.
    runs.clear();
    plan = PlanForPage({4, 4, 4, 3, 1, 1, 1, 2}, page);
    ExpectPlan(plan.picture, {0, 0, 16, 16}, {1, 0, 2, 2});
    EXPECT_EQ(plan.blockPixels, 8);
    ForEachPrintedRun({overlay, 4, 3}, 3, plan, page, note);
    EXPECT_EQ(runs, (std::vector<std::array<long long, 5>>{{0, 16, 8, 24, 7}}));
    // Not scrolled down: the two rows at the top, without the lowest one.
    runs.clear();
    ForEachPrintedRun({overlay, 4, 3}, 3, PlanForPage({4, 4, 4, 3, 1, 0, 1, 2}, page), page, note);
    EXPECT_EQ(runs, (std::vector<std::array<long long, 5>>{{0, 8, 16, 16, 9}}));
    // On a page of 10 x 12, what begins at its edges is left out.
    runs.clear();
    plan = PlanForPage({0, 0, 4, 3, 0, 0, 0, 1}, {10, 12});
    ASSERT_EQ(plan.blockPixels, 2);
    ForEachPrintedRun({overlay, 4, 3}, 3, plan, {7, 6}, note);
    EXPECT_EQ(runs, (std::vector<std::array<long long, 5>>{{0, 2, 8, 4, 9}}));
    // As far as numbers go.
    for (const int offset : {INT_MIN, -1, 1, INT_MAX}) {
        runs.clear();
        plan = PlanForPage({1, 1, 4, 3, offset, offset, 1, INT_MAX}, page);
        EXPECT_TRUE(ForEachPrintedRun({overlay, 4, 3}, 3, plan, page, note));
        EXPECT_EQ(runs.size(), 0u) << offset;
    }
}

TEST(OverlayColours, TwentyColoursTwelveTimes) {
    std::vector<std::uint8_t> table(1024, 9);
    WriteOverlayColours(table);
    constexpr int colours[] = {0,        0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080,
                               0xC0C0C0, 0xC0DCC0, 0xA6CAF0, 0xFFFBF0, 0xA0A0A4, 0x808080, 0xFF0000,
                               0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
    for (int i = 0; i < 256; ++i) {
        const int entry = table[4 * i] | table[4 * i + 1] << 8 | table[4 * i + 2] << 16 | table[4 * i + 3] << 24;
        EXPECT_EQ(entry, i < 240 ? colours[i % 20] : 0) << i;
    }
    EXPECT_EQ(OverlayColour(253).red, 255);
}

TEST(RegionCopy, StaysInsideBothPictures) {
    // Two rows of six pixels into two of four, from column 2 and row -1 on: the last column of a row is left out.
    std::vector<std::uint8_t> source(12), target(8, 99);
    std::iota(source.begin(), source.end(), std::uint8_t{0});
    const KestSpan spans[] = {{-9, -1}, {1, 2}, {4, 4}, {10, 12}, {INT_MIN, INT_MAX}, {5, 5}};
    for (const std::size_t count : {4, 6})
        for (const int row : {INT_MIN, -1, 0, 1, 2, INT_MAX}) {
            std::fill(target.begin(), target.end(), std::uint8_t{99});
            CopyRegionRow({source.data(), 6, 2, 1}, {target.data(), 4, 2, 1}, row, std::span(spans, count), 2, -1);
            const int last = count == 4 ? 99 : 3, right = count == 4 ? 99 : 5;
            const bool isCopied = row == 0;
            EXPECT_EQ(std::vector<int>(target.begin() + 4, target.end()),
                      isCopied ? (std::vector<int>{2, last, 4, right}) : std::vector<int>(4, 99))
                << row;
        }
}

TEST(Bilinear, WeightsAndRowSumsAreSinglePrecision) {
    // 1/3 has no exact weight: the rounded one counts.
    const float third = 1.0F / 3.0F;
    const auto weight = static_cast<float>(1.0 - third);
    const float value =
        Interpolate(third, 0.0F, Surroundings(third, 0.0F), [](int column, int) { return 10 * column; });
    EXPECT_EQ(value, static_cast<float>((1.0 - weight) * 10));
}
