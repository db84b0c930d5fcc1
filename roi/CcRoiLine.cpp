// CcRoiLine: the straight line. Its pixels are rasterised when the bounding rectangle is asked for.
#include "CcRoiLine.h"

#include <cstdio>

#include "core/kernel/NameCounter.h"
#include "roi/ShapeDrawing.h"
#include "roi/ShapeMembers.h"
#include "roi/kernel/HitTest.h"
#include "roi/kernel/LinePixels.h"

int CcRoiLine::iLineROICount = 0;

template <>
struct KestShapeTraits<CcRoiLine> {
    using Record = tagROILINE;
    using WindowRecord = tagROILINE;
    static constexpr char className[] = "CcRoiLine";
    static constexpr char recordKey[] = "CcRoiLine::stImageLine";
    static constexpr int typeCode = KEST_ROI_LINE;
    static constexpr bool isNormalised = false;
    enum HitCode { StartPoint = 5, EndPoint = 8 };

    static kest::IntRect Corners(const tagROILINE& line) {
        return {line.iStartX, line.iStartY, line.iEndX, line.iEndY};
    }
    static tagROILINE Line(const kest::IntRect& corners) {
        return {corners.left, corners.top, corners.right, corners.bottom};
    }
    static kest::IntPoint Start(const CcRoiLine& shape) { return {shape.stImageLine.iStartX, shape.stImageLine.iStartY}; }
    static kest::IntPoint End(const CcRoiLine& shape) { return {shape.stImageLine.iEndX, shape.stImageLine.iEndY}; }

    static Record& RecordOf(CcRoiLine& shape) { return shape.stImageLine; }
    static void TakeRecord(CcRoiLine& shape, const Record& record) { shape.stImageLine = record; }
    static kest::IntRect CornersOf(CcRoiLine& shape) { return Corners(shape.stImageLine); }
    static void TakeCorners(CcRoiLine& shape, const kest::View& view, const kest::IntRect& corners) {
        shape.stImageLine = Line(kest::ClampToImage(view, corners));
    }
    static kest::IntRect WindowCornersOf(CcRoiLine& shape, const kest::View& view) {
        return kest::WindowCorners(view, CornersOf(shape));
    }
    static WindowRecord& WindowRecordOf(CcRoiLine& shape) { return shape.stWindowLine; }
    static kest::IntRect WindowOf(CcRoiLine& shape) { return Corners(shape.stWindowLine); }
    static void SetWindow(CcRoiLine& shape, const kest::IntRect& place) { shape.stWindowLine = Line(place); }

    static void DrawRubberBand(HDC dc, const kest::IntRect& place) { kest::DrawLine(dc, place); }
    static void DrawOutline(HDC dc, const kest::IntRect& place) { kest::DrawLine(dc, place); }
    static void DrawDecoration(HDC, const kest::IntRect&, CcRoiLine&) {}
    static void FollowCreation(kest::IntRect& place, kest::IntPoint mouse) {
        place.right = mouse.x;
        place.bottom = mouse.y;
    }
    static void FinishCreation(kest::IntRect& place, kest::IntPoint mouse) { FollowCreation(place, mouse); }

    static bool PrepareQueries(CcRoiLine& shape) {
        const kest::Size64 count = kest::LinePixelCount(Start(shape), End(shape));
        shape.iLinePixels = 0;
        // Room for two pixels a unit of the larger extent; it is kept until it is too small.
        const kest::Size64 bytes = 2 * count * static_cast<kest::Size64>(sizeof(kest::IntPoint));
        if (bytes > shape.hLinePixels.Size() && !shape.hLinePixels.Allocate(bytes)) return false;
        shape.iLinePixels = static_cast<int>(count);
        kest::RasteriseLine(Start(shape), End(shape), Pixels(shape));
        return true;
    }
    /// None in a copy, whose count is its source's, until its own list is made.
    static std::span<kest::IntPoint> Pixels(CcRoiLine& shape) {
        auto* pixels = static_cast<kest::IntPoint*>(shape.hLinePixels.Get());
        const kest::Size64 bytes = shape.iLinePixels * static_cast<kest::Size64>(sizeof(kest::IntPoint));
        const bool areOwn = pixels && shape.Boundary() && bytes <= shape.hLinePixels.Size();
        return {pixels, areOwn ? static_cast<std::size_t>(shape.iLinePixels) : 0};
    }

    static int HitTest(CcRoiLine& shape, const kest::View& view, kest::IntPoint mouse) {
        const kest::IntPoint position = kest::WindowToImage(view, mouse);
        const int tolerance = kest::LineTolerance(view);
        const kest::IntPoint start = Start(shape), end = End(shape);
        int code = -1;
        if (kest::IsAnyNear({&start, 1}, position, tolerance)) {
            code = StartPoint;
        } else if (kest::IsAnyNear({&end, 1}, position, tolerance)) {
            code = EndPoint;
        } else if (shape.GetBoundingRect()) {
            const std::span<const kest::IntPoint> pixels = Pixels(shape);
            if (kest::IsAnyNear(kest::PixelsOnRow(pixels, position.y), position, tolerance) ||
                kest::IsAnyNear(kest::PixelsOnColumn(pixels, position.x), position, tolerance))
                code = 0;
        }
        if (code != -1) shape.iHitCode = code;
        return code;
    }

    template <class Coordinate>
    static int* List(CcRoiLine& shape, std::span<const kest::IntPoint> pixels, int* count, Coordinate coordinate) {
        if (pixels.empty() || !count || !shape.Boundary() || std::ssize(pixels) > shape.iBoundarySize)
            return shape.ListNothing(count);
        std::transform(pixels.begin(), pixels.end(), shape.piBoundary, coordinate);
        *count = static_cast<int>(pixels.size());
        return shape.piBoundary;
    }
    static int* ListRow(CcRoiLine& shape, int row, int* count) {
        return List(shape, kest::PixelsOnRow(Pixels(shape), row), count, [](const kest::IntPoint& p) { return p.x; });
    }
    static int* ListColumn(CcRoiLine& shape, int column, int* count) {
        return List(shape, kest::PixelsOnColumn(Pixels(shape), column), count,
                    [](const kest::IntPoint& p) { return p.y; });
    }
};

using Members = KestShapeMembers<CcRoiLine>;

CcRoiLine::CcRoiLine()
    : stImageLine{}, stWindowLine{}, stLastMouse{}, iDragMode(-1),
      iLinePixels(0) {
    iROIType = Members::Traits::typeCode;
    std::snprintf(szObjectName, sizeof szObjectName, "Line.%d", kest::NextNumber(iLineROICount));
}

CcRoiLine::~CcRoiLine() { kest::AbandonDrag(hDragDC, iDragMode); }

#define ROI_CLASS CcRoiLine
#include "roi/ShapeOverrides.inl"
