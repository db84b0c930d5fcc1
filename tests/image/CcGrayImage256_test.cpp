// The 8-bit image: blank images, pixel access, streams, regions.
#include "support/ClassTests.h"

using namespace test;

namespace {

struct OpenImage : CcGrayImage256 {
    using CcGrayImage256::operator=;
    using CcGrayImage256::iPixelIndex;
};

}  // namespace

TEST(CcGrayImage256, BlankImages) {
    OpenImage image;
    EXPECT_EQ(image.MakeBlankBMP(480, 640, 300, "a"), 0);
    ExpectAll(44.0F, {image(0, 0), image(639, 479)});
    const void* block = image.GetBitMapImageData();
    EXPECT_EQ(image.MakeBlankBMP(480, 640, 7, "again"), 0);
    EXPECT_EQ(image.GetBitMapImageData(), block);
    EXPECT_EQ(image(639, 479), 7.0F);
    char name[20];
    EXPECT_EQ(image.GetClassNameA(name, 14), -1);
    EXPECT_EQ(image.GetClassNameA(name, 15), 0);

    // What cannot be had leaves an image without pixels; a long name is cut.
    const Boxes refused = {{"Error", "Could not make Blank DIB"}};
    for (const auto& [height, width] : {std::pair{-1, 5}, {INT_MAX, INT_MAX}, {60000, 60000}}) {
        EXPECT_EQ(image.MakeBlankBMP(height, width, 0, "b"), -1);
        EXPECT_EQ(TakeBoxes(), refused);
        EXPECT_EQ(image(0, 0), -1.0F);
    }
    EXPECT_EQ(image.MakeBlankBMP(480, 640, 1, std::string(400, 'n').c_str()), 0);
    EXPECT_EQ(std::string(image.GetName()).size(), 259u);
    EXPECT_EQ(image(5, 5), 1.0F);
}

TEST(CcGrayImage256, PixelAccessTakesTwoSteps) {
    OpenImage image;
    EXPECT_EQ(image(0, 0), -1.0F);
    FillPattern(image, 4, 3);
    EXPECT_EQ(image(3, 2), PatternFloat(3, 2));
    EXPECT_EQ(image.iPixelIndex, 11);
    image = 300.7F;
    EXPECT_EQ(image(3, 2), 44.0F);
    float& cell = image(1, 1);
    cell = 200.0F;
    EXPECT_EQ(image(1, 1), PatternFloat(1, 1));
    for (const auto& [x, y] : {std::pair{4, 2}, {-1, 0}, {0, 3}, {0, -1}, {INT_MAX, INT_MAX}}) {
        EXPECT_EQ(image(x, y), -1.0F);
        image = 99.0F;
    }
    const auto* bytes = static_cast<const std::uint8_t*>(image.GetBitMapImageData());
    for (int i = 0; i < 11; ++i) EXPECT_EQ(bytes[i], PatternValue(i % 4, i / 4)) << i;
}

TEST(CcGrayImage256, BilinearAccessUpToTheBorder) {
    OpenImage image;
    image.MakeBlankBMP(2, 3, 0, "b");
    const std::uint8_t pixels[] = {0, 10, 20, 100, 110, 120};
    std::copy_n(pixels, 6, static_cast<std::uint8_t*>(image.GetBitMapImageData()));
    const float nan = std::numeric_limits<float>::quiet_NaN(), infinity = std::numeric_limits<float>::infinity();
    const struct {
        float x, y, value;
    } cases[] = {{1.5F, 0.0F, 15},
                 {1.0F, 0.5F, 60},
                 {0.5F, 0.5F, 55},
                 {-0.5F, 0.0F, -1},
                 {3.1F, 0.0F, -1},
                 {0.0F, 2.1F, -1},
                 {nan, 0.0F, -1},
                 {0.0F, infinity, -1},
                 // In the last half pixel of a row the next byte of the block takes part, behind the block the
                 // nearest pixel.
                 {2.5F, 0.0F, 60},
                 {3.0F, 0.0F, 100},
                 {2.5F, 1.0F, 120},
                 {1.0F, 1.5F, 110},
                 {3.0F, 2.0F, 120}};
    for (const auto& c : cases) EXPECT_EQ(image(c.x, c.y), c.value) << c.x << ' ' << c.y;
    // Such a position is outside the block and is not written.
    image = 5.0F;
    EXPECT_EQ(image(2, 1), 120.0F);
}

// Fewer colours than 256, the header of another kind and another depth are no reason to refuse.
TEST(CcGrayImage256, RecordsOfOtherColourTables) {
    const std::vector<std::uint8_t> four = {1, 2, 3, 4};
    Bytes sixteenColours = DibOf(BmpFile8(2, 2, four, 16)), deep = DibOf(BmpFile8(2, 2, four, 256)),
          old = Bytes().I32(12).U16(2).U16(2).U16(1).U16(8);
    sixteenColours.erase(sixteenColours.begin() + 40 + 64, sixteenColours.begin() + 1064);
    deep[14] = 24;
    for (unsigned i = 0; i < 256; ++i) old.U8(i).U8(0).U8(i);
    old.Add(four);
    TestWindow window(8, 8);
    for (const Bytes& dib : {sixteenColours, deep, old}) {
        OpenImage image, back;
        ASSERT_EQ(LoadRecord(image, ImageRecord("CcGrayImage256", static_cast<long>(dib.size()), dib)), 0);
        EXPECT_EQ(LoadRecord(back, StoredBytes(image)), 0);
        for (int i = 0; i < 4; ++i) EXPECT_EQ(back(i % 2, i / 2), static_cast<float>(i + 1));
        for (unsigned short lut = 104; lut >= 100; --lut) EXPECT_EQ(image.Show(window, lut, 1, 0, 0, 2), 0);
        EXPECT_EQ(window.Snapshot().At(0, 0), dib.size() == old.size() ? 0x030003u : 0x030303u);
        const TemporaryFile saved("few.bmp");
        EXPECT_EQ(image.SaveBMPFile(saved.Path()), 0);
        EXPECT_EQ(saved.Content().at(28), 8) << "the depth of the pixels";
    }
}

TEST(CcGrayImage256, RegionUnderARectangle) {
    CcGrayImage256 image;
    FillPattern(image, 100, 100, "image");
    const auto regionOf = [&](RECT rect, int fill, int aligned) {
        const auto roi = Boxed<CcRoiRect>(rect);
        roi->SetName("roi");
        return std::unique_ptr<CcImage>(image.GetRegion(roi.get(), fill, aligned));
    };
    for (const int isAligned : {0, 1}) {
        const auto region = regionOf({10, 30, 20, 10}, 300, isAligned);
        ASSERT_NE(region, nullptr);
        EXPECT_STREQ(region->GetName(), "image-roi");
        EXPECT_EQ(region->GetListROI()->GetNumberOfObjects(), 0);
        int height, width;
        region->GetHeightWidth(&height, &width);
        EXPECT_EQ(width * 100 + height, isAligned ? 1220 : 1020);
        for (int x = 8; x < width; ++x) EXPECT_EQ((*region)(x, 3), x < 10 ? PatternFloat(x + 10, 13) : 44.0F);
    }
    EXPECT_EQ(regionOf({0, 50, 101, 0}, 0, 0), nullptr);
    EXPECT_EQ(regionOf({INT_MIN, INT_MAX, INT_MAX, INT_MIN}, 0, 0), nullptr);
    EXPECT_EQ(image.GetRegion(nullptr, 0, 0), nullptr);
    // What lies outside the image keeps the fill value.
    const auto corner = regionOf({-5, 105, 5, 95}, 9, 0);
    ASSERT_NE(corner, nullptr);
    EXPECT_EQ((*corner)(4, 0), 9.0F);
    EXPECT_EQ((*corner)(5, 0), PatternFloat(0, 95));
    EXPECT_EQ((*corner)(5, 5), 9.0F);
    EXPECT_NE(regionOf({INT_MAX - 5, INT_MAX, INT_MAX, INT_MAX - 5}, 9, 0), nullptr);
    const std::string longName(259, 'L');
    image.SetName(longName.c_str());
    EXPECT_EQ(regionOf({1, 3, 2, 1}, 0, 0)->GetName(), longName);
}
