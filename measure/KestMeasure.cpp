// Measuring: lengths and areas in pixels and in world units, and the pixels under a ROI.
#include "KestMeasure.h"

#include <windows.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <span>

#include "CcCalibration.h"
#include "CcImage.h"
#include "CcRoiLine.h"
#include "CcRoiRows.h"
#include "KestOutline.h"
#include "measure/kernel/OutlineLines.h"
#include "measure/kernel/PixelRuns.h"
#include "core/kernel/CheckedSize.h"
#include "core/kernel/TextField.h"

namespace {

using kest::RealPoint;

constexpr double noLength = -1.0;

/// Adds up the lengths of straight lines between image points, in pixels and in world units.
class Lengths {
public:
    explicit Lengths(const CcCalibration* known) : calibration(known) {}

    void Add(RealPoint from, RealPoint to) {
        const RealPoint worldFrom = ToWorld(from), worldTo = ToWorld(to);
        pixels += std::hypot(to.x - from.x, to.y - from.y);
        world += std::hypot(worldTo.x - worldFrom.x, worldTo.y - worldFrom.y);
    }

    double pixels = 0;
    double world = 0;

private:
    RealPoint ToWorld(RealPoint image) const {
        RealPoint world = image;
        if (calibration) calibration->ConvertPointExactly(image.x, image.y, &world.x, &world.y);
        return world;
    }

    const CcCalibration* calibration;
};

/// A shape's box as its pixels fill it.
struct PixelBox {
    double left, bottom, right, top;

    explicit PixelBox(const RECT& record)
        : left(record.left - 0.5), bottom(record.bottom - 0.5), right(record.right + 0.5), top(record.top + 0.5) {}

    /// A drag beyond the image leaves such a record; it encloses nothing.
    bool IsCrossed() const { return left >= right || bottom >= top; }
};

void AddRectangle(Lengths& lengths, const RECT& record) {
    const PixelBox box(record);
    if (box.IsCrossed()) return;
    const RealPoint corners[] = {
        {box.left, box.bottom}, {box.right, box.bottom}, {box.right, box.top}, {box.left, box.top}};
    for (int i = 0; i < 4; ++i) lengths.Add(corners[i], corners[(i + 1) % 4]);
}

/// So many chords are shorter than the ellipse by 2 parts in a million.
constexpr int ellipseChords = 1024;

void AddEllipse(Lengths& lengths, const RECT& record) {
    const PixelBox box(record);
    if (box.IsCrossed()) return;
    const auto at = [&box](int i) {
        const double angle = 2 * std::numbers::pi * (i % ellipseChords) / ellipseChords;
        return RealPoint{(box.left + box.right) / 2 + (box.right - box.left) / 2 * std::cos(angle),
                         (box.bottom + box.top) / 2 + (box.top - box.bottom) / 2 * std::sin(angle)};
    };
    for (int i = 0; i < ellipseChords; ++i) lengths.Add(at(i), at(i + 1));
}

/// Whether a drawn outline goes back to its beginning; nothing for another shape. The type code tells the classes apart, as a
/// host may have compiled its own without run-time types.
std::optional<bool> IsClosedOutline(CcRoiBase& roi) {
    switch (roi.GetROIType()) {
        case KEST_ROI_FREEHAND:
        case KEST_ROI_POLYFREEHAND: return true;
        case KEST_ROI_FREEHANDLINE:
        case KEST_ROI_POLYLINE: return false;
        default: return std::nullopt;
    }
}

/// The pixels of a drawn outline, in the order drawn.
std::span<const kest::IntPoint> ChainOf(CcRoiBase& roi) {
    const auto* record = static_cast<const PixelGroupTag*>(roi.GetRoiImageCord());
    if (!record || !record->stPOINTS || !record->hPOINTS || record->iNumOfPoints < 1) return {};
    const PixelGroupTag& outline = *record;
    static_assert(sizeof(POINT) == sizeof(kest::IntPoint));
    const std::size_t count = std::min<std::size_t>(static_cast<std::size_t>(outline.iNumOfPoints),
                                                    GlobalSize(outline.hPOINTS) / sizeof(POINT));
    return {reinterpret_cast<const kest::IntPoint*>(outline.stPOINTS), count};
}

void AddOutline(Lengths& lengths, CcRoiBase& roi, bool isClosed) {
    kest::VisitStraightLines(ChainOf(roi), isClosed,
                             [&lengths](kest::IntPoint from, kest::IntPoint to) {
                                 lengths.Add({static_cast<double>(from.x), static_cast<double>(from.y)},
                                             {static_cast<double>(to.x), static_cast<double>(to.y)});
                             });
}

void AddLine(Lengths& lengths, const tagROILINE& line) {
    lengths.Add({static_cast<double>(line.iStartX), static_cast<double>(line.iStartY)},
                {static_cast<double>(line.iEndX), static_cast<double>(line.iEndY)});
}

/// False for a shape of a host's own.
bool AddRoi(Lengths& lengths, CcRoiBase& roi) {
    const void* record = roi.GetRoiImageCord();
    if (!record) return false;
    switch (roi.GetROIType()) {
        case KEST_ROI_POINT: return true;
        case KEST_ROI_LINE: AddLine(lengths, *static_cast<const tagROILINE*>(record)); return true;
        case KEST_ROI_RECT: AddRectangle(lengths, *static_cast<const RECT*>(record)); return true;
        case KEST_ROI_ELLIPSE: AddEllipse(lengths, *static_cast<const RECT*>(record)); return true;
        default: break;
    }
    const std::optional<bool> isClosed = IsClosedOutline(roi);
    if (isClosed) AddOutline(lengths, roi, *isClosed);
    return isClosed.has_value();
}

/// An image's values, and the world area of its pixels.
class MeasuredImage {
public:
    explicit MeasuredImage(CcImage& image)
        : pixels(image.GetBitMapImageData()),
          type(image.GetImageType()),
          calibration(image.GetCalibrationObject()) {
        image.GetHeightWidth(&height, &width);
        if (calibration) calibration->GetSizeOfImage(&mapWidth, &mapHeight);
    }

    bool HasPixels() const { return pixels && type >= KEST_IMAGE_GRAY256 && type <= KEST_IMAGE_HSL; }
    int Width() const { return width; }
    int Height() const { return height; }

    /// The run lies inside the image.
    void AddValues(kest::PixelStatistics& statistics, int row, KestSpan run) const {
        const auto first = static_cast<std::size_t>(kest::Product(width, row) + run.iFirst);
        const auto count = static_cast<std::size_t>(run.iLast - run.iFirst + 1);
        switch (type) {
        case KEST_IMAGE_INT16: kest::AddUnsigned16(statistics, Values<std::uint16_t>(first, count)); break;
        case KEST_IMAGE_INT32: kest::AddSigned32(statistics, Values<std::int32_t>(first, count)); break;
        case KEST_IMAGE_FLOAT: kest::AddFloats(statistics, Values<float>(first, count)); break;
        case KEST_IMAGE_RGB:
        case KEST_IMAGE_HSL: kest::AddColours(statistics, Values<std::uint8_t>(3 * first, 3 * count)); break;
        default: kest::AddBytes(statistics, Values<std::uint8_t>(first, count)); break;
        }
    }

    double WorldArea(int row, KestSpan run) const {
        if (!calibration) return run.iLast - run.iFirst + 1.0;
        const float* map = calibration->GetAreaMap();
        if (map && mapWidth == width && mapHeight == height)
            return kest::SumOf(
                {map + kest::Product(width, row) + run.iFirst, static_cast<std::size_t>(run.iLast - run.iFirst + 1)});
        double area = 0;
        for (int x = run.iFirst; x <= run.iLast; ++x) area += calibration->ComputeAreaOfPixel(x, row);
        return area;
    }

private:
    template <class Value>
    std::span<const Value> Values(std::size_t first, std::size_t count) const {
        return {static_cast<const Value*>(pixels) + first, count};
    }

    const void* pixels;
    int type;
    CcCalibration* calibration;
    int width = 0, height = 0;
    int mapWidth = -1, mapHeight = -1;
};

/// Calls visit(row, run) for the distinct runs of the ROI's pixels inside the image. False without memory.
template <class Visit>
bool VisitRuns(const MeasuredImage& image, CcRoiBase& roi, Visit visit) {
    const RECT* bounds = roi.GetBoundingRect();
    if (!bounds) return false;
    const int first = std::max<int>(bounds->bottom, 0);
    const int last = std::min<int>(bounds->top, image.Height() - 1);
    CcRoiRows rows(&roi);
    KestHeapBlock copies;
    for (int row = first; row <= last; ++row) {
        int count = 0;
        const KestSpan* listed = rows.GetSpans(row, &count);
        if (count < 0) return false;
        if (!listed) continue;
        if (!copies.Reserve(kest::Product(count, sizeof(KestSpan)))) return false;
        const std::span<KestSpan> runs(reinterpret_cast<KestSpan*>(copies.Get()), static_cast<std::size_t>(count));
        std::copy_n(listed, count, runs.begin());
        for (const KestSpan& run : kest::DistinctRuns(runs, image.Width())) visit(row, run);
    }
    return true;
}

}  // namespace

int KestMeasureRoi(CcImage* pImage, CcRoiBase* pRoi, KestRoiMeasurement* pResult) {
    if (!pResult) return KEST_FAILED;
    *pResult = {};
    if (!pImage || !pRoi) return KEST_FAILED;
    const MeasuredImage image(*pImage);
    if (!image.HasPixels()) return KEST_FAILED;
    double worldArea = 0;
    kest::PixelStatistics statistics;
    if (!VisitRuns(image, *pRoi, [&](int row, KestSpan run) {
            image.AddValues(statistics, row, run);
            worldArea += image.WorldArea(row, run);
        }))
        return KEST_FAILED;

    CcCalibration* calibration = pImage->GetCalibrationObject();
    Lengths lengths(calibration);
    const bool hasLength = AddRoi(lengths, *pRoi);
    pResult->bCalibrated = calibration ? 1 : 0;
    kest::CopyCut(pResult->szUnits, calibration ? calibration->GetUnitsOfMeasure() : "Pixels");
    pResult->dLengthPixels = hasLength ? lengths.pixels : noLength;
    pResult->dLengthWorld = hasLength ? lengths.world : noLength;
    pResult->llPixels = statistics.count + statistics.notFinite;
    pResult->dAreaPixels = static_cast<double>(pResult->llPixels);
    pResult->dAreaWorld = worldArea;
    pResult->llNotFinite = statistics.notFinite;
    pResult->dMean = statistics.mean;
    pResult->dMinimum = statistics.minimum;
    pResult->dMaximum = statistics.maximum;
    pResult->dStandardDeviation = statistics.StandardDeviation();
    return KEST_OK;
}

double KestRoiLengthPixels(CcRoiBase* pRoi) {
    Lengths lengths(nullptr);
    return pRoi && AddRoi(lengths, *pRoi) ? lengths.pixels : noLength;
}

double KestRoiLengthWorld(CcRoiBase* pRoi, CcCalibration* pCalibration) {
    if (!pRoi || !pCalibration) return noLength;
    Lengths lengths(pCalibration);
    return AddRoi(lengths, *pRoi) ? lengths.world : noLength;
}

namespace {

bool AddPoints(Lengths& lengths, const tagPoints* points, int count, bool isClosed) {
    if (!points || count < 1) return false;
    const auto at = [points](int i) { return RealPoint{points[i].x, points[i].y}; };
    for (int i = 1; i < count; ++i) lengths.Add(at(i - 1), at(i));
    if (isClosed) lengths.Add(at(count - 1), at(0));
    return true;
}

}  // namespace

int KestOutlineCorners(CcRoiBase* pRoi, tagPoints* pCorners, int iMost) {
    if (!pRoi) return KEST_FAILED;
    if (!IsClosedOutline(*pRoi)) return 0;
    const std::span<const kest::IntPoint> chain = ChainOf(*pRoi);
    int count = 0;
    const auto add = [&](kest::IntPoint corner) {
        if (pCorners && count < iMost) pCorners[count] = {static_cast<float>(corner.x), static_cast<float>(corner.y)};
        ++count;
    };
    if (!chain.empty()) add(chain.front());
    kest::VisitStraightLines(chain, false, [&add](kest::IntPoint, kest::IntPoint to) { add(to); });
    return count;
}

double KestLengthPixels(const tagPoints* pPoints, int iCount, int bClosed) {
    Lengths lengths(nullptr);
    return AddPoints(lengths, pPoints, iCount, bClosed != 0) ? lengths.pixels : noLength;
}

double KestLengthWorld(CcCalibration* pCalibration, const tagPoints* pPoints, int iCount, int bClosed) {
    if (!pCalibration) return noLength;
    Lengths lengths(pCalibration);
    return AddPoints(lengths, pPoints, iCount, bClosed != 0) ? lengths.world : noLength;
}
