// Which class opens a picture file: the answers, each compared with what the classes themselves make of the file.
#include "support/ClassTests.h"

using namespace test;

namespace {

const std::vector<std::uint8_t> twelve = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};

/// A file of 4 x 3 pixels with other bytes at some place.
Bytes Changed(Bytes file, std::size_t at, const std::vector<std::uint8_t>& bytes) {
    std::copy(bytes.begin(), bytes.end(), file.begin() + static_cast<std::ptrdiff_t>(at));
    return file;
}

Bytes Gray() { return BmpFile8(4, 3, twelve); }
Bytes Rgb() { return BmpFile24(4, 1, twelve); }

/// The 8-bit file with `colourOf` (blue, green, red and a spare byte in one number) as its table.
Bytes WithColours(unsigned (*colourOf)(unsigned value)) {
    Bytes table;
    for (unsigned value = 0; value < 256; ++value) table.I32(colourOf(value));
    return Changed(Gray(), 54, table);
}

struct Answer {
    const char* name;
    Bytes file;
    KestImageType type;
    KestPictureReason reason = KEST_PICTURE_OPENS;
    KestImageType opensAnyway = KEST_IMAGE_NONE;  ///< takes the file, but not as the picture that it means
};

}  // namespace

TEST(KestPictureFile, Answers) {
    const KestImageType none = KEST_IMAGE_NONE;
    Bytes behind = Gray(), padded = BmpFile8(3, 3, twelve), apart = Gray(), cut = Gray(), empty = BmpFile24(0, 5, {});
    behind.Fill(7, 1);
    cut.pop_back();
    padded[2] = 0x42;  // the file's size: 1090
    apart.Fill(8, 1);
    apart[2] = 0x4A, apart[10] = 0x3E;
    const Answer answers[] = {
        {"grays", Gray(), KEST_IMAGE_GRAY256},
        {"as many colours as usual", BmpFile8(4, 3, twelve, 256), KEST_IMAGE_GRAY256},
        {"bytes behind", behind, KEST_IMAGE_GRAY256},
        {"palette indices", WithColours([](unsigned v) { return v < 128 ? 2 * v | (2 * v + 1) << 16 : 0x77; }),
         KEST_IMAGE_GRAY256},
        {"two levels", WithColours([](unsigned v) { return v == 1 ? 0U : 0xFFFFFFU; }), KEST_IMAGE_BINARY},
        {"24 bits", Rgb(), KEST_IMAGE_RGB},
        {"empty file", {}, none, KEST_PICTURE_NOT_BMP},
        {"other magic", Changed(Gray(), 1, {'A'}), none, KEST_PICTURE_NOT_BMP},
        {"magic alone", Bytes().Text("BM", 2), none, KEST_PICTURE_CUT_SHORT},
        {"one byte is missing", cut, none, KEST_PICTURE_CUT_SHORT},
        {"size of 1 GB", Changed(Gray(), 5, {0x40}), none, KEST_PICTURE_CUT_SHORT},
        {"size of 4 GB", Changed(Gray(), 2, {0xFF, 0xFF, 0xFF, 0xFF}), none, KEST_PICTURE_TOO_LARGE},
        {"size of nothing", Changed(Gray(), 2, {0, 0}), none, KEST_PICTURE_WRONG_SIZES},
        {"size of less than a header", Changed(Gray(), 2, {53, 0}), none, KEST_PICTURE_WRONG_SIZES},
        {"pixels among the colours", Changed(Gray(), 10, {54, 0}), none, KEST_PICTURE_WRONG_SIZES},
        {"pixels nowhere", Changed(Gray(), 10, {0xFF, 0xFF, 0xFF, 0xFF}), none, KEST_PICTURE_WRONG_SIZES},
        {"old header", Changed(Gray(), 14, {12}), none, KEST_PICTURE_OTHER_HEADER},
        {"run lengths", Changed(Gray(), 30, {1}), none, KEST_PICTURE_COMPRESSED},
        {"4 bits", Changed(Gray(), 28, {4}), none, KEST_PICTURE_OTHER_DEPTH},
        {"32 bits", Changed(Gray(), 28, {32}), none, KEST_PICTURE_OTHER_DEPTH},
        {"top-down", Changed(Gray(), 22, {0xFD, 0xFF, 0xFF, 0xFF}), none, KEST_PICTURE_TOP_DOWN},
        {"padded rows", padded, none, KEST_PICTURE_PADDED},
        {"a row too many", Changed(Gray(), 22, {4}), none, KEST_PICTURE_WRONG_SIZES},
        {"no columns", empty, none, KEST_PICTURE_WRONG_SIZES, KEST_IMAGE_RGB},
        {"16 colours", BmpFile8(4, 3, twelve, 16), none, KEST_PICTURE_OTHER_COLOURS},
        {"24 bits with colours", BmpFile24(4, 1, twelve, 3), none, KEST_PICTURE_OTHER_COLOURS},
        {"65540 columns", Changed(Gray(), 20, {1}), none, KEST_PICTURE_TOO_LARGE, KEST_IMAGE_GRAY256},
        {"bytes between colours and pixels", apart, none, KEST_PICTURE_PIXELS_APART, KEST_IMAGE_GRAY256},
    };
    for (const Answer& answer : answers) {
        SCOPED_TRACE(answer.name);
        const TemporaryFile file("judged.bmp", answer.file);
        KestPictureFile judged;
        EXPECT_EQ(KestJudgePictureFile(file.Path(), &judged), answer.reason == KEST_PICTURE_OPENS ? 0 : -1);
        EXPECT_EQ(judged.eType, answer.type);
        EXPECT_EQ(judged.eReason, answer.reason);
        EXPECT_EQ(*judged.pszReason == 0, answer.reason == KEST_PICTURE_OPENS);
        EXPECT_EQ(judged.bOwnColours, 0);
        EXPECT_EQ(judged.llBytes, answer.reason == KEST_PICTURE_OPENS ? 12 : 0);
        EXPECT_TRUE(TakeBoxes().empty());
        CcGrayImage256 gray;
        Cc24BitRGBImage rgb;
        for (CcImage* const image : std::initializer_list<CcImage*>{&gray, &rgb}) {
            const KestImageType type = image == &rgb ? KEST_IMAGE_RGB : KEST_IMAGE_GRAY256;
            const bool isOfDepth = answer.type != none && (answer.type == KEST_IMAGE_RGB) == (type == KEST_IMAGE_RGB);
            EXPECT_EQ(image->OpenBMPFile(file.Path()), isOfDepth || type == answer.opensAnyway ? 0 : -1);
            int height = 0, width = 0;
            image->GetHeightWidth(&height, &width);
            if (isOfDepth) {
                EXPECT_EQ(judged.iHeight * 100 + judged.iWidth, height * 100 + width);
            }
        }
        TakeBoxes();
    }
    for (const std::string& path : {std::string("none.bmp"), std::string("."), std::string(300, 'p')}) {
        KestPictureFile judged;
        EXPECT_EQ(KestJudgePictureFile(path.c_str(), &judged), -1);
        EXPECT_EQ(judged.eReason, KEST_PICTURE_NOT_READ);
    }
    EXPECT_EQ(KestJudgePictureFile("none.bmp", nullptr), -1);
}

TEST(KestPictureFile, ColoursThatMeanSomething) {
    const TemporaryFile file("judged.bmp", WithColours([](unsigned v) { return v == 7 ? 0xFF8000U : v * 0x010101; }));
    KestPictureFile judged;
    ASSERT_EQ(KestJudgePictureFile(file.Path(), &judged), 0);
    EXPECT_EQ(judged.eType, KEST_IMAGE_GRAY256);
    EXPECT_EQ(judged.bOwnColours, 1);
    EXPECT_EQ(judged.stColours[7].rgbRed, 0xFF);
    EXPECT_EQ(judged.stColours[7].rgbGreen, 0x80);
    EXPECT_EQ(judged.stColours[8].rgbBlue, 8);
}
