// The perspective mapping between an image and a plane of the world.
#include "calib/kernel/Perspective.h"

#include <cmath>

#include "calib/kernel/LinearSolver.h"

namespace kest {
namespace {

constexpr std::size_t unknowns = 8;

/// Exact for image points of at most 24 significant bits.
bool AreOnOneLine(tagPoints a, tagPoints b, tagPoints c) {
    const double abX = static_cast<double>(b.x) - a.x, abY = static_cast<double>(b.y) - a.y;
    const double acX = static_cast<double>(c.x) - a.x, acY = static_cast<double>(c.y) - a.y;
    return abX * acY == abY * acX;
}

/// Three points on a line leave the system singular, though rounding can hide it from the elimination.
bool HasThreeOnOneLine(std::span<const tagPoints, 4> points) {
    return AreOnOneLine(points[0], points[1], points[2]) || AreOnOneLine(points[0], points[1], points[3]) ||
           AreOnOneLine(points[0], points[2], points[3]) || AreOnOneLine(points[1], points[2], points[3]);
}

double Length(tagPoints from, tagPoints to) {
    const double dx = static_cast<double>(from.x) - to.x;
    const double dy = static_cast<double>(from.y) - to.y;
    return std::sqrt(dx * dx + dy * dy);
}

}  // namespace

bool FitPerspective(std::span<const tagPoints, 4> image, std::span<const tagPoints, 4> world, Perspective& mapping) {
    if (HasThreeOnOneLine(image)) return false;
    float matrix[unknowns * unknowns];
    float sides[unknowns];
    float* row = matrix;
    for (std::size_t k = 0; k < 4; ++k) {
        const auto [x, y] = image[k];
        const auto [X, Y] = world[k];
        for (const float value : {x, y, 1.0F, 0.0F, 0.0F, 0.0F, -X * x, -X * y}) *row++ = value;
        for (const float value : {0.0F, 0.0F, 0.0F, x, y, 1.0F, -Y * x, -Y * y}) *row++ = value;
        sides[2 * k] = X;
        sides[2 * k + 1] = Y;
    }
    if (!SolveGaussJordan({matrix, unknowns, unknowns}, {sides, unknowns, 1})) return false;
    const float* s = sides;
    mapping = {{{s[0], s[1], s[2]}, {s[3], s[4], s[5]}, {s[6], s[7], 1.0F}}};
    return true;
}

tagPoints ImageToWorld(const Perspective& mapping, tagPoints image) {
    float sums[3];
    for (int i = 0; i < 3; ++i) {
        const float* h = mapping.h[i];
        sums[i] = static_cast<float>(static_cast<double>(h[0]) * image.x + static_cast<double>(h[1]) * image.y + h[2]);
    }
    return {sums[0] / sums[2], sums[1] / sums[2]};
}

RealPoint ImageToWorldExact(const Perspective& mapping, RealPoint image) {
    double sums[3];
    for (int i = 0; i < 3; ++i) {
        const float* h = mapping.h[i];
        sums[i] = h[0] * image.x + h[1] * image.y + h[2];
    }
    return {sums[0] / sums[2], sums[1] / sums[2]};
}

tagPoints WorldToImage(const Perspective& mapping, tagPoints world) {
    const auto& h = mapping.h;
    const double X = world.x, Y = world.y;
    // Two linear equations: a x + b y = c and d x + e y = f.
    const double a = X * h[2][0] - h[0][0], b = X * h[2][1] - h[0][1], c = h[0][2] - X * h[2][2];
    const double d = Y * h[2][0] - h[1][0], e = Y * h[2][1] - h[1][1], f = h[1][2] - Y * h[2][2];
    return {static_cast<float>((c / b - f / e) / (a / b - d / e)),
            static_cast<float>((c / a - f / d) / (b / a - e / d))};
}

float PixelArea(const Perspective& mapping, int x, int y) {
    const auto centreX = static_cast<float>(x), centreY = static_cast<float>(y);
    const auto right = static_cast<float>(x + 1.0), left = static_cast<float>(x - 1.0);
    const auto up = static_cast<float>(y + 1.0), down = static_cast<float>(y - 1.0);
    const double across = Length(ImageToWorld(mapping, {right, centreY}), ImageToWorld(mapping, {left, centreY}));
    const double along = Length(ImageToWorld(mapping, {centreX, up}), ImageToWorld(mapping, {centreX, down}));
    return static_cast<float>(across * along * 0.25);
}

}  // namespace kest
