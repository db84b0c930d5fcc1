// Measuring: lengths and areas in pixels and in world units, and the pixels under a ROI.
#include "KestMeasure.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "CcCalibration.h"
#include "CcImage.h"
#include "CcRoiRows.h"
#include "KestRoiFacts.h"
#include "KestSamples.h"
#include "core/kernel/CheckedSize.h"
#include "core/kernel/Geometry.h"
#include "core/kernel/TextField.h"
#include "measure/kernel/PixelRuns.h"

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
        RealPoint point = image;
        if (calibration) calibration->ConvertPointExactly(image.x, image.y, &point.x, &point.y);
        return point;
    }

    const CcCalibration* calibration;
};

/// So many chords are shorter than the ellipse by 2 parts in a million.
constexpr int ellipseChords = 1024;

/// Adds the lines along a ROI; false for a shape of a host's own.
bool AddRoi(Lengths& lengths, CcRoiBase& roi) {
    KestRoiFacts facts;
    if (KestGetRoiFacts(roi.GetROIType(), &facts) < 0) return false;
    RealPoint first = {}, last = {};
    bool isFirst = true;
    const auto add = [&](double x, double y) {
        const RealPoint corner = {x, y};
        if (isFirst)
            first = corner;
        else
            lengths.Add(last, corner);
        last = corner;
        isFirst = false;
    };
    const int corners = KestVisitRoiCorners(&roi, KEST_BORDER_EDGES, ellipseChords, add);
    if (facts.bClosed && corners > 1) lengths.Add(last, first);
    return corners >= 0;
}

void Add(kest::PixelStatistics& statistics, std::span<const unsigned char> pixels) {
    kest::AddBytes(statistics, pixels);
}
void Add(kest::PixelStatistics& statistics, std::span<const unsigned short> pixels) {
    kest::AddUnsigned16(statistics, pixels);
}
void Add(kest::PixelStatistics& statistics, std::span<const int> pixels) { kest::AddSigned32(statistics, pixels); }
void Add(kest::PixelStatistics& statistics, std::span<const float> pixels) { kest::AddFloats(statistics, pixels); }
void Add(kest::PixelStatistics& statistics, std::span<const RGBTRIPLE> pixels) {
    static_assert(sizeof(RGBTRIPLE) == 3);
    kest::AddColours(statistics, {reinterpret_cast<const unsigned char*>(pixels.data()), pixels.size_bytes()});
}

/// An image's values, and the world area of its pixels.
class MeasuredImage {
public:
    explicit MeasuredImage(CcImage& measured) : image(measured), calibration(image.GetCalibrationObject()) {
        image.GetHeightWidth(&height, &width);
        if (calibration) calibration->GetSizeOfImage(&mapWidth, &mapHeight);
    }

    bool HasPixels() const {
        return KestVisitSamples(image, [](const auto* pixels) { return pixels != nullptr; });
    }
    int Width() const { return width; }
    int Height() const { return height; }

    /// The run lies inside the image.
    void AddValues(kest::PixelStatistics& statistics, int row, KestSpan run) const {
        const kest::Size64 first = kest::Product(width, row) + run.iFirst;
        KestVisitSamples(image, [&](const auto* pixels) {
            Add(statistics, std::span(pixels + first, static_cast<std::size_t>(run.iLast - run.iFirst + 1)));
        });
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
    CcImage& image;
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
    KestRoiFacts facts;
    const bool isOutline =
        KestGetRoiFacts(pRoi->GetROIType(), &facts) == KEST_OK && facts.iRecord == KEST_RECORD_OUTLINE;
    if (!isOutline) return 0;
    int count = 0;
    const auto add = [&](double x, double y) {
        if (pCorners && count < iMost) pCorners[count] = {static_cast<float>(x), static_cast<float>(y)};
        ++count;
    };
    KestVisitRoiCorners(pRoi, KEST_BORDER_CENTRES, 0, add);
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
