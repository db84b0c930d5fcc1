// Many points through a perspective mapping, and the area of every pixel.
//
// The loops are plain ones that the compiler turns into vector instructions, once for every processor and once for
// those with AVX2. Each value goes through the same operations, in the same precision, as in the functions for one
// point.
#include <algorithm>
#include <cmath>

#include "calib/kernel/Perspective.h"

namespace kest {
namespace {

constexpr std::size_t pointsAtOnce = 256;

/// The mapping's elements in double precision.
struct Elements {
    double h[9];

    explicit Elements(const Perspective& mapping) {
        for (int i = 0; i < 9; ++i) h[i] = mapping.h[i / 3][i % 3];
    }
};

KEST_INLINED void ConvertAll(const Perspective& mapping, std::span<const tagPoints> image, std::span<tagPoints> world) {
    const Elements elements(mapping);
    const double* h = elements.h;
    for (std::size_t first = 0; first < image.size(); first += pointsAtOnce) {
        const std::size_t count = std::min(pointsAtOnce, image.size() - first);
        const float* in = &image[first].x;
        float* out = &world[first].x;
        float x[pointsAtOnce], y[pointsAtOnce];
        for (std::size_t i = 0; i < count; ++i) {
            x[i] = in[2 * i];
            y[i] = in[2 * i + 1];
        }
        for (std::size_t i = 0; i < count; ++i) {
            const double imageX = x[i], imageY = y[i];
            const auto worldX = static_cast<float>(h[0] * imageX + h[1] * imageY + h[2]);
            const auto worldY = static_cast<float>(h[3] * imageX + h[4] * imageY + h[5]);
            const auto scale = static_cast<float>(h[6] * imageX + h[7] * imageY + h[8]);
            x[i] = worldX / scale;
            y[i] = worldY / scale;
        }
        for (std::size_t i = 0; i < count; ++i) {
            out[2 * i] = x[i];
            out[2 * i + 1] = y[i];
        }
    }
}

/// Columns that are computed together; with a neighbour on either side they fit the first-level cache.
constexpr std::size_t tileColumns = 256;
constexpr std::size_t tilePoints = tileColumns + 2;

/// The products with x, the same in every row.
struct ColumnTerms {
    double x[tilePoints], y[tilePoints], scale[tilePoints];
};

/// The world points of a row.
struct WorldRow {
    float x[tilePoints], y[tilePoints];
};

KEST_INLINED void ConvertRow(const ColumnTerms& terms, const double* h, float imageY, std::size_t count,
                             WorldRow& row) {
    const double termX = h[1] * imageY, termY = h[4] * imageY, termScale = h[7] * imageY;
    const double h2 = h[2], h5 = h[5], h8 = h[8];
    for (std::size_t i = 0; i < count; ++i) {
        const auto worldX = static_cast<float>(terms.x[i] + termX + h2);
        const auto worldY = static_cast<float>(terms.y[i] + termY + h5);
        const auto scale = static_cast<float>(terms.scale[i] + termScale + h8);
        row.x[i] = worldX / scale;
        row.y[i] = worldY / scale;
    }
}

/// The areas of a row's pixels with one root for two: the root of the product differs from the product of the roots by
/// a few units of double precision, which seldom shows in single precision. False when it can show somewhere.
KEST_INLINED bool FillRow(const WorldRow& below, const WorldRow& row, const WorldRow& above, std::size_t count,
                          float* areas) {
    constexpr double margin = 0x1p-49;
    int doubtful = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const double acrossX = static_cast<double>(row.x[i + 2]) - row.x[i];
        const double acrossY = static_cast<double>(row.y[i + 2]) - row.y[i];
        const double alongX = static_cast<double>(above.x[i + 1]) - below.x[i + 1];
        const double alongY = static_cast<double>(above.y[i + 1]) - below.y[i + 1];
        const double area =
            std::sqrt((acrossX * acrossX + acrossY * acrossY) * (alongX * alongX + alongY * alongY)) * 0.25;
        const auto low = static_cast<float>(area * (1 - margin));
        const auto high = static_cast<float>(area * (1 + margin));
        areas[i] = low;
        doubtful |= low == high ? 0 : 1;
    }
    return doubtful == 0;
}

KEST_INLINED void FillAll(const Perspective& mapping, int width, int height, float* map) {
    const Elements elements(mapping);
    const double* h = elements.h;
    const auto columns = static_cast<std::size_t>(width);
    ColumnTerms terms;
    WorldRow rows[3];
    for (std::size_t first = 0; first < columns; first += tileColumns) {
        const std::size_t count = std::min(tileColumns, columns - first);
        const std::size_t points = count + 2;
        for (std::size_t i = 0; i < points; ++i) {
            const double x = static_cast<float>(static_cast<double>(first + i) - 1);
            terms.x[i] = h[0] * x;
            terms.y[i] = h[3] * x;
            terms.scale[i] = h[6] * x;
        }
        WorldRow *below = &rows[0], *row = &rows[1], *above = &rows[2];
        ConvertRow(terms, h, -1.0F, points, *below);
        ConvertRow(terms, h, 0.0F, points, *row);
        for (int y = 0; y < height; ++y) {
            ConvertRow(terms, h, static_cast<float>(y + 1.0), points, *above);
            float* areas = map + static_cast<std::size_t>(y) * columns + first;
            if (!FillRow(*below, *row, *above, count, areas))
                for (std::size_t i = 0; i < count; ++i) areas[i] = PixelArea(mapping, static_cast<int>(first + i), y);
            WorldRow* free = below;
            below = row;
            row = above;
            above = free;
        }
    }
}

KEST_AVX2 void ConvertAllAvx2(const Perspective& mapping, std::span<const tagPoints> image,
                              std::span<tagPoints> world) {
    ConvertAll(mapping, image, world);
}

KEST_AVX2 void FillAllAvx2(const Perspective& mapping, int width, int height, float* map) {
    FillAll(mapping, width, height, map);
}

}  // namespace

void ImageToWorld(const Perspective& mapping, std::span<const tagPoints> image, std::span<tagPoints> world,
                  InstructionSet instructions) {
    if (instructions == InstructionSet::Avx2)
        ConvertAllAvx2(mapping, image, world);
    else
        ConvertAll(mapping, image, world);
}

void FillAreaMap(const Perspective& mapping, int width, int height, std::span<float> map, InstructionSet instructions) {
    if (instructions == InstructionSet::Avx2)
        FillAllAvx2(mapping, width, height, map.data());
    else
        FillAll(mapping, width, height, map.data());
}

}  // namespace kest
