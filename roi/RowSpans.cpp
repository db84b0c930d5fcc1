// The runs of a row of a ROI.
#include "roi/RowSpans.h"

#include "CcRoiLine.h"
#include "core/kernel/CheckedSize.h"
#include "roi/DisplayArguments.h"
#include "roi/OutlineQueries.h"
#include "roi/kernel/EllipseExtent.h"
#include "roi/kernel/LinePixels.h"

namespace kest {
namespace {

KestSpan* Reserve(KestHeapBlock& spans, long long count) {
    if (!spans.Reserve(count * static_cast<long long>(sizeof(KestSpan)))) return nullptr;
    return reinterpret_cast<KestSpan*>(spans.Get());
}

/// Of a shape with one run a row at most, which `find(record, row, span)` gives.
template <class Record, class Find>
int SpanOfShape(CcRoiBase& roi, int row, KestHeapBlock& spans, Find find) {
    KestSpan* span = Reserve(spans, 1);
    if (!span) return KEST_FAILED;
    return find(*static_cast<const Record*>(roi.GetRoiImageCord()), row, *span) ? 1 : 0;
}

}  // namespace

int SpansOfRect(CcRoiBase& roi, int row, KestHeapBlock& spans) {
    return SpanOfShape<RECT>(roi, row, spans, [](const RECT& rect, int, KestSpan& span) {
        span = {static_cast<int>(rect.left), static_cast<int>(rect.right)};
        return span.iFirst <= span.iLast;
    });
}

int SpansOfEllipse(CcRoiBase& roi, int row, KestHeapBlock& spans) {
    return SpanOfShape<RECT>(roi, row, spans,
                             [](const RECT& box, int at, KestSpan& span) { return EllipseRow(ToRect(box), at, span); });
}

int SpansOfLine(CcRoiBase& roi, int row, KestHeapBlock& spans) {
    return SpanOfShape<tagROILINE>(roi, row, spans, [](const tagROILINE& line, int at, KestSpan& span) {
        return LineRow({line.iStartX, line.iStartY}, {line.iEndX, line.iEndY}, at, span);
    });
}

int SpansOfOutline(CcRoiBase& roi, int row, KestHeapBlock& spans) {
    const std::optional<OutlineParts> outline = OutlineParts::Of(roi);
    return outline ? SpansOfOutlineRow(*outline, row, spans) : 0;
}

int SpansOfList(CcRoiBase& roi, int row, KestHeapBlock& block) {
    int listed = 0;
    const int* list = roi.GetXBoundary(row, &listed);
    if (!list) return listed < 0 ? KEST_FAILED : 0;
    if (listed < 1) return 0;
    KestSpan* spans = Reserve(block, listed);
    if (!spans) return KEST_FAILED;
    int count = 0;
    for (int i = 0; i < listed; ++i) {
        if (count > 0 && list[i] == Size64{spans[count - 1].iLast} + 1)
            spans[count - 1].iLast = list[i];
        else
            spans[count++] = {list[i], list[i]};
    }
    return count;
}

}  // namespace kest
