// What a freehand outline answers. Its pixels are sorted once, into an OutlineIndex in front of its memory in a block
// of the object.
#include "roi/OutlineQueries.h"

#include <algorithm>
#include <new>

#include "CcRoiRows.h"
#include "roi/ClassWide.h"
#include "roi/OutlineLife.h"
#include "roi/kernel/HitTest.h"
#include "roi/kernel/OutlineBounds.h"

namespace kest {
namespace {

/// What there is to answer a query from. Nothing: an outline without points, or not made ready by PrepareOutline.
enum class Query { Sorted, Nothing, NoMemory };

const OutlineIndex& IndexIn(const KestHeapBlock& block) { return *reinterpret_cast<const OutlineIndex*>(block.Get()); }

Query Sort(const OutlineParts& outline, Axis axis, int first, int last, KestHeapBlock& block) {
    constexpr Size64 front = (sizeof(OutlineIndex) + 7) / 8 * 8;
    const std::span<const IntPoint> pixels = outline.Pixels();
    const Size64 rows = Size64{last} - first + 1;
    const Size64 bytes = front + OutlineIndex::BytesNeeded(std::ssize(pixels), rows);
    if (!block.Reserve(bytes)) return Query::NoMemory;
    auto* index = new (block.Get()) OutlineIndex;
    index->Build(pixels, axis, outline.kind.order, first, rows, block.Get() + front);
    return Query::Sorted;
}

Query SortRows(const OutlineParts& outline, const RECT& bounds) {
    KestOutlineQueries& queries = outline.queries;
    queries.stBounds = bounds;
    queries.bColumnsSorted = false;
    const Query query = Sort(outline, Axis::Rows, bounds.bottom, bounds.top, queries.cRows);
    if (query == Query::Sorted) queries.iSortedPoints = static_cast<int>(outline.Pixels().size());
    return query;
}

/// Points that changed since PrepareOutline are sorted when they are asked for.
Query SortRows(const OutlineParts& outline) {
    if (outline.queries.iSortedPoints > 0) return Query::Sorted;
    if (!outline.buffer.Own() || outline.Pixels().empty()) return Query::Nothing;
    return SortRows(outline, FromRect(OutlineBounds(outline.Pixels())));
}

/// Columns are sorted when the first of them is asked for.
Query SortColumns(const OutlineParts& outline) {
    const Query query = SortRows(outline);
    KestOutlineQueries& queries = outline.queries;
    if (query != Query::Sorted || queries.bColumnsSorted) return query;
    const Query columns = Sort(outline, Axis::Columns, queries.stBounds.left, queries.stBounds.right, queries.cColumns);
    queries.bColumnsSorted = columns == Query::Sorted;
    return columns;
}

/// There is none before the first outline is made ready, nor while memory is short.
bool IsThere(const PixelRecords& work) {
    const ClassWideGuard guard;
    return work.Records() != nullptr;
}

/// Notes the pixels of a row or a column in its class-wide array, which is taken when no other thread has it.
void NotePixels(const OutlineParts& outline, Axis axis, int at, std::span<const OutlineIndex::Entry> pixels) {
    const OutlineClassWide& classWide = outline.kind.classWide;
    const ClassWideGuard guard;
    CommPerPointsTag* records = (axis == Axis::Rows ? classWide.row : classWide.column).Records();
    const std::size_t count = std::min(pixels.size(), static_cast<std::size_t>(classWide.capacity));
    for (std::size_t i = 0; i < count; ++i) {
        const int along = pixels[i].Column(), place = pixels[i].Place();
        records[i] = axis == Axis::Rows ? CommPerPointsTag{along, at, place} : CommPerPointsTag{at, along, place};
    }
}

/// A row's runs as far as its list has room for them: how many, or KEST_FAILED when memory is short.
int TakeSpans(const OutlineParts& outline, const OutlineIndex& index, int row, KestHeapBlock& block) {
    const auto pixels = static_cast<long long>(index.PixelsOfRow(row).size());
    if (pixels == 0) return 0;
    if (!block.Reserve(pixels * static_cast<long long>(sizeof(KestSpan)))) return KEST_FAILED;
    auto* spans = reinterpret_cast<KestSpan*>(block.Get());
    return CutSpans(spans, index.SpansOfRow(row, spans), outline.buffer.Room());
}

int* ListSpans(const OutlineParts& outline, const OutlineIndex& index, int row, int* count) {
    KestHeapBlock& block = outline.queries.cSpans;
    const int spanCount = TakeSpans(outline, index, row, block);
    if (spanCount < 0) return ListFailed(count);
    const std::span spans(reinterpret_cast<const KestSpan*>(block.Get()), static_cast<std::size_t>(spanCount));
    Size64 entries = 0;
    for (const KestSpan& span : spans) entries += Size64{span.iLast} - span.iFirst + 1;
    if (!outline.buffer.Grow(entries)) return ListFailed(count);
    *count = static_cast<int>(entries);
    int* next = outline.buffer.entries;
    for (const KestSpan& span : spans)
        for (Size64 x = span.iFirst; x <= span.iLast; ++x) *next++ = static_cast<int>(x);
    return outline.buffer.entries;
}

/// Writing stops silently when the work buffer is full.
int* List(const OutlineParts& outline, const OutlineIndex& index, int row, int* count) {
    const std::span<const OutlineIndex::Entry> pixels = index.PixelsOfRow(row);
    if (!count || pixels.empty() || !outline.buffer.Own()) return ListNothing(count);
    if (outline.kind.order == RowOrder::Filled) return ListSpans(outline, index, row, count);
    const Size64 entries = std::min<Size64>(std::ssize(pixels), outline.buffer.Room());
    if (!outline.buffer.Grow(entries)) return ListFailed(count);
    *count = static_cast<int>(entries);
    std::transform(pixels.begin(), pixels.begin() + *count, outline.buffer.entries,
                   [](const OutlineIndex::Entry& pixel) { return pixel.Column(); });
    return outline.buffer.entries;
}

}  // namespace

int HitOutline(const OutlineParts& outline, HWND window, const DisplayArguments& display, POINT mouse) {
    const std::optional<View> view = MakeView(window, display);
    const std::span<const IntPoint> pixels = outline.Pixels();
    if (pixels.empty() || !view) return KEST_FAILED;
    const IntPoint position = WindowToImage(*view, ToPoint(mouse));
    if (!outline.IsClosed()) return IsAnyNear(pixels, position, LineTolerance(*view)) ? 0 : -1;
    if (!outline.roi.GetBoundingRect()) return KEST_FAILED;
    CcRoiRows rows(&outline.roi);
    int count = 0;
    const KestSpan* spans = rows.GetSpans(position.y, &count);
    const bool isHit = std::any_of(spans, spans + std::max(count, 0), [&position](const KestSpan& span) {
        return span.iFirst <= position.x && position.x <= span.iLast;
    });
    return isHit ? 0 : KEST_FAILED;
}

RECT* CurrentOutlineBounds(const OutlineParts& outline) {
    const std::span<const IntPoint> pixels = outline.Pixels();
    if (pixels.empty()) return nullptr;
    outline.currentBounds = FromRect(OutlineBounds(pixels));
    return &outline.currentBounds;
}

RECT* PrepareOutline(const OutlineParts& outline) {
    outline.queries.iSortedPoints = 0;
    const std::span<const IntPoint> pixels = outline.Pixels();
    if (pixels.empty()) return nullptr;
    outline.bounds = FromRect(OutlineBounds(pixels));
    if (!outline.buffer.Prepare() || !SizeWorkArrays(outline.kind.classWide, static_cast<int>(pixels.size())))
        return nullptr;
    return SortRows(outline, outline.bounds) == Query::Sorted ? &outline.bounds : nullptr;
}

int* ListOutlineRow(const OutlineParts& outline, int row, int* count) {
    if (!outline.buffer.PrepareCopy()) return ListFailed(count);
    const Query query = IsThere(outline.kind.classWide.row) ? SortRows(outline) : Query::Nothing;
    if (query == Query::NoMemory) return ListFailed(count);
    if (query == Query::Nothing) return ListNothing(count);
    const OutlineIndex& index = IndexIn(outline.queries.cRows);
    NotePixels(outline, Axis::Rows, row, index.PixelsOfRow(row));
    return List(outline, index, row, count);
}

int* ListOutlineColumn(const OutlineParts& outline, int column, int* count) {
    if (!outline.buffer.PrepareCopy()) return ListFailed(count);
    const Query query = IsThere(outline.kind.classWide.column) ? SortColumns(outline) : Query::Nothing;
    if (query == Query::NoMemory) return ListFailed(count);
    if (query == Query::Nothing) return ListNothing(count);
    const OutlineIndex& index = IndexIn(outline.queries.cColumns);
    NotePixels(outline, Axis::Columns, column, index.PixelsOfRow(column));
    return List(outline, index, column, count);
}

int SpansOfOutlineRow(const OutlineParts& outline, int row, KestHeapBlock& spans) {
    const Query query = outline.buffer.PrepareCopy() ? SortRows(outline) : Query::NoMemory;
    if (query != Query::Sorted) return query == Query::NoMemory ? KEST_FAILED : 0;
    return TakeSpans(outline, IndexIn(outline.queries.cRows), row, spans);
}

}  // namespace kest
