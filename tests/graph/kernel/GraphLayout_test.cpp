// The layout of a graph against values worked out by hand: plot area, mapping, marks, labels, and the path of a curve.
#include "graph/kernel/GraphLayout.h"
#include "graph/kernel/AxisLabels.h"
#include "graph/kernel/CurvePath.h"
#include "graph/kernel/GraphView.h"
#include "support/KernelTests.h"

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

using Ints = std::vector<int>;
using Floats = std::vector<float>;

std::string Label(float value, int exponent, int precision) {
    LabelText text;
    return std::string(text, static_cast<std::size_t>(WriteLabel(text, value, exponent, precision)));
}

/// The major and the minor marks.
std::pair<Floats, Floats> Marks(const AxisScale& scale, int majors, int minors) {
    Floats major, minor;
    ForEachMark(scale, {-1e9, 1e9}, majors, minors,
                [&](float value, bool isMajor) { (isMajor ? major : minor).push_back(value); });
    return {major, minor};
}

/// A path as text: "M x,y" and "L x,y".
std::string Path(const GraphScales& scales, const IntRect& area, std::vector<tagPoints> points) {
    std::string path;
    const auto step = [&](const char* kind) {
        return [&path, kind](IntPoint to) { path += kind + std::to_string(to.x) + ',' + std::to_string(to.y); };
    };
    PathTracer tracer(scales, area);
    for (const tagPoints& point : points) tracer.Add(point, step(" M"), step(" L"));
    return path;
}

}  // namespace

TEST(GraphLayout, LabelsOfAnySizeEndSomewhere) {
    const IntRect wild = PlotArea({0, 0, 640, 480}, Axis(0, 1, INT_MIN), Axis(0, 1, INT_MAX), {INT_MAX, INT_MAX});
    EXPECT_EQ(wild, (IntRect{INT_MIN, INT_MAX, INT_MIN, INT_MIN}));
    EXPECT_FALSE(IsDrawable(ScalesOf(plain, plain, wild)));
}

TEST(GraphLayout, TheOriginCrossIsTheAnchor) {
    const auto anchorAt = [](float xOrigin, float yOrigin) {
        GraphAxis x = plain, y = plain;
        x.origin = xOrigin;
        y.origin = yOrigin;
        const auto [viewport, window] = AnchorOf(x, y, ScalesOf(x, y, {57, 35, 604, 416}));
        return Ints{viewport.x, viewport.y, window.x, window.y};
    };
    // 109.4 of 547 from the left, 76.2 of 381 below.
    EXPECT_EQ(anchorAt(100, -100), (Ints{166, 492, 166, -41}));
    // However far off the origin is, the plot stays where it is.
    for (const float origin : {1e30F, -1e30F, 2e6F, -3e7F, huge, infinity, notANumber}) {
        const Ints mapped = anchorAt(origin, origin);
        EXPECT_NEAR(mapped[0], mapped[2], 1) << origin;
        EXPECT_NEAR(mapped[1] + mapped[3], 416 + 35, 1) << origin;
    }
}

TEST(GraphLayout, ValuesAndPositions) {
    const AxisScale scale = {0, 500, 57, 604};
    // 57, 330.5, 604, -8.6 and -0.4, cut toward zero.
    const Ints positions = {scale.Logical(0), scale.Logical(250), scale.Logical(500), scale.Logical(-60),
                            scale.Logical(-52.5F)};
    EXPECT_EQ(positions, (Ints{57, 330, 604, -8, 0}));
    EXPECT_FLOAT_EQ(scale.Value(-1000), -966.1792F);
    for (const AxisScale& bad : {AxisScale{5, 5, 0, 100}, {0, 5, 7, 7}, {0, infinity, 0, 9}, {notANumber, 1, 0, 9}}) {
        EXPECT_FALSE(bad.IsUsable());
        EXPECT_FALSE(bad.Value(3) > bad.minimum);
    }
}

TEST(GraphLayout, MarksDivideTheAxis) {
    EXPECT_EQ(Marks({10, -10, 0, 200}, 3, 1), std::pair(Floats{10, 0, -10}, Floats{}));
    EXPECT_EQ(Marks({2, 500, 0, 100}, 1, 5), std::pair(Floats{2}, Floats{}));
    EXPECT_EQ(Marks({0, 500, 0, 100}, INT_MIN, INT_MIN), std::pair(Floats{}, Floats{}));
    // As many as fill the axis, and no more.
    const auto [major, minor] = Marks({0, 500, 0, 100}, INT_MAX, INT_MAX);
    EXPECT_GE(major.size(), 200U);
    EXPECT_LE(major.size() + minor.size(), 1000U);
}

TEST(GraphLayout, LabelTexts) {
    EXPECT_EQ(Label(0, 0, 2) + Label(500, 3, 2) + Label(-1234.5F, 0, 0) + Label(0.0625F, -2, 1) + Label(1, 0, 5) +
                  Label(1, 0, -1) + Label(5, INT_MAX, 2),
              "   0.00   0.50  -1234    6.21.00000   1.00   0.00");
    EXPECT_EQ(Label(5, INT_MIN, 2) + Label(notANumber, 0, 2), "");
    EXPECT_EQ(Label(-huge, -260, 5).size(), 306U);  // 299 digits, sign, point, decimals
}

TEST(CurvePath, CutsWhatIsFarOff) {
    const GraphScales scales = {{0, 100, 0, 100}, {0, 100, 0, 100}};
    const IntRect area = {-1000, -1000, 1000, 1000};
    // Halfway up to the right side, and on from there.
    EXPECT_EQ(Path(scales, area, {{0, 0}, {1e9F, 5e8F}, {50, 50}}), " M0,0 L1000,500 M1000,524 L50,50");
    EXPECT_EQ(Path(scales, area, {{-huge, -huge}, {huge, huge}}), " M-1000,-1000 L1000,1000");
    EXPECT_EQ(Path(scales, area, {{5000, 0}, {5000, 90}, {0, 5000}}), "");
    EXPECT_EQ(Path(scales, area, {{1, 1}, {2, 2}, {notANumber, 3}, {4, 4}, {5, infinity}, {6, 6}, {7, 7}}),
              " M1,1 L2,2 M4,4 M6,6 L7,7");
    // The area's sides belong to it.
    EXPECT_EQ(Path(scales, area, {{0, 0}, {1000, 1000}, {-1000, -1000}, {5, 5}}), " M0,0 L1000,1000 L-1000,-1000 L5,5");
    // Thin lines reach as far as there are positions, wide ones a little further than they are wide.
    const GraphView view = {{-5000, -5000, 5000, 5000}, {1, 1}, true};
    EXPECT_EQ(DrawingArea(scales, view, 1).left, -furthestPosition);
    EXPECT_EQ(DrawingArea(scales, view, 100).bottom, 100 + 2148);
}

TEST(GraphView, KeepsToTheSurface) {
    // Ten pixels a unit, upward; the surface and 2048 pixels beside it, and a unit more.
    GraphView view;
    const GraphMapping mapping = {{100, 200}, {50, 400}, {1, -1}, {10, 10}};
    ASSERT_TRUE(ViewOf(mapping, {0, 0, 800, 600}, font, view));
    EXPECT_EQ(view.area, (IntRect{100 - 211, 200 - 226, 100 + 281, 200 + 246}));
    EXPECT_TRUE(view.hasTexts);
    EXPECT_EQ(BoundedPenWidth(view, INT_MIN), -1000);
    EXPECT_TRUE(ViewOf({{}, {}, {1, -1}, {801, 1}}, {0, 0, 800, 600}, font, view));
    EXPECT_FALSE(ViewOf({{}, {}, {1, -1}, {10001, 1}}, {0, 0, 800, 600}, font, view));
    EXPECT_FALSE(ViewOf({{}, {}, {0, 1}, {1, 1}}, {0, 0, 800, 600}, font, view));

    const auto cut = [](IntPoint from, IntPoint to) {
        return CutLine({-10, -20, 100, 200}, from, to) ? Ints{from.x, from.y, to.x, to.y} : Ints{};
    };
    // The start moves by whole periods of dashes.
    EXPECT_EQ(cut({INT_MIN, 5}, {INT_MAX, 5}), (Ints{-32, 5, 100, 5}));
    EXPECT_EQ(cut({7, 300}, {7, -300}), (Ints{7, 204, 7, -20}));
    EXPECT_EQ(cut({101, 0}, {101, 50}), Ints{});
    EXPECT_EQ(cut({-90, 0}, {-11, 0}), Ints{});
    // Of marks, those that can show.
    Floats marks;
    ForEachMark({0, 1000000, -500000, 500000}, {-2, 2}, 1000001, 0, [&](float value, bool) { marks.push_back(value); });
    EXPECT_LE(marks.front(), 499998);
    EXPECT_GE(marks.back(), 500002);
    EXPECT_LE(marks.size(), 20U);
}
