// CcRoiRows: the pixels of a ROI as runs of neighbouring columns, row by row. A class of the library is asked for its
// runs directly; any other one for its list, in which neighbouring entries that ascend by 1 make a run.
#include "CcRoiRows.h"

#include "CcRoiEllipse.h"
#include "CcRoiLine.h"
#include "CcRoiRect.h"
#include "core/ExactClass.h"
#include "core/kernel/CheckedSize.h"
#include "roi/OutlineMembers.h"
#include "roi/kernel/EllipseExtent.h"
#include "roi/kernel/LinePixels.h"

namespace {

// Each of these gives the number of a row's runs, 0 when the row misses the ROI, KEST_FAILED when memory is short.

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

int SpansOfRect(CcRoiBase& roi, int row, KestHeapBlock& spans) {
    return SpanOfShape<RECT>(roi, row, spans, [](const RECT& rect, int, KestSpan& span) {
        span = {static_cast<int>(rect.left), static_cast<int>(rect.right)};
        return span.iFirst <= span.iLast;
    });
}

int SpansOfEllipse(CcRoiBase& roi, int row, KestHeapBlock& spans) {
    return SpanOfShape<RECT>(roi, row, spans, [](const RECT& box, int at, KestSpan& span) {
        return kest::EllipseRow(kest::ToRect(box), at, span);
    });
}

int SpansOfLine(CcRoiBase& roi, int row, KestHeapBlock& spans) {
    return SpanOfShape<tagROILINE>(roi, row, spans, [](const tagROILINE& line, int at, KestSpan& span) {
        return kest::LineRow({line.iStartX, line.iStartY}, {line.iEndX, line.iEndY}, at, span);
    });
}

template <class Outline>
int SpansOfOutline(CcRoiBase& roi, int row, KestHeapBlock& spans) {
    return KestOutlineMembers<Outline>::SpansOfRow(static_cast<Outline&>(roi), row, spans);
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
        if (count > 0 && list[i] == kest::Size64{spans[count - 1].iLast} + 1)
            spans[count - 1].iLast = list[i];
        else
            spans[count++] = {list[i], list[i]};
    }
    return count;
}

using Spans = int (*)(CcRoiBase& roi, int row, KestHeapBlock& spans);

Spans SpansOf(const CcRoiBase& roi) {
    if (kest::IsExactly<CcRoiRect>(roi)) return SpansOfRect;
    if (kest::IsExactly<CcRoiEllipse>(roi)) return SpansOfEllipse;
    if (kest::IsExactly<CcRoiLine>(roi)) return SpansOfLine;
    if (kest::IsExactly<CcRoiFreeHand>(roi)) return SpansOfOutline<CcRoiFreeHand>;
    if (kest::IsExactly<CcRoiPolyFreeHand>(roi)) return SpansOfOutline<CcRoiPolyFreeHand>;
    if (kest::IsExactly<CcRoiFreeHandLine>(roi)) return SpansOfOutline<CcRoiFreeHandLine>;
    if (kest::IsExactly<CcRoiPolyLine>(roi)) return SpansOfOutline<CcRoiPolyLine>;
    return SpansOfList;
}

}  // namespace

CcRoiRows::CcRoiRows(CcRoiBase* pNewRoi) : pRoi(pNewRoi), pfnSpans(pRoi ? SpansOf(*pRoi) : SpansOfList) {}

const KestSpan* CcRoiRows::GetSpans(int iRow, int* piCount) {
    if (!piCount) return nullptr;
    *piCount = pRoi ? pfnSpans(*pRoi, iRow, cSpans) : 0;
    return *piCount > 0 ? reinterpret_cast<const KestSpan*>(cSpans.Get()) : nullptr;
}
