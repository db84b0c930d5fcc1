// Lines and ellipses of any size, pixel by pixel in an area, beside their equations.
#include "roi/kernel/FarFigures.h"
#include "support/KernelTests.h"

using namespace kest;

namespace {

/// The vertices, each stretch for itself.
struct Recorder {
    std::vector<std::vector<IntPoint>> stretches;
    bool isOpen = false;

    void Add(IntPoint point) {
        if (!isOpen) stretches.emplace_back();
        isOpen = true;
        stretches.back().push_back(point);
    }
    void End() { isOpen = false; }
    void Close() { End(); }
};

int Randomly(std::mt19937& random, long long low, long long high) {
    return static_cast<int>(std::uniform_int_distribution<long long>(low, high)(random));
}

}  // namespace

TEST(FarFigures, LinesOfAnyLengthKeepToTheirEquation) {
    const IntRect area = {-300, -200, 400, 500};
    std::mt19937 random(1);
    int seen = 0;
    for (int round = 0; round < 4000; ++round) {
        const long long reach = round % 2 ? INT_MAX : 1000000;
        IntPoint a = {Randomly(random, -reach, reach), Randomly(random, -reach, reach)};
        // Through a point of the area and as far again, where that is a number.
        IntPoint b = {Saturate(Size64{Randomly(random, -300, 400)} * 2 - a.x),
                      Saturate(Size64{Randomly(random, -200, 500)} * 2 - a.y)};
        Recorder recorder;
        TraceLine(a, b, area, recorder);
        const long double dx = static_cast<long double>(b.x) - a.x, dy = static_cast<long double>(b.y) - a.y;
        for (const auto& stretch : recorder.stretches)
            for (const IntPoint pixel : stretch) {
                const long double off = std::abs(dx) >= std::abs(dy) ? pixel.y - (a.y + (pixel.x - a.x) * (dy / dx))
                                                                     : pixel.x - (a.x + (pixel.y - a.y) * (dx / dy));
                ASSERT_LE(std::abs(off), 0.50001L) << a.x << ' ' << a.y << ' ' << b.x << ' ' << b.y;
                ++seen;
            }
        ASSERT_TRUE(recorder.stretches.empty() || ClipLine(area, a, b));
    }
    EXPECT_GT(seen, 100000);
}

TEST(FarFigures, EllipsesOfAnySizeKeepToTheirEquation) {
    const IntRect area = {0, 0, 700, 500};
    std::mt19937 random(2);
    int seen = 0;
    for (int round = 0; round < 2000; ++round) {
        const auto extent = [&] { return Randomly(random, 0, round % 3 == 0 ? 900 : 1 << (10 + round % 20)); };
        const long double a = extent() / 2.0L, b = extent() / 2.0L, angle = round;
        const auto left = static_cast<int>(350 - a - a * std::cos(angle)),
                   top = static_cast<int>(250 - b - b * std::sin(angle));
        const IntRect box = {left, top, left + static_cast<int>(2 * a), top + static_cast<int>(2 * b)};
        Recorder recorder;
        TraceEllipse(box, area, recorder);
        for (const auto& stretch : recorder.stretches) {
            IntPoint last = stretch[0];
            for (const IntPoint pixel : stretch) {
                // Where rows take over from columns a sharp bend can pass a pixel.
                ASSERT_LE(std::max(std::abs(pixel.x - last.x), std::abs(pixel.y - last.y)), 2);
                last = pixel;
                const long double x = std::abs(pixel.x - (left + a)), y = std::abs(pixel.y - (top + b));
                const auto half = [](long double along, long double place, long double across) {
                    return across == 0 || place >= across ? 0
                                                          : along * std::sqrt(1 - place / across * (place / across));
                };
                // In one of the two directions the outline is half a pixel away at most.
                ASSERT_LE(std::min(std::abs(y - half(b, x, a)), std::abs(x - half(a, y, b))), 0.5001L)
                    << box.left << ' ' << box.top << ' ' << box.right << ' ' << box.bottom << " at " << pixel.x << ' '
                    << pixel.y;
                ++seen;
            }
        }
    }
    EXPECT_GT(seen, 100000);
}
