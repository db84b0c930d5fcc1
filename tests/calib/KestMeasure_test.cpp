// Measuring the ROIs of every class over images of every class.
#include "KestMeasure.h"

#include <gtest/gtest.h>

#include <algorithm>
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
    EXPECT_STREQ(measured.szUnits, "Pixels");
}

template <class Outline>
void SetOutline(Outline& roi, std::vector<POINT> points) {
    PixelGroupTag record = {0, 0, 0, static_cast<int>(points.size()), points.data(), nullptr};
    ASSERT_EQ(roi.SetRoiImageCord(&record), 0);
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
    CcRoiFreeHand freeHand;
    CcRoiPolyFreeHand polygon;
    SetOutline(freeHand, ring);
    SetOutline(polygon, ring);
    ExpectListedPixels(image, freeHand, 21 * 21, 80);
    ExpectListedPixels(image, polygon, 21 * 21, 80);
    CcRoiFreeHandLine openLine;
    CcRoiPolyLine polyLine;
    const std::vector<POINT> folded = {{40, 40}, {41, 40}, {42, 40}, {43, 40}, {44, 40}, {43, 40}, {42, 40}, {43, 41}};
    SetOutline(openLine, folded);
    SetOutline(polyLine, folded);
    ExpectListedPixels(image, openLine, 6, 4 + 2 + std::sqrt(2.0));
    ExpectListedPixels(image, polyLine, 6, 4 + 2 + std::sqrt(2.0));

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
    CcRoiRect roi;
    RECT box = {1, 2, 2, 1};
    roi.SetRoiImageCord(&box);
    KestRoiMeasurement measured;
    for (CcImage* image : {static_cast<CcImage*>(&gray), static_cast<CcImage*>(&binary), static_cast<CcImage*>(&colour),
                           static_cast<CcImage*>(&hsl), static_cast<CcImage*>(&words), static_cast<CcImage*>(&integers),
                           static_cast<CcImage*>(&floats)}) {
        EXPECT_EQ(KestMeasureRoi(image, &roi, &measured), -1);
        ASSERT_EQ(image->MakeBlankBMP(4, 4, 1, "image"), 0);
        const KestRoiMeasurement blank = Measure(*image, roi);
        EXPECT_EQ(blank.llPixels, 4) << image->GetImageType();
        EXPECT_EQ(blank.dStandardDeviation, 0.0);
        // The pixels under the ROI are 5, 6, 9 and 10 of each image.
        const int cells[] = {5, 6, 9, 10}, values[] = {10, 20, 30, 60};
        for (int i = 0; i < 4; ++i) {
            void* data = image->GetBitMapImageData();
            const int cell = cells[i], value = values[i];
            switch (image->GetImageType()) {
            case KEST_IMAGE_INT16:
                static_cast<std::uint16_t*>(data)[cell] = static_cast<std::uint16_t>(1000 * value);
                break;
            case KEST_IMAGE_INT32: static_cast<std::int32_t*>(data)[cell] = -1000 * value; break;
            case KEST_IMAGE_FLOAT:
                static_cast<float*>(data)[cell] = i == 0 ? INFINITY : static_cast<float>(value);
                break;
            case KEST_IMAGE_RGB:
            case KEST_IMAGE_HSL:
                static_cast<std::uint8_t*>(data)[3 * cell + 2] = static_cast<std::uint8_t>(value);
                break;
            default: static_cast<std::uint8_t*>(data)[cell] = static_cast<std::uint8_t>(value); break;
            }
        }
        measured = Measure(*image, roi);
        // Mean, lowest, highest and deviation of 10, 20, 30, 60.
        double mean = 30, low = 10, high = 60, deviation = std::sqrt(350.0);
        switch (image->GetImageType()) {
        case KEST_IMAGE_INT16: mean = 30000, low = 10000, high = 60000, deviation *= 1000; break;
        case KEST_IMAGE_INT32: mean = -30000, low = -60000, high = -10000, deviation *= 1000; break;
        case KEST_IMAGE_FLOAT: mean = 110.0 / 3, low = 20, deviation = std::sqrt(2600.0 / 9); break;
        case KEST_IMAGE_RGB:
        case KEST_IMAGE_HSL: mean = 0.701 + 0.299 * 30, low = 3.691, high = 18.641, deviation *= 0.299; break;
        }
        EXPECT_EQ(measured.llNotFinite, image->GetImageType() == KEST_IMAGE_FLOAT ? 1 : 0);
        EXPECT_NEAR(measured.dMean, mean, 1e-9) << image->GetImageType();
        EXPECT_DOUBLE_EQ(measured.dMinimum, low);
        EXPECT_DOUBLE_EQ(measured.dMaximum, high);
        EXPECT_NEAR(measured.dStandardDeviation, deviation, 1e-9);
    }

    // A map that is of another size meanwhile is left alone; the areas are the same without it.
    CcCalibration calibration;
    tagPoints from[] = {{0, 0}, {3, 0}, {3, 3}, {0, 3}}, to[] = {{0, 0}, {6, 1}, {7, 8}, {1, 5}};
    ASSERT_EQ(calibration.DoCalibration(from, to, 4, 4, 4), 0);
    calibration.SetUnitsOfMeasure("mm");
    ASSERT_EQ(gray.SetCalibrationObject(&calibration), 0);
    const KestRoiMeasurement withMap = Measure(gray, roi);
    double area = 0;
    for (const auto& [x, y] : {std::pair{1, 1}, {2, 1}, {1, 2}, {2, 2}}) area += calibration.GetAreaOfPixel(x, y);
    EXPECT_DOUBLE_EQ(withMap.dAreaWorld, area);
    EXPECT_STREQ(withMap.szUnits, "mm");
    EXPECT_DOUBLE_EQ(withMap.dLengthWorld, KestRoiLengthWorld(&roi, &calibration));
    ASSERT_EQ(calibration.DoCalibration(from, to, 4, 2, 2), 0);
    EXPECT_DOUBLE_EQ(Measure(gray, roi).dAreaWorld, area);
    EXPECT_EQ(KestMeasureRoi(&gray, nullptr, &measured), -1);
    EXPECT_EQ(measured.llPixels, 0);
    EXPECT_EQ(KestMeasureRoi(&gray, &roi, nullptr), -1);
}
