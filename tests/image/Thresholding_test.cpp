// Thresholding of the 8-bit image and the binary image, by the colours that a window then shows.
#include "support/ClassTests.h"

using namespace test;

namespace {

constexpr unsigned red = 0xFF0000, green = 0x00FF00, white = 0xFFFFFF;

/// An image of one row in which column v has the value v.
template <class Image>
void MakeRamp(Image& image) {
    image.MakeBlankBMP(1, 256, 0, "ramp");
    auto* bytes = static_cast<unsigned char*>(image.GetBitMapImageData());
    for (int value = 0; value < 256; ++value) bytes[value] = static_cast<unsigned char>(value);
}

/// The colours that the values are shown in.
std::vector<unsigned> ShownColours(CcImage& ramp) {
    MemoryPicture picture(256, 1);
    RECT rect = {0, 0, 256, 1};
    ramp.Show(picture, &rect, 101, 1, 0, 0, 1);
    return picture.Snapshot().pixels;
}

std::vector<unsigned> Grays() {
    std::vector<unsigned> colours(256);
    for (int level = 0; level < 256; ++level) colours[level] = Gray(level);
    return colours;
}

}  // namespace

TEST(GrayThreshold, BandsReplaceAndCoverEachOther) {
    CcGrayImage256 image;
    MakeRamp(image);
    EXPECT_EQ(image.BeginThresholding(nullptr, 0), 0);
    std::vector<unsigned> expected = Grays();
    EXPECT_EQ(ShownColours(image), expected);

    for (const auto& [low, high, first, last] : {std::tuple{100.5F, 149.2F, 100, 150},
                                                 {100.0F, 100.0F, 100, 100},
                                                 {100.9F, 100.1F, 100, 101},
                                                 {254.9F, 255.0F, 254, 255},
                                                 {255.0F, 300.0F, 0, 255},
                                                 {-1.0F, -1.0F, 0, 0},
                                                 {NAN, NAN, 0, 255}}) {
        EXPECT_EQ(image.ThresholdImage(nullptr, low, high, 300, -4, 0), 0);
        EXPECT_EQ(image.ThresholdImage(nullptr, 101, 100, 0, 0, 255), -1);
        expected = Grays();
        std::fill(expected.begin() + first, expected.begin() + last + 1, red);
        EXPECT_EQ(ShownColours(image), expected) << low;
    }

    ThresholdTag bands[] = {{10, 100, 255, 0, 0}, {200, 150, 9, 9, 9}, {90, 300, 0, 255, 0}};
    EXPECT_EQ(image.ThresholdImageMulti(nullptr, bands, 3), 0);
    expected = Grays();
    std::fill(expected.begin() + 10, expected.begin() + 90, red);
    std::fill(expected.begin() + 90, expected.end(), green);
    EXPECT_EQ(ShownColours(image), expected);
    EXPECT_EQ(image.ThresholdImageMulti(nullptr, nullptr, 1), -1);
    EXPECT_EQ(image.ThresholdImageMulti(nullptr, nullptr, 0), 0);
    EXPECT_EQ(ShownColours(image), Grays());
    image.ThresholdImage(nullptr, 0, 9, 1, 2, 3);
    EXPECT_EQ(image.EndThresholding(), 0);
    EXPECT_EQ(ShownColours(image), Grays());
}

TEST(BinaryImage, LooksAndThresholds) {
    CcBinaryImage image;
    MakeRamp(image);
    std::vector<unsigned> working(256, white);
    working[1] = 0;
    EXPECT_EQ(ShownColours(image), working);

    TestWindow window(20, 20);
    struct Case {
        float low, high;
        unsigned zero, one;
    };
    for (const Case& c : {Case{1, 1, white, red}, {0, 1, red, red}, {0, 0, red, white & 0}, {0.5F, 1, white, 0}}) {
        SCOPED_TRACE(c.low);
        ValidateRect(window, nullptr);
        EXPECT_EQ(image.ThresholdImage(window, c.low, c.high, 255, 0, 0), 0);
        EXPECT_TRUE(GetUpdateRect(window, nullptr, FALSE));
        std::vector<unsigned> expected = working;
        expected[0] = c.zero;
        expected[1] = c.one;
        EXPECT_EQ(ShownColours(image), expected);
    }
    EXPECT_EQ(image.EndThresholding(), 0);
    EXPECT_EQ(ShownColours(image), working);
    image.ThresholdImage(window, 0, 1, 255, 0, 0);
    image.MakeBlankBMP(1, 256, 1, nullptr);
    EXPECT_EQ(ShownColours(image), std::vector<unsigned>(256, 0u));

    EXPECT_EQ(image.BeginThresholding(window, 0), 0);
    EXPECT_TRUE(TakeBoxes().empty());
    EXPECT_EQ(image.ThresholdImageMulti(window, nullptr, 0), 0);
    EXPECT_EQ(TakeBoxes().size(), 1u);
}

TEST(BinaryImage, TablesFilesAndRegions) {
    CcBinaryImage image;
    tagPoints curve[256];
    ASSERT_EQ(image.GetDisplayLUT(101, 1, curve), 0);
    EXPECT_EQ(curve[1].y, 255.0F);
    EXPECT_EQ(curve[0].y, 0.0F);
    for (const int channel : {0, 4}) {
        ExpectAll(-1, {image.SetDisplayLUT(101, channel, curve), image.GetDisplayLUT(101, channel, curve)});
    }
    EXPECT_EQ(image.SetDisplayLUT(102, 0, curve), -1);

    MakeRamp(image);
    image(5, 0);
    image = 1.0F;
    const TemporaryFile file("binary.bmp");
    EXPECT_EQ(image.SaveBMPFile(file.Path()), 0);
    CcBinaryImage opened;
    EXPECT_EQ(opened.OpenBMPFile(file.Path()), 0);
    EXPECT_STRNE(CcGrayImage256::cFullFilePathOpen, file.Path());
    EXPECT_EQ(opened(5, 0), 1.0F);
    EXPECT_EQ(opened(77, 0), 77.0F);

    const auto copy = Made<CcBinaryImage>(StoredBytes(opened));
    EXPECT_EQ(ShownColours(*copy), ShownColours(opened));
    EXPECT_EQ(ShownColours(*copy)[77], white);

    const auto roi = Boxed<CcRoiRect>({4, 1, 8, 0});
    const std::unique_ptr<CcImage> region(opened.GetRegion(roi.get(), 0, 0));
    ASSERT_NE(dynamic_cast<CcBinaryImage*>(region.get()), nullptr);
    EXPECT_EQ((*region)(1, 0), 1.0F);
}
