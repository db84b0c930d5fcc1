// CcRoiLine: the straight line.
#include "CcRoiLine.h"

#include <cstdio>

#include "core/ClassName.h"
#include "core/kernel/NameCounter.h"
#include "roi/ShapeDrag.h"
#include "roi/ShapeDrawing.h"
#include "roi/ShapePlace.h"
#include "roi/ShapeRecord.h"
#include "roi/kernel/HitTest.h"
#include "roi/kernel/LinePixels.h"

namespace {

constexpr kest::ShapeKind kind = {
    .className = "CcRoiLine",
    .recordKey = "CcRoiLine::stImageLine",
    .typeCode = KEST_ROI_LINE,
    .recordBytes = sizeof(tagROILINE),
    .isNormalised = false,
    .keepsExtent = false,
    .takeCorners = kest::TakeClamped,
    .windowCorners = kest::WindowCornersOf,
    .drawRubberBand = kest::DrawLine,
    .draw = [](HDC dc, const kest::IntRect& place, const char*) { kest::DrawLine(dc, place); },
};

enum HitCode { StartPoint = 5, EndPoint = 8 };

kest::IntPoint StartOf(const tagROILINE& line) { return {line.iStartX, line.iStartY}; }
kest::IntPoint EndOf(const tagROILINE& line) { return {line.iEndX, line.iEndY}; }

bool IsOnLine(const tagROILINE& line, kest::IntPoint position, int tolerance) {
    const kest::IntPoint start = StartOf(line), end = EndOf(line);
    KestSpan span;
    return (kest::LineRow(start, end, position.y, span) && kest::IsNearSpan(span, position.x, tolerance)) ||
           (kest::LineColumn(start, end, position.x, span) && kest::IsNearSpan(span, position.y, tolerance));
}

}  // namespace

int CcRoiLine::iLineROICount = 0;

CcRoiLine::CcRoiLine() : stImageLine{}, stWindowLine{}, stLastMouse{}, iDragMode(-1) {
    iROIType = kind.typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "Line.%d", kest::NextNumber(iLineROICount));
}

CcRoiLine::~CcRoiLine() { kest::AbandonDrag(Parts().drag); }

kest::ShapeParts CcRoiLine::Parts() {
    return {kind,
            *this,
            stBoundingRect,
            stCurrentBoundingRect,
            Boundary(),
            &stImageLine,
            kest::CornersIn(stImageLine),
            kest::CornersIn(stWindowLine),
            {iZoom, iDragMode, hDragDC, stLastMouse},
            iHitCode};
}

int CcRoiLine::Load(CcObjectStorage* pStorage) { return kest::LoadShape(Parts(), pStorage); }
int CcRoiLine::Store(CcObjectStorage* pStorage) { return kest::StoreShape(Parts(), pStorage); }

int CcRoiLine::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, kind.className);
}

int CcRoiLine::Save(const char* pszFileName) { return kest::SaveShape(Parts(), pszFileName); }
int CcRoiLine::Restore(const char* pszFileName) { return kest::RestoreShape(Parts(), pszFileName); }
int CcRoiLine::SetRoiImageCord(void* pRecord) { return kest::TakeShapeRecord(Parts(), pRecord); }
void* CcRoiLine::GetRoiImageCord() { return &stImageLine; }

int CcRoiLine::StartMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                              POINT stMouse, int iNewDragMode, CcRoiBase* pSourceROI, int iNewZoom) {
    return kest::StartShapeDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iNewZoom}, stMouse,
                                iNewDragMode, pSourceROI);
}

// During a drag the zoom of its start counts.
int CcRoiLine::DoMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                           POINT stMouse, int) {
    return kest::ContinueShapeDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

int CcRoiLine::StopMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                             POINT stMouse) {
    return kest::StopShapeDrag(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

RECT* CcRoiLine::GetCurrentBoundingRect() { return kest::CurrentShapeBounds(Parts()); }

int CcRoiLine::ShowROI(HDC hDC, RECT* pRect, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                       int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(pRect, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowShape(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiLine::ShowROI(HDC hDC, HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                       int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowShape(Parts(), hDC, view, PenFor(iPenSelect));
}

int CcRoiLine::ShowROI(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                       int iShowZoom, int iPenSelect) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return kest::ShowShape(Parts(), hWnd, view, PenFor(iPenSelect));
}

int CcRoiLine::MouseHitTest(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                            POINT stMouse, int iTestZoom) {
    const auto view = kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iTestZoom});
    if (!view) return KEST_FAILED;
    kest::MakeWindowPlace(Parts(), view);
    const kest::IntPoint position = kest::WindowToImage(*view, kest::ToPoint(stMouse));
    const int tolerance = kest::LineTolerance(*view);
    const kest::IntPoint start = StartOf(stImageLine), end = EndOf(stImageLine);
    int code = -1;
    if (kest::IsAnyNear({&start, 1}, position, tolerance))
        code = StartPoint;
    else if (kest::IsAnyNear({&end, 1}, position, tolerance))
        code = EndPoint;
    else if (GetBoundingRect() && IsOnLine(stImageLine, position, tolerance))
        code = 0;
    if (code != -1) iHitCode = code;
    return code;
}

RECT* CcRoiLine::GetBoundingRect() { return kest::PrepareShape(Parts()); }

int* CcRoiLine::GetYBoundary(int iColumn, int* piCount) {
    KestSpan rows = {};
    const bool isHit = kest::LineColumn(StartOf(stImageLine), EndOf(stImageLine), iColumn, rows);
    return Boundary().ListSpan(isHit, rows, piCount);
}

int* CcRoiLine::GetXBoundary(int iRow, int* piCount) {
    KestSpan columns = {};
    const bool isHit = kest::LineRow(StartOf(stImageLine), EndOf(stImageLine), iRow, columns);
    return Boundary().ListSpan(isHit, columns, piCount);
}

int CcRoiLine::UpdateImageIfNeeded(HWND, int, int, unsigned short, CcImage*, int) { return KEST_OK; }
int CcRoiLine::IsRoiAGraphicObject() { return 0; }

int CcRoiLine::SetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                int iShowZoom) {
    return kest::TakeWindowPlace(Parts(), hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
}

tagROILINE* CcRoiLine::GetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                                        CcImage* pImage, int iShowZoom) {
    kest::MakeWindowPlace(Parts(), kest::MakeView(hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom}));
    return &stWindowLine;
}
