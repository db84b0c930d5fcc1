// What the two colour images do alike: blank images, BMP files and their dialogs, streams, drawing, regions.
#include "support/ClassTests.h"

using namespace test;

namespace {

const Box notOpened = {"Error", "Could not open DIB file"};
const Box wrongKind = {"Error", "This type of Object only handles 24Bit RBG Color BitMaps"};
const Box badSize = {"File Error", "Incorrect Header; Can't open file"};
const Box noFile = {"File I/O Error", "Can't open file"};
const Box noMemory = {"Memory Error", "Memory Allocation Failure"};

template <class Image>
class ColourImages : public testing::Test {
protected:
    static constexpr bool isHsl = std::is_same_v<Image, Cc24BitHSLImage>;
};

}  // namespace

using BothClasses = testing::Types<Cc24BitRGBImage, Cc24BitHSLImage>;
TYPED_TEST_SUITE(ColourImages, BothClasses);

TYPED_TEST(ColourImages, BlankImages) {
    ExpectSlots(30, &TypeParam::SetAccess, &TypeParam::GetAccess);
    TypeParam image;
    EXPECT_EQ(image(0, 0), -1.0F);
    EXPECT_EQ(image.BeginThresholding(nullptr, 0), -1);
    EXPECT_EQ(image.MakeBlankBMP(2, 5, 300, "a"), 0);
    EXPECT_EQ(PixelsOf(image), std::vector<std::uint8_t>(30, this->isHsl ? 255 : 44));
    const void* block = image.GetBitMapImageData();
    EXPECT_EQ(image.MakeBlankBMP(2, 5, 300, "again"), 0);
    EXPECT_EQ(image.GetBitMapImageData(), block);
    EXPECT_EQ(PixelsOf(image), std::vector<std::uint8_t>(30, 44));
    // A copy that was kept for another size is not put back.
    ExpectAll(0, {image.BeginThresholding(nullptr, 0), image.MakeBlankBMP(1, 1, 0, "small"),
                  image.ThresholdImage(nullptr, 250, 250, 1, 2, 3), image.EndThresholding()});
    EXPECT_EQ(PixelsOf(image), std::vector<std::uint8_t>(3, 0));
    EXPECT_EQ(image.MakeBlankBMP(60000, 60000, 1, "huge"), -1);
    EXPECT_EQ(TakeBoxes(), (Boxes{noMemory, {"Error", "Could not make Blank DIB"}}));
    EXPECT_EQ(image(0, 0), -1.0F);
    EXPECT_EQ(image.ThresholdImage(nullptr, 0, 255, 1, 1, 1), this->isHsl ? -1 : 0);
}

TYPED_TEST(ColourImages, BmpFilesAndTheirRefusals) {
    TypeParam image;
    FillPattern(image, 3, 2, "saved");
    const TemporaryFile file("a.b.c.bmp", Bytes().Fill(500, 1));
    ExpectAll(0, {image.SaveBMPFile(file.Path()), image.SaveBMPFile("no such folder\\x.bmp")});
    EXPECT_EQ(TakeBoxes(), (Boxes{noFile}));
    EXPECT_EQ(image.OpenBMPFile(file.Path()), 0);
    EXPECT_STREQ(image.GetName(), "a");
    const auto expectRefused = [&](const Bytes& bytes, const Boxes& boxes) {
        const TemporaryFile refused("refused.bmp", bytes);
        FillPattern(image, 4, 4, "before");
        EXPECT_EQ(image.OpenBMPFile(refused.Path()), -1);
        EXPECT_EQ(TakeBoxes(), boxes);
        EXPECT_EQ(image(0, 0), -1.0F);
    };
    const std::vector<std::uint8_t> padded(3 * 12);
    expectRefused(BmpFile24(4, 3, padded, 7), {wrongKind});
    expectRefused(BmpFile24(4, 3, padded, -1), {wrongKind});
    if (this->isHsl) expectRefused(BmpFile24(0, 3, {}), {{"File Error", "Unable to allocate HSL memory."}, notOpened});
    Bytes tiny = BmpFile24(4, 3, padded);
    tiny[2] = 14 + 20;
    expectRefused(tiny, {badSize, notOpened});
    tiny[2] = 14;
    expectRefused(tiny, {noMemory, notOpened});
    // A size that the file does not have costs no memory.
    expectRefused(BmpFile24(20000, 25000, {}), {badSize, notOpened});
    ExpectAll(-1, {image.SaveBMPFile("never.bmp"), image.OpenBMPFile("none.bmp")});
    EXPECT_EQ(TakeBoxes(), (Boxes{{"Error", "No Image to save"}, noFile, notOpened}));
    // What the host gets itself while a refusal is told is kept.
    const TemporaryFile withColours("refused.bmp", BmpFile24(4, 3, padded, 7));
    DuringNextBox([&] { FillPattern(image, 2, 2, "new"); });
    EXPECT_EQ(image.OpenBMPFile(withColours.Path()), -1);
    EXPECT_EQ(TakeBoxes(), (Boxes{wrongKind}));
    EXPECT_EQ(PixelsOf(image), PatternPixels24(2, 2));
    EXPECT_GE(image(1, 1), 0.0F) << "the plane is the new picture's";
    // The reader's box is the focus window's, but not that of the reader which makes two planes.
    const TestWindow window(50, 50);
    SetFocus(window);
    EXPECT_EQ(image.OpenBMPFile("none.bmp"), -1);
    EXPECT_EQ(TakeBoxes()[0].isOwned, !this->isHsl);
}

TYPED_TEST(ColourImages, ShownPixelByPixelAndCutOut) {
    TestWindow window(60, 48, RGB(0, 0, 64));
    TypeParam image;
    EXPECT_EQ(image.Show(window, 100, 1, 0, 0, 1), 0);
    ExpectAll(-1, {image.CopyToClipboard(window, 100, nullptr), image.Print(window, 100, 1, 0, 0, 1)});
    for (const auto& [width, xOffset, yOffset, zoom] : {std::tuple{5, 0, 0, 1}, {40, 2, 3, 1}, {70, 1, 2, 3}}) {
        FillPattern(image, width, 33, "image");
        window.Fill(RGB(0, 0, 64));
        ASSERT_EQ(image.Show(window, 100, 1, xOffset, yOffset, zoom), 0);
        const Picture shown = window.Snapshot();
        const auto pixel = [](int x, int y) { return PatternColour(x, y).Screen(); };
        EXPECT_EQ(shown.DifferentFrom(ExpectedPicture(60, 48, width, 33, xOffset, yOffset, zoom, pixel)), 0) << width;
    }
    const auto roi = Boxed<CcRoiRect>({3, 25, 14, 4});
    const std::unique_ptr<CcImage> region(image.GetRegion(roi.get(), 9, 1));
    ASSERT_NE(dynamic_cast<TypeParam*>(region.get()), nullptr);
    // Eleven columns are copied, the one that fills the row keeps the value.
    Bytes expected;
    for (int i = 0; i < 12 * 21; ++i) {
        const PatternColour colour(3 + i % 12, 4 + i / 12);
        i % 12 == 11 ? expected.Fill(3, 9) : expected.U8(colour.blue).U8(colour.green).U8(colour.red);
    }
    EXPECT_EQ(PixelsOf(*region), expected);
}
