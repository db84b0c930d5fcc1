// BMP files of the 8-bit image: what is written, what is accepted and refused, and the dialogs.
#include "support/ClassTests.h"

using namespace test;

namespace {

const Boxes wrongColours = {{"Error", "This type of Object only handles 256 Color BitMaps"}};

}  // namespace

TEST(BmpFiles, PathsAreNotedAndNothingIsNotSaved) {
    CcGrayImage256 image;
    EXPECT_EQ(image.SaveBMPFile("x.bmp"), -1);
    EXPECT_EQ(TakeBoxes(), (Boxes{{"Error", "No Image to save"}}));
    FillPattern(image, 3, 2);
    const TemporaryFile file("written.bmp", Bytes().Fill(9000, 1));
    EXPECT_EQ(image.SaveBMPFile(file.Path()), 0);
    EXPECT_STREQ(CcGrayImage256::cFullFilePathSave, file.Path());
    EXPECT_EQ(image.SaveBMPFile("no such folder\\x.bmp"), 0);
    EXPECT_EQ(image.OpenBMPFile(file.Path()), 0);
    EXPECT_STREQ(image.GetName(), "written");
    EXPECT_STREQ(CcGrayImage256::cFullFilePathOpen, file.Path());
}

// Its block stays attached: it can be saved and bear an overlay, but has no pixels that the image can use.
TEST(BmpFiles, AfterARefusedColourCount) {
    const Bytes sixteen = BmpFile8(4, 3, std::vector<std::uint8_t>(12, 5), 16);
    const TemporaryFile file("sixteen.bmp", sixteen), saved("saved.bmp");
    CcGrayImage256 image;
    FillPattern(image, 7, 6);
    EXPECT_EQ(image.OpenBMPFile(file.Path()), -1);
    ExpectAll(-1.0F, {image(1, 1), image(1.5F, 1.5F)});
    image = 4.0F;
    EXPECT_EQ(image.GetBitMapImageData(), nullptr);
    EXPECT_EQ(image.Show(GetDesktopWindow(), 100, 1, 0, 0, 1), 0);
    CcRoiRect roi;
    EXPECT_EQ(image.GetRegion(&roi, 0, 0), nullptr);
    StoredBytes(image);
    // The overlay has the size that the image had; the file gets the sixteen colours and the bytes that follow them.
    ASSERT_EQ(image.CreateOverlay(), 0);
    std::fill_n(image.GetOverlay(), 7 * 6, std::uint8_t{19});
    EXPECT_EQ(image.ClearOverlay(), 0);
    EXPECT_EQ(TakeBoxes(), wrongColours);
    EXPECT_EQ(image.SaveBMPFile(saved.Path()), 0);
    Bytes expected = sixteen;
    expected.resize(54 + 64 + 12);
    EXPECT_EQ(saved.Content(), expected);
    // What a larger count promises beyond the block is not there to be written.
    for (const int colours : {512, -1}) {
        const Bytes more = BmpFile8(4, 3, std::vector<std::uint8_t>(12, 5), colours);
        const TemporaryFile other("more.bmp", more);
        EXPECT_EQ(image.OpenBMPFile(other.Path()), -1);
        EXPECT_EQ(image.SaveBMPFile(saved.Path()), 0);
        EXPECT_EQ(saved.Content(), more);
    }
    TakeBoxes();
    EXPECT_EQ(image.MakeBlankBMP(6, 7, 9, "new"), 0);
    EXPECT_EQ(image(6, 5), 9.0F);
}

// Who does not let others write keeps both old files of a wide image.
TEST(BmpFiles, SamplesThatOthersHaveOpen) {
    const TemporaryFile bmp("wide.bmp"), raw("wide.i16");
    CcGrayImageInt16 image, back;
    image.MakeBlankBMP(3, 4, 1000, "wide");
    ASSERT_EQ(image.SaveBMPFile(bmp.Path()), 0);
    const auto oldBmp = bmp.Content(), oldRaw = raw.Content();
    image.MakeBlankBMP(5, 5, 7, "other");
    for (const DWORD sharing : {FILE_SHARE_READ, 0}) {
        const HANDLE other = CreateFileA(raw.Path(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
        EXPECT_EQ(image.SaveBMPFile(bmp.Path()), -1);
        EXPECT_EQ(back.OpenBMPFile(bmp.Path()), sharing ? 0 : -1);
        // 8-bit values are not saved over samples.
        EXPECT_EQ(sharing ? -1 : back.SaveBMPFile(bmp.Path()), -1);
        CloseHandle(other);
    }
    const Box notSaved = {"File I/O Error", "Can't open file for saving 16-bit image data"};
    EXPECT_EQ(TakeBoxes(), (Boxes{notSaved, notSaved, {"File I/O Error", "Can't read file of 16-bit image data"}}));
    EXPECT_EQ(bmp.Content(), oldBmp);
    EXPECT_EQ(raw.Content(), oldRaw);
    EXPECT_EQ(back.OpenBMPFile(bmp.Path()), 0);
    EXPECT_EQ(back(3, 2), 1000.0F);
}
