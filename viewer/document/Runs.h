// Walks the pixels of a picture, or those under a ROI, as runs of neighbours.
#pragma once

#include <algorithm>

#include "document/Document.h"

namespace kestview {

/// Calls visit(index of the first pixel, count) for runs of neighbouring pixels; indices count row by row from the
/// bottom left corner. Null visits the whole picture, row by row.
template <class Visit>
void ForEachRun(Document& document, CcRoiBase* roi, Visit visit) {
    const SIZE size = document.Size();
    const auto width = static_cast<std::size_t>(size.cx);
    if (!roi) {
        for (int row = 0; row < size.cy; ++row)
            visit(static_cast<std::size_t>(row) * width, static_cast<int>(size.cx));
        return;
    }
    const RECT* bounds = roi->GetBoundingRect();
    if (!bounds) return;
    const int bottom = std::max<int>(bounds->bottom, 0), top = std::min<int>(bounds->top, size.cy - 1);
    CcRoiRows rows(roi);
    for (int row = bottom; row <= top; ++row) {
        int count = 0;
        const KestSpan* spans = rows.GetSpans(row, &count);
        for (int i = 0; i < count; ++i) {
            const int first = std::max(spans[i].iFirst, 0), last = std::min<int>(spans[i].iLast, size.cx - 1);
            if (first <= last)
                visit(static_cast<std::size_t>(row) * width + static_cast<std::size_t>(first), last - first + 1);
        }
    }
}

}  // namespace kestview
