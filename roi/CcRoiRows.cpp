// CcRoiRows: the pixels of a ROI as runs of neighbouring columns, row by row. A class of the library is asked for its
// runs directly; any other one for its list, in which neighbouring entries that ascend by 1 make a run.
#include "CcRoiRows.h"

#include <typeinfo>

#include "CcRoiEllipse.h"
#include "CcRoiRect.h"
#include "core/kernel/CheckedSize.h"
#include "roi/OutlineMembers.h"
#include "roi/kernel/EllipseExtent.h"

namespace {

KestSpan* Reserve(KestHeapBlock& spans, long long count) {
    if (!spans.Reserve(count * static_cast<long long>(sizeof(KestSpan)))) return nullptr;
    return reinterpret_cast<KestSpan*>(spans.Get());
}

int SpansOfRect(CcRoiBase& roi, int, KestHeapBlock& spans) {
    const auto& rect = *static_cast<const RECT*>(roi.GetRoiImageCord());
    KestSpan* span = Reserve(spans, 1);
    if (!span || rect.left > rect.right) return 0;
    *span = {static_cast<int>(rect.left), static_cast<int>(rect.right)};
    return 1;
}

int SpansOfEllipse(CcRoiBase& roi, int row, KestHeapBlock& spans) {
    const auto& box = *static_cast<const RECT*>(roi.GetRoiImageCord());
    KestSpan* span = Reserve(spans, 1);
    return span && kest::EllipseRow(kest::ToRect(box), row, *span) ? 1 : 0;
}

template <class Outline>
int SpansOfOutline(CcRoiBase& roi, int row, KestHeapBlock& spans) {
    return KestOutlineMembers<Outline>::SpansOfRow(static_cast<Outline&>(roi), row, spans);
}

int SpansOfList(CcRoiBase& roi, int row, KestHeapBlock& block) {
    int listed = 0;
    const int* list = roi.GetXBoundary(row, &listed);
    if (!list || listed < 1) return 0;
    KestSpan* spans = Reserve(block, listed);
    if (!spans) return 0;
    int count = 0;
    for (int i = 0; i < listed; ++i) {
        if (count > 0 && list[i] == kest::Size64{spans[count - 1].iLast} + 1)
            spans[count - 1].iLast = list[i];
        else
            spans[count++] = {list[i], list[i]};
    }
    return count;
}

}  // namespace

CcRoiRows::CcRoiRows(CcRoiBase* pNewRoi) : pRoi(pNewRoi), pfnSpans(SpansOfList) {
    if (!pRoi) return;
    const std::type_info& type = typeid(*pRoi);
    if (type == typeid(CcRoiRect))
        pfnSpans = SpansOfRect;
    else if (type == typeid(CcRoiEllipse))
        pfnSpans = SpansOfEllipse;
    else if (type == typeid(CcRoiFreeHand))
        pfnSpans = SpansOfOutline<CcRoiFreeHand>;
    else if (type == typeid(CcRoiPolyFreeHand))
        pfnSpans = SpansOfOutline<CcRoiPolyFreeHand>;
    else if (type == typeid(CcRoiFreeHandLine))
        pfnSpans = SpansOfOutline<CcRoiFreeHandLine>;
    else if (type == typeid(CcRoiPolyLine))
        pfnSpans = SpansOfOutline<CcRoiPolyLine>;
}

const KestSpan* CcRoiRows::GetSpans(int iRow, int* piCount) {
    if (!piCount) return nullptr;
    *piCount = pRoi ? pfnSpans(*pRoi, iRow, cSpans) : 0;
    return *piCount > 0 ? reinterpret_cast<const KestSpan*>(cSpans.Get()) : nullptr;
}
