// A picture that the project makes itself: a flat plate with objects of known sizes, seen at an angle.
#include "SamplePlate.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

namespace example {
namespace {

constexpr double pi = 3.14159265358979323846;

constexpr PlateMark marks[] = {{0, 0, 70, 50}, {100, 0, 590, 70}, {100, 75, 540, 430}, {0, 75, 110, 410}};

constexpr PlateObject objects[] = {
    {"disc", PlateShape::Disc, 20, 20, 10, 0},          {"rectangle", PlateShape::Rectangle, 55, 19, 30, 20},
    {"ring", PlateShape::Ring, 20, 54, 12, 6},          {"ellipse", PlateShape::Ellipse, 54, 54, 15, 9},
    {"triangle", PlateShape::Triangle, 85, 52, 18, 20}, {"square", PlateShape::Rectangle, 86, 18, 14, 14},
};

/// A perspective mapping of the plane: rows of a 3 x 3 matrix, the last element 1.
using Perspective = std::array<double, 9>;

std::pair<double, double> Map(const Perspective& h, double x, double y) {
    const double w = h[6] * x + h[7] * y + h[8];
    return {(h[0] * x + h[1] * y + h[2]) / w, (h[3] * x + h[4] * y + h[5]) / w};
}

/// Through four point pairs, by elimination.
Perspective Through(const std::array<std::array<double, 4>, 4>& pairs) {
    double rows[8][9] = {};
    for (int i = 0; i < 4; ++i) {
        const auto [x, y, u, v] = pairs[static_cast<std::size_t>(i)];
        const double first[9] = {x, y, 1, 0, 0, 0, -u * x, -u * y, u},
                     second[9] = {0, 0, 0, x, y, 1, -v * x, -v * y, v};
        std::copy(first, first + 9, rows[2 * i]);
        std::copy(second, second + 9, rows[2 * i + 1]);
    }
    for (int column = 0; column < 8; ++column) {
        int pivot = column;
        for (int row = column; row < 8; ++row)
            if (std::fabs(rows[row][column]) > std::fabs(rows[pivot][column])) pivot = row;
        std::swap(rows[pivot], rows[column]);
        for (int row = 0; row < 8; ++row) {
            if (row == column) continue;
            const double factor = rows[row][column] / rows[column][column];
            for (int k = column; k < 9; ++k) rows[row][k] -= factor * rows[column][k];
        }
    }
    Perspective h;
    for (std::size_t i = 0; i < 8; ++i) h[i] = rows[i][8] / rows[i][i];
    h[8] = 1;
    return h;
}

Perspective ThroughMarks(bool isToWorld) {
    std::array<std::array<double, 4>, 4> pairs;
    for (std::size_t i = 0; i < 4; ++i) {
        const PlateMark& mark = marks[i];
        const double pixelX = mark.pixelX, pixelY = mark.pixelY;
        pairs[i] = isToWorld ? std::array<double, 4>{pixelX, pixelY, mark.worldX, mark.worldY}
                             : std::array<double, 4>{mark.worldX, mark.worldY, pixelX, pixelY};
    }
    return Through(pairs);
}

/// The share of a pixel that objects cover.
double Coverage(const Perspective& toWorld, int x, int y) {
    constexpr int samples = 6;
    int covered = 0;
    for (int i = 0; i < samples * samples; ++i) {
        const auto [worldX, worldY] =
            Map(toWorld, x - 0.5 + (i % samples + 0.5) / samples, y - 0.5 + (i / samples + 0.5) / samples);
        covered +=
            std::any_of(std::begin(objects), std::end(objects),
                        [wx = worldX, wy = worldY](const PlateObject& object) { return object.Contains(wx, wy); });
    }
    return covered / static_cast<double>(samples * samples);
}

}  // namespace

std::span<const PlateMark> PlateMarks() { return marks; }
std::span<const PlateObject> PlateObjects() { return objects; }

double PlateObject::Area() const {
    switch (shape) {
        case PlateShape::Disc: return pi * sizeA * sizeA;
        case PlateShape::Rectangle: return sizeA * sizeB;
        case PlateShape::Ring: return pi * (sizeA * sizeA - sizeB * sizeB);
        case PlateShape::Ellipse: return pi * sizeA * sizeB;
        case PlateShape::Triangle: return sizeA * sizeB / 2;
    }
    return 0;
}

bool PlateObject::Contains(double worldX, double worldY) const {
    const double x = worldX - centreX, y = worldY - centreY;
    switch (shape) {
        case PlateShape::Disc: return std::hypot(x, y) <= sizeA;
        case PlateShape::Rectangle: return std::fabs(x) <= sizeA / 2 && std::fabs(y) <= sizeB / 2;
        case PlateShape::Ring: return std::hypot(x, y) <= sizeA && std::hypot(x, y) >= sizeB;
        case PlateShape::Ellipse: return std::hypot(x / sizeA, y / sizeB) <= 1;
        case PlateShape::Triangle:
            return y >= -sizeB / 2 && y <= sizeB / 2 && std::fabs(x) <= sizeA / 2 * (sizeB / 2 - y) / sizeB;
    }
    return false;
}

tagPoints PlatePixel(double worldX, double worldY) {
    const auto [x, y] = Map(ThroughMarks(false), worldX, worldY);
    return {static_cast<float>(x), static_cast<float>(y)};
}

bool MakePlate(CcGrayImage256& image) {
    if (image.MakeBlankBMP(plateHeightPixels, plateWidthPixels, 0, "plate") < 0) return false;
    const Perspective toWorld = ThroughMarks(true);
    auto* pixels = static_cast<unsigned char*>(image.GetBitMapImageData());
    std::uint32_t seed = 12345;
    for (int y = 0; y < plateHeightPixels; ++y)
        for (int x = 0; x < plateWidthPixels; ++x) {
            seed = seed * 1664525u + 1013904223u;
            const double noise = static_cast<int>(seed >> 24) % 9 - 4.0;
            const double light = 18.0 * x / plateWidthPixels - 9 + 10.0 * y / plateHeightPixels;
            const auto [worldX, worldY] = Map(toWorld, x, y);
            const bool isOnPlate = worldX > -6 && worldX < 106 && worldY > -6 && worldY < 81;
            const double ground = isOnPlate ? 65 : 25, part = Coverage(toWorld, x, y);
            // Half covered is the threshold level, whatever the light.
            const double level =
                part > 0 ? plateThreshold + (part - 0.5) * 2 * (part > 0.5 ? 65 + light : 65 - light) : ground + light;
            pixels[y * plateWidthPixels + x] =
                static_cast<unsigned char>(std::clamp(level + (part == 0 || part == 1 ? noise : 0), 0.0, 255.0));
        }
    for (const PlateMark& mark : marks)
        for (int i = -7; i <= 7; ++i) {
            pixels[mark.pixelY * plateWidthPixels + mark.pixelX + i] = 5;
            pixels[(mark.pixelY + i) * plateWidthPixels + mark.pixelX] = 5;
        }
    return true;
}

}  // namespace example
