// An outline's pixels sorted by row.
#include "roi/kernel/OutlineIndex.h"

#include <algorithm>

namespace kest {
namespace {

struct RowReader {
    std::span<const IntPoint> outline;
    Axis axis;

    int Row(std::size_t i) const { return axis == Axis::Rows ? outline[i].y : outline[i].x; }
    int Column(std::size_t i) const { return axis == Axis::Rows ? outline[i].x : outline[i].y; }
};

}  // namespace

Size64 OutlineIndex::BytesNeeded(Size64 points, Size64 rows) {
    return points * static_cast<Size64>(sizeof(Entry)) + (rows + 1) * static_cast<Size64>(sizeof(std::uint32_t));
}

void OutlineIndex::Build(std::span<const IntPoint> outline, Axis axis, RowOrder order, int firstRow, int rows,
                         std::uint8_t* memory) {
    const RowReader points{outline, axis};
    const std::size_t count = outline.size();
    auto* sorted = reinterpret_cast<Entry*>(memory);
    // A counter a row: first the pixels of the row before, then where the row's next pixel goes, in the end where the
    // row ends.
    auto* ends = reinterpret_cast<std::uint32_t*>(sorted + count);
    std::fill_n(ends, rows + 1, 0u);
    const auto isInRange = [&](int row) { return row >= firstRow && Size64{row} - firstRow < rows; };
    for (std::size_t i = 0; i < count; ++i)
        if (isInRange(points.Row(i))) ++ends[Size64{points.Row(i)} - firstRow + 1];
    std::uint32_t begin = 0;
    for (int row = 0; row <= rows; ++row) {
        begin += ends[row];
        ends[row] = begin;
    }

    // Runs of pixels on one row end where the next pixel of the outline lies on another row. A run whose neighbours lie
    // on different sides of the row crosses it; its last pixel bears the mark.
    std::size_t lastRunEnd = count;
    for (std::size_t i = count; i-- > 0;)
        if (points.Row(i) != points.Row(i + 1 == count ? 0 : i + 1)) {
            lastRunEnd = i;
            break;
        }
    int rowBefore = lastRunEnd < count ? points.Row(lastRunEnd) : 0;
    const auto put = [&](std::size_t i, bool crosses) {
        const int row = points.Row(i);
        if (isInRange(row)) sorted[ends[Size64{row} - firstRow]++] = Entry(points.Column(i), i, crosses);
    };
    for (std::size_t i = 0; i < count; ++i) {
        const int row = points.Row(i);
        const int rowAfter = points.Row(i + 1 == count ? 0 : i + 1);
        const bool endsRun = rowAfter != row;
        put(i, endsRun && (rowBefore < row) != (rowAfter < row));
        if (endsRun) rowBefore = row;
    }
    if (order != RowOrder::Drawn) {
        std::uint32_t from = 0;
        for (int row = 0; row < rows; ++row) {
            std::sort(sorted + from, sorted + ends[row]);
            from = ends[row];
        }
    }
    rowOrder = order;
    first = firstRow;
    rowCount = rows;
    entries = sorted;
    rowEnds = ends;
}

std::span<const OutlineIndex::Entry> OutlineIndex::PixelsOfRow(int row) const {
    const Size64 index = Size64{row} - first;
    if (index < 0 || index >= rowCount) return {};
    const std::uint32_t begin = index == 0 ? 0 : rowEnds[index - 1];
    return {entries + begin, entries + rowEnds[index]};
}

int OutlineIndex::SpansOfRow(int row, KestSpan* spans) const {
    int count = 0;
    bool isInside = false;
    for (const Entry entry : PixelsOfRow(row)) {
        const int column = entry.Column();
        if (count == 0) {
            spans[count++] = {column, column};
        } else {
            KestSpan& last = spans[count - 1];
            const Size64 gap = Size64{column} - last.iLast;
            if (gap == 1 || (rowOrder == RowOrder::Filled && (isInside || gap == 0)))
                last.iLast = column;
            else
                spans[count++] = {column, column};
        }
        isInside ^= entry.Crosses();
    }
    return count;
}

int CutSpans(KestSpan* spans, int count, int columns) {
    Size64 room = columns;
    for (int i = 0; i < count; ++i) {
        const Size64 length = Size64{spans[i].iLast} - spans[i].iFirst + 1;
        if (length >= room) {
            spans[i].iLast = static_cast<int>(spans[i].iFirst + room - 1);
            return i + 1;
        }
        room -= length;
    }
    return count;
}

}  // namespace kest
