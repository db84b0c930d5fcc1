// An outline's pixels sorted by row (or by column) once, so that a query costs only the pixels of its row. Written for
// rows; for columns the caller exchanges x and y.
#pragma once

#include <compare>
#include <cstdint>
#include <span>

#include "KestTypes.h"
#include "core/kernel/CheckedSize.h"
#include "core/kernel/Geometry.h"

namespace kest {

/// What a row of the outline lists.
enum class RowOrder {
    Filled,     ///< a closed outline: the even-odd interior and the outline, each column once, ascending
    Ascending,  ///< an open outline: its pixels, ascending
    Drawn,      ///< an open outline: its pixels in the order of the outline
};

enum class Axis { Rows, Columns };

/// The index, over memory that its owner provides.
class OutlineIndex {
public:
    /// A pixel of a row, in an order of its own: by column, then by place along the outline.
    class Entry {
    public:
        Entry(int column, std::size_t place, bool crosses)
            : bits((std::int64_t{column} << 32) | static_cast<std::uint32_t>(place << 1 | (crosses ? 1 : 0))) {}
        int Column() const { return static_cast<int>(bits >> 32); }
        int Place() const { return static_cast<int>(static_cast<std::uint32_t>(bits) >> 1); }
        /// Whether the outline passes from one side of the row to the other in the run that ends here.
        bool Crosses() const { return (bits & 1) != 0; }
        auto operator<=>(const Entry&) const = default;

    private:
        std::int64_t bits;
    };

    /// Bytes that an index of `points` pixels over `rows` rows takes. However far apart pixels lie, it grows with their
    /// number only.
    static Size64 BytesNeeded(Size64 points, Size64 rows);

    /// Sorts the outline's pixels into `memory`, which holds BytesNeeded bytes, aligned to 8. Pixels outside the rows
    /// from `firstRow` on are left out.
    void Build(std::span<const IntPoint> outline, Axis axis, RowOrder order, int firstRow, Size64 rows,
               std::uint8_t* memory);

    /// The pixels of a row, outline pixels that coincide listed each.
    std::span<const Entry> PixelsOfRow(int row) const;

    /// The row as runs of neighbouring columns in its order; `spans` has room for a run a pixel. Returns their number.
    int SpansOfRow(int row, KestSpan* spans) const;

private:
    /// A slot a row: all rows from the first on, or of pixels that lie far apart only the rows that have one,
    /// ascending.
    struct RowSlots {
        int first = 0;
        std::uint32_t count = 0;
        const int* rows = nullptr;  ///< null: all rows

        /// The number of a row's slot; count or more for a row without.
        std::uint32_t Of(int row) const;
    };

    RowOrder rowOrder = RowOrder::Filled;
    RowSlots slots;
    const Entry* entries = nullptr;
    const std::uint32_t* slotEnds = nullptr;
};

/// Cuts runs off behind their first `columns` columns (1 at least). Returns how many are left.
int CutSpans(KestSpan* spans, int count, Size64 columns);

}  // namespace kest
