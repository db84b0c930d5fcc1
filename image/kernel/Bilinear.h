// Bilinear interpolation between the four pixels around a position.
#pragma once

#include <cmath>

namespace kest {

/// The whole positions around (x, y); equal to it where it is whole itself.
struct Surroundings {
    double x0, x1, y0, y1;

    Surroundings(float x, float y) : x0(std::floor(x)), x1(std::ceil(x)), y0(std::floor(y)), y1(std::ceil(y)) {}
};

/// Interpolates `pixel(column, row)`. Weights and row sums are rounded to single precision, products are double.
template <class Pixel>
float Interpolate(float x, float y, const Surroundings& around, Pixel pixel) {
    const int left = static_cast<int>(around.x0), right = static_cast<int>(around.x1);
    const int low = static_cast<int>(around.y0), high = static_cast<int>(around.y1);
    const auto rowSum = [&](int row) {
        if (left == right) return static_cast<float>(pixel(left, row));
        const auto weight = static_cast<float>((around.x1 - x) / (around.x1 - around.x0));
        return static_cast<float>((1.0 - weight) * pixel(right, row) + static_cast<double>(weight) * pixel(left, row));
    };
    if (low == high) return rowSum(low);
    const float upper = rowSum(high), lower = rowSum(low);
    const auto weight = static_cast<float>((around.y1 - y) / (around.y1 - around.y0));
    return static_cast<float>((1.0 - weight) * upper + static_cast<double>(weight) * lower);
}

}  // namespace kest
