// Display look-up tables.
#include "image/kernel/DisplayLut.h"

#include "core/kernel/Numbers.h"

namespace kest {

constexpr std::size_t levels = 256;

void MakeIdentity(std::span<tagPoints> points) {
    const std::size_t step = levels / points.size();
    for (std::size_t k = 0; k < points.size(); ++k) points[k].x = points[k].y = static_cast<float>(k * step);
}

bool HasLevelSteps(std::span<const tagPoints> points) {
    const std::size_t step = levels / points.size();
    for (std::size_t k = 0; k < points.size(); ++k)
        if (points[k].x != static_cast<float>(k * step)) return false;
    return true;
}

std::uint8_t ClampLevel(float y, double scale, std::uint8_t top) {
    if (y >= 255.0F) return top;
    if (!(y >= 0.0F)) return 0;
    return TruncateToByte(y * scale);
}

void FillColourChannel(std::span<const tagPoints> points, std::span<std::uint8_t> colours, int byteInColour) {
    if (colours.empty()) return;
    for (std::size_t k = 0; k < levels; ++k) colours[4 * k + byteInColour] = ClampLevel(points[k].y, 1.0, 255);
}

void FillGrayIndices(std::span<const tagPoints> points, std::span<std::uint16_t> indices) {
    if (indices.empty()) return;
    const std::size_t step = levels / points.size();
    const double scale = 1.0 / static_cast<double>(step);
    const auto top = static_cast<std::uint8_t>(points.size() - 1);
    for (std::size_t k = 0; k < points.size(); ++k) {
        const std::uint8_t level = ClampLevel(points[k].y, scale, top);
        for (std::size_t i = 0; i < step; ++i) indices[k * step + i] = level;
    }
}

void SpreadIndices(const std::uint16_t* indices, std::span<std::uint8_t> colours) {
    for (std::size_t k = 0; k < levels; ++k) {
        const auto gray = static_cast<std::uint8_t>(indices[k]);
        colours[4 * k] = colours[4 * k + 1] = colours[4 * k + 2] = gray;
        colours[4 * k + 3] = 0;
    }
}

}  // namespace kest
