// What the two colour images do alike: blank images, BMP files and their dialogs, streams, drawing, regions.
#include "support/ClassTests.h"

using namespace test;

namespace {

const Box notOpened = {"Error", "Could not open DIB file"};
const Box wrongKind = {"Error", "This type of Object only handles 24Bit RBG Color BitMaps"};
const Box badSize = {"File Error", "Incorrect Header; Can't open file"};
const Box noFile = {"File I/O Error", "Can't open file"};
const Box noMemory = {"Memory Error", "Memory Allocation Failure"};

Bytes Dib24(int width, int height, const std::vector<std::uint8_t>& pixels, int coloursUsed = 0) {
    return DibOf(BmpFile24(width, height, pixels, coloursUsed));
}

Bytes ImageRecord(const std::string& className, const std::string& name, long size, const Bytes& dib) {
    const int bytes = static_cast<int>(dib.size());
    Bytes bag = Bytes().I32(2).Add(PropertyEntry(className + "_Size", 1, 0, 4));
    bag.Add(PropertyEntry(className + "_Data", 5, 4, bytes)).I32(4 + bytes).I32(size).Add(dib);
    return Record(className, name, Bytes().Add(Record("CcPropertyBag", "", bag)).Add(EmptyListRecord()));
}

template <class Image>
class ColourImages : public testing::Test {
protected:
    static constexpr bool isHsl = std::is_same_v<Image, Cc24BitHSLImage>;
    const std::string className = isHsl ? "Cc24BitHSLImage" : "Cc24BitRGBImage";
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

TYPED_TEST(ColourImages, BmpFilesToTheByteAndTheirRefusals) {
    TypeParam image;
    FillPattern(image, 3, 2, "saved");
    const auto pixels = PatternPixels24(3, 2);
    const TemporaryFile file("a.b.c.bmp", Bytes().Fill(500, 1));
    EXPECT_EQ(image.SaveBMPFile(file.Path()), 0);
    EXPECT_EQ(file.Content(), BmpFile24(3, 2, pixels));
    EXPECT_EQ(image.SaveBMPFile("no such folder\\x.bmp"), 0);
    EXPECT_EQ(TakeBoxes(), (Boxes{noFile}));
    // What the library writes has unpadded rows, and only that is read, whatever the width.
    EXPECT_EQ(image.OpenBMPFile(file.Path()), 0);
    EXPECT_STREQ(image.GetName(), "a");
    EXPECT_EQ(PixelsOf(image), pixels);

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

TYPED_TEST(ColourImages, Dialogs) {
    char folder[MAX_PATH];
    GetCurrentDirectoryA(sizeof folder, folder);
    const std::string path = std::string(folder) + "\\cell.bmp", directory = std::string(folder).substr(2) + "\\";
    std::strcpy(TypeParam::cFullFilePathOpen, "C:\\NONE.bmp");
    TypeParam image;
    FillPattern(image, 4, 2, "cells");
    const TemporaryFile saved(path);
    AnswerFileDialog(path);
    EXPECT_EQ(image.SaveBMPFile(nullptr), 0);
    EXPECT_EQ(TypeParam::cFullFilePathSave, directory);
    EXPECT_STREQ(TypeParam::cFullFilePathOpen, "C:\\NONE.bmp");
    AnswerFileDialog(path);
    EXPECT_EQ(image.OpenBMPFile(nullptr), 0);
    EXPECT_STREQ(image.GetName(), "cell");
    EXPECT_EQ(TypeParam::cFullFilePathOpen, directory);
    EXPECT_EQ(image.OpenBMPFile(nullptr), -1);
    EXPECT_EQ(PixelsOf(image), PatternPixels24(4, 2));
    const auto dialogs = TakeFileDialogs();
    ASSERT_EQ(dialogs.size(), 3u);
    EXPECT_EQ(dialogs[0].name, "cells.bmp");
    EXPECT_EQ(dialogs[2].name, "*.bmp");
    EXPECT_EQ(dialogs[2].filters[0], this->isHsl ? "Bitmap Files (*.BMP)" : "Bitmap Files(*.BMP)");
    SetCurrentDirectoryA(folder);
}

TYPED_TEST(ColourImages, StreamFormToTheByteAndRecordsThatLie) {
    TypeParam image;
    FillPattern(image, 5, 3, "pic");
    const auto pixels = PixelsOf(image);
    const Bytes dib = Dib24(5, 3, pixels);
    const Bytes record = ImageRecord(this->className, "pic", 85, dib);
    EXPECT_EQ(StoredBytes(image), record);
    const auto loaded = Made<TypeParam>(record);
    EXPECT_EQ(PixelsOf(*loaded), pixels);

    Bytes tooHigh = dib, topDown = dib, headerless = dib, eightBit = dib;
    tooHigh[8] = 4;
    std::fill_n(topDown.begin() + 8, 4, std::uint8_t{0xFF});
    headerless[0] = 0;
    eightBit[14] = 8;
    for (const Bytes& bad : {tooHigh, topDown, headerless, eightBit, Dib24(5, 3, pixels, 1), Bytes().U8(40)}) {
        FillPattern(image, 6, 6, "before");
        EXPECT_EQ(LoadRecord(image, ImageRecord(this->className, "bad", static_cast<long>(bad.size()), bad)), -1);
        EXPECT_EQ(image.GetBitMapImageData(), nullptr);
        EXPECT_EQ(image(0, 0), -1.0F);
    }
    for (const long size : {0L, 84L, 86L, 0x7FFFFFFFL, -5L})
        EXPECT_EQ(LoadRecord(image, ImageRecord(this->className, "size", size, dib)), -1);
    // A colour table in front of the pixels is no reason to refuse; a file of it has none.
    Bytes withTable = Dib24(5, 3, pixels, 2);
    withTable.insert(withTable.begin() + 40, 8, 0xEE);
    EXPECT_EQ(LoadRecord(image, ImageRecord(this->className, "table", 93, withTable)), 0);
    const TemporaryFile file("table.bmp");
    EXPECT_EQ(image.SaveBMPFile(file.Path()), 0);
    EXPECT_EQ(file.Content(), BmpFile24(5, 3, pixels));
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
        int wrong = 0;
        for (int i = 0; i < 60 * 48; ++i) {
            const int x = i % 60 / zoom + xOffset, y = 32 - i / 60 / zoom - yOffset;
            const bool isInside = x < width && y >= 0;
            wrong += shown.pixels[i] != (isInside ? PatternColour(x, y).Screen() : 0x000040u);
        }
        EXPECT_EQ(wrong, 0) << width << " zoom " << zoom;
    }
    const auto roi = Boxed<CcRoiEllipse>({3, 25, 14, 4});
    roi->SetName("roi");
    const std::unique_ptr<CcImage> region(image.GetRegion(roi.get(), 9, 1));
    ASSERT_NE(dynamic_cast<TypeParam*>(region.get()), nullptr);
    EXPECT_STREQ(region->GetName(), "image-roi");
    std::vector<std::uint8_t> expected(3 * 12 * 21, 9);
    for (int y = 4; y < 25; ++y) {
        const std::vector<int> columns = RowOf(*roi, y);
        for (std::size_t i = 0; i + 1 < columns.size(); ++i) {
            const PatternColour colour(columns[i], y);
            std::copy_n(&colour.blue, 3, &expected[3 * ((y - 4) * 12 + columns[i] - 3)]);
        }
    }
    EXPECT_EQ(PixelsOf(*region), expected);
}
