// Fitting, converting and the area map, against formulas in double precision and against the plain loops.
#include "calib/kernel/Perspective.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "calib/kernel/LinearSolver.h"

using kest::InstructionSet;
using kest::Perspective;

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr Perspective tilted = {{{0.0125F, 0.0021F, 1.5F}, {-0.0017F, 0.0136F, 0.25F}, {2.5e-4F, -1.5e-4F, 1.0F}}};

std::vector<InstructionSet> AllInstructionSets() {
    std::vector<InstructionSet> sets = {InstructionSet::Baseline};
    if (kest::BestInstructionSet() != InstructionSet::Baseline) sets.push_back(kest::BestInstructionSet());
    return sets;
}

template <class Value>
bool SameBits(const std::vector<Value>& a, const std::vector<Value>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(Value)) == 0;
}

/// Single precision with the not-a-number of any sign and payload as one value.
float Canonical(float value) { return std::isnan(value) ? std::numeric_limits<float>::quiet_NaN() : value; }

std::vector<Perspective> Mappings() {
    // The horizon in the image, infinite and tiny results, no mapping at all.
    std::vector<Perspective> mappings = {
        {}, tilted, {{{0.01F, 0, 0}, {0, 0.01F, 0}, {0, 0, 1}}}, {{{0, 0, 0}, {0, 0, 0}, {0, 0, 0}}},
        {{{1, 0.5F, 3}, {0.25F, 1, -7}, {-0.01F, 0, 1}}}, {{{1e30F, 3e37F, 0}, {0, 1e38F, 0}, {0, 0, 1e-3F}}},
        {{{1e-38F, 0, 0}, {0, 3e-39F, 0}, {0, 0, 1}}}, {{{NAN, 0, 0}, {0, 1, 0}, {0, 0, 1}}}};
    std::mt19937 random(7);
    std::uniform_real_distribution<float> element(-1.0F, 1.0F);
    for (int i = 0; i < 20; ++i) {
        Perspective& mapping = mappings.emplace_back();
        for (auto& row : mapping.h)
            for (float& h : row) h = element(random);
        mapping.h[2][0] *= 1e-3F;
        mapping.h[2][1] *= 1e-3F;
    }
    return mappings;
}

}  // namespace

TEST(LinearSolver, InvertsAndSolvesSeveralSides) {
    // det = 8; inverse and solutions by hand.
    float matrix[] = {0, 2, 1, 2, 0, 1, 1, 1, -1};
    float sides[] = {3, 1, 3, 0, 1, 0};
    ASSERT_TRUE(kest::SolveGaussJordan({matrix, 3, 3}, {sides, 3, 2}));
    const float inverse[] = {-0.125F, 0.375F, 0.25F, 0.375F, -0.125F, 0.25F, 0.25F, 0.25F, -0.5F};
    const float solutions[] = {1, -0.125F, 1, 0.375F, 1, 0.25F};
    for (int i = 0; i < 9; ++i) EXPECT_NEAR(matrix[i], inverse[i], 1e-6F) << i;
    for (int i = 0; i < 6; ++i) EXPECT_NEAR(sides[i], solutions[i], 1e-6F) << i;

    float singular[] = {1, 2, 2, 4};
    float unused[] = {1, 1};
    EXPECT_FALSE(kest::SolveGaussJordan({singular, 2, 2}, {unused, 2, 1}));
    float undefined[] = {NAN, NAN, NAN, NAN};
    EXPECT_FALSE(kest::SolveGaussJordan({undefined, 2, 2}, {unused, 2, 1}));
}

TEST(Perspective, FitsFourPointsAndRefusesThreeOnALine) {
    const tagPoints image[] = {{102, 87}, {560, 120}, {500, 410}, {140, 390}};
    tagPoints world[4];
    for (int i = 0; i < 4; ++i) world[i] = kest::ImageToWorld(tilted, image[i]);
    Perspective mapping;
    ASSERT_TRUE(kest::FitPerspective(image, world, mapping));
    EXPECT_EQ(mapping.h[2][2], 1.0F);
    std::mt19937 random(3);
    std::uniform_real_distribution<float> column(0, 640), row(0, 480);
    for (int i = 0; i < 100; ++i) {
        const tagPoints point = {column(random), row(random)};
        const tagPoints is = kest::ImageToWorld(mapping, point), wanted = kest::ImageToWorld(tilted, point);
        ASSERT_NEAR(is.x, wanted.x, 1e-3F);
        ASSERT_NEAR(is.y, wanted.y, 1e-3F);
        const tagPoints back = kest::WorldToImage(mapping, is);
        ASSERT_NEAR(back.x, point.x, 0.02F);
        ASSERT_NEAR(back.y, point.y, 0.02F);
    }

    // Collinear and coinciding points, whatever the elimination makes of the rounded system.
    for (int i = 0; i < 500; ++i) {
        const tagPoints start = {std::floor(column(random)), std::floor(row(random))};
        const tagPoints step = {std::floor(column(random) / 8), std::floor(row(random) / 8)};
        const tagPoints line[] = {start,
                                  {start.x + step.x, start.y + step.y},
                                  {column(random), row(random)},
                                  {start.x + 3 * step.x, start.y + 3 * step.y}};
        Perspective untouched = tilted;
        ASSERT_FALSE(kest::FitPerspective(line, world, untouched));
        ASSERT_EQ(untouched.h[0][0], tilted.h[0][0]);
    }
}

TEST(Perspective, SumsAreDoubleAndQuotientsSingle) {
    // In single precision the sum of the first row would be 0.
    const Perspective cancelling = {{{16777216.0F, 1.0F, -16777216.0F}, {3, 0, 0}, {7, 0, 0}}};
    const tagPoints world = kest::ImageToWorld(cancelling, {1.0F, 1.0F});
    EXPECT_EQ(world.x, 1.0F / 7.0F);
    EXPECT_EQ(world.y, 3.0F / 7.0F);
    const tagPoints reversed = kest::WorldToImage(Perspective{}, {3, 4});
    EXPECT_FALSE(std::isfinite(reversed.x));
    EXPECT_FALSE(std::isfinite(reversed.y));
}

TEST(Perspective, ManyPointsAreBitForBitThoseOfOne) {
    std::vector<tagPoints> image(1000 + 3);
    std::mt19937 random(11);
    std::uniform_real_distribution<float> coordinate(-2000, 2000);
    for (tagPoints& point : image) point = {coordinate(random), coordinate(random)};
    image[5] = {infinity, 0};
    image[6] = {0, NAN};
    for (const Perspective& mapping : Mappings())
        for (const InstructionSet set : AllInstructionSets()) {
            std::vector<tagPoints> wanted, is = image;
            for (const tagPoints& point : image) wanted.push_back(kest::ImageToWorld(mapping, point));
            kest::ImageToWorld(mapping, is, is, set);
            for (auto* points : {&wanted, &is})
                for (tagPoints& point : *points) point = {Canonical(point.x), Canonical(point.y)};
            ASSERT_TRUE(SameBits(is, wanted));
        }
}

TEST(AreaMap, IsBitForBitTheFormulaAtEachPixel) {
    // One column, the width of a tile and its neighbours, several tiles.
    const int sizes[][2] = {{1, 1}, {1, 9}, {3, 2}, {255, 3}, {256, 3}, {257, 3}, {700, 41}};
    for (const Perspective& mapping : Mappings())
        for (const auto& [width, height] : sizes) {
            std::vector<float> wanted;
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x) wanted.push_back(Canonical(kest::PixelArea(mapping, x, y)));
            for (const InstructionSet set : AllInstructionSets()) {
                std::vector<float> map(wanted.size());
                kest::FillAreaMap(mapping, width, height, map, set);
                for (float& area : map) area = Canonical(area);
                ASSERT_TRUE(SameBits(map, wanted)) << width << " x " << height;
            }
        }
}
