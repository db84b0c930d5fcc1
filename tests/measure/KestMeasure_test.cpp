// Measuring the ROIs of every class over images of every class.
#include "support/ClassTests.h"

using namespace test;

namespace {

constexpr int width = 90, height = 70;

KestRoiMeasurement Measure(CcImage& image, CcRoiBase& roi) {
    KestRoiMeasurement measured;
    EXPECT_EQ(KestMeasureRoi(&image, &roi, &measured), 0);
    return measured;
}

/// Number and sum of the pixels that the ROI lists, each once and inside the image.
template <class Roi>
void ExpectListedPixels(std::unique_ptr<Roi> made, double known, double length, double tolerance = 0) {
    CcGrayImage256 image;
    FillPattern(image, width, height);
    Roi& roi = *made;
    const KestRoiMeasurement measured = Measure(image, roi);
    const RECT bounds = *roi.GetBoundingRect();
    long long pixels = 0;
    double sum = 0;
    for (int y = std::max<int>(bounds.bottom, 0); y <= bounds.top && y < height; ++y) {
        const std::vector<int> list = RowOf(roi, y);
        for (const int x : std::set<int>(list.begin(), list.end()))
            if (x >= 0 && x < width) ++pixels, sum += PatternValue(x, y);
    }
    EXPECT_EQ(measured.llPixels, pixels);
    EXPECT_NEAR(measured.dAreaWorld, known, tolerance);
    EXPECT_DOUBLE_EQ(measured.dMean, pixels ? sum / static_cast<double>(pixels) : 0.0);
    EXPECT_NEAR(measured.dLengthPixels, length, 1e-3);
    EXPECT_EQ(KestRoiLengthPixels(&roi), measured.dLengthPixels);
    EXPECT_DOUBLE_EQ(measured.dLengthWorld, measured.dLengthPixels);
    EXPECT_STREQ(measured.szUnits, "Pixels");
}

std::unique_ptr<CcRoiRect> Middle() { return Boxed<CcRoiRect>({1, 2, 2, 1}); }

struct Values {
    double mean, low, high, deviation;
};

/// Of a 4 x 4 image of ones with other values in the pixels in the middle, in cell `offset` of the `step` of each.
template <class Image, class Cell>
void ExpectValues(std::array<Cell, 4> middleCells, const Values& wanted, int step = 1, int offset = 0) {
    Image image;
    const auto roi = Middle();
    KestRoiMeasurement measured;
    EXPECT_EQ(KestMeasureRoi(&image, roi.get(), &measured), -1);
    ASSERT_EQ(image.MakeBlankBMP(4, 4, 1, "image"), 0);
    auto* cells = static_cast<Cell*>(image.GetBitMapImageData());
    int notFinite = 0;
    for (int i = 0; i < 4; ++i) {
        const Cell value = middleCells[static_cast<std::size_t>(i)];
        cells[(5 + i % 2 + i / 2 * 4) * step + offset] = value;
        notFinite += std::isfinite(static_cast<double>(value)) ? 0 : 1;
    }
    measured = Measure(image, *roi);
    EXPECT_EQ(measured.llPixels, 4) << image.GetImageType();
    EXPECT_EQ(measured.llNotFinite, notFinite);
    EXPECT_NEAR(measured.dMean, wanted.mean, 1e-9) << image.GetImageType();
    EXPECT_DOUBLE_EQ(measured.dMinimum, wanted.low);
    EXPECT_DOUBLE_EQ(measured.dMaximum, wanted.high);
    EXPECT_NEAR(measured.dStandardDeviation, wanted.deviation, 1e-9);
}

}  // namespace

TEST(KestMeasure, RoisOfAllClasses) {
    ExpectListedPixels(Boxed<CcRoiRect>({10, 9, 19, 5}), 50, 30);
    ExpectListedPixels(Boxed<CcRoiRect>({-5, 5000, 4, 60}), 5 * 10, 2 * (10 + 4941));
    ExpectListedPixels(Boxed<CcRoiRect>({7, 9, 7, 5}), 5, 12);
    // Crossed sides, as a drag beyond the image leaves them.
    ExpectListedPixels(Boxed<CcRoiRect>({width + 5, 9, width - 1, 5}), 0, 0);
    ExpectListedPixels(Boxed<CcRoiEllipse>({20, 60, 59, 21}), 3.14159265 * 20 * 20, 3.14159265 * 40, 25);
    ExpectListedPixels(Boxed<CcRoiLine>({3, 4, 33, 44}), 40, 50);
    auto point = std::make_unique<CcRoiPoint>();
    tagPoints place = {7.5F, 8.5F};
    point->SetRoiImageCord(&place);
    ExpectListedPixels(std::move(point), 1, 0);

    // A square ring, and an open line that goes back over itself.
    std::vector<POINT> ring;
    for (int i = 0; i < 80; ++i) {
        const int along = i % 20;
        const POINT sides[] = {{10 + along, 10}, {30, 10 + along}, {30 - along, 30}, {10, 30 - along}};
        ring.push_back(sides[i / 20]);
    }
    ExpectListedPixels(Outlined<CcRoiFreeHand>(ring), 21 * 21, 80);
    ExpectListedPixels(Outlined<CcRoiPolyFreeHand>(ring), 21 * 21, 80);
    const auto square = Outlined<CcRoiFreeHand>(ring);
    tagPoints corners[5] = {};
    EXPECT_EQ(KestOutlineCorners(square.get(), corners, 4), 5);
    EXPECT_EQ(corners[2].x, 30);
    EXPECT_EQ(corners[2].y, 30);
    EXPECT_EQ(corners[4].x, 0) << "not written";
    KestOutlineCorners(square.get(), corners, 5);
    EXPECT_EQ(corners[4].y, 11);
    // A count that reaches past the block is not followed.
    OutlineOf(*square).iNumOfPoints = INT_MAX;
    EXPECT_NEAR(KestRoiLengthPixels(square.get()), 80, 1e-3);
    const std::vector<POINT> folded = {{40, 40}, {41, 40}, {42, 40}, {43, 40}, {44, 40}, {43, 40}, {42, 40}, {43, 41}};
    ExpectListedPixels(Outlined<CcRoiFreeHandLine>(folded), 6, 4 + 2 + std::sqrt(2.0));
    ExpectListedPixels(Outlined<CcRoiPolyLine>(folded), 6, 4 + 2 + std::sqrt(2.0));

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

/// Measured, hit and cut out they take no more than the picture's part asks for.
void ExpectModest(const std::function<std::unique_ptr<CcRoiBase>()>& make, long long pixels) {
    CcGrayImage256 image;
    FillPattern(image, width, height);
    const long long before = PrivateBytes();
    for (int i = 0; i < 5; ++i) {
        const auto roi = make();
        SCOPED_TRACE(roi->GetName());
        EXPECT_EQ(Measure(image, *roi).llPixels, pixels);
        EXPECT_EQ(roi->MouseHitTest(AnyWindow(), 0, 0, 1, &image, {0, height - 1}, 1) >= 0, pixels > 0);
        EXPECT_EQ(image.GetRegion(roi.get(), 0, 0), nullptr);
    }
    EXPECT_LT(PrivateBytes() - before, 8 << 20);
}

}  // namespace

TEST(KestMeasure, FarCoordinatesCostNoMemory) {
    constexpr int reach = 500'000'000;
    ExpectModest([] { return Boxed<CcRoiRect>({0, 9, reach, 0}); }, 10 * width);
    ExpectModest([] { return Boxed<CcRoiEllipse>({-reach, reach, reach, -reach}); }, width * height);
    ExpectModest([] { return Boxed<CcRoiLine>({0, 0, reach, 500}); }, width);
    const std::vector<POINT> apart = {{0, 0}, {0, reach}}, line = {{0, reach}, {0, 0}, {reach, 0}};
    ExpectModest([&] { return Outlined<CcRoiFreeHand>(apart); }, 1);
    ExpectModest([&] { return Outlined<CcRoiPolyFreeHand>(apart); }, 1);
    ExpectModest([&] { return Outlined<CcRoiFreeHandLine>(line); }, 1);
    ExpectModest([&] { return Outlined<CcRoiPolyLine>(line); }, 1);
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
    const auto roi = Middle();
    KestRoiMeasurement measured = Measure(gray, *roi);
    double area = 0;
    for (const auto& [x, y] : {std::pair{1, 1}, {2, 1}, {1, 2}, {2, 2}}) area += calibration.GetAreaOfPixel(x, y);
    EXPECT_DOUBLE_EQ(measured.dAreaWorld, area);
    EXPECT_STREQ(measured.szUnits, "mm");
    EXPECT_DOUBLE_EQ(measured.dLengthWorld, KestRoiLengthWorld(roi.get(), &calibration));
    // The border of an ellipse, laid on the tilted plane.
    std::vector<tagPoints> border;
    for (int degree = 0; degree < 360; ++degree) {
        const double angle = degree * std::numbers::pi / 180;
        border.push_back(
            {static_cast<float>(1.5 + 2 * std::cos(angle)), static_cast<float>(2.5 + 3 * std::sin(angle))});
    }
    const auto ellipse = Boxed<CcRoiEllipse>({0, 5, 3, 0});
    EXPECT_NEAR(KestRoiLengthWorld(ellipse.get(), &calibration) / KestLengthWorld(&calibration, border.data(), 360, 1),
                1, 1e-3);
    ASSERT_EQ(calibration.DoCalibration(from, to, 4, 2, 2), 0);
    EXPECT_DOUBLE_EQ(Measure(gray, *roi).dAreaWorld, area);
    EXPECT_EQ(KestMeasureRoi(&gray, nullptr, &measured), -1);
    EXPECT_EQ(measured.llPixels, 0);
    EXPECT_EQ(KestMeasureRoi(&gray, roi.get(), nullptr), -1);
}
