// The collection of valid, questionable and corrupt BMP files in tests/data: what the 8-bit and the colour images make
// of each. Most are refused by design: compression, other depths and headers, padded rows, colour counts other than
// 256.
#include <filesystem>

#include "support/ClassTests.h"

using namespace test;

namespace {

const Box notOpened = {"Error", "Could not open DIB file"};

/// How the names begin of the files that get one verdict; an empty one stands for all others.
struct Verdict {
    Boxes boxes;  ///< none: the file is accepted
    std::vector<std::string> names;
};

/// Accepted is what has 256 colours and unpadded rows; the second verdict's files differ from it in their colour count.
const std::vector<Verdict> grayVerdicts = {{{}, {"8bpp-colorsused-zero"}},
                                           {{{"Error", "This type of Object only handles 256 Color BitMaps"}},
                                            {"8bpp-320x240", "8bpp-colorsimportant-", "8bpp-colorsused-"}},
                                           {{notOpened}, {""}}};

const std::vector<Verdict> colourVerdicts = {
    {{}, {"24bpp-imagesize-zero"}},
    {{{"File I/O Error", "Can't read 'BITMAPFILEHEADER' info from file"}, notOpened},
     {"emptyfile", "fileinfoheader-cropped", "magicnumber-cropped"}},
    {{{"File Type Error", "Not a DIB type file format"}, notOpened}, {"magicnumber-bad"}},
    {{{"Memory Error", "Memory Allocation Failure"}, notOpened}, {"filesize-zero"}},
    {{{"File I/O Error", "Problem reading in information into memory"}, notOpened},
     {"1bpp-pixeldata-cropped", "4bpp-pixeldata-cropped", "8bpp-pixeldata-cropped", "colormasks-", "infoheader-",
      "infoheadersize-large", "palette-cropped", "palette-missing", "pixeldata-missing"}},
    {{{"File Error", "Bad BITMAPINFOHEADER size in file"}, notOpened}, {"infoheadersize-small", "infoheadersize-zero"}},
    {{{"File Error", "Can't open .bmp files using Compression"}, notOpened},
     {"rle", "565", "compression", "pixeldata-rle8", "width-times-height"}},
    {{{"File Error", "Incorrect Header; Can't open file"}, notOpened}, {"24bpp-1x1"}},
    {{{"File Error", "Can't open .bmp files other than 24-bit color"}, notOpened}, {""}}};

const Boxes& BoxesFor(const std::string& name, const std::vector<Verdict>& verdicts) {
    const auto starts = [&](const std::string& start) { return name.starts_with(start); };
    return std::find_if(
               verdicts.begin(), verdicts.end(),
               [&](const Verdict& verdict) { return std::any_of(verdict.names.begin(), verdict.names.end(), starts); })
        ->boxes;
}

template <class Image>
void ExpectVerdicts(const std::vector<Verdict>& verdicts, KestImageType type) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(DataPath("bmp"))) {
        ++files;
        const std::string name = entry.path().filename().string();
        const Boxes& expected = BoxesFor(name, verdicts);
        Image image;
        FillPattern(image, 4, 4, "before");
        EXPECT_EQ(image.OpenBMPFile(entry.path().string().c_str()), expected.empty() ? 0 : -1) << name;
        EXPECT_EQ(TakeBoxes(), expected) << name;
        EXPECT_EQ(image(0, 0) < 0, !expected.empty()) << name << " leaves no picture";
        KestPictureFile judged;
        KestJudgePictureFile(entry.path().string().c_str(), &judged);
        EXPECT_EQ(judged.eType == type, expected.empty()) << name << ": " << judged.pszReason;
    }
    EXPECT_EQ(files, 79);
}

}  // namespace

TEST(BmpCollection, GrayImages) {
    ExpectVerdicts<CcGrayImage256>(grayVerdicts, KEST_IMAGE_GRAY256);
    EXPECT_EQ(CcGrayImage256().OpenBMPFile("none.bmp"), -1);
    EXPECT_EQ(TakeBoxes(), (Boxes{notOpened}));
    EXPECT_EQ(CcGrayImage256().OpenBMPFile(std::string(300, 'p').c_str()), -1);
}

TEST(BmpCollection, ColourImages) {
    ExpectVerdicts<Cc24BitRGBImage>(colourVerdicts, KEST_IMAGE_RGB);
    ExpectVerdicts<Cc24BitHSLImage>(colourVerdicts, KEST_IMAGE_RGB);
}
