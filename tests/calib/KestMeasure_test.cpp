// Measuring the ROIs of every class over images of every class.
#include "KestMeasure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
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
void ExpectListedPixels(CcGrayImage256& image, CcRoiBase& roi, long long known, double length) {
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
    EXPECT_EQ(measured.llPixels, known);
    EXPECT_DOUBLE_EQ(measured.dMean, pixels ? sum / static_cast<double>(pixels) : 0.0);
    EXPECT_NEAR(measured.dLengthPixels, length, 1e-3);
    EXPECT_EQ(measured.dAreaWorld, static_cast<double>(known));
    EXPECT_DOUBLE_EQ(measured.dLengthWorld, measured.dLengthPixels);
}

template <class Outline>
void ExpectOutline(CcGrayImage256& image, std::vector<POINT> points, long long known, double length) {
    PixelGroupTag record = {0, 0, 0, static_cast<int>(points.size()), points.data(), nullptr};
    Outline roi;
    ASSERT_EQ(roi.SetRoiImageCord(&record), 0);
    ExpectListedPixels(image, roi, known, length);
}

RECT middle = {1, 2, 2, 1};

struct Values {
    double mean, low, high, deviation;
};

/// Of an image of ones, 4 x 4, with other values in the four pixels in the middle: in cell `offset` of a pixel's `step`.
template <class Cell>
void ExpectValues(CcImage& image, std::array<Cell, 4> middleCells, const Values& wanted, int step = 1, int offset = 0) {
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
    CcGrayImage256 image;
    test::FillPattern(image, width, height);
    CcRoiRect rect;
    RECT box = {10, 9, 19, 5};
    rect.SetRoiImageCord(&box);
    ExpectListedPixels(image, rect, 50, 30);
    box = {-5, 5000, 4, 60};
    rect.SetRoiImageCord(&box);
    ExpectListedPixels(image, rect, 5 * 10, 2 * (10 + 4941));
    EXPECT_STREQ(Measure(image, rect).szUnits, "Pixels");
    // Crossed sides, as a drag beyond the image leaves them.
    box = {width + 5, 9, width - 1, 5};
    rect.SetRoiImageCord(&box);
    ExpectListedPixels(image, rect, 0, 0);
    CcRoiEllipse ellipse;
    box = {20, 60, 59, 21};
    ellipse.SetRoiImageCord(&box);
    ExpectListedPixels(image, ellipse, Measure(image, ellipse).llPixels, 3.14159265 * 40);
    EXPECT_NEAR(static_cast<double>(Measure(image, ellipse).llPixels), 3.14159265 * 20 * 20, 25);
    CcRoiLine line;
    tagROILINE ends = {3, 4, 33, 44};
    line.SetRoiImageCord(&ends);
    ExpectListedPixels(image, line, 40, 50);
    CcRoiPoint point;
    tagPoints place = {7.5F, 8.5F};
    point.SetRoiImageCord(&place);
    ExpectListedPixels(image, point, 1, 0);

    // A square ring, and an open line that goes back over itself.
    std::vector<POINT> ring;
    for (int i = 0; i < 20; ++i) ring.push_back({10 + i, 10});
    for (int i = 0; i < 20; ++i) ring.push_back({30, 10 + i});
    for (int i = 0; i < 20; ++i) ring.push_back({30 - i, 30});
    for (int i = 0; i < 20; ++i) ring.push_back({10, 30 - i});
    ExpectOutline<CcRoiFreeHand>(image, ring, 21 * 21, 80);
    ExpectOutline<CcRoiPolyFreeHand>(image, ring, 21 * 21, 80);
    const std::vector<POINT> folded = {{40, 40}, {41, 40}, {42, 40}, {43, 40}, {44, 40}, {43, 40}, {42, 40}, {43, 41}};
    ExpectOutline<CcRoiFreeHandLine>(image, folded, 6, 4 + 2 + std::sqrt(2.0));
    ExpectOutline<CcRoiPolyLine>(image, folded, 6, 4 + 2 + std::sqrt(2.0));

    struct HostShape : CcRoiBase {
        RECT* GetBoundingRect() override { return &stBoundingRect; }
    } own;
    EXPECT_EQ(Measure(image, own).dLengthPixels, -1.0);
    EXPECT_EQ(KestRoiLengthPixels(&own), -1.0);
    EXPECT_DOUBLE_EQ(KestRoiLengthPixels(&line), 50.0);
    const tagPoints corner[] = {{0, 0}, {3, 0}, {3, 4}};
    EXPECT_DOUBLE_EQ(KestLengthPixels(corner, 3, 0), 7.0);
    EXPECT_DOUBLE_EQ(KestLengthPixels(corner, 3, 1), 12.0);
    EXPECT_EQ(KestLengthPixels(corner, 0, 1) + KestLengthPixels(nullptr, 3, 1), -2.0);
}

TEST(KestMeasure, ImagesOfAllClasses) {
    CcGrayImage256 gray;
    CcBinaryImage binary;
    Cc24BitRGBImage colour;
    Cc24BitHSLImage hsl;
    CcGrayImageInt16 words;
    CcGrayImageInt32 integers;
    CcGrayImageFloat floats;
    // Mean, lowest, highest and deviation of 10, 20, 30, 60.
    const Values four = {30, 10, 60, std::sqrt(350.0)};
    ExpectValues<std::uint8_t>(gray, {10, 20, 30, 60}, four);
    ExpectValues<std::uint8_t>(binary, {10, 20, 30, 60}, four);
    const Values red = {0.701 + 0.299 * 30, 3.691, 18.641, std::sqrt(350.0) * 0.299};
    ExpectValues<std::uint8_t>(colour, {10, 20, 30, 60}, red, 3, 2);
    ExpectValues<std::uint8_t>(hsl, {10, 20, 30, 60}, red, 3, 2);
    ExpectValues<std::uint16_t>(words, {10000, 20000, 30000, 60000}, {3e4, 1e4, 6e4, std::sqrt(350e6)});
    ExpectValues<std::int32_t>(integers, {-1000, -2000, -3000, -6000}, {-3e3, -6e3, -1e3, std::sqrt(350e4)});
    ExpectValues<float>(floats, {NAN, INFINITY, 20, 60}, {40, 20, 60, 20});

    // A map that is of another size meanwhile is left alone; the areas are the same without it.
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
