// What the two colour images do alike: slots, blank images, BMP files and their dialogs, streams, regions, drawing.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "image/Support.h"
#include "support/Census.h"
#include "support/Dialogs.h"
#include "support/Slots.h"
#include "support/TestWindow.h"

using test::Box;
using test::Bytes;
using test::TakeBoxes;

namespace {

const Box notOpened = {"Error", "Could not open DIB file"};
const Box wrongKind = {"Error", "This type of Object only handles 24Bit RBG Color BitMaps"};
const Box badSize = {"File Error", "Incorrect Header; Can't open file"};
const Box badDepth = {"File Error", "Can't open .bmp files other than 24-bit color"};
const Box badHeader = {"File Error", "Bad BITMAPINFOHEADER size in file"};
const Box compressed = {"File Error", "Can't open .bmp files using Compression"};
const Box tooShort = {"File I/O Error", "Problem reading in information into memory"};
const Box noHeader = {"File I/O Error", "Can't read 'BITMAPFILEHEADER' info from file"};
const Box noFile = {"File I/O Error", "Can't open file"};
const Box notBmp = {"File Type Error", "Not a DIB type file format"};
const Box noMemory = {"Memory Error", "Memory Allocation Failure"};

template <class Image>
std::vector<std::uint8_t> PixelsOf(Image& image) {
    int height, width;
    image.GetHeightWidth(&height, &width);
    const auto* bytes = static_cast<const std::uint8_t*>(image.GetBitMapImageData());
    return {bytes, bytes + 3 * height * width};
}

template <class Image>
void FillPattern(Image& image, int width, int height, const char* name) {
    image.MakeBlankBMP(height, width, 0, name);
    const auto pixels = test::PatternPixels24(width, height);
    std::copy(pixels.begin(), pixels.end(), static_cast<std::uint8_t*>(image.GetBitMapImageData()));
    if constexpr (std::is_same_v<Image, Cc24BitHSLImage>) image.DoConvert();
}

Bytes DibOf(int width, int height, const std::vector<std::uint8_t>& pixels, int coloursUsed = 0) {
    const Bytes file = test::BmpFile24(width, height, pixels, coloursUsed);
    Bytes dib;
    dib.assign(file.begin() + 14, file.end());
    return dib;
}

Bytes ImageRecord(const std::string& className, const std::string& name, long size, const Bytes& dib) {
    const int bytes = static_cast<int>(dib.size());
    const Bytes bag = Bytes().I32(2).Add(test::PropertyEntry(className + "_Size", 1, 0, 4))
                          .Add(test::PropertyEntry(className + "_Data", 5, 4, bytes)).I32(4 + bytes).I32(size).Add(dib);
    Bytes list = Bytes().I32(4);
    int offset = 0;
    for (const char* key : {"CcList::iCurrentObject", "CcList::iNumberOfObjects", "CcList::iSelectedObject",
                            "CcList::iDistructorFlag"}) {
        list.Add(test::PropertyEntry(key, 0, offset, 4));
        offset += 4;
    }
    list.I32(16).I32(0).I32(0).I32(-1).I32(1);
    return Record(className, name, Bytes().Add(test::Record("CcPropertyBag", "", bag))
                                       .Add(test::Record("CcList", "", test::Record("CcPropertyBag", "", list))));
}

int LoadRecord(CcImage& image, Bytes bytes) {
    bytes.U8(0);
    CcMemObjectStorage stream(bytes.data(), static_cast<long>(bytes.size()), 1);
    return stream.GetNextObject(&image);
}

template <class Image>
class ColourImages : public testing::Test {
protected:
    static constexpr bool isHsl = std::is_same_v<Image, Cc24BitHSLImage>;
    const std::string className = isHsl ? "Cc24BitHSLImage" : "Cc24BitRGBImage";
};

using BothClasses = testing::Types<Cc24BitRGBImage, Cc24BitHSLImage>;

}  // namespace

TYPED_TEST_SUITE(ColourImages, BothClasses);

TYPED_TEST(ColourImages, BlankImagesAndConstants) {
    EXPECT_EQ(test::SlotOf(&TypeParam::SetAccess), 30);
    EXPECT_EQ(test::SlotOf(&TypeParam::GetAccess), 31);
    TypeParam image;
    EXPECT_EQ(image.GetImageType(), this->isHsl ? 6 : 3);
    char name[16];
    EXPECT_EQ(image.GetClassNameA(name, 15), -1);
    EXPECT_EQ(image.GetClassNameA(name, 16), 0);
    EXPECT_EQ(name, this->className);
    tagPoints points[256];
    EXPECT_EQ(image.GetDisplayLUT(101, 1, points), -1);
    EXPECT_EQ(image.SetDisplayLUT(101, 1, points), -1);
    EXPECT_EQ(image.SizeOf(), 3);
    EXPECT_EQ(image.GetMaxPixelValue(), 255.0F);
    EXPECT_EQ(image.GetAutoUpdateDisplay(), 1);
    EXPECT_EQ(image(0, 0), -1.0F);
    EXPECT_EQ(image.BeginThresholding(nullptr, 0), -1);

    EXPECT_EQ(image.MakeBlankBMP(2, 5, 300, "a"), 0);
    EXPECT_EQ(PixelsOf(image), std::vector<std::uint8_t>(30, this->isHsl ? 255 : 44));
    const void* block = image.GetBitMapImageData();
    EXPECT_EQ(image.MakeBlankBMP(2, 5, 300, "again"), 0);
    EXPECT_EQ(image.GetBitMapImageData(), block);
    EXPECT_EQ(PixelsOf(image), std::vector<std::uint8_t>(30, 44));
    EXPECT_STREQ(image.GetName(), "again");
    EXPECT_EQ(image.MakeBlankBMP(5, 2, 1, "turned"), 0);
    EXPECT_EQ(image.MakeBlankBMP(60000, 60000, 1, "huge"), -1);
    EXPECT_EQ(TakeBoxes(), (std::vector<Box>{noMemory, {"Error", "Could not make Blank DIB"}}));
    EXPECT_EQ(image(0, 0), -1.0F);
    EXPECT_EQ(image.ThresholdImage(nullptr, 0, 255, 1, 1, 1), this->isHsl ? -1 : 0);
    EXPECT_EQ(image.SaveBMPFile("never.bmp"), -1);
    EXPECT_EQ(TakeBoxes(), (std::vector<Box>{{"Error", "No Image to save"}}));
}

TYPED_TEST(ColourImages, BmpFilesToTheByteAndTheirRefusals) {
    TypeParam image;
    FillPattern(image, 3, 2, "saved");
    const auto pixels = PixelsOf(image);
    const test::TemporaryFile file("a.b.c.bmp", Bytes().Fill(500, 1));
    EXPECT_EQ(image.SaveBMPFile(file.Path()), 0);
    EXPECT_EQ(file.Content(), test::BmpFile24(3, 2, pixels));
    EXPECT_EQ(image.SaveBMPFile("no such folder\\x.bmp"), 0);
    EXPECT_EQ(TakeBoxes(), (std::vector<Box>{noFile}));
    // What the library writes has unpadded rows, and only that is read, whatever the width.
    EXPECT_EQ(image.OpenBMPFile(file.Path()), 0);
    EXPECT_STREQ(image.GetName(), "a");
    EXPECT_EQ(PixelsOf(image), pixels);

    const auto expectRefused = [&](Bytes bytes, const std::vector<Box>& boxes) {
        const test::TemporaryFile refused("refused.bmp", bytes);
        FillPattern(image, 4, 4, "before");
        EXPECT_EQ(image.OpenBMPFile(refused.Path()), -1);
        EXPECT_EQ(TakeBoxes(), boxes);
        EXPECT_EQ(image.GetBitMapImageData(), nullptr);
        EXPECT_EQ(image(0, 0), -1.0F);
        EXPECT_EQ(image.MakeBlankBMP(4, 4, 1, "after"), 0);
    };
    const std::vector<std::uint8_t> padded(3 * 12);
    expectRefused(test::BmpFile24(3, 3, padded), {badSize, notOpened});
    expectRefused(test::BmpFile24(4, 3, padded, 7), {wrongKind});
    expectRefused(test::BmpFile24(4, 3, padded, -1), {wrongKind});
    const auto none = this->isHsl ? Box{"File Error", "Unable to allocate HSL memory."} : Box{};
    if (this->isHsl) expectRefused(test::BmpFile24(0, 3, {}), {none, notOpened});
    Bytes tiny = test::BmpFile24(4, 3, padded);
    tiny[2] = 14 + 20;
    tiny[3] = 0;
    expectRefused(tiny, {badSize, notOpened});
    tiny[2] = 14;
    expectRefused(tiny, {noMemory, notOpened});
    EXPECT_EQ(image.OpenBMPFile("none.bmp"), -1);
    EXPECT_EQ(TakeBoxes(), (std::vector<Box>{noFile, notOpened}));
}

TYPED_TEST(ColourImages, PublicCollection) {
    const std::filesystem::path folder = std::filesystem::path(KEST_SHARED_DIR) / "bmp";
    if (!std::filesystem::exists(folder)) GTEST_SKIP() << "the collection of BMP files is not here";
    const std::set<std::string> accepted = {" spaces in  filename.bmp", "24bpp-320x240.bmp", "24bpp-imagesize-zero.bmp"};
    std::map<std::string, Box> verdicts = {
        {"filesize-zero.bmp", noMemory},           {"magicnumber-bad.bmp", notBmp},
        {"emptyfile.bmp", noHeader},               {"fileinfoheader-cropped.bmp", noHeader},
        {"magicnumber-cropped.bmp", noHeader},     {"infoheadersize-small.bmp", badHeader},
        {"infoheadersize-zero.bmp", badHeader},    {"24bpp-1x1.bmp", badSize},
        {"24bpp-321x240.bmp", badSize},            {"24bpp-322x240.bmp", badSize},
        {"24bpp-323x240.bmp", badSize},            {"24bpp-topdown-320x240.bmp", badSize},
        {"1bpp-pixeldata-cropped.bmp", tooShort},  {"24bpp-pixeldata-cropped.bmp", tooShort},
        {"32bpp-pixeldata-cropped.bmp", tooShort}, {"4bpp-pixeldata-cropped.bmp", tooShort},
        {"555-pixeldata-cropped.bmp", tooShort},   {"8bpp-pixeldata-cropped.bmp", tooShort},
        {"colormasks-cropped.bmp", tooShort},      {"colormasks-missing.bmp", tooShort},
        {"infoheader-cropped.bmp", tooShort},      {"infoheader-missing.bmp", tooShort},
        {"infoheadersize-large.bmp", tooShort},    {"palette-cropped.bmp", tooShort},
        {"palette-missing.bmp", tooShort},         {"pixeldata-missing.bmp", tooShort}};
    const auto isCompressed = [](const std::string& name) {
        for (const char* start : {"rle", "565", "compression", "32bpp-101110", "32bpp-888", "pixeldata-rle8",
                                  "width-times-height"})
            if (name.starts_with(start)) return true;
        return false;
    };
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != ".bmp") continue;
        ++files;
        const std::string name = entry.path().filename().string();
        const auto listed = verdicts.find(name);
        std::vector<Box> boxes;
        if (!accepted.contains(name))
            boxes = {listed != verdicts.end() ? listed->second : isCompressed(name) ? compressed : badDepth, notOpened};
        TypeParam image;
        EXPECT_EQ(image.OpenBMPFile(entry.path().string().c_str()), boxes.empty() ? 0 : -1) << name;
        EXPECT_EQ(TakeBoxes(), boxes) << name;
    }
    EXPECT_EQ(files, 144);
}

TYPED_TEST(ColourImages, Dialogs) {
    char folder[MAX_PATH];
    GetCurrentDirectoryA(sizeof folder, folder);
    const std::string path = std::string(folder) + "\\cell.bmp";
    std::strcpy(TypeParam::cFullFilePathOpen, "C:\\NONE.bmp");
    std::strcpy(TypeParam::cFullFilePathSave, "C:\\NONE.bmp");
    TypeParam image;
    FillPattern(image, 4, 2, "cells");
    test::AnswerFileDialog(path);
    EXPECT_EQ(image.SaveBMPFile(nullptr), 0);
    const test::TemporaryFile saved(path, test::TemporaryFile::ReadAll(path));
    EXPECT_TRUE(saved.Exists());
    const std::string directory = std::string(folder).substr(2) + "\\";
    EXPECT_EQ(TypeParam::cFullFilePathSave, directory);
    EXPECT_STREQ(TypeParam::cFullFilePathOpen, "C:\\NONE.bmp");
    auto dialogs = test::TakeFileDialogs();
    ASSERT_EQ(dialogs.size(), 1u);
    EXPECT_EQ(dialogs[0].name, "cells.bmp");
    EXPECT_EQ(dialogs[0].filters[0], this->isHsl ? "Bitmap Files (*.BMP)" : "Bitmap Files(*.BMP)");

    image.MakeBlankBMP(1, 1, 0, "kept");
    EXPECT_EQ(image.OpenBMPFile(nullptr), -1);
    EXPECT_STREQ(image.GetName(), "kept");
    test::AnswerFileDialog(path);
    EXPECT_EQ(image.OpenBMPFile(nullptr), 0);
    EXPECT_STREQ(image.GetName(), "cell");
    EXPECT_EQ(TypeParam::cFullFilePathOpen, directory);
    EXPECT_EQ(PixelsOf(image), test::PatternPixels24(4, 2));
    EXPECT_EQ(image.OpenBMPFile(nullptr), -1);
    dialogs = test::TakeFileDialogs();
    ASSERT_EQ(dialogs.size(), 3u);
    EXPECT_EQ(dialogs[2].name, "*.bmp");
    SetCurrentDirectoryA(folder);
}

TYPED_TEST(ColourImages, StreamFormToTheByteAndRecordsThatLie) {
    TypeParam image;
    FillPattern(image, 5, 3, "pic");
    const Bytes dib = DibOf(5, 3, PixelsOf(image));
    CcMemObjectStorage stream;
    ASSERT_EQ(stream.PutObject(&image), 0);
    unsigned char* block = nullptr;
    long length = 0;
    stream.GetStorageBufferRef(&block, &length);
    EXPECT_EQ(std::vector<std::uint8_t>(block, block + length - 1), ImageRecord(this->className, "pic", 85, dib));
    stream.Reset();
    CcHLObject* made = nullptr;
    ASSERT_EQ(stream.GetNextObject(&made), 0);
    const std::unique_ptr<TypeParam> loaded(dynamic_cast<TypeParam*>(made));
    ASSERT_NE(loaded, nullptr);
    EXPECT_EQ(PixelsOf(*loaded), PixelsOf(image));
    EXPECT_EQ(image.Store(nullptr), -1);
    EXPECT_EQ(image.Load(nullptr), -1);

    Bytes tooHigh = dib, topDown = dib, headerless = dib, eightBit = dib;
    tooHigh[8] = 4;
    std::fill_n(topDown.begin() + 8, 4, std::uint8_t{0xFF});
    headerless[0] = 0;
    eightBit[14] = 8;
    const auto pixels = PixelsOf(image);
    for (const Bytes& bad : {tooHigh, topDown, headerless, eightBit, DibOf(5, 3, pixels, 1), Bytes().U8(40)}) {
        FillPattern(image, 6, 6, "before");
        EXPECT_EQ(LoadRecord(image, ImageRecord(this->className, "bad", static_cast<long>(bad.size()), bad)), -1);
        EXPECT_EQ(image.GetBitMapImageData(), nullptr);
        EXPECT_EQ(image(0, 0), -1.0F);
        EXPECT_EQ(image.EndThresholding(), 0);
    }
    for (const long size : {0L, 84L, 86L, 0x7FFFFFFFL, -5L}) {
        FillPattern(image, 6, 6, "before");
        EXPECT_EQ(LoadRecord(image, ImageRecord(this->className, "size", size, dib)), -1);
        EXPECT_EQ(image.GetBitMapImageData(), nullptr);
    }
    // A colour table in front of the pixels is no reason to refuse; a file of it has none.
    Bytes withTable = DibOf(5, 3, pixels, 2);
    withTable.insert(withTable.begin() + 40, 8, 0xEE);
    EXPECT_EQ(LoadRecord(image, ImageRecord(this->className, "table", 93, withTable)), 0);
    EXPECT_EQ(PixelsOf(image), pixels);
    const test::TemporaryFile file("table.bmp");
    EXPECT_EQ(image.SaveBMPFile(file.Path()), 0);
    EXPECT_EQ(file.Content(), test::BmpFile24(5, 3, pixels));
}

TYPED_TEST(ColourImages, ShownPixelByPixelAndCutOut) {
    test::TestWindow window(60, 48, RGB(0, 0, 64));
    TypeParam image;
    EXPECT_EQ(image.Show(window, 100, 1, 0, 0, 1), 0);
    EXPECT_EQ(image.Show(HDC{}, window, 100, 1, 0, 0, 1), 0);
    EXPECT_EQ(image.CopyToClipboard(window, 100, nullptr), -1);
    EXPECT_EQ(image.Print(window, 100, 1, 0, 0, 1), -1);
    for (const int width : {5, 40, 70}) {
        FillPattern(image, width, 33, "image");
        for (const auto& [xOffset, yOffset, zoom] : {std::tuple{0, 0, 1}, {2, 3, 1}, {1, 2, 3}}) {
            window.Fill(RGB(0, 0, 64));
            ASSERT_EQ(image.Show(window, 100, 1, xOffset, yOffset, zoom), 0);
            const test::Picture shown = window.Snapshot();
            for (int py = 0; py < 48; ++py)
                for (int px = 0; px < 60; ++px) {
                    const int x = px / zoom + xOffset, y = 32 - py / zoom - yOffset;
                    const bool isInside = x < width && y >= 0;
                    ASSERT_EQ(shown.At(px, py), isInside ? test::PatternColour(x, y).Screen() : 0x000040u)
                        << width << ": " << px << ' ' << py << " zoom " << zoom;
                }
        }
    }
    CcRoiEllipse roi;
    roi.SetName("roi");
    RECT rect = {3, 25, 14, 4};
    roi.SetRoiImageCord(&rect);
    const std::unique_ptr<CcImage> region(image.GetRegion(&roi, 9, 1));
    ASSERT_NE(dynamic_cast<TypeParam*>(region.get()), nullptr);
    EXPECT_STREQ(region->GetName(), "image-roi");
    std::vector<std::uint8_t> expected(3 * 12 * 21, 9);
    for (int y = 4; y < 25; ++y) {
        int count = 0;
        const int* columns = roi.GetXBoundary(y, &count);
        for (int i = 0; i + 1 < count; ++i) {
            const test::PatternColour colour(columns[i], y);
            std::copy_n(&colour.blue, 3, &expected[3 * ((y - 4) * 12 + columns[i] - 3)]);
        }
    }
    EXPECT_EQ(PixelsOf(*region), expected);
    rect = {0, 34, 5, 0};
    roi.SetRoiImageCord(&rect);
    EXPECT_EQ(image.GetRegion(&roi, 0, 0), nullptr);
}

TYPED_TEST(ColourImages, RepeatedUseHoldsNothing) {
    const test::TemporaryFile file("repeated.bmp", test::BmpFile24(20, 3, test::PatternPixels24(20, 3)));
    const test::TemporaryFile bad("bad.bmp", test::BmpFile24(20, 3, test::PatternPixels24(20, 4)));
    test::TestWindow window(10, 10);
    const auto use = [&] {
        TypeParam image;
        image.OpenBMPFile(file.Path());
        image.Show(window, 100, 1, 0, 0, 1);
        image.BeginThresholding(window, 100);
        TypeParam copy(image);
        copy = image;
        image.OpenBMPFile(file.Path());
        image.MakeBlankBMP(2, 2, 5, "b");
        // The copy kept for another size is not put back.
        EXPECT_EQ(image.ThresholdImage(window, 250, 250, 1, 2, 3), 0);
        EXPECT_EQ(image.EndThresholding(), 0);
        EXPECT_EQ(PixelsOf(image)[11], this->isHsl ? 4 : 5);
    };
    for (int i = 0; i < 10; ++i) use();
    const test::Census before = test::TakeCensus();
    for (int i = 0; i < 200; ++i) use();
    EXPECT_EQ(test::TakeCensus(), before);
}
