// Turns drawn segments into a connected chain of pixels.
#include "roi/kernel/OutlineRaster.h"

#include "roi/kernel/LineWalk.h"

namespace kest {
namespace {

/// Moves a value one towards its predecessor when they differ by more than 1.
int PullTowards(int value, int before) {
    const Size64 difference = Size64{value} - before;
    return difference > 1 ? value - 1 : difference < -1 ? value + 1 : value;
}

/// Up to here neighbouring positions of a walk along the longer side differ by 1 at most whatever is rounded.
constexpr int exactRange = 1 << 20;

bool IsExact(IntPoint point) {
    return point.x > -exactRange && point.x < exactRange && point.y > -exactRange && point.y < exactRange;
}

/// Walks `count` pixels from `first` on. `at(position)` gives the other coordinate, `nearAt` the same where all is near
/// the origin, `make(position, other)` the pixel.
/// `before` is the other coordinate of the pixel before the first one. Without `isExact` every pixel is compared with
/// its predecessor, else only as long as one had to be pulled.
template <class At, class NearAt, class Make>
void Walk(int first, int step, std::size_t count, IntPoint* out, const int* before, bool isExact, At at, NearAt nearAt,
          Make make) {
    std::size_t i = 0;
    int position = first;
    if (before || !isExact) {
        int last = before ? *before : at(first);
        for (bool isMet = false; i < count && !(isMet && isExact); ++i, position += step) {
            const int wanted = at(position);
            last = PullTowards(wanted, last);
            out[i] = make(position, last);
            isMet = last == wanted;
        }
    }
    if (i == count) return;
    const int start = position - step * static_cast<int>(i);
    for (; i < count; ++i) {
        const int next = start + step * static_cast<int>(i);
        out[i] = make(next, nearAt(next));
    }
}

}  // namespace

Size64 RasterLength(std::span<const IntPoint> starts, std::span<const IntPoint> ends) {
    Size64 length = 0;
    for (std::size_t i = 0; i < starts.size(); ++i) length += LineEquation(starts[i], ends[i]).Length();
    return length;
}

void RasteriseOutline(std::span<const IntPoint> starts, std::span<const IntPoint> ends, std::span<IntPoint> chain) {
    IntPoint* out = chain.data();
    for (std::size_t i = 0; i < starts.size(); ++i) {
        const IntPoint start = starts[i], end = ends[i];
        const LineEquation line(start, end);
        const auto count = static_cast<std::size_t>(line.Length());
        const bool isExact = IsExact(start) && IsExact(end);
        const bool isSteep = line.Width() < line.Height();
        const IntPoint* last = out == chain.data() ? nullptr : out - 1;
        const int* before = !last ? nullptr : isSteep ? &last->x : &last->y;
        if (isSteep)
            Walk(
                start.y, end.y > start.y ? 1 : -1, count, out, before, isExact,
                [&line](int y) { return line.ColumnAt(y); }, [line](int y) { return line.NearColumnAt(y); },
                [](int y, int x) {
                    return IntPoint{x, y};
                });
        else
            Walk(
                start.x, end.x > start.x ? 1 : -1, count, out, before, isExact,
                [&line](int x) { return line.RowAt(x); }, [line](int x) { return line.NearRowAt(x); },
                [](int x, int y) {
                    return IntPoint{x, y};
                });
        out += count;
    }
}

}  // namespace kest
