// Extents of lines and ellipses, and what lies under the mouse.
#include "roi/kernel/EllipseExtent.h"
#include "roi/kernel/HitTest.h"
#include "roi/kernel/LinePixels.h"
#include "roi/kernel/LineRule.h"
#include "support/KernelTests.h"

using namespace kest;

TEST(EllipseExtent, EqualsTheQuadraticInHigherPrecision) {
    EXPECT_EQ(Roundoff(2.5), 3);
    EXPECT_EQ(Roundoff(2.49), 2);
    EXPECT_EQ(Roundoff(-0.7), 0);
    std::mt19937 random(3);
    int compared = 0;
    for (int round = 0; round < 5000; ++round) {
        const int left = static_cast<int>(random() % 1000), bottom = static_cast<int>(random() % 1000);
        const IntRect box = {left, bottom + 1 + static_cast<int>(random() % 600),
                             left + 1 + static_cast<int>(random() % 600), bottom};
        const long double a = (box.right - box.left) / 2.0L, b = (box.top - box.bottom) / 2.0L;
        for (int k = 0; k < 20; ++k) {
            const int row = box.bottom + static_cast<int>(random() % static_cast<unsigned>(box.top - box.bottom + 1));
            const long double dy = row - (box.top - b);
            const long double half = a * std::sqrt(std::max(0.0L, 1 - dy * dy / (b * b)));
            const long double first = box.right - a - half, last = box.right - a + half;
            KestSpan columns;
            ASSERT_TRUE(EllipseRow(box, row, columns));
            ASSERT_GE(columns.iFirst, box.left);
            ASSERT_LE(columns.iLast, box.right);
            // Single precision decides where the edge lies near the middle between two columns.
            const auto isClear = [](long double edge) {
                return std::fabs(edge + 0.5L - std::round(edge + 0.5L)) > 0.01L;
            };
            if (dy * dy < b * b && isClear(first) && isClear(last)) {
                ++compared;
                ASSERT_EQ(columns.iFirst, static_cast<int>(first + 0.5L));
                ASSERT_EQ(columns.iLast, static_cast<int>(last + 0.5L));
            }
        }
    }
    EXPECT_GT(compared, 50000);
}

TEST(EllipseExtent, EdgesAndDegenerateBoxes) {
    const IntRect box = {0, 10, 20, 0};
    KestSpan span;
    for (const int outside : {11, -1}) EXPECT_FALSE(EllipseRow(box, outside, span));
    const struct {
        IntRect box;
        int row, first, last;
    } cases[] = {{box, 5, 0, 20}, {box, 10, 10, 10}, {{3, 7, 9, 7}, 7, 3, 9}, {{4, 4, 4, 4}, 4, 4, 4}};
    for (const auto& c : cases) {
        ASSERT_TRUE(EllipseRow(c.box, c.row, span));
        EXPECT_EQ((std::pair<int, int>{span.iFirst, span.iLast}), (std::pair{c.first, c.last}));
    }
    ASSERT_TRUE(EllipseColumn(box, 10, span));
    EXPECT_EQ((std::pair<int, int>{span.iFirst, span.iLast}), (std::pair{0, 10}));
    for (const IntRect& wild :
         {IntRect{INT_MIN, INT_MAX, INT_MAX, INT_MIN}, IntRect{INT_MAX - 9, INT_MAX, INT_MAX, 0}, IntRect{9, 0, 0, 9}})
        for (const int row : {INT_MIN, -1, 0, 5, INT_MAX})
            if (EllipseRow(wild, row, span)) {
                EXPECT_GE(span.iFirst, std::min(wild.left, wild.right));
                EXPECT_LE(span.iLast, std::max(wild.left, wild.right));
            }
}

TEST(LinePixels, OnePixelAStepWithoutTheLargerEnd) {
    const auto spanOf = [](bool isHit, const KestSpan& span) {
        return isHit ? std::pair{span.iFirst, span.iLast} : std::pair{1, 0};
    };
    constexpr std::pair none = {1, 0};
    std::mt19937 random(11);
    for (int round = 0; round < 3000; ++round) {
        const int reach = round % 3 == 0 ? 8 : round % 3 == 1 ? 60 : 900, offset = round % 10 == 0 ? 1 << 24 : 0;
        const auto coordinate = [&] { return static_cast<int>(random() % (2u * reach)) - reach + offset; };
        const IntPoint start = {coordinate(), coordinate()}, end = {coordinate(), coordinate()};
        // The rule, pixel by pixel: each row's columns and each column's rows.
        std::map<int, std::pair<int, int>> rows, columns;
        const auto widen = [](std::map<int, std::pair<int, int>>& lines, int line, int position) {
            const auto at = lines.try_emplace(line, position, position).first;
            at->second = {std::min(at->second.first, position), std::max(at->second.second, position)};
        };
        const bool isSteep = std::abs(end.y - start.y) > std::abs(end.x - start.x);
        const auto [from, to] = isSteep ? std::minmax(start.y, end.y) : std::minmax(start.x, end.x);
        for (int at = from; at < to; ++at) {
            const IntPoint pixel = test::PixelByRule(start, end, isSteep, at);
            widen(rows, pixel.y, pixel.x), widen(columns, pixel.x, pixel.y);
        }
        for (int at = -reach - 3 + offset; at < reach + 3 + offset; ++at) {
            KestSpan span;
            ASSERT_EQ(spanOf(LineRow(start, end, at, span), span), rows.contains(at) ? rows[at] : none) << round;
            ASSERT_EQ(spanOf(LineColumn(start, end, at, span), span), columns.contains(at) ? columns[at] : none)
                << round;
        }
    }
    KestSpan span;
    ASSERT_TRUE(LineRow({0, 2}, {10, 4}, 2, span));
    EXPECT_EQ(span.iLast, 4);
    for (const IntPoint start : {IntPoint{INT_MIN, 0}, {INT_MIN, INT_MIN}, {0, INT_MAX}, {INT_MAX, 7}})
        for (const IntPoint end : {IntPoint{INT_MAX, INT_MAX}, {INT_MAX, 1}, {1, INT_MIN}, {INT_MIN, 7}})
            for (const int at : {INT_MIN, -1, 0, 7, INT_MAX}) {
                EXPECT_TRUE(!LineRow(start, end, at, span) || span.iFirst <= span.iLast);
                EXPECT_TRUE(!LineColumn(start, end, at, span) || span.iFirst <= span.iLast);
            }
}

TEST(HitTest, Tolerances) {
    View view = {100, 100, 50, 50, 0, 0, 1, 1};
    for (const auto& [zoom, tolerance] : {std::pair{1, 5}, {2, 2}, {3, 2}, {4, 1}, {16, 1}, {0, 10}}) {
        view.zoom = zoom;
        EXPECT_EQ(LineTolerance(view), tolerance);
    }
    view.displayMode = 2;
    EXPECT_EQ(LineTolerance(view), 10);

    const IntRect box = {10, 50, 50, 10};
    const struct {
        RealPoint at;
        int code;
    } hits[] = {{{30, 50}, 1}, {{34.9, 45.1}, 1}, {{35, 50}, -1}, {{30, 10}, 2}, {{10, 30}, 3}, {{50, 26}, 4}};
    for (const auto& hit : hits) EXPECT_EQ(HitEllipseHandle(box, hit.at), hit.code) << hit.at.x << ' ' << hit.at.y;
    // On a small ellipse a quarter of its size is near.
    EXPECT_EQ(HitEllipseHandle({0, 8, 8, 0}, {4, 6.1}), 1);
    EXPECT_EQ(HitEllipseHandle({0, 8, 8, 0}, {4, 6}), -1);

    EXPECT_TRUE(IsNear({1.5, 2.5}, {6.4, -2.4}, 5.0));
    EXPECT_FALSE(IsNear({1.5, 2.5}, {6.5, 2.5}, 5.0));
    const IntPoint points[] = {{0, 0}, {INT_MIN, INT_MAX}};
    EXPECT_TRUE(IsAnyNear(points, {4, -4}, 5));
    EXPECT_FALSE(IsAnyNear(points, {5, 0}, 5));
    EXPECT_FALSE(IsAnyNear(points, {INT_MAX, INT_MIN}, 5));
}
