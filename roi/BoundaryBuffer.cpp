// The work buffer that the boundary queries of a ROI fill and return.
#include "roi/BoundaryBuffer.h"

#include <algorithm>

#include "KestTypes.h"

namespace kest {

int* BoundaryBuffer::Own() const {
    const bool isOwn = entries == block.Get() && block.Size() == Product(size, sizeof(int));
    return isOwn ? entries : nullptr;
}

Size64 BoundaryBuffer::Room() const {
    const Size64 width = Size64{bounds.right} - bounds.left;
    const Size64 height = Size64{bounds.top} - bounds.bottom;
    // Two entries for each pixel of the larger side hold its two ends as well; a shape of one pixel needs one.
    return std::max({2 * width, 2 * height, Size64{2}, Size64{Own() ? size : 0}});
}

bool BoundaryBuffer::PrepareCopy() const {
    if (!entries || Own()) return true;
    roi.GetBoundingRect();
    // An outline whose points are gone leaves its source's buffer named.
    return entries != nullptr;
}

bool BoundaryBuffer::Prepare() const {
    // A side beyond that of a picture is rarely listed, and a file can claim any: its list is made when it is asked
    // for.
    constexpr Size64 mostPrepared = 131072;
    const Size64 room = Room();
    if (Own() && size == room) return true;
    const Size64 prepared = std::min(room, mostPrepared);
    if (Own() && size == prepared) return true;
    block.Release();
    entries = nullptr;
    size = 0;
    return Grow(prepared);
}

bool BoundaryBuffer::Grow(Size64 count) const {
    if (Own() && size >= count) return true;
    // Doubled, as the rows of a shape that widens are asked for one after the other.
    const Size64 roomy = Own() ? std::min(Room(), 2 * Size64{size}) : count;
    KestGlobalBlock grown;
    for (const Size64 tried : {std::max(roomy, count), count}) {
        if (!grown.Allocate(tried * static_cast<Size64>(sizeof(int)))) continue;
        block.Swap(grown);
        entries = static_cast<int*>(block.Get());
        size = static_cast<int>(tried);
        return true;
    }
    return false;
}

int* BoundaryBuffer::ListSpan(bool isHit, const KestSpan& span, int* count) const {
    if (!PrepareCopy()) return ListFailed(count);
    const Size64 length = Size64{span.iLast} - span.iFirst + 1;
    // A buffer that was made ready for other coordinates, or not at all, is no answer.
    if (!isHit || !count || length < 1 || !Own() || length > Room()) return ListNothing(count);
    if (!Grow(length)) return ListFailed(count);
    *count = static_cast<int>(length);
    for (int i = 0; i < *count; ++i) entries[i] = span.iFirst + i;
    return entries;
}

int* ListNothing(int* count) {
    if (count) *count = 0;
    return nullptr;
}

int* ListFailed(int* count) {
    if (count) *count = KEST_FAILED;
    return nullptr;
}

}  // namespace kest
