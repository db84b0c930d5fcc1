// Measuring the ROIs of every class over images of every class.
#include "KestMeasure.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <typeinfo>
#include <vector>

#include "image/Support.h"

namespace {

constexpr int width = 90, height = 70;

KestRoiMeasurement Measure(CcImage& image, CcRoiBase& roi) {
    KestRoiMeasurement measured;
    EXPECT_EQ(KestMeasureRoi(&image, &roi, &measured), 0);
    return measured;
}

/// Number and sum of the pixels that the ROI lists, each once and inside the image.
template <class Roi, class Record>
void ExpectListedPixels(Record record, double known, double length, double tolerance = 0) {
    CcGrayImage256 image;
    test::FillPattern(image, width, height);
    Roi roi;
    ASSERT_EQ(roi.SetRoiImageCord(&record), 0);
    const KestRoiMeasurement measured = Measure(image, roi);
    const RECT bounds = *roi.GetBoundingRect();
    long long pixels = 0;
    double sum = 0;
    for (int y = std::max<int>(bounds.bottom, 0); y <= bounds.top && y < height; ++y) {
        int count = 0;
        const int* list = roi.GetXBoundary(y, &count);
        for (const int x : std::set<int>(list, list + count))
            if (x >= 0 && x < width) ++pixels, sum += test::PatternValue(x, y);
    }
    EXPECT_EQ(measured.llPixels, pixels);
    EXPECT_NEAR(measured.dAreaWorld, known, tolerance);
    EXPECT_DOUBLE_EQ(measured.dMean, pixels ? sum / static_cast<double>(pixels) : 0.0);
    EXPECT_NEAR(measured.dLengthPixels, length, 1e-3);
    EXPECT_EQ(KestRoiLengthPixels(&roi), measured.dLengthPixels);
    EXPECT_DOUBLE_EQ(measured.dLengthWorld, measured.dLengthPixels);
    EXPECT_STREQ(measured.szUnits, "Pixels");
}

PixelGroupTag Outline(std::vector<POINT>& points) {
    return {0, 0, 0, static_cast<int>(points.size()), points.data(), nullptr};
}

RECT middle = {1, 2, 2, 1};

struct Values {
    double mean, low, high, deviation;
};

/// Of a 4 x 4 image of ones with other values in the pixels in the middle, in cell `offset` of the `step` of each.
template <class Image, class Cell>
void ExpectValues(std::array<Cell, 4> middleCells, const Values& wanted, int step = 1, int offset = 0) {
    Image image;
    CcRoiRect roi;
    roi.SetRoiImageCord(&middle);
    KestRoiMeasurement measured;
    EXPECT_EQ(KestMeasureRoi(&image, &roi, &measured), -1);
    ASSERT_EQ(image.MakeBlankBMP(4, 4, 1, "image"), 0);
    auto* cells = static_cast<Cell*>(image.GetBitMapImageData());
    int notFinite = 0;
    for (int i = 0; i < 4; ++i) {
        const Cell value = middleCells[static_cast<std::size_t>(i)];
        cells[(5 + i % 2 + i / 2 * 4) * step + offset] = value;
        notFinite += std::isfinite(static_cast<double>(value)) ? 0 : 1;
    }
    measured = Measure(image, roi);
    EXPECT_EQ(measured.llPixels, 4) << image.GetImageType();
    EXPECT_EQ(measured.llNotFinite, notFinite);
    EXPECT_NEAR(measured.dMean, wanted.mean, 1e-9) << image.GetImageType();
    EXPECT_DOUBLE_EQ(measured.dMinimum, wanted.low);
    EXPECT_DOUBLE_EQ(measured.dMaximum, wanted.high);
    EXPECT_NEAR(measured.dStandardDeviation, wanted.deviation, 1e-9);
}

}  // namespace

TEST(KestMeasure, RoisOfAllClasses) {
    ExpectListedPixels<CcRoiRect>(RECT{10, 9, 19, 5}, 50, 30);
    ExpectListedPixels<CcRoiRect>(RECT{-5, 5000, 4, 60}, 5 * 10, 2 * (10 + 4941));
    // Crossed sides, as a drag beyond the image leaves them.
    ExpectListedPixels<CcRoiRect>(RECT{width + 5, 9, width - 1, 5}, 0, 0);
    ExpectListedPixels<CcRoiEllipse>(RECT{20, 60, 59, 21}, 3.14159265 * 20 * 20, 3.14159265 * 40, 25);
    ExpectListedPixels<CcRoiLine>(tagROILINE{3, 4, 33, 44}, 40, 50);
    ExpectListedPixels<CcRoiPoint>(tagPoints{7.5F, 8.5F}, 1, 0);

    // A square ring, and an open line that goes back over itself.
    std::vector<POINT> ring;
    for (int i = 0; i < 20; ++i) ring.push_back({10 + i, 10});
    for (int i = 0; i < 20; ++i) ring.push_back({30, 10 + i});
    for (int i = 0; i < 20; ++i) ring.push_back({30 - i, 30});
    for (int i = 0; i < 20; ++i) ring.push_back({10, 30 - i});
    ExpectListedPixels<CcRoiFreeHand>(Outline(ring), 21 * 21, 80);
    ExpectListedPixels<CcRoiPolyFreeHand>(Outline(ring), 21 * 21, 80);
    CcRoiFreeHand square;
    PixelGroupTag record = {0, 0, 0, static_cast<int>(ring.size()), ring.data(), nullptr};
    square.SetRoiImageCord(&record);
    tagPoints corners[5] = {};
    EXPECT_EQ(KestOutlineCorners(&square, corners, 4), 5);
    EXPECT_EQ(corners[2].x, 30);
    EXPECT_EQ(corners[2].y, 30);
    EXPECT_EQ(corners[4].x, 0) << "not written";
    KestOutlineCorners(&square, corners, 5);
    EXPECT_EQ(corners[4].y, 11);
    std::vector<POINT> folded = {{40, 40}, {41, 40}, {42, 40}, {43, 40}, {44, 40}, {43, 40}, {42, 40}, {43, 41}};
    ExpectListedPixels<CcRoiFreeHandLine>(Outline(folded), 6, 4 + 2 + std::sqrt(2.0));
    ExpectListedPixels<CcRoiPolyLine>(Outline(folded), 6, 4 + 2 + std::sqrt(2.0));

    CcRoiBase own;
    EXPECT_EQ(KestRoiLengthPixels(&own), -1.0);
    EXPECT_EQ(KestOutlineCorners(&own, nullptr, 0), 0);
    EXPECT_EQ(KestOutlineCorners(nullptr, nullptr, 0), -1);
    const tagPoints corner[] = {{0, 0}, {3, 0}, {3, 4}};
    EXPECT_DOUBLE_EQ(KestLengthPixels(corner, 3, 0), 7.0);
    EXPECT_DOUBLE_EQ(KestLengthPixels(corner, 3, 1), 12.0);
    EXPECT_EQ(KestLengthPixels(corner, 0, 1) + KestLengthPixels(nullptr, 3, 1), -2.0);
}

namespace {

/// Bytes of memory that the process has for itself.
long long PrivateBytes() {
    PROCESS_MEMORY_COUNTERS counters = {};
    K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<long long>(counters.PagefileUsage);
}

/// Five ROIs as a session brings them: measured, hit and cut out they take no more than the picture's part asks for.
template <class Roi, class Record>
void ExpectModest(Record record, long long pixels) {
    SCOPED_TRACE(typeid(Roi).name());
    CcGrayImage256 image;
    test::FillPattern(image, width, height);
    Roi rois[5];
    const long long before = PrivateBytes();
    const DWORD start = GetTickCount();
    for (Roi& roi : rois) {
        ASSERT_EQ(roi.SetRoiImageCord(&record), 0);
        EXPECT_EQ(Measure(image, roi).llPixels, pixels);
        EXPECT_EQ(roi.MouseHitTest(GetDesktopWindow(), 0, 0, 1, &image, {0, height - 1}, 1) >= 0, pixels > 0);
        EXPECT_EQ(image.GetRegion(&roi, 0, 0), nullptr);
    }
    EXPECT_LT(GetTickCount() - start, 500u);
    EXPECT_LT(PrivateBytes() - before, 8 << 20);
}

}  // namespace

TEST(KestMeasure, FarCoordinatesCostNoMemory) {
    constexpr int reach = 500'000'000;
    ExpectModest<CcRoiRect>(RECT{0, 9, reach, 0}, 10 * width);
    ExpectModest<CcRoiEllipse>(RECT{-reach, reach, reach, -reach}, width * height);
    ExpectModest<CcRoiLine>(tagROILINE{0, 0, reach, 500}, width);
    std::vector<POINT> apart = {{0, 0}, {0, reach}};
    ExpectModest<CcRoiFreeHand>(Outline(apart), 1);
    ExpectModest<CcRoiPolyFreeHand>(Outline(apart), 1);
    apart = {{0, reach}, {0, 0}, {reach, 0}};
    ExpectModest<CcRoiFreeHandLine>(Outline(apart), 1);
    ExpectModest<CcRoiPolyLine>(Outline(apart), 1);
}

TEST(KestMeasure, ImagesOfAllClasses) {
    // Mean, lowest, highest and deviation of 10, 20, 30, 60.
    const Values four = {30, 10, 60, std::sqrt(350.0)};
    ExpectValues<CcGrayImage256, std::uint8_t>({10, 20, 30, 60}, four);
    ExpectValues<CcBinaryImage, std::uint8_t>({10, 20, 30, 60}, four);
    const Values red = {0.701 + 0.299 * 30, 3.691, 18.641, std::sqrt(350.0) * 0.299};
    ExpectValues<Cc24BitRGBImage, std::uint8_t>({10, 20, 30, 60}, red, 3, 2);
    ExpectValues<Cc24BitHSLImage, std::uint8_t>({10, 20, 30, 60}, red, 3, 2);
    ExpectValues<CcGrayImageInt16, std::uint16_t>({10000, 20000, 30000, 60000}, {3e4, 1e4, 6e4, std::sqrt(350e6)});
    ExpectValues<CcGrayImageInt32, std::int32_t>({-1000, -2000, -3000, -6000}, {-3e3, -6e3, -1e3, std::sqrt(350e4)});
    ExpectValues<CcGrayImageFloat, float>({NAN, INFINITY, 20, 60}, {40, 20, 60, 20});

    // A map that is of another size meanwhile is left alone; the areas are the same without it.
    CcGrayImage256 gray;
    gray.MakeBlankBMP(4, 4, 1, "image");
    CcCalibration calibration;
    tagPoints from[] = {{0, 0}, {3, 0}, {3, 3}, {0, 3}}, to[] = {{0, 0}, {6, 1}, {7, 8}, {1, 5}};
    ASSERT_EQ(calibration.DoCalibration(from, to, 4, 4, 4), 0);
    calibration.SetUnitsOfMeasure("mm");
    ASSERT_EQ(gray.SetCalibrationObject(&calibration), 0);
    CcRoiRect roi;
    roi.SetRoiImageCord(&middle);
    KestRoiMeasurement measured = Measure(gray, roi);
    double area = 0;
    for (const auto& [x, y] : {std::pair{1, 1}, {2, 1}, {1, 2}, {2, 2}}) area += calibration.GetAreaOfPixel(x, y);
    EXPECT_DOUBLE_EQ(measured.dAreaWorld, area);
    EXPECT_STREQ(measured.szUnits, "mm");
    EXPECT_DOUBLE_EQ(measured.dLengthWorld, KestRoiLengthWorld(&roi, &calibration));
    ASSERT_EQ(calibration.DoCalibration(from, to, 4, 2, 2), 0);
    EXPECT_DOUBLE_EQ(Measure(gray, roi).dAreaWorld, area);
    EXPECT_EQ(KestMeasureRoi(&gray, nullptr, &measured), -1);
    EXPECT_EQ(measured.llPixels, 0);
    EXPECT_EQ(KestMeasureRoi(&gray, &roi, nullptr), -1);
}
