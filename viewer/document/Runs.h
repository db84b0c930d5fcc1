// Walks the pixels of a picture, or those under a ROI, as runs of neighbours.
#pragma once

#include <algorithm>
#include <vector>

#include "document/Document.h"

namespace kestview {

/// Calls visit(index of the first pixel, count) for runs of neighbouring pixels, each pixel once; indices count row by
/// row from the bottom left corner. Null visits the whole picture, row by row. False when memory was short, and not all
/// were visited.
template <class Visit>
[[nodiscard]] bool ForEachRun(Document& document, CcRoiBase* roi, Visit visit) {
    const SIZE size = document.Size();
    const auto width = static_cast<std::size_t>(size.cx);
    if (!roi) {
        for (int row = 0; row < size.cy; ++row) visit(static_cast<std::size_t>(row) * width, static_cast<int>(size.cx));
        return true;
    }
    const RECT* bounds = roi->GetBoundingRect();
    // An outline without points has no pixels, and no bounds either.
    if (!bounds) return !roi->GetCurrentBoundingRect();
    const int bottom = std::max<int>(bounds->bottom, 0), top = std::min<int>(bounds->top, size.cy - 1);
    CcRoiRows rows(roi);
    std::vector<KestSpan> spans;
    for (int row = bottom; row <= top; ++row) {
        int count = 0;
        const KestSpan* listed = rows.GetSpans(row, &count);
        if (count < 0) return false;
        if (!listed) continue;
        // Lines that cross themselves list pixels twice.
        spans.assign(listed, listed + count);
        std::sort(spans.begin(), spans.end(), [](const KestSpan& a, const KestSpan& b) { return a.iFirst < b.iFirst; });
        int next = 0;
        for (const KestSpan& span : spans) {
            const int first = std::max(span.iFirst, next), last = std::min<int>(span.iLast, size.cx - 1);
            if (first > last) continue;
            visit(static_cast<std::size_t>(row) * width + static_cast<std::size_t>(first), last - first + 1);
            next = last + 1;
        }
    }
    return true;
}

}  // namespace kestview
