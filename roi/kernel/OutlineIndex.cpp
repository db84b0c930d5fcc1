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
    /// Of the pixel after, round to the first one.
    int RowAfter(std::size_t i) const { return Row(i + 1 == outline.size() ? 0 : i + 1); }
    /// That of the last run of pixels on one row which ends before the first pixel or at it; 0 if all are on one row.
    int RowOfLastRun() const {
        for (std::size_t i = outline.size(); i-- > 0;)
            if (Row(i) != RowAfter(i)) return Row(i);
        return 0;
    }
};

/// A chain of pixels has no more rows than pixels, so this takes far points out of the count of rows only.
bool HasSlotForEachRow(Size64 points, Size64 rows) {
    constexpr Size64 fewRows = 4096;
    return rows <= std::max(fewRows, 4 * points);
}

}  // namespace

Size64 OutlineIndex::BytesNeeded(Size64 points, Size64 rows) {
    const bool hasEachRow = HasSlotForEachRow(points, rows);
    const Size64 most = hasEachRow ? rows : points;
    return points * static_cast<Size64>(sizeof(Entry)) + (most + 1) * static_cast<Size64>(sizeof(std::uint32_t)) +
           (hasEachRow ? 0 : points * static_cast<Size64>(sizeof(int)));
}

std::uint32_t OutlineIndex::RowSlots::Of(int row) const {
    // A row below the first one wraps round to more than there are slots, as rows end before the numbers do.
    if (!rows) return static_cast<std::uint32_t>(row) - static_cast<std::uint32_t>(first);
    const int* found = std::lower_bound(rows, rows + count, row);
    return found != rows + count && *found == row ? static_cast<std::uint32_t>(found - rows) : count;
}

void OutlineIndex::Build(std::span<const IntPoint> outline, Axis axis, RowOrder order, int firstRow, Size64 rows,
                         std::uint8_t* memory) {
    const RowReader points{outline, axis};
    const std::size_t count = outline.size();
    auto* sorted = reinterpret_cast<Entry*>(memory);
    // A counter a slot: first the pixels of the slot before, then where the slot's next pixel goes, in the end where
    // the slot ends.
    auto* ends = reinterpret_cast<std::uint32_t*>(sorted + count);
    RowSlots own = {firstRow, 0, nullptr};
    if (HasSlotForEachRow(std::ssize(outline), rows)) {
        own.count = static_cast<std::uint32_t>(rows);
    } else {
        int* first = reinterpret_cast<int*>(ends + count + 1);
        int* end = first;
        for (std::size_t i = 0; i < count; ++i)
            if (const Size64 row = Size64{points.Row(i)} - firstRow; row >= 0 && row < rows) *end++ = points.Row(i);
        std::sort(first, end);
        own.count = static_cast<std::uint32_t>(std::unique(first, end) - first);
        own.rows = first;
    }
    std::fill_n(ends, own.count + 1, 0u);
    for (std::size_t i = 0; i < count; ++i)
        if (const std::uint32_t slot = own.Of(points.Row(i)); slot < own.count) ++ends[slot + 1];
    std::uint32_t begin = 0;
    for (std::uint32_t slot = 0; slot <= own.count; ++slot) {
        begin += ends[slot];
        ends[slot] = begin;
    }

    // Runs of pixels on one row end where the next pixel of the outline lies on another row. A run whose neighbours lie
    // on different sides of the row crosses it; its last pixel bears the mark.
    int rowBefore = points.RowOfLastRun();
    const auto put = [&](std::size_t i, bool crosses) {
        const std::uint32_t slot = own.Of(points.Row(i));
        if (slot < own.count) sorted[ends[slot]++] = Entry(points.Column(i), i, crosses);
    };
    for (std::size_t i = 0; i < count; ++i) {
        const int row = points.Row(i);
        const int rowAfter = points.RowAfter(i);
        const bool endsRun = rowAfter != row;
        put(i, endsRun && (rowBefore < row) != (rowAfter < row));
        if (endsRun) rowBefore = row;
    }
    if (order != RowOrder::Drawn) {
        std::uint32_t from = 0;
        for (std::uint32_t slot = 0; slot < own.count; ++slot) {
            std::sort(sorted + from, sorted + ends[slot]);
            from = ends[slot];
        }
    }
    rowOrder = order;
    slots = own;
    entries = sorted;
    slotEnds = ends;
}

std::span<const OutlineIndex::Entry> OutlineIndex::PixelsOfRow(int row) const {
    const std::uint32_t slot = slots.Of(row);
    if (slot >= slots.count) return {};
    return {entries + (slot == 0 ? 0 : slotEnds[slot - 1]), entries + slotEnds[slot]};
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

int CutSpans(KestSpan* spans, int count, Size64 columns) {
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
