// Straight lines in pixel chains.
#include "roi/kernel/OutlineLines.h"
#include "roi/kernel/OutlineRaster.h"
#include "support/KernelTests.h"

using kest::IntPoint;

namespace {

struct Lines {
    int count = 0;
    double length = 0;
    bool hasLast = false;

    explicit Lines(std::span<const IntPoint> chain) {
        IntPoint last = {};
        const int corners = kest::VisitCorners(chain, [&](IntPoint corner) {
            if (hasLast)
                length += std::hypot(static_cast<double>(corner.x) - last.x, static_cast<double>(corner.y) - last.y);
            last = corner;
            hasLast = true;
        });
        count = std::max(corners - 1, 0);
    }
    /// Of the pixels drawn from point to point.
    static Lines Drawn(std::span<const IntPoint> points) {
        const auto starts = points.first(points.size() - 1), ends = points.subspan(1);
        std::vector<IntPoint> chain(static_cast<std::size_t>(kest::RasterLength(starts, ends)));
        kest::RasteriseOutline(starts, ends, chain);
        return Lines(chain);
    }
};

}  // namespace

TEST(OutlineLines, MeasureTheShapeAndNotTheStairs) {
    EXPECT_EQ(Lines({}).count, 0);
    // Gaps and repeated pixels.
    const IntPoint gaps[] = {{0, 0}, {0, 0}, {30, 40}, {30, 41}, {30, 41}, {30, 42}, {INT32_MAX, 42}};
    EXPECT_DOUBLE_EQ(Lines(gaps).length, 50.0 + 2.0 + INT32_MAX - 30.0);

    std::mt19937 random(9);
    std::uniform_int_distribution<int> coordinate(30, 2000);
    for (int i = 0; i < 50; ++i) {
        const IntPoint ends[] = {{0, 0}, {coordinate(random), coordinate(random)}};
        const Lines lines = Lines::Drawn(ends);
        EXPECT_EQ(lines.count, 1);
        EXPECT_NEAR(lines.length, std::hypot(ends[1].x, ends[1].y), 1.5);
    }
    // A rounded line is one line, wherever it begins.
    for (int width = 1; width <= 40; ++width)
        for (int height = -width; height <= width; ++height) {
            std::vector<IntPoint> rounded;
            for (int x = 0; x <= width; ++x)
                rounded.push_back({x + 7, static_cast<int>(std::lround(1.0 * x * height / width)) - 5});
            EXPECT_EQ(Lines(rounded).count, 1) << width << ' ' << height;
            EXPECT_NEAR(Lines(rounded).length, std::hypot(width, height), 1e-9);
        }
    std::vector<IntPoint> circle;
    for (int degree = 0; degree <= 360; degree += 2) {
        const double angle = degree * std::numbers::pi / 180;
        circle.push_back({static_cast<int>(std::lround(300 * std::cos(angle))),
                          static_cast<int>(std::lround(300 * std::sin(angle)))});
    }
    // Along the stairs it would be 5 % longer.
    EXPECT_NEAR(Lines::Drawn(circle).length / (600 * std::numbers::pi), 1.0, 0.005);
}
