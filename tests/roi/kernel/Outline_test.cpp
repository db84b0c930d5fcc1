// Freehand outlines: rasterising against the rule written straight down, and filled rows against an independent
// point-in-polygon test, over thousands of seeded random outlines.
#include "roi/kernel/LineRule.h"
#include "roi/kernel/OutlineBounds.h"
#include "roi/kernel/OutlineIndex.h"
#include "roi/kernel/OutlineRaster.h"
#include "support/KernelTests.h"

using namespace kest;

namespace {

using Points = std::vector<IntPoint>;

Points Rasterise(const Points& starts, const Points& ends) {
    Points chain(static_cast<std::size_t>(RasterLength(starts, ends)));
    RasteriseOutline(starts, ends, chain);
    return chain;
}

/// The closed chain of a polygon's sides.
Points Polygon(const Points& corners) {
    Points ends(corners.begin() + 1, corners.end());
    ends.push_back(corners.front());
    return Rasterise(corners, ends);
}

/// The rule, one pixel after another.
Points RasterisePlainly(const Points& starts, const Points& ends) {
    Points chain;
    for (std::size_t i = 0; i < starts.size(); ++i) {
        const IntPoint start = starts[i], end = ends[i];
        const bool steep = std::abs(end.x - start.x) < std::abs(end.y - start.y);
        const int from = steep ? start.y : start.x, to = steep ? end.y : end.x;
        for (int at = from; at != to; at += to > from ? 1 : -1) {
            IntPoint pixel = test::PixelByRule(start, end, steep, at);
            if (!chain.empty()) {
                int& free = steep ? pixel.x : pixel.y;
                const int step = free - (steep ? chain.back().x : chain.back().y);
                free -= (step > 1) - (step < -1);
            }
            chain.push_back(pixel);
        }
    }
    return chain;
}

struct Index {
    Index(const Points& outline, RowOrder order, Axis axis = Axis::Rows) {
        const IntRect bounds = OutlineBounds(outline);
        const int first = axis == Axis::Rows ? bounds.bottom : bounds.left;
        const int last = axis == Axis::Rows ? bounds.top : bounds.right;
        memory.resize(
            static_cast<std::size_t>(OutlineIndex::BytesNeeded(std::ssize(outline), last - first + 1) / 8 + 1));
        index.Build(outline, axis, order, first, last - first + 1, reinterpret_cast<std::uint8_t*>(memory.data()));
    }
    std::vector<int> Row(int row) const {
        std::vector<KestSpan> spans(index.PixelsOfRow(row).size());
        const int count = index.SpansOfRow(row, spans.data());
        std::vector<int> columns;
        for (const KestSpan& span : std::span(spans).first(static_cast<std::size_t>(count)))
            for (int x = span.iFirst; x <= span.iLast; ++x) columns.push_back(x);
        return columns;
    }
    std::vector<std::int64_t> memory;
    OutlineIndex index;
};

/// Even-odd interior by counting the sides of the chain that cross the line just above a row, right of a pixel.
std::vector<int> FilledRow(const Points& chain, int row, int left, int right) {
    std::set<int> onOutline;
    std::vector<int> crossings;
    for (std::size_t i = 0; i < chain.size(); ++i) {
        const IntPoint& a = chain[i];
        const IntPoint& b = chain[(i + 1) % chain.size()];
        if (a.y == row) onOutline.insert(a.x);
        if ((a.y > row) != (b.y > row)) crossings.push_back(a.y == row ? a.x : b.x);
    }
    std::vector<int> columns;
    for (int x = left; x <= right; ++x) {
        int crossed = 0;
        for (const int crossing : crossings) crossed += crossing > x;
        if (onOutline.count(x) || crossed % 2) columns.push_back(x);
    }
    return columns;
}

/// Neighbours touch, and so do the last pixel and the first.
bool IsConnected(const Points& chain) {
    const auto areApart = [](IntPoint a, IntPoint b) { return std::abs(a.x - b.x) > 1 || std::abs(a.y - b.y) > 1; };
    return std::ranges::adjacent_find(chain, areApart) == chain.end() && !areApart(chain.back(), chain.front());
}

int CompareFilledRows(const Points& chain) {
    const IntRect bounds = OutlineBounds(chain);
    const Index rows(chain, RowOrder::Filled), columns(chain, RowOrder::Filled, Axis::Columns);
    Points turned;
    for (const IntPoint& pixel : chain) turned.push_back({pixel.y, pixel.x});
    int wrong = 0;
    for (int y = bounds.bottom - 1; y <= bounds.top + 1; ++y)
        wrong += rows.Row(y) != FilledRow(chain, y, bounds.left - 1, bounds.right + 1);
    for (int x = bounds.left - 1; x <= bounds.right + 1; ++x)
        wrong += columns.Row(x) != FilledRow(turned, x, bounds.bottom - 1, bounds.top + 1);
    return wrong;
}

}  // namespace

TEST(OutlineRaster, SegmentsThatDoNotMeet) {
    // The first pixels are pulled one pixel each.
    EXPECT_EQ(Rasterise({{0, 0}, {2, 5}}, {{2, 0}, {8, 5}}),
              (Points{{0, 0}, {1, 0}, {2, 4}, {3, 5}, {4, 5}, {5, 5}, {6, 5}, {7, 5}}));
    EXPECT_TRUE(Rasterise({{3, 3}}, {{3, 3}}).empty());
    EXPECT_EQ(RasterLength(Points{{INT_MIN, 0}}, Points{{INT_MAX, 0}}), 0xFFFFFFFFLL);
}

TEST(OutlineRaster, EqualsThePlainRule) {
    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        const int reach = round % 3 == 0 ? 12 : round % 3 == 1 ? 300 : 5000;
        const int offset = round % 10 == 0 ? 3000000 : 0;
        const auto coordinate = [&] { return static_cast<int>(random() % (2u * reach)) - reach + offset; };
        Points starts, ends;
        for (int i = 0; i < 6; ++i) {
            starts.push_back(i > 0 && round % 2 ? ends.back() : IntPoint{coordinate(), coordinate()});
            ends.push_back({coordinate(), coordinate()});
        }
        ASSERT_TRUE(Rasterise(starts, ends) == RasterisePlainly(starts, ends)) << round;
    }
}

TEST(OutlineIndex, ShapesAHandDraws) {
    // Two peaks: the row that touches one of them holds that pixel alone.
    const Points peaks = Polygon({{0, 0}, {20, 0}, {15, 9}, {10, 4}, {5, 9}});
    EXPECT_EQ(Index(peaks, RowOrder::Filled).Row(9), (std::vector<int>{5, 15}));
    const Points shapes[] = {
        Polygon({{2, 2}, {8, 2}, {8, 9}, {2, 9}}),
        peaks,
        Polygon({{0, 0}, {30, 0}, {30, 9}, {20, 9}, {20, 5}, {10, 5}, {10, 9}, {0, 9}}),  // a valley with a floor
        Polygon({{0, 0}, {20, 20}, {20, 0}, {0, 20}}),                                    // crosses itself
        Polygon({{0, 0}, {10, 0}, {10, 10}, {5, 0}, {0, 10}}),                            // touches itself
        Polygon({{0, 0}, {15, 0}}),                                                       // one pixel wide
        Polygon({{0, 0}, {0, 15}}),
        Polygon({{0, 0}, {9, 9}}),
        Polygon({{4, 4}, {5, 4}}),
        Points{{3, 3}},
        Polygon({{0, 0}, {12, 0}, {12, 12}, {0, 12}, {0, 0}, {12, 0}, {12, 12}, {0, 12}}),  // twice round
        Polygon({{0, 0}, {8, 0}, {8, 4}, {16, 4}, {16, 0}, {24, 0}, {24, 8}, {0, 8}}),      // stairs at one level
    };
    for (const Points& shape : shapes) EXPECT_EQ(CompareFilledRows(shape), 0);
}

TEST(OutlineIndex, ThousandsOfRandomOutlines) {
    std::mt19937 random(2026);
    int connected = 0;
    for (int round = 0; round < 4000; ++round) {
        const int reach = 3 + static_cast<int>(random() % 40);
        const std::size_t corners = 3 + random() % 12;
        Points polygon;
        for (std::size_t i = 0; i < corners; ++i) {
            // Every third one walks in small steps, so that it runs along rows and over its own pixels.
            if (round % 3 == 0 && i > 0)
                polygon.push_back({polygon.back().x + static_cast<int>(random() % 5) - 2,
                                   polygon.back().y + static_cast<int>(random() % 3) - 1});
            else
                polygon.push_back({static_cast<int>(random() % reach), static_cast<int>(random() % reach)});
        }
        const Points chain = Polygon(polygon);
        if (chain.empty() || !IsConnected(chain)) continue;
        ++connected;
        ASSERT_EQ(CompareFilledRows(chain), 0) << round;
    }
    EXPECT_GT(connected, 3000);
}

TEST(OutlineIndex, OpenLinesListTheirPixels) {
    const Points line = {{5, 1}, {4, 1}, {3, 2}, {4, 1}, {9, 1}, {INT_MAX, 1}, {INT_MIN, 1}};
    const Index drawn(line, RowOrder::Drawn), ascending(line, RowOrder::Ascending);
    std::vector<int> inOrder, sorted, places;
    for (const auto& pixel : drawn.index.PixelsOfRow(1)) inOrder.push_back(pixel.Column());
    for (const auto& pixel : ascending.index.PixelsOfRow(1)) {
        sorted.push_back(pixel.Column());
        places.push_back(pixel.Place());
    }
    EXPECT_EQ(inOrder, (std::vector<int>{5, 4, 4, 9, INT_MAX, INT_MIN}));
    EXPECT_EQ(sorted, (std::vector<int>{INT_MIN, 4, 4, 5, 9, INT_MAX}));
    EXPECT_EQ(places, (std::vector<int>{6, 1, 3, 0, 4, 5}));
    KestSpan spans[6];
    EXPECT_EQ(ascending.index.SpansOfRow(1, spans), 5);
    EXPECT_EQ(spans[2].iFirst, 4);
    EXPECT_EQ(spans[2].iLast, 5);
    for (const int row : {INT_MIN, 0, 3, INT_MAX}) EXPECT_TRUE(drawn.index.PixelsOfRow(row).empty());
    // Cut to the room of a list, the first that fills it is the last.
    for (const auto& [room, left, end] :
         {std::tuple{9, 2, 21}, {8, 2, 21}, {6, 2, 19}, {5, 2, 18}, {4, 1, 4}, {2, 1, 2}}) {
        KestSpan two[] = {{1, 4}, {18, 21}};
        EXPECT_EQ(CutSpans(two, 2, room), left) << room;
        EXPECT_EQ(two[left - 1].iLast, end) << room;
    }
}

TEST(OutlineIndex, PixelsFarApartTakeTheRoomOfPixels) {
    // Rows of their own, whether an index has all rows or only those with a pixel; rows that it is not for are left
    // out.
    const Points outline = {{0, 5}, {1, INT_MAX}, {2, INT_MIN}, {3, 6}, {4, 5}, {5, 7}};
    EXPECT_LT(OutlineIndex::BytesNeeded(std::ssize(outline), 0x100000000), 256);
    std::vector<std::int64_t> memory(64);
    OutlineIndex index;
    const struct {
        int first;
        Size64 rows;
        std::size_t pixels[6];  // of these rows
    } cases[] = {{5, 2, {2, 1, 0, 0, 0, 0}},
                 {INT_MAX, 1, {0, 0, 0, 0, 1, 0}},
                 {5, INT_MAX - 4LL, {2, 1, 1, 0, 1, 0}},
                 {INT_MIN, 0x100000000, {2, 1, 1, 0, 1, 1}}};
    for (const auto& c : cases) {
        index.Build(outline, Axis::Rows, RowOrder::Filled, c.first, c.rows,
                    reinterpret_cast<std::uint8_t*>(memory.data()));
        const int rows[] = {5, 6, 7, 8, INT_MAX, INT_MIN};
        for (std::size_t i = 0; i < 6; ++i)
            EXPECT_EQ(index.PixelsOfRow(rows[i]).size(), c.pixels[i]) << c.rows << ' ' << i;
    }
    KestSpan spans[2];
    EXPECT_EQ(index.SpansOfRow(5, spans), 2);
    EXPECT_EQ(spans[1].iFirst, 4);
}
