// What the classes with a DIB of their own have in common: records that lie, are empty, or have tables that no class
// writes; the dialogs of files.
#include "support/ClassTests.h"

using namespace test;

namespace {

template <class Image>
struct ImagesWithDibs : testing::Test {
    static constexpr bool isGray = std::is_same_v<Image, CcGrayImage256>;
    const std::string className = isGray                                   ? "CcGrayImage256"
                                  : std::is_same_v<Image, Cc24BitHSLImage> ? "Cc24BitHSLImage"
                                                                           : "Cc24BitRGBImage";
    static Bytes Dib(bool isOfBytes, int colours = 0) {
        return DibOf(isOfBytes ? BmpFile8(5, 3, Bytes().Fill(15, 9), colours)
                               : BmpFile24(5, 3, PatternPixels24(5, 3), colours));
    }
};
using ClassesWithDibs = testing::Types<CcGrayImage256, Cc24BitRGBImage, Cc24BitHSLImage>;
TYPED_TEST_SUITE(ImagesWithDibs, ClassesWithDibs);

}  // namespace

TYPED_TEST(ImagesWithDibs, RecordsThatLieOrAreEmptyLeaveAnEmptyImage) {
    const bool gray = TestFixture::isGray;
    const Bytes good = this->Dib(gray);
    Bytes tooHigh = good, topDown = good, headerless = good, otherDepth = good;
    tooHigh[8] = 4;
    std::fill_n(topDown.begin() + 8, 4, std::uint8_t{0xFF});
    headerless[0] = 0;
    otherDepth[14] = gray ? 0x1F : 8;
    std::vector<Bytes> records;
    const auto size = static_cast<long>(good.size());
    for (const long lie : {0L, size - 1, size + 1, 0x7FFFFFFFL, -5L})
        records.push_back(ImageRecord(this->className, lie, good));
    for (const Bytes& dib :
         {tooHigh, topDown, headerless, otherDepth, Bytes().U8(40), this->Dib(!gray), this->Dib(gray, gray ? 300 : 1)})
        records.push_back(ImageRecord(this->className, static_cast<long>(dib.size()), dib));
    TypeParam image;
    image.SetName("nothing");
    records.push_back(StoredBytes(image));
    for (const Bytes& record : records) {
        FillPattern(image, 6, 6, "before");
        EXPECT_EQ(LoadRecord(image, record), &record == &records.back() ? 0 : -1) << &record - records.data();
        EXPECT_EQ(image.GetBitMapImageData(), nullptr);
        EXPECT_EQ(image(0, 0), -1.0F);
        ExpectAll(0, {image.Show(GetDesktopWindow(), 100, 1, 0, 0, 1), image.MakeBlankBMP(6, 6, 3, "after")});
    }
    EXPECT_EQ(LoadRecord(image, records.back()), 0);
    EXPECT_STREQ(image.GetName(), "nothing");
    ExpectAll(-1, {image.Store(nullptr), image.Load(nullptr)});
    if (gray) return;
    // A colour table in front of the pixels is no reason to refuse; a file of it has none.
    Bytes withTable = this->Dib(false, 2);
    withTable.insert(withTable.begin() + 40, 8, 0xEE);
    EXPECT_EQ(LoadRecord(image, ImageRecord(this->className, size + 8, withTable)), 0);
    const TemporaryFile file("table.bmp");
    EXPECT_EQ(image.SaveBMPFile(file.Path()), 0);
    EXPECT_EQ(file.Content(), BmpFile24(5, 3, PatternPixels24(5, 3)));
}

TYPED_TEST(ImagesWithDibs, Dialogs) {
    char folder[MAX_PATH];
    GetCurrentDirectoryA(sizeof folder, folder);
    const std::string path = std::string(folder) + "\\cell.bmp", none = "C:\\NONE.bmp";
    const std::string noted = this->isGray ? path : std::string(folder).substr(2) + "\\";
    std::strcpy(TypeParam::cFullFilePathOpen, none.c_str());
    TypeParam image;
    FillPattern(image, 4, 2, "cells");
    const TemporaryFile saved(path);
    AnswerFileDialog(path);
    EXPECT_EQ(image.SaveBMPFile(nullptr), 0);
    EXPECT_EQ(TypeParam::cFullFilePathSave, noted);
    EXPECT_EQ(TypeParam::cFullFilePathOpen, none);
    std::strcpy(TypeParam::cFullFilePathSave, none.c_str());
    ExpectAll(-1, {image.OpenBMPFile(nullptr), image.SaveBMPFile(nullptr)});
    EXPECT_STREQ(image.GetName(), "cells");
    AnswerFileDialog(path);
    EXPECT_EQ(image.OpenBMPFile(nullptr), 0);
    EXPECT_STREQ(image.GetName(), "cell");
    EXPECT_EQ(TypeParam::cFullFilePathOpen, noted);
    EXPECT_EQ(TypeParam::cFullFilePathSave, this->isGray ? noted : none);
    EXPECT_EQ(image.OpenBMPFile(nullptr), -1);
    const auto dialogs = TakeFileDialogs();
    ASSERT_EQ(dialogs.size(), 5u);
    EXPECT_EQ(dialogs[0].name, "cells.bmp");
    EXPECT_EQ(dialogs[1].name, "*.bmp");
    EXPECT_EQ(dialogs[1].filters[0],
              this->className == "Cc24BitHSLImage" ? "Bitmap Files (*.BMP)" : "Bitmap Files(*.BMP)");
    EXPECT_EQ(dialogs[1].filters[1], "All Files (*.*)");
    EXPECT_EQ(dialogs[4].name, this->isGray ? "cell.bmp" : "*.bmp");
    SetCurrentDirectoryA(folder);
}
