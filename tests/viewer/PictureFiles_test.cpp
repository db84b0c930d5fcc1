// Pictures in files: what KestView reads of other programs' files, what it writes for them, and what it asks before.
#include "document/PictureFiles.h"
#include "document/RoiFiles.h"
#include "platform/SavedFile.h"
#include "platform/Text.h"
#include "support/Imports.h"
#include "viewer/SampleDocuments.h"

namespace test {
namespace {

using namespace std::string_literals;

/// The imaging component, for as long as a test runs.
class PictureFiles : public testing::Test {
protected:
    PictureFiles() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~PictureFiles() override { CoUninitialize(); }

    std::unique_ptr<CcImage> TryToOpen(const TemporaryFile& file, const PictureQuestions& ask = {}) {
        error = warning = "";
        KestPictureFile judged;
        KestJudgePictureFile(file.Path(), &judged);
        return OpenPicture(file.Path(), judged, error, warning, ask);
    }
    std::unique_ptr<CcImage> Open(const TemporaryFile& file, const PictureQuestions& ask = {}) {
        auto image = TryToOpen(file, ask);
        EXPECT_TRUE(image) << error;
        return image;
    }
    std::string error, warning;
};

/// A BMP file up to its compression.
Bytes BmpHead(int pixelsAt, int pixelBytes, int width, int height, int bits) {
    Bytes head = Bytes().Text("BM").I32(pixelsAt + pixelBytes).I32(0).I32(pixelsAt).I32(40).I32(width).I32(height);
    return head.U16(1).U16(static_cast<unsigned>(bits)).I32(0);
}

TEST_F(PictureFiles, DecodesWhatTheLibraryDoesNotRead) {
    // 24-bit BMP, three columns: its rows are padded to twelve bytes.
    std::vector<std::uint8_t> padded(24);
    for (int i = 0; i < 24; ++i) padded[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(i / 12 * 100 + i % 12);
    auto image = Open({"padded.bmp", BmpFile24(3, 2, padded)});
    EXPECT_EQ(image->GetImageType(), KEST_IMAGE_RGB);
    EXPECT_STREQ(image->GetName(), "padded");
    EXPECT_EQ(PixelBytes(*image), std::string("\0\1\2\3\4\5\6\7\10", 9) + std::string("defghijkl", 9));

    image = Open({"gray.tif", Tiff({{3, 2, 16, 1, Samples(16, {1, 300, 65535, 7, 8, 40000})}})});
    EXPECT_EQ(image->GetImageType(), KEST_IMAGE_INT16);
    EXPECT_EQ((*image)(0, 1), 1.0f);
    EXPECT_EQ((*image)(2, 1), 65535.0f);
    EXPECT_EQ((*image)(2, 0), 40000.0f);

    image = Open({"deep.tif", Tiff({{2, 1, 16, 3, Samples(16, {0x0100, 0x0203, 0xFFFF, 0x8000, 0x0900, 0x00FF})}})});
    EXPECT_EQ(PixelBytes(*image), std::string("\xFF\2\1\0\x09\x80", 6)) << "blue, green, red";

    EXPECT_FALSE(TryToOpen({"text.png", Bytes().Text("this is no picture", 18)}));
    EXPECT_EQ(error, "text.png is not a picture that this system can decode, or it is damaged.");
}

TEST_F(PictureFiles, OpensThemTheRightWayUp) {
    // "abc" over "def", as it is seen when a camera was held in each of the eight ways; the bottom row is first.
    const char* const seen[] = {"defabc", "fedcba", "cbafed", "abcdef", "cfbead", "fcebda", "daebfc", "adbecf"};
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const Bytes letters = Samples(8, {'a', 'b', 'c', 'd', 'e', 'f'});
        const auto image = Open({"turned.tif", Tiff({{3, 2, 8, 1, letters, orientation}})});
        EXPECT_EQ(SizeOf(*image).cx, orientation < 5 ? 3 : 2);
        EXPECT_EQ(PixelBytes(*image), seen[orientation - 1]) << orientation;
    }
    // A photograph, dark at the left, whose camera says that its first row is at the right.
    auto photograph = MakeImage(KEST_IMAGE_GRAY256, 8, 16, "photograph");
    for (int i = 0; i < 8 * 16; ++i)
        static_cast<unsigned char*>(photograph->GetBitMapImageData())[i] = i % 16 < 8 ? 0 : 255;
    const TemporaryFile plain("photograph.jpg");
    ASSERT_TRUE(SavePicture(*photograph, plain.Path(), error)) << error;
    Bytes tags;
    tags.Text(
        "\xFF\xE1\0\x22"
        "Exif\0\0MM\0*\0\0\0\x08\0\1\1\x12\0\3\0\0\0\1\0\6\0\0\0\0\0\0"s);
    // Behind them other tags, and bytes that decoders pass over.
    tags.Text(
        "\xFF\xE1\0\x08"
        "Exif\0\0"s);
    std::vector<std::uint8_t> bytes = plain.Content();
    bytes.insert(bytes.begin() + 2, tags.begin(), tags.end());
    bytes.insert(bytes.begin() + 2, 2, 0);
    const auto image = Open({"camera.jpg", bytes});
    EXPECT_EQ(SizeOf(*image).cx, 8);
    EXPECT_LT((*image)(4, 15), 40.0f) << "dark at the top";
    EXPECT_GT((*image)(4, 0), 215.0f);
}

TEST_F(PictureFiles, PutTransparencyOnWhiteAndOfferPages) {
    const Bytes pixels = Samples(8, {10, 20, 30, 255, 10, 20, 30, 0, 0, 100, 200, 51});
    auto image = Open({"glass.tif", Tiff({{3, 1, 8, 4, pixels}})});
    EXPECT_EQ(PixelBytes(*image), std::string("\x1E\x14\x0A\xFF\xFF\xFF\xF4\xE0\xCC", 9)) << "blue, green, red";
    EXPECT_EQ(warning, "The transparent parts of glass.tif were put on white.");

    const TemporaryFile book(
        "book.tif",
        Tiff({{2, 1, 8, 1, Samples(8, {1, 2})}, {1, 2, 8, 1, Samples(8, {3, 4}), 3}, {1, 1, 8, 1, Samples(8, {5})}}));
    image = Open(book);
    EXPECT_EQ(PixelBytes(*image), "\1\2");
    EXPECT_EQ(warning, "This is page 1 of 3 of book.tif.");
    int offered = 0;
    image = Open(book, {{}, [&](int pages) { return (offered = pages) - 1; }});
    EXPECT_EQ(offered, 3);
    EXPECT_EQ(PixelBytes(*image), "\3\4") << "with an orientation of its own";
    EXPECT_STREQ(image->GetName(), "book (page 2 of 3)");
    EXPECT_FALSE(TryToOpen(book, {{}, [](int) { return 0; }}));
    EXPECT_EQ(error, "") << "nobody is told what he chose";
}

TEST_F(PictureFiles, AskBeforeTheyTakeMuchMemory) {
    // Each is wider and higher than its few bytes, by its header.
    const auto starting = [](const std::string& start) { return Bytes().Text(start).Fill(24, 0); };
    const TemporaryFile bombs[] = {
        {"bomb.png", starting("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\x3E\x80\0\0\x3E\x80\1"s)},
        {"bomb.tif", starting("II*\0\x08\0\0\0\2\0\0\1\4\0\1\0\0\0\0\0\0\x40\1\1\4\0\1\0\0\0\0\0\0\x40"s)},
        {"bomb.jpg", starting("\xFF\xD8\xFF\xC0\0\x11\x08\x4E\x20\x4E\x20\3"s)},
        // Before the frame: bytes of no segment, a marker without one, and camera tags that stand nowhere.
        {"garbage.jpg", starting("\xFF\xD8\0\7\xFF\xD0\xFF\xE1\0\x10"
                                 "Exif\0\0MM\0*\x7F\0\0\0\xFF\xC0\0\x11\x08\x4E\x20\x4E\x20\3"s)},
        // Its screen and its first picture have one pixel; two pictures more are too large together.
        {"bomb.gif", starting("GIF89a\1\0\1\0\x80\0\0\0\0\0\0\0\0!\xF9\4\0\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2\x4C\1\0"
                              ",\0\0\0\0\x10\x27\x10\x27\0\0\0,\0\0\0\0\x10\x27\x10\x27"s)},
        {"bomb.ico", starting("\0\0\1\0\1\0\0\0\0\0\0\0\0\0\0\0\0\0\x16\0\0\0\x89PNG\r\n\x1A\n\0\0\0\xDIHDR"
                              "\0\0\x3E\x80\0\0\x3E\x80\x8\6"s)},
        {"dib.ico",
         starting("\0\0\1\0\1\0\0\0\0\0\0\0\0\0\0\0\0\0\x16\0\0\0\x28\0\0\0\x20\x4E\0\0\x40\x9C\0\0\1\0\1"s)},
        {"palette.bmp", BmpHead(1078, 12000 * 12500, 12000, 12500, 8).Fill(20, 0).Fill(1024, 9)},
        {"bomb.bmp", BmpHead(54, 0, 20000, -25000, 24).Fill(20, 0)},
    };
    // The library's own, whose 150 MB of values become colours.
    const HANDLE palette = CreateFileA("palette.bmp", GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    SetFilePointer(palette, 1078 + 12000 * 12500, nullptr, FILE_BEGIN);
    SetEndOfFile(palette);
    CloseHandle(palette);
    for (const TemporaryFile& bomb : bombs) {
        SCOPED_TRACE(bomb.Path());
        std::string question;
        EXPECT_FALSE(TryToOpen(bomb, {[&](const std::string& text) { return question = text, false; }, {}}));
        EXPECT_NE(question.find("MB of memory.\n\nOpen it?"), std::string::npos) << question;
        EXPECT_EQ(error, "");
        EXPECT_FALSE(TryToOpen(bomb));
        EXPECT_EQ(error + "\n\nOpen it?", question);
    }
}

TEST_F(PictureFiles, AreWrittenAsTheirExtensionSays) {
    const struct {
        int type;
        const char* refused;
    } cases[] = {{KEST_IMAGE_GRAY256, ""},          {KEST_IMAGE_RGB, ""},       {KEST_IMAGE_HSL, ""},
                 {KEST_IMAGE_BINARY, ""},           {KEST_IMAGE_INT16, ".jpg"}, {KEST_IMAGE_FLOAT, ".png.jpg"},
                 {KEST_IMAGE_INT32, ".png.tif.jpg"}};
    const std::pair<std::string, std::string> formats[] = {
        {".bmp", "BM"}, {".png", "\x89PNG"}, {".tif", "II*"}, {".JPG", "\xFF\xD8\xFF"}};
    for (const auto& [type, refused] : cases) {
        auto document = MakeDocument(type);
        const char* suffix = document->Class().rawSuffix;
        for (const auto& [extension, start] : formats) {
            SCOPED_TRACE(document->Class().label + extension);
            const TemporaryFile file("saved" + extension), samples(std::string("saved") + (suffix ? suffix : ".none"));
            const bool isRefused = std::string(refused).find(ExtensionOf(extension)) != std::string::npos;
            ASSERT_EQ(SavePicture(document->Image(), file.Path(), error), !isRefused) << error;
            EXPECT_EQ(file.Exists(), !isRefused);
            EXPECT_EQ(samples.Exists(), suffix && extension == ".bmp");
            if (isRefused) continue;
            const std::vector<std::uint8_t> bytes = file.Content();
            EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + static_cast<int>(start.size())), start);
            const auto opened = Open(file);
            EXPECT_EQ(warning, "");
            const std::string before = PixelBytes(document->Image()), after = PixelBytes(*opened);
            const bool losesDetail = extension == ".JPG";
            EXPECT_TRUE(losesDetail || type == KEST_IMAGE_HSL || opened->GetImageType() == type);
            EXPECT_EQ(after.size(), before.size());
            EXPECT_TRUE(losesDetail || after == before);
        }
    }
}

BOOL WINAPI TellFewBytesFree(const char*, ULARGE_INTEGER* bytes, ULARGE_INTEGER*, ULARGE_INTEGER*) {
    bytes->QuadPart = 2 * rows * columns + 100;
    return TRUE;
}

TEST_F(PictureFiles, StayAsTheyWereWhenTheyCannotBeReplacedAndTellWhy) {
    const auto saved = [&](const std::string& path) {
        return SavePicture(MakeDocument(KEST_IMAGE_INT16)->Image(), path, error);
    };
    for (const char* name : {"kept.bmp", "kept.png", "kept.tif"}) {
        SCOPED_TRACE(name);
        const TemporaryFile file(name), samples("kept.i16");
        ASSERT_TRUE(saved(name)) << error;
        const std::vector<std::uint8_t> whole = file.Content(), wholeSamples = samples.Content();
        const auto expectRefusal = [&](const std::string& path, const std::string& why) {
            EXPECT_FALSE(saved(path));
            EXPECT_EQ(error, "The picture could not be written to\n" + path + "\n\n" + why);
            EXPECT_EQ(file.Content(), whole);
            EXPECT_EQ(samples.Content(), wholeSamples);
        };
        const HANDLE inUse = CreateFileA(name, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        expectRefusal(name, "Another program is using the file.");
        CloseHandle(inUse);
        SetFileAttributesA(name, FILE_ATTRIBUTE_READONLY);
        expectRefusal(name, "The file is read-only.");
        SetFileAttributesA(name, FILE_ATTRIBUTE_NORMAL);
        expectRefusal(std::string("no such folder\\") + name, "There is no such folder.");
        EXPECT_TRUE(saved(name)) << error;
    }
    // A disk that has room for the samples, but not for what is shown besides; and for a ROI.
    {
        const ReplacedImport small(nullptr, "GetDiskFreeSpaceExA", &TellFewBytesFree);
        const TemporaryFile file("small.bmp"), samples("small.i16"), roiFile("small.roi"), part("part.png");
        EXPECT_FALSE(saved(file.Path()));
        EXPECT_NE(error.find("\n\nThe disk is full: 1 KB are needed"), std::string::npos) << error;
        CcRoiRect rect;
        RECT place = {2, 8, 6, 3};
        rect.SetRoiImageCord(&place);
        EXPECT_TRUE(SaveRoi(rect, roiFile.Path(), error)) << error;
        EXPECT_FALSE(SaveWhole(
            "It", part.Path(), 0, [](const std::string&) { return false; }, error));
        EXPECT_NE(error.find("\n\nThe disk is full."), std::string::npos) << "no room for what came: " << error;
    }
    // A disk that has no room for so much.
    const auto write = [](const std::string&) { return true; };
    EXPECT_FALSE(SaveWhole("The table", "table.csv", 1LL << 60, write, error));
    EXPECT_NE(error.find("The disk is full: 1099511627776 MB are needed, "), std::string::npos) << error;
    EXPECT_FALSE(SaveWhole(
        "The table", "table.csv", 1, [](const std::string&) { return false; }, error));
    EXPECT_NE(error.find("\n\nNot all of it could be written; the disk may be full."), std::string::npos) << error;
    EXPECT_FALSE(FileExists("table.csv"));
}

TEST_F(PictureFiles, TellOfSamplesThatAreNotTheirs) {
    auto document = MakeDocument(KEST_IMAGE_INT32);
    const TemporaryFile file("saved.bmp"), samples("saved.i32");
    ASSERT_TRUE(SavePicture(document->Image(), file.Path(), error)) << error;
    {
        const HANDLE inUse = CreateFileA(samples.Path(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        EXPECT_FALSE(TryToOpen(file));
        EXPECT_EQ(error, "saved.bmp could not be opened.\n\nThe samples beside it cannot be opened or read.");
        CloseHandle(inUse);
    }
    std::vector<std::uint8_t> other = samples.Content();
    other[4]++;  // the height
    const TemporaryFile damaged(samples.Path(), other);
    EXPECT_EQ(Open(file)->GetImageType(), KEST_IMAGE_GRAY256);
    EXPECT_EQ(warning.rfind("The samples in saved.i32 are not this picture's", 0), 0U) << warning;
}

TEST_F(PictureFiles, PalettesDecideAboutTheClass) {
    Bytes coloured = BmpFile8(4, 1, {0, 7, 255, 7});
    coloured[54 + 4 * 7] = 0x00, coloured[54 + 4 * 7 + 1] = 0x80, coloured[54 + 4 * 7 + 2] = 0xFF;
    auto image = Open({"coloured.bmp", coloured});
    EXPECT_EQ(image->GetImageType(), KEST_IMAGE_RGB);
    EXPECT_EQ(PixelBytes(*image), std::string("\0\0\0\x00\x80\xFF\xFF\xFF\xFF\x00\x80\xFF", 12)) << "blue, green, red";

    const Bytes twoLevels = BmpHead(62, 4, 4, 1, 1).I32(4).Fill(8, 0).I32(2).I32(0).I32(0).I32(0xFFFFFF).I32(0x50);
    image = Open({"two-levels.bmp", twoLevels});
    EXPECT_EQ(image->GetImageType(), KEST_IMAGE_BINARY);
    EXPECT_EQ(PixelBytes(*image), std::string("\1\0\1\0", 4)) << "1 is black";
}

}  // namespace
}  // namespace test
