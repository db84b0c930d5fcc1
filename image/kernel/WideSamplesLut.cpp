// Point lists of the wide grayscale images.
#include "image/kernel/WideSamplesLut.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace kest {
namespace {

/// One part of the display range, of one less than `count` parts.
float PartOfRange(std::size_t count) {
    return count == 256 ? 0.003921569F : count == 128 ? 0.007874016F : 0.015873017F;
}

double FarthestDistance(std::span<const tagPoints> points, const DisplayMapping& mapping) {
    const auto [first, last] = std::minmax_element(points.begin(), points.end(),
                                                   [](const tagPoints& a, const tagPoints& b) { return a.x < b.x; });
    const double smallest = first->x, largest = last->x, low = mapping.displayMin, high = mapping.displayMax;
    return std::max({largest - smallest, std::abs(high - low), std::abs(high - smallest), std::abs(largest - low)});
}

}  // namespace

void SpreadPoints(std::span<tagPoints> points, float displayMin, float displayMax) {
    const float step = (displayMax - displayMin) * PartOfRange(points.size());
    float x = displayMin;
    for (tagPoints& point : points) {
        point.x = x;
        x += step;
    }
}

void PickLevels(std::span<const tagPoints> points, const DisplayMapping& mapping, std::span<tagPoints> levels) {
    const double farthest = FarthestDistance(points, mapping);
    const int levelStep = static_cast<int>(256 / points.size());
    for (std::size_t k = 0; k < points.size(); ++k) {
        const double sample = mapping.SampleAt(static_cast<int>(k) * levelStep);
        const tagPoints* nearest = &points[0];
        double nearestDistance = farthest;
        for (const tagPoints& point : points) {
            const double distance = std::abs(sample - point.x);
            if (!(distance < nearestDistance)) continue;
            nearestDistance = distance;
            nearest = &point;
        }
        levels[k] = {static_cast<float>(static_cast<int>(k) * levelStep), nearest->y};
    }
}

}  // namespace kest
