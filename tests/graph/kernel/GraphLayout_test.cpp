// The layout of a graph against values worked out by hand: plot area, mapping, marks, labels, and the path of a curve.
#include "graph/kernel/GraphLayout.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "graph/kernel/AxisLabels.h"
#include "graph/kernel/CurvePath.h"

using namespace kest;

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float huge = 3.0e38F;

constexpr GraphAxis plain = {0, 0, 500, 0, 2, true, false, 3, 3};
constexpr FontSize font = {16, 14};

GraphAxis Axis(float minimum, float maximum, int exponent = 0, int precision = 2) {
    return {minimum, minimum, maximum, exponent, precision, true, false, 3, 3};
}

void ExpectRect(const IntRect& rect, int left, int top, int right, int bottom) {
    EXPECT_EQ(rect.left, left);
    EXPECT_EQ(rect.top, top);
    EXPECT_EQ(rect.right, right);
    EXPECT_EQ(rect.bottom, bottom);
}

GraphAnchor Anchor(const GraphAxis& x, const GraphAxis& y) {
    return AnchorOf(x, y, ScalesOf(x, y, {57, 35, 604, 416}));
}

std::string Label(float value, int exponent, int precision) {
    LabelText text;
    const int length = WriteLabel(text, value, exponent, precision);
    EXPECT_EQ(length, static_cast<int>(std::string(text).size()));
    return text;
}

struct Marks {
    std::vector<float> major, minor;

    Marks(const AxisScale& scale, int majors, int minors) {
        ForEachMark(scale, majors, minors,
                    [&](float value, bool isMajor) { (isMajor ? major : minor).push_back(value); });
    }
};

/// A path as text: "M x,y" and "L x,y".
std::string Path(const GraphScales& scales, const IntRect& area, std::vector<tagPoints> points) {
    std::string path;
    const auto add = [&](char step, IntPoint place) {
        path += std::string(path.empty() ? "" : " ") + step + std::to_string(place.x) + ',' + std::to_string(place.y);
    };
    TracePath(
        scales, area, points, [&](IntPoint place) { add('M', place); }, [&](IntPoint place) { add('L', place); });
    return path;
}

}  // namespace

TEST(GraphLayout, LabelsTakeTheirRoom) {
    // Six characters of 7 pixels at the left, half of them at the right.
    ExpectRect(PlotArea({0, 0, 640, 480}, plain, plain, font), 57, 35, 604, 416);
    // "-2500.5" counts 6, less 3 for the exponent; "1", and 2 more for the exponent.
    ExpectRect(PlotArea({10, 20, 650, 500}, Axis(0, 1, -2, 0), Axis(-2500.5F, 2500, 3, 1), font), 46, 55, 625, 436);
    // A large exponent leaves fewer than none: halves are cut toward zero.
    ExpectRect(PlotArea({0, 0, 640, 480}, Axis(0, 99999, 10, 0), plain, font), 57, 35, 642, 416);
    ExpectRect(PageSurface(2399, 3019), 119, 150, 2280, 2869);
    const IntRect wild = PlotArea({0, 0, 640, 480}, Axis(0, 1, INT_MIN), Axis(0, 1, INT_MAX), {INT_MAX, INT_MAX});
    ExpectRect(wild, INT_MIN, INT_MAX, INT_MIN, INT_MIN);
    EXPECT_FALSE(IsDrawable(ScalesOf(plain, plain, wild)));
}

TEST(GraphLayout, TheOriginCrossIsTheAnchor) {
    const GraphAnchor corner = Anchor(plain, plain);
    EXPECT_EQ(corner.viewport.x, 57);
    EXPECT_EQ(corner.viewport.y, 416);
    EXPECT_EQ(corner.window.x, 57);
    EXPECT_EQ(corner.window.y, 35);
    GraphAxis x = plain, y = plain;
    x.origin = 100;   // 109.4 of 547 from the left
    y.origin = -100;  // 76.2 of 381 below
    const GraphAnchor cross = Anchor(x, y);
    EXPECT_EQ(cross.viewport.x, 166);
    EXPECT_EQ(cross.viewport.y, 492);
    EXPECT_EQ(cross.window.x, 166);
    EXPECT_EQ(cross.window.y, -41);
    EXPECT_TRUE(x.HasOriginInside());
    EXPECT_FALSE(y.HasOriginInside());
    // However far off the origin is, the plot stays where it is.
    for (const float origin : {1e30F, -1e30F, 2e6F, -3e7F, huge, infinity, notANumber}) {
        x.origin = y.origin = origin;
        const GraphAnchor far = Anchor(x, y);
        EXPECT_NEAR(far.viewport.x, far.window.x, 1) << origin;
        EXPECT_NEAR(far.viewport.y + far.window.y, 416 + 35, 1) << origin;
    }
}

TEST(GraphLayout, ValuesAndPositions) {
    const AxisScale scale = {0, 500, 57, 604};
    EXPECT_EQ(scale.Logical(0), 57);
    EXPECT_EQ(scale.Logical(250), 330);  // 330.5
    EXPECT_EQ(scale.Logical(500), 604);
    EXPECT_EQ(scale.Logical(-60), -8);    // -8.6, cut toward zero
    EXPECT_EQ(scale.Logical(-52.5F), 0);  // -0.4
    EXPECT_FLOAT_EQ(scale.Value(330), 249.54296F);
    EXPECT_FLOAT_EQ(scale.Value(-1000), -966.1792F);
    const AxisScale reversed = {10, -10, 0, 200};
    EXPECT_EQ(reversed.Logical(-10), 200);
    EXPECT_EQ(reversed.Logical(5), 50);
    EXPECT_EQ(reversed.Value(150), -5.0F);
    for (const AxisScale& bad : {AxisScale{5, 5, 0, 100}, {0, 5, 7, 7}, {0, infinity, 0, 9}, {notANumber, 1, 0, 9}}) {
        EXPECT_FALSE(bad.IsUsable());
        EXPECT_FALSE(bad.Value(3) > bad.minimum);
    }
}

TEST(GraphLayout, MarksDivideTheAxis) {
    const Marks marks({0, 500, 57, 604}, 3, 3);
    EXPECT_EQ(marks.major, (std::vector<float>{0, 250, 500}));
    EXPECT_EQ(marks.minor, (std::vector<float>{62.5F, 125, 187.5F, 312.5F, 375, 437.5F}));
    const Marks reversed({10, -10, 0, 200}, 3, 1);
    EXPECT_EQ(reversed.major, (std::vector<float>{10, 0, -10}));
    EXPECT_TRUE(reversed.minor.empty());
    const Marks single({2, 500, 0, 100}, 1, 5);
    EXPECT_EQ(single.major, std::vector<float>{2});
    EXPECT_TRUE(single.minor.empty());
    for (const int none : {0, -1, INT_MIN})
        EXPECT_TRUE(Marks({0, 500, 0, 100}, none, none).major.empty());
    // As many as fill the axis, and no more.
    const Marks full({0, 500, 0, 100}, INT_MAX, INT_MAX);
    EXPECT_GE(full.major.size(), 200U);
    EXPECT_LE(full.major.size() + full.minor.size(), 1000U);
    const Marks filled({0, 500, 0, 100}, 2, INT_MAX);
    for (std::size_t i = 1; i < filled.minor.size(); ++i)
        EXPECT_LT(filled.minor[i] - filled.minor[i - 1], 5.0F);
    for (const float mark : Marks({-huge, huge, 0, 100}, 5, 5).minor)
        EXPECT_TRUE(std::isfinite(mark));
}

TEST(GraphLayout, LabelTexts) {
    EXPECT_EQ(Label(0, 0, 2), "   0.00");
    EXPECT_EQ(Label(250, 0, 2), " 250.00");
    EXPECT_EQ(Label(500, 3, 2), "   0.50");
    EXPECT_EQ(Label(-1234.5F, 0, 0), "  -1234");
    EXPECT_EQ(Label(0.0625F, -2, 1), "    6.2");
    EXPECT_EQ(Label(1, 0, 5), "1.00000");
    EXPECT_EQ(Label(12345, 4, 4), " 1.2345");
    EXPECT_EQ(Label(1, 0, 3), "  1.000");
    EXPECT_EQ(Label(1, 0, 6), "   1.00");
    EXPECT_EQ(Label(1, 0, -1), "   1.00");
    EXPECT_EQ(Label(5, INT_MAX, 2), "   0.00");
    EXPECT_EQ(Label(5, INT_MIN, 2), "");
    EXPECT_EQ(Label(notANumber, 0, 2), "");
    EXPECT_EQ(Label(-huge, -260, 5).size(), 306U);  // 299 digits, sign, point, decimals
}

TEST(CurvePath, CutsWhatIsFarOff) {
    const GraphScales scales = {{0, 100, 0, 100}, {0, 100, 0, 100}};
    const IntRect area = {-1000, -1000, 1000, 1000};
    EXPECT_EQ(Path(scales, area, {{1, 2}, {3.9F, 4}, {-5.9F, 500}}), "M1,2 L3,4 L-5,500");
    // Halfway up to the right side, and on from there.
    EXPECT_EQ(Path(scales, area, {{0, 0}, {1e9F, 5e8F}, {50, 50}}), "M0,0 L1000,500 M1000,524 L50,50");
    EXPECT_EQ(Path(scales, area, {{-huge, -huge}, {huge, huge}}), "M-1000,-1000 L1000,1000");
    EXPECT_EQ(Path(scales, area, {{5000, 0}, {5000, 90}, {0, 5000}}), "");
    EXPECT_EQ(Path(scales, area, {{1, 1}, {2, 2}, {notANumber, 3}, {4, 4}, {5, infinity}, {6, 6}, {7, 7}}),
              "M1,1 L2,2 M4,4 M6,6 L7,7");
    EXPECT_EQ(Path(scales, area, {}), "");
    // Thin lines reach as far as there are positions, wide ones a little further than they are wide.
    EXPECT_EQ(DrawingArea(scales, 1).left, -furthestPosition);
    EXPECT_EQ(DrawingArea(scales, 100).bottom, 100 + 2148);
    ExpectRect(DrawingArea(scales, INT_MIN), INT_MIN, INT_MIN, INT_MAX, INT_MAX);
}

TEST(CurvePath, CutSegmentsStayOnTheirLine) {
    const IntRect area = {-2000, -1500, 3000, 2500};
    std::mt19937 random(7);
    std::uniform_real_distribution<double> magnitude(0, 7), sign(-1, 1);
    const auto coordinate = [&] { return std::copysign(std::pow(10.0, magnitude(random)), sign(random)); };
    int cut = 0;
    for (int i = 0; i < 20000; ++i) {
        const RealPoint a = {coordinate(), coordinate()}, b = {coordinate(), coordinate()};
        RealPoint from = a, to = b;
        if (!ClipSegment(area, from, to)) continue;
        ++cut;
        const double length = std::hypot(b.x - a.x, b.y - a.y);
        for (const RealPoint& end : {from, to}) {
            ASSERT_TRUE(LiesIn({area.left - 1, area.top - 1, area.right + 1, area.bottom + 1}, end));
            ASSERT_LT(std::fabs((b.x - a.x) * (end.y - a.y) - (b.y - a.y) * (end.x - a.x)) / length, 1e-3);
        }
    }
    EXPECT_GT(cut, 10000);
}

TEST(CurvePath, FirstPointUnderTheCursor) {
    const GraphScales scales = {{0, 500, 0, 500}, {0, 500, 0, 500}};
    const std::vector<tagPoints> points = {{notANumber, 100}, {300, 300}, {100, 100}, {104, 100}, {1e30F, -1e30F}};
    const auto hit = [&](int x, int y, HitAxes axes = {}) { return FirstPointNear(scales, points, {x, y}, axes); };
    EXPECT_EQ(hit(104, 96), 2);
    EXPECT_EQ(hit(105, 100), 3);
    EXPECT_EQ(hit(100, 105), -1);
    EXPECT_EQ(hit(INT_MIN, INT_MIN), -1);
    EXPECT_EQ(hit(-900, 304, {.x = false}), 1);
    EXPECT_EQ(hit(96, 9000, {.y = false}), 2);
    EXPECT_EQ(FirstPointNear({{0, 500, 7, 7}, {0, 500, 0, 500}}, points, {7, 100}, {}), -1);
}
