// Fitting, converting and the area map, against formulas in double precision and against the plain loops.
#include "calib/kernel/Perspective.h"
#include "calib/kernel/CalibrationFile.h"
#include "calib/kernel/LinearSolver.h"
#include "support/KernelTests.h"

using kest::InstructionSet;
using kest::Perspective;

namespace {

const std::vector<InstructionSet> allSets = {InstructionSet::Baseline, kest::BestInstructionSet()};
constexpr Perspective tilted = {{{0.0125F, 0.0021F, 1.5F}, {-0.0017F, 0.0136F, 0.25F}, {2.5e-4F, -1.5e-4F, 1.0F}}};

/// The same bits, but a not-a-number of any sign and payload is one value.
bool AreSame(std::span<const float> a, std::span<const float> b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](float left, float right) {
        return std::bit_cast<std::uint32_t>(left) == std::bit_cast<std::uint32_t>(right) ||
               (std::isnan(left) && std::isnan(right));
    });
}

std::vector<Perspective> Mappings() {
    // The horizon in the image, infinite and tiny results, no mapping at all.
    std::vector<Perspective> mappings = {{},
                                         tilted,
                                         {{{0.01F, 0, 0}, {0, 0.01F, 0}, {0, 0, 1}}},
                                         {{{0, 0, 0}, {0, 0, 0}, {0, 0, 0}}},
                                         {{{1, 0.5F, 3}, {0.25F, 1, -7}, {-0.01F, 0, 1}}},
                                         {{{1e30F, 3e37F, 0}, {0, 1e38F, 0}, {0, 0, 1e-3F}}},
                                         {{{1e-38F, 0, 0}, {0, 3e-39F, 0}, {0, 0, 1}}},
                                         {{{NAN, 0, 0}, {0, 1, 0}, {0, 0, 1}}}};
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

    float singular[] = {1, 2, 2, 4}, undefined[] = {NAN, NAN, NAN, NAN}, unused[] = {1, 1};
    EXPECT_FALSE(kest::SolveGaussJordan({singular, 2, 2}, {unused, 2, 1}));
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
        const float x = std::floor(column(random)), dx = std::floor(column(random) / 8);
        const float y = std::floor(row(random)), dy = std::floor(row(random) / 8);
        const tagPoints line[] = {{x, y}, {x + dx, y + dy}, {column(random), row(random)}, {x + 3 * dx, y + 3 * dy}};
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
}

TEST(Perspective, ManyPointsAreBitForBitThoseOfOne) {
    std::vector<tagPoints> image(1003);
    std::mt19937 random(11);
    std::uniform_real_distribution<float> coordinate(-2000, 2000);
    for (tagPoints& point : image) point = {coordinate(random), coordinate(random)};
    image[5].y = INFINITY;
    image[6].x = NAN;
    for (const Perspective& mapping : Mappings())
        for (const InstructionSet set : allSets) {
            std::vector<tagPoints> world = image, wanted;
            for (const tagPoints& point : image) wanted.push_back(kest::ImageToWorld(mapping, point));
            kest::ImageToWorld(mapping, world, world, set);
            ASSERT_TRUE(AreSame({&world[0].x, 2 * world.size()}, {&wanted[0].x, 2 * wanted.size()}));
        }
}

TEST(AreaMap, IsBitForBitTheFormulaAtEachPixel) {
    // One column, the width of a tile and its neighbours, several tiles.
    const int sizes[][2] = {{1, 1}, {1, 9}, {3, 2}, {255, 3}, {256, 3}, {257, 3}, {700, 41}};
    for (const Perspective& mapping : Mappings())
        for (const auto& [width, height] : sizes) {
            std::vector<float> wanted;
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x) wanted.push_back(kest::PixelArea(mapping, x, y));
            for (const InstructionSet set : allSets) {
                std::vector<float> map(wanted.size());
                kest::FillAreaMap(mapping, width, height, map, set);
                ASSERT_TRUE(AreSame(map, wanted)) << width << " x " << height;
            }
        }
}

TEST(CalibrationFile, HeadersComeBackAndMapsHaveASize) {
    std::vector<std::uint8_t> bytes(kest::headerBytesVersion2), again(kest::headerBytesVersion2);
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::uint8_t>(i % 7 + 33);
    kest::CalibrationHeader header = {};
    kest::ReadVersion1(std::span(bytes).first<kest::headerBytesVersion1>(), header);
    kest::ReadPoints(std::span(bytes).last<64>(), header);
    EXPECT_EQ(std::strlen(header.units), kest::unitsFieldBytes);
    header.mapping.h[2][2] = 1;
    kest::WriteVersion2(header, std::span<std::uint8_t, kest::headerBytesVersion2>(again));
    // Type and version, the ninth element and the name's end are the writer's own.
    EXPECT_TRUE(std::equal(bytes.begin() + 392, bytes.end(), again.begin() + 392));
    EXPECT_TRUE(std::equal(bytes.begin() + 268, bytes.begin() + 380, again.begin() + 268));
    EXPECT_EQ(kest::AreaMapBytes(3, 5), 60);
    for (const auto& [width, height] : {std::pair{0, 5}, {5, -1}, {INT_MAX, INT_MAX}, {1 << 15, 1 << 15}})
        EXPECT_EQ(kest::AreaMapBytes(width, height), 0) << width;
}
