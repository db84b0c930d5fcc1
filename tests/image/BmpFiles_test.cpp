// BMP files of the 8-bit image: what is written, what is accepted and refused, and the dialogs.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <map>
#include <string>

#include "image/Support.h"
#include "support/Dialogs.h"
#include "support/TestWindow.h"

using test::Box;
using test::BmpFile8;
using test::Bytes;
using test::TakeBoxes;

namespace {

const std::vector<Box> notOpened = {{"Error", "Could not open DIB file"}};
const std::vector<Box> wrongColours = {{"Error", "This type of Object only handles 256 Color BitMaps"}};

}  // namespace

TEST(BmpFiles, WrittenFileToTheByte) {
    CcGrayImage256 image;
    EXPECT_EQ(image.SaveBMPFile("x.bmp"), -1);
    EXPECT_EQ(TakeBoxes(), (std::vector<Box>{{"Error", "No Image to save"}}));
    image.MakeBlankBMP(2, 3, 0, "six");
    auto* bytes = static_cast<std::uint8_t*>(image.GetBitMapImageData());
    for (int i = 0; i < 6; ++i) bytes[i] = static_cast<std::uint8_t>(10 * i);
    const test::TemporaryFile file("written.bmp", Bytes().Fill(9000, 1));
    EXPECT_EQ(image.SaveBMPFile(file.Path()), 0);
    EXPECT_EQ(file.Content(), BmpFile8(3, 2, {0, 10, 20, 30, 40, 50}));
    EXPECT_STREQ(CcGrayImage256::cFullFilePathSave, file.Path());
    EXPECT_EQ(image.SaveBMPFile("no such folder\\x.bmp"), 0);

    CcGrayImage256 back;
    EXPECT_EQ(back.OpenBMPFile(file.Path()), 0);
    EXPECT_STREQ(back.GetName(), "written");
    EXPECT_EQ(back(2, 1), 50.0F);
    EXPECT_STREQ(CcGrayImage256::cFullFilePathOpen, file.Path());
}

TEST(BmpFiles, RefusedFiles) {
    const std::vector<std::uint8_t> pixels(12, 5);
    const Bytes good = BmpFile8(4, 3, pixels);
    const auto changed = [&](std::size_t at, unsigned value) {
        Bytes bytes = good;
        bytes[at] = static_cast<std::uint8_t>(value);
        return bytes;
    };
    CcGrayImage256 image;
    const auto expectRefused = [&](const Bytes& bytes, const std::vector<Box>& boxes, const char* why) {
        const test::TemporaryFile file("refused.bmp", bytes);
        test::FillPattern(image, 4, 4);
        EXPECT_EQ(image.OpenBMPFile(file.Path()), -1) << why;
        EXPECT_EQ(TakeBoxes(), boxes) << why;
        EXPECT_EQ(image(0, 0), -1.0F) << why;
    };
    Bytes padded = BmpFile8(3, 4, pixels);
    padded.Fill(4, 0);
    padded[2] = static_cast<std::uint8_t>(padded.size() & 0xFF);
    padded[3] = static_cast<std::uint8_t>(padded.size() >> 8);
    expectRefused(padded, notOpened, "padded rows");
    expectRefused(changed(0, 'X'), notOpened, "magic");
    expectRefused(changed(2, 0), notOpened, "size of file smaller");
    expectRefused(changed(5, 0x7F), notOpened, "size of file enormous");
    expectRefused(changed(14, 12), notOpened, "header size");
    expectRefused(changed(28, 4), notOpened, "depth");
    expectRefused(changed(30, 1), notOpened, "compression");
    expectRefused(changed(47, 2), wrongColours, "512 colours");
    expectRefused(changed(46, 16), wrongColours, "16 colours");
    expectRefused(Bytes(), notOpened, "empty");
    Bytes shortened = good;
    shortened.pop_back();
    expectRefused(shortened, notOpened, "one byte short");
    EXPECT_EQ(image.OpenBMPFile("none.bmp"), -1);
    EXPECT_EQ(TakeBoxes(), notOpened);
    EXPECT_EQ(image.OpenBMPFile(std::string(300, 'p').c_str()), -1);
}

TEST(BmpFiles, AfterARefusedColourCountTheImageHasNoPixels) {
    const test::TemporaryFile file("sixteen.bmp", BmpFile8(4, 3, std::vector<std::uint8_t>(12, 5), 16));
    CcGrayImage256 image;
    test::FillPattern(image, 7, 6);
    EXPECT_EQ(image.OpenBMPFile(file.Path()), -1);
    EXPECT_EQ(TakeBoxes(), wrongColours);
    int height, width;
    image.GetHeightWidth(&height, &width);
    EXPECT_EQ(height, 6);
    EXPECT_EQ(width, 7);
    EXPECT_EQ(image(1, 1), -1.0F);
    EXPECT_EQ(image(1.5F, 1.5F), -1.0F);
    image = 4.0F;
    EXPECT_EQ(image.GetBitMapImageData(), nullptr);
    EXPECT_EQ(image.CreateOverlay(), -1);
    EXPECT_EQ(image.SaveBMPFile("never.bmp"), -1);
    TakeBoxes();
    test::TestWindow window(10, 10);
    EXPECT_EQ(image.Show(window, 100, 1, 0, 0, 1), 0);
    CcRoiRect roi;
    EXPECT_EQ(image.GetRegion(&roi, 0, 0), nullptr);
    CcMemObjectStorage stream;
    EXPECT_EQ(stream.PutObject(&image), 0);
    EXPECT_EQ(image.MakeBlankBMP(6, 7, 9, "new"), 0);
    EXPECT_EQ(image(6, 5), 9.0F);
}

TEST(BmpFiles, Dialogs) {
    std::strcpy(CcGrayImage256::cFullFilePathOpen, "C:\\NONE.bmp");
    std::strcpy(CcGrayImage256::cFullFilePathSave, "C:\\NONE.bmp");
    char folder[MAX_PATH];
    GetCurrentDirectoryA(sizeof folder, folder);
    const std::string path = std::string(folder) + "\\cell.bmp";
    const test::TemporaryFile file(path, BmpFile8(4, 1, {1, 2, 3, 4}));
    CcGrayImage256 image;
    test::FillPattern(image, 3, 3, "kept");
    EXPECT_EQ(image.OpenBMPFile(nullptr), -1);
    EXPECT_STREQ(image.GetName(), "kept");
    EXPECT_EQ(image(1, 1), static_cast<float>(test::PatternValue(1, 1)));
    auto dialogs = test::TakeFileDialogs();
    ASSERT_EQ(dialogs.size(), 1u);
    EXPECT_EQ(dialogs[0].name, "*.bmp");
    EXPECT_EQ(dialogs[0].filters, (std::vector<std::string>{"Bitmap Files(*.BMP)", "All Files (*.*)"}));

    test::AnswerFileDialog(path);
    EXPECT_EQ(image.OpenBMPFile(nullptr), 0);
    EXPECT_STREQ(image.GetName(), "cell");
    EXPECT_STREQ(CcGrayImage256::cFullFilePathOpen, path.c_str());
    EXPECT_STREQ(CcGrayImage256::cFullFilePathSave, path.c_str());
    test::TakeFileDialogs();
    EXPECT_EQ(image.OpenBMPFile(nullptr), -1);
    dialogs = test::TakeFileDialogs();
    ASSERT_EQ(dialogs.size(), 1u);
    EXPECT_EQ(dialogs[0].name, "cell.bmp");

    image.SetName("region");
    const test::TemporaryFile saved(std::string(folder) + "\\saved.bmp");
    test::AnswerFileDialog(saved.Path());
    EXPECT_EQ(image.SaveBMPFile(nullptr), 0);
    EXPECT_TRUE(saved.Exists());
    EXPECT_STREQ(CcGrayImage256::cFullFilePathSave, saved.Path());
    dialogs = test::TakeFileDialogs();
    ASSERT_EQ(dialogs.size(), 1u);
    EXPECT_EQ(dialogs[0].name, "region.bmp");
    EXPECT_EQ(image.SaveBMPFile(nullptr), -1);
    SetCurrentDirectoryA(folder);
}

// Which files of the public collection the 8-bit image accepts follows from the rules: only one has 256 colours and
// unpadded rows. Those that differ from an accepted file in nothing but their colour count get the other message.
TEST(BmpFiles, PublicCollection) {
    const std::filesystem::path folder = std::filesystem::path(KEST_SHARED_DIR) / "bmp";
    if (!std::filesystem::exists(folder)) GTEST_SKIP() << "the collection of BMP files is not here";
    const std::map<std::string, const std::vector<Box>*> verdicts = {
        {"8bpp-colorsused-zero.bmp", nullptr},
        {"8bpp-320x240.bmp", &wrongColours},
        {"8bpp-colorsimportant-two.bmp", &wrongColours},
        {"8bpp-colorsimportant-large.bmp", &wrongColours},
        {"8bpp-colorsimportant-negative.bmp", &wrongColours},
        {"8bpp-colorsused-large.bmp", &wrongColours},
        {"8bpp-colorsused-negative.bmp", &wrongColours},
        {"pels-per-meter-x-large.bmp", &wrongColours},
        {"pels-per-meter-x-negative.bmp", &wrongColours},
        {"pels-per-meter-x-zero.bmp", &wrongColours},
        {"pels-per-meter-y-large.bmp", &wrongColours},
        {"pels-per-meter-y-negative.bmp", &wrongColours},
        {"pels-per-meter-y-zero.bmp", &wrongColours},
    };
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != ".bmp") continue;
        ++files;
        const std::string name = entry.path().filename().string();
        const auto verdict = verdicts.find(name);
        const std::vector<Box>* refusal = verdict == verdicts.end() ? &notOpened : verdict->second;
        CcGrayImage256 image;
        EXPECT_EQ(image.OpenBMPFile(entry.path().string().c_str()), refusal ? -1 : 0) << name;
        EXPECT_EQ(TakeBoxes(), refusal ? *refusal : std::vector<Box>{}) << name;
    }
    EXPECT_EQ(files, 144);
}

TEST(BmpFiles, RealPictures) {
    const std::filesystem::path folder = std::filesystem::path(KEST_SHARED_DIR) / "images";
    if (!std::filesystem::exists(folder)) GTEST_SKIP() << "the pictures are not here";
    CcGrayImage256 image;
    for (const char* name : {"coins", "moon"}) {
        const auto path = folder / (std::string(name) + ".bmp");
        ASSERT_EQ(image.OpenBMPFile(path.string().c_str()), 0) << name;
        EXPECT_STREQ(image.GetName(), name);
        // Saved again, the file is the same but for what a reader ignores.
        const test::TemporaryFile copy("copy.bmp");
        image.SaveBMPFile(copy.Path());
        const auto original = test::TemporaryFile::ReadAll(path.string()), written = copy.Content();
        ASSERT_EQ(original.size(), written.size());
        EXPECT_TRUE(std::equal(original.begin() + 1078, original.end(), written.begin() + 1078));
    }
    EXPECT_EQ(image.OpenBMPFile((folder / "cell.bmp").string().c_str()), -1);
    EXPECT_EQ(image.OpenBMPFile((folder / "ihc.bmp").string().c_str()), -1);
    EXPECT_EQ(TakeBoxes(), (std::vector<Box>{notOpened[0], notOpened[0]}));
}
