// Pixels under a region cut out of an 8-bit picture, and outlines.
#include <algorithm>
#include <cmath>

#include "Buffers.h"
#include "Peers.h"
#include "image/kernel/RegionCopy.h"
#include "roi/kernel/EllipseExtent.h"
#include "roi/kernel/LineWalk.h"
#include "roi/kernel/OutlineBounds.h"
#include "roi/kernel/OutlineIndex.h"
#include "roi/kernel/OutlineRaster.h"

namespace bench {
namespace {

constexpr int side = 4000, margin = 200;  // 16 megapixels, the region well inside
constexpr int last = side - margin, regionSide = last - margin;

using Picture = Buffer<std::uint8_t>;
using Spans = std::vector<KestSpan>;

/// Cuts a region out row by row; `spansOf(row, spans)` gives a row's runs. Plainly: every run as a list of columns, and
/// each column copied on its own.
template <class SpansOf>
Run Cut(Picture picture, Picture region, bool isPlain, SpansOf spansOf) {
    return [=] {
        Spans spans;
        std::vector<int> list;
        const kest::Plane<const std::uint8_t> source = {picture->data(), side, side, 1};
        const kest::Plane<std::uint8_t> target = {region->data(), regionSide, regionSide, 1};
        for (int row = margin; row < last; ++row) {
            spans.clear();
            spansOf(row, spans);
            if (!isPlain) {
                kest::CopyRegionRow(source, target, row, spans, margin, margin);
                continue;
            }
            list.clear();
            for (const KestSpan& span : spans)
                for (int x = span.iFirst; x <= span.iLast; ++x) list.push_back(x);
            for (std::size_t i = 0; i + 1 < list.size(); ++i)
                target.pixels[(row - margin) * regionSide + list[i] - margin] = source.pixels[row * side + list[i]];
        }
    };
}

/// A closed outline of about `points` pixels that winds around the picture's middle.
std::vector<kest::IntPoint> Corners(int count, double radius, double waviness) {
    std::vector<kest::IntPoint> corners;
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * 3.14159265358979 * i / count;
        const double r = radius * (1 - waviness + waviness * std::sin(angle * 97));
        corners.push_back(
            {static_cast<int>(side / 2 + r * std::cos(angle)), static_cast<int>(side / 2 + r * std::sin(angle))});
    }
    return corners;
}

std::vector<kest::IntPoint> NextOf(std::vector<kest::IntPoint> corners) {
    std::rotate(corners.begin(), corners.begin() + 1, corners.end());
    return corners;
}

/// Sorts an outline's pixels, as the first query does.
struct SortedOutline {
    std::vector<std::uint64_t> memory;
    kest::OutlineIndex index;

    explicit SortedOutline(const std::vector<kest::IntPoint>& outline)
        : memory(static_cast<std::size_t>(
                     kest::OutlineIndex::BytesNeeded(static_cast<kest::Size64>(outline.size()), side)) /
                     8 +
                 1) {
        index.Build(outline, kest::Axis::Rows, kest::RowOrder::Filled, 0, side,
                    reinterpret_cast<std::uint8_t*>(memory.data()));
    }
    void AddSpans(int row, Spans& spans) const {
        spans.resize(index.PixelsOfRow(row).size());
        spans.resize(static_cast<std::size_t>(index.SpansOfRow(row, spans.data())));
    }
};

void AddOutlineWork(WorkList& list, Picture picture, Picture region, const Run& copy) {
    const auto corners = Corners(5000, regionSide / 2 - 1, 0.25);
    const auto ends = NextOf(corners);
    std::vector<kest::IntPoint> outline(static_cast<std::size_t>(kest::RasterLength(corners, ends)));
    kest::RasteriseOutline(corners, ends, outline);
    const auto cut = [=](bool isPlain) -> Run {
        return [=] {
            const SortedOutline sorted(outline);
            Cut(picture, region, isPlain, [&](int row, Spans& spans) { sorted.AddSpans(row, spans); })();
        };
    };
    list.push_back({"region under an outline", std::to_string(outline.size()) + " points", cut(true), cut(false),
                    PeerCutOutline(*picture, side, outline, margin, regionSide), copy});

    const auto manyCorners = Corners(100'000, 180'000, 0.1);
    const auto manyEnds = NextOf(manyCorners);
    const auto length = static_cast<std::size_t>(kest::RasterLength(manyCorners, manyEnds));
    const auto chain = MakeBuffer<kest::IntPoint>(length);
    list.push_back(
        {"rasterise an outline", std::to_string(length / 100000 / 10.0).substr(0, 4) + " M points",
         [=] {
             kest::IntPoint* out = chain->data();
             for (std::size_t i = 0; i < manyCorners.size(); ++i) {
                 const kest::LineEquation line(manyCorners[i], manyEnds[i]);
                 const bool isSteep = line.Width() < line.Height();
                 const int from = isSteep ? manyCorners[i].y : manyCorners[i].x;
                 const int step = from < (isSteep ? manyEnds[i].y : manyEnds[i].x) ? 1 : -1;
                 for (int k = 0; k < line.Length(); ++k) {
                     const int at = from + k * step;
                     *out++ = isSteep ? kest::IntPoint{line.ColumnAt(at), at} : kest::IntPoint{at, line.RowAt(at)};
                 }
             }
         },
         [=] { kest::RasteriseOutline(manyCorners, manyEnds, *chain); }, PeerRasterise(manyCorners, manyEnds, *chain),
         CopyOf(MakeBuffer<kest::IntPoint>(length), chain)});
}

}  // namespace

void AddRegionWork(WorkList& list) {
    const Picture picture = RandomBytes(std::size_t{side} * side, 6);
    const Picture region = RandomBytes(std::size_t{regionSide} * regionSide, 7);
    const Run copy = CopyOf(RandomBytes(region->size(), 8), region);
    const auto ofRect = [](int, Spans& spans) { spans.push_back({margin, last}); };
    const auto ofEllipse = [](int row, Spans& spans) {
        KestSpan span;
        if (kest::EllipseRow({margin, last, last, margin}, row, span)) spans.push_back(span);
    };
    list.push_back({"region under a rectangle", "of 16 MP", Cut(picture, region, true, ofRect),
                    Cut(picture, region, false, ofRect), PeerCutRect(*picture, side, *region, margin), copy});
    list.push_back({"region under an ellipse", "of 16 MP", Cut(picture, region, true, ofEllipse),
                    Cut(picture, region, false, ofEllipse), PeerCutEllipse(*picture, side, *region, margin), copy});
    AddOutlineWork(list, picture, region, copy);
}

}  // namespace bench
