// CcGraph: picking break points and the origin, and moving them.
#include <cstdlib>

#include "CcGraph.h"
#include "core/GdiGuards.h"
#include "core/Messages.h"
#include "core/kernel/CheckedSize.h"
#include "graph/CurvePoints.h"
#include "graph/Outputs.h"
#include "graph/kernel/CurvePath.h"

namespace {

/// Of the origin cross, in device units.
constexpr int originTolerance = 10;

/// On a device context with the graph's mapping.
kest::IntPoint ToLogical(HDC dc, POINT point) {
    DPtoLP(dc, &point, 1);
    return {point.x, point.y};
}

}  // namespace

int CcGraph::FindBreakPoint(HDC hDC, POINT* ptDevice, const kest::HitAxes& axes) {
    if (!pCurveList || !ptDevice) return KEST_FAILED;
    const POINT device = *ptDevice;
    const kest::MapModeGuard mapMode(hDC, MM_ANISOTROPIC);
    const auto toLogical = [&] {
        SetMapMode(hDC, MM_ANISOTROPIC);
        SetMapping(hDC);
        return ToLogical(hDC, device);
    };
    kest::IntPoint cursor = toLogical();
    CcList* const list = pCurveList;
    for (int i = 0; pCurveList == list && i < list->GetNumberOfObjects(); ++i) {
        pSelectedCurve = kest::AsCurve(list->GetAtIndex(i));
        if (!pSelectedCurve) {
            // The host may paint the graph anew meanwhile, or take its list away.
            kest::ShowMessage("Null Curve in 'IsCursorOnBP'", "Graph Error");
            cursor = toLogical();
            continue;
        }
        const std::span<const tagPoints> points = kest::PointsOf(*pSelectedCurve);
        if (points.empty()) continue;
        iSelectedPoint = kest::FirstPointNear(Scales(), points, cursor, axes);
        if (iSelectedPoint < 0) continue;
        list->SelectObjectAtIndex(i);
        return iSelectedPoint;
    }
    return KEST_FAILED;
}

int CcGraph::IsCursorOnBP(HDC hDC, POINT* ptDevice) { return FindBreakPoint(hDC, ptDevice, {.x = true, .y = true}); }

int CcGraph::IsCursorOnBPnoX(HDC hDC, POINT* ptDevice) {
    return FindBreakPoint(hDC, ptDevice, {.x = false, .y = true});
}

int CcGraph::IsCursorOnBPnoY(HDC hDC, POINT* ptDevice) {
    return FindBreakPoint(hDC, ptDevice, {.x = true, .y = false});
}

int CcGraph::IsCursorOnSelectedBP(HDC hDC, POINT* ptDevice) {
    if (!pCurveList || pCurveList->GetSelectedObjectsIndex() < 0 || !ptDevice) return KEST_FAILED;
    const kest::MapModeGuard mapMode(hDC, MM_ANISOTROPIC);
    SetMapping(hDC);
    const kest::IntPoint cursor = ToLogical(hDC, *ptDevice);
    pSelectedCurve = kest::AsCurve(pCurveList->GetSelected());
    if (!pSelectedCurve) return KEST_FAILED;
    const std::span<const tagPoints> points = kest::PointsOf(*pSelectedCurve);
    if (points.empty()) return KEST_FAILED;
    iSelectedPoint = kest::FirstPointNear(Scales(), points, cursor, {});
    return iSelectedPoint;
}

/// Looks up the selected point of the list's selected curve. 0 with a null point when no curve is selected.
int CcGraph::FindSelectedPoint(tagPoints*& pPoint) {
    pPoint = nullptr;
    if (!pCurveList || iSelectedPoint < 0) return KEST_FAILED;
    pSelectedCurve = kest::AsCurve(pCurveList->GetSelected());
    if (!pSelectedCurve) return KEST_OK;
    const std::span<tagPoints> points = kest::PointsOf(*pSelectedCurve);
    if (static_cast<std::size_t>(iSelectedPoint) >= points.size()) return KEST_FAILED;
    pPoint = &points[static_cast<std::size_t>(iSelectedPoint)];
    return KEST_OK;
}

int CcGraph::SetSelBPViaMouse(HDC hDC, POINT* ptDevice) {
    if (!pCurveList || iSelectedPoint < 0 || !ptDevice) return KEST_FAILED;
    POINT logical;
    tagPoints data;
    GetPositionViaMouse(hDC, ptDevice, &logical, &data);
    tagPoints* point;
    const int result = FindSelectedPoint(point);
    if (!point) return result;
    if (!Scales().AreUsable()) return KEST_FAILED;
    *point = data;
    return KEST_OK;
}

int CcGraph::GetPositionViaMouse(HDC hDC, POINT* ptDevice, POINT* ptLogical, tagPoints* ptData) {
    const kest::MapModeGuard mapMode(hDC, MM_ANISOTROPIC);
    SetMapping(hDC);
    if (!ptDevice) return KEST_OK;
    const kest::IntPoint logical = ToLogical(hDC, *ptDevice);
    const kest::GraphScales scales = Scales();
    kest::Put(ptLogical, {logical.x, logical.y});
    kest::Put(ptData, {scales.x.Value(logical.x), scales.y.Value(logical.y)});
    return KEST_OK;
}

int CcGraph::SetSelBPDirect(float fX, float fY) {
    tagPoints* point;
    const int result = FindSelectedPoint(point);
    if (point) *point = {fX, fY};
    return result;
}

int CcGraph::GetSelBPDirect(float* pfX, float* pfY) {
    tagPoints* point;
    const int result = FindSelectedPoint(point);
    if (!point) return result;
    kest::Put(pfX, point->x);
    kest::Put(pfY, point->y);
    return result;
}

int CcGraph::IsCursorOnOrigin(HDC hDC, POINT* ptDevice) {
    const kest::MapModeGuard mapMode(hDC, MM_ANISOTROPIC);
    SetMapping(hDC);
    const bool isNear = ptDevice && std::abs(kest::Size64{ptDevice->x} - stMapOrigins[0]) < originTolerance &&
                        std::abs(kest::Size64{ptDevice->y} - stMapOrigins[1]) < originTolerance;
    bOriginSelected = isNear;
    return bOriginSelected;
}

int CcGraph::SetOriginViaMouse(POINT* ptDevice) {
    if (!ptDevice) return KEST_FAILED;
    stMapOrigins[0] = ptDevice->x;
    stMapOrigins[1] = ptDevice->y;
    return KEST_OK;
}
