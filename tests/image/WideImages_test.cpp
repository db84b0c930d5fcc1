// The wide grayscale images: samples and raw files, display range and point lists, pixel access, thresholding, regions.
#include "support/ClassTests.h"

using namespace test;

namespace {

constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

template <class Base, class SampleType>
struct Open : Base {
    using Base::operator=;
    using Base::fDisplayMax;
    using Base::fDisplayMin;
    using Base::iPixelIndex;
    using Base::iReScaleOnShow;
    using Base::lpBits;
    using Base::pSamples;

    using Sample = SampleType;

    void Fill(int height, int width, std::vector<Sample> samples) {
        this->MakeBlankBMP(height, width, 0, "wide");
        std::copy(samples.begin(), samples.end(), this->pSamples);
        this->iReScaleOnShow = 2;
    }
    /// The display bytes after a Show.
    std::vector<int> Shown() {
        Through(100);
        int height, width;
        this->GetHeightWidth(&height, &width);
        return {this->lpBits, this->lpBits + height * width};
    }
    /// The four by four pixels of a picture stretched to them, seen through a LUT.
    Picture Through(unsigned short lut) {
        MemoryPicture picture(4, 4);
        RECT rect = {0, 0, 4, 4};
        EXPECT_EQ(this->Show(picture, &rect, lut, 0, 0, 0, 1), 0);
        return picture.Snapshot();
    }
    std::vector<tagPoints> List(int lut, int channel) {
        std::vector<tagPoints> points(lut < 103 ? 256 : lut == 103 ? 128 : 64);
        EXPECT_EQ(this->GetDisplayLUT(lut, channel, points.data()), 0);
        return points;
    }
};

using Open16 = Open<CcGrayImageInt16, unsigned short>;
using Open32 = Open<CcGrayImageInt32, int>;
using OpenFloat = Open<CcGrayImageFloat, float>;

/// What distinguishes the classes in files and messages.
struct Kind16 {
    using Image = Open16;
    static constexpr int code = KEST_IMAGE_INT16;
    static constexpr const char *raw = "wide.i16", *className = "CcGrayImageInt16", *words = "16-bit",
                                *sentence = words;
};
struct Kind32 {
    using Image = Open32;
    static constexpr int code = KEST_IMAGE_INT32;
    static constexpr const char *raw = "wide.i32", *className = "CcGrayImageInt32", *words = "32-bit",
                                *sentence = words;
};
struct KindFloat {
    using Image = OpenFloat;
    static constexpr int code = KEST_IMAGE_FLOAT;
    static constexpr const char *raw = "wide.flt", *className = "CcGrayImageFloat", *words = "Floating Point",
                                *sentence = "floating point";
};

template <class K>
struct WideImages : testing::Test {
    using Sample = typename K::Image::Sample;

    static Bytes RawFile(int height, int width, const std::vector<int>& values) {
        const std::vector<Sample> samples(values.begin(), values.end());
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(samples.data());
        return Bytes().I32(K::code).I32(height).I32(width).Add({bytes, bytes + samples.size() * sizeof(Sample)});
    }
};
using Kinds = testing::Types<Kind16, Kind32, KindFloat>;
TYPED_TEST_SUITE(WideImages, Kinds);

}  // namespace

TYPED_TEST(WideImages, FreshAndBlankImages) {
    typename TypeParam::Image image;
    EXPECT_EQ(image.GetAutoUpdateDisplay(), 1);
    EXPECT_EQ(image.GetMaxPixelValue(), 255.0F);
    ExpectAll(-1, {image.Show(GetDesktopWindow(), 100, 1, 0, 0, 1), image.SaveBMPFile("x.bmp")});
    EXPECT_EQ(image(0, 0), -1.0F);
    EXPECT_TRUE(TakeBoxes().empty());
    CcMemObjectStorage stream;
    CcHLObject* made = nullptr;
    ASSERT_EQ(stream.CreateObject(const_cast<char*>(TypeParam::className), &made), 0);
    const std::unique_ptr<CcHLObject> owned(made);
    char name[20];
    EXPECT_EQ(static_cast<CcImage*>(made)->GetImageType(), TypeParam::code);
    EXPECT_EQ(made->GetClassNameA(name, 20), 0);
    EXPECT_STREQ(name, "CcGrayImage256");

    ASSERT_EQ(image.MakeBlankBMP(3, 5, 1000, "blank"), 0);
    EXPECT_EQ(image(4, 2), 1000.0F);
    EXPECT_EQ(image.Shown(), std::vector<int>(15, 0));
    // A refill takes no statistics, whatever changed before: the display range and the flag stay.
    image = 5.0F;
    const void* samples = image.GetBitMapImageData();
    ASSERT_EQ(image.MakeBlankBMP(3, 5, 2000, "again"), 0);
    EXPECT_EQ(image.GetBitMapImageData(), samples);
    EXPECT_EQ(image.lpBits[14], 255);
    EXPECT_EQ(image.iReScaleOnShow, 2);
    EXPECT_EQ(image.Shown(), std::vector<int>(15, 0));
    EXPECT_EQ(image.MakeBlankBMP(3, 5, 0, "zero"), 0);
    EXPECT_EQ(image(4, 2), 0.0F);
    EXPECT_EQ(image.MakeBlankBMP(3, 5, 7, "flag 0"), 0);
    EXPECT_EQ(image.GetMaxPixelValue(), 2000.0F);

    // Without memory for the samples the display image stays; each refusal has its own box.
    for (const int height : {-1, 0}) EXPECT_EQ(image.MakeBlankBMP(height, 5, 0, "b"), -1);
    EXPECT_EQ(TakeBoxes(), (Boxes{{"Error", "Could not make Blank DIB"},
                                  {"Error", "Unable to Allocate Memory for Floating Point Image"}}));
    EXPECT_EQ(image.GetBitMapImageData(), nullptr);
    EXPECT_EQ(image.MakeBlankBMP(2, 2, 0, "small"), 0);
    {
        const typename TypeParam::Image copy = image;
        EXPECT_EQ(copy.pSamples, image.pSamples);
    }
    EXPECT_EQ(image(1, 1), 0.0F);
}

TYPED_TEST(WideImages, SamplesComeBackFromTheirFile) {
    typename TypeParam::Image image, back;
    const TemporaryFile bmp("wide.bmp"), raw(TypeParam::raw);
    image.Fill(2, 3, {10, 20, 30, 40, 50, 265});
    ASSERT_EQ(image.SaveBMPFile(bmp.Path()), 0);
    back.SetAutoUpdateDisplay(0);
    ASSERT_EQ(back.OpenBMPFile(bmp.Path()), 0);
    EXPECT_EQ(back.GetAutoUpdateDisplay(), 1);
    EXPECT_EQ(back(2, 1), 265.0F);
    EXPECT_EQ(back.GetMinPixelValue(), 10.0F);
    EXPECT_EQ(std::vector<int>(back.lpBits, back.lpBits + 6), (std::vector<int>{0, 10, 20, 30, 40, 255}));
    ExpectAll(-1, {back.OpenBMPFile("none.bmp"), back.Show(GetDesktopWindow(), 100, 1, 0, 0, 1),
                   image.SaveBMPFile("no folder\\wide.bmp")});
    EXPECT_EQ(
        TakeBoxes(),
        (Boxes{{"Error", "Could not open DIB file"},
               {"File I/O Error", std::string("Can't open file for saving ") + TypeParam::sentence + " image data"}}));
}

TYPED_TEST(WideImages, RawFilesThatDoNotFitAreIgnored) {
    const TemporaryFile bmp("wide.bmp", BmpFile8(3, 2, {1, 2, 3, 4, 5, 200}));
    const std::vector<int> six = {1000, 2, 3, 4, 5, 6};
    Bytes good = this->RawFile(2, 3, six), wrongCode = good, cut = good, header = good;
    wrongCode[0] ^= 4;
    cut.pop_back();
    header.resize(11);
    Bytes wider = this->RawFile(2, 4, {1, 2, 3, 4, 5, 6, 7, 8}), turned = this->RawFile(3, 2, six);
    const Bytes endless = this->RawFile(INT_MAX, INT_MAX, six), negative = this->RawFile(-2, -3, six);
    // Who asks which class opens the picture is told the same.
    KestPictureFile judged;
    for (const Bytes& file : {wrongCode, cut, header, wider, turned, endless, negative, Bytes()}) {
        const TemporaryFile raw(TypeParam::raw, file);
        KestJudgePictureFile(bmp.Path(), &judged);
        EXPECT_EQ(judged.eType, KEST_IMAGE_GRAY256);
        typename TypeParam::Image image;
        image.SetAutoUpdateDisplay(0);
        EXPECT_EQ(image.OpenBMPFile(bmp.Path()), 0);
        EXPECT_EQ(image(0, 0), 1.0F);
        EXPECT_EQ(image(2, 1), 200.0F);
        EXPECT_EQ(image.GetAutoUpdateDisplay(), 0);
        EXPECT_EQ(image.GetMaxPixelValue(), 200.0F);
    }
    const TemporaryFile raw(TypeParam::raw, good.U8(99));
    typename TypeParam::Image image;
    EXPECT_EQ(image.OpenBMPFile(bmp.Path()), 0);
    EXPECT_EQ(image(0, 0), 1000.0F);
    EXPECT_EQ(KestJudgePictureFile(bmp.Path(), &judged), 0);
    EXPECT_EQ(judged.eType, TypeParam::code);
    EXPECT_EQ(judged.llBytes, 6 + 6 * sizeof(typename TestFixture::Sample));
    const HANDLE other = CreateFileA(raw.Path(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(KestJudgePictureFile(bmp.Path(), &judged), -1);
    CloseHandle(other);
    EXPECT_EQ(judged.eReason, KEST_PICTURE_SAMPLES_NOT_READ);
    EXPECT_EQ(judged.eType, KEST_IMAGE_NONE);
}

TYPED_TEST(WideImages, NoMemoryForTheSamples) {
    // No row is a display image, but no block of samples.
    const TemporaryFile none("wide.bmp", BmpFile8(3, 0, {}));
    typename TypeParam::Image image;
    EXPECT_EQ(image.OpenBMPFile(none.Path()), -1);
    EXPECT_EQ(TakeBoxes(),
              (Boxes{{"Error", std::string("Unable to Allocate Memory for ") + TypeParam::words + " Image"}}));
    EXPECT_EQ(image.GetBitMapImageData(), nullptr);
    EXPECT_EQ(image.Show(GetDesktopWindow(), 100, 1, 0, 0, 1), -1);
}

TYPED_TEST(WideImages, LoadLeavesNoSamples) {
    typename TypeParam::Image image;
    image.Fill(2, 2, {100, 200, 300, 355});
    EXPECT_EQ(image.Shown(), (std::vector<int>{0, 100, 200, 255}));
    const Bytes stored = StoredBytes(image);
    const auto shown = Made<CcImage>(stored);
    EXPECT_EQ(shown->GetImageType(), 0);
    EXPECT_EQ((*shown)(1, 1), 255.0F);

    typename TypeParam::Image loaded;
    loaded.Fill(30, 20, std::vector<typename TestFixture::Sample>(600, 9));
    EXPECT_EQ(loaded.Load(nullptr), -1);
    EXPECT_EQ(loaded(19, 29), 9.0F);
    ASSERT_EQ(LoadRecord(loaded, stored), 0);
    EXPECT_EQ(loaded.GetBitMapImageData(), nullptr);
    ExpectAll(-1.0F, {loaded(1, 1), loaded(0.5F, 0.5F)});
    loaded = 7.0F;
    EXPECT_EQ(loaded.lpBits[3], 255);
    ExpectAll(-1, {loaded.Show(GetDesktopWindow(), 100, 1, 0, 0, 1), loaded.SaveBMPFile("wide.bmp")});
    loaded.ThresholdImage(nullptr, 0, 9, 255, 0, 0);
    EXPECT_EQ(loaded.MakeBlankBMP(2, 2, 3, "again"), 0);
    EXPECT_EQ(loaded(1, 1), 3.0F);
}

TYPED_TEST(WideImages, PixelAccess) {
    typename TypeParam::Image image;
    image.Fill(2, 3, {0, 10, 20, 100, 110, 1000});
    EXPECT_EQ(image(0.5F, 0.5F), 55.0F);
    EXPECT_EQ(image(2.0F, 1.0F), 1000.0F);
    // Strictly inside: no position beyond the last column or row, however little.
    for (const auto& [x, y] : {std::pair{2.1F, 0.0F}, {0.0F, 1.1F}, {-0.1F, 0.0F}, {3.0F, 0.0F}, {noNumber, 0.0F}}) {
        EXPECT_EQ(image(x, y), -1.0F);
        image = 77.0F;
    }
    EXPECT_EQ(image(3, 1), -1.0F);
    image.Shown();
    image = 77.0F;
    EXPECT_EQ(image.iReScaleOnShow, 2);
    EXPECT_EQ(std::accumulate(image.pSamples, image.pSamples + 6, 0.0), 1240.0);
    image(2, 1);
    image = 1234.0F;
    EXPECT_EQ(image.GetMaxPixelValue(), 1234.0F);
    EXPECT_EQ(image.iReScaleOnShow, 1);
}

TYPED_TEST(WideImages, RegionsUnderARectangle) {
    typename TypeParam::Image image;
    std::vector<typename TestFixture::Sample> samples(80);
    std::iota(samples.begin(), samples.end(), typename TypeParam::Image::Sample{1000});
    image.Fill(8, 10, samples);
    image.Shown();
    const auto roi = Boxed<CcRoiRect>({2, 6, 5, 3});
    const std::unique_ptr<CcImage> region(image.GetRegion(roi.get(), 500, 1));
    ASSERT_NE(region, nullptr);
    const bool isWide = TypeParam::code == 5;
    EXPECT_EQ(region->GetImageType(), isWide ? 5 : 0);
    EXPECT_EQ((*region)(2, 1), isWide ? 1044.0F : static_cast<float>(image.lpBits[44]));
    EXPECT_EQ((*region)(3, 1), isWide ? 500.0F : 244.0F);
    EXPECT_EQ(region->GetMaxPixelValue(), isWide ? 1054.0F : 255.0F);
}

TEST(WideImageDisplay, RangeOfTheSamples) {
    Open16 image;
    image.Fill(1, 3, {100, 200, 300});
    EXPECT_EQ(image.Shown(), (std::vector<int>{0, 127, 255}));
    // With a display range of its own the image keeps it; what lies outside is cut off.
    ExpectAll(0, {image.SetAutoUpdateDisplay(2), image.GetAutoUpdateDisplay(), image.SetAutoUpdateDisplay(0),
                  image.iReScaleOnShow});
    image(0, 0);
    image = 65535.0F;
    EXPECT_EQ(image.Shown(), (std::vector<int>{255, 127, 255}));
    EXPECT_EQ(image.GetMaxPixelValue(), 65535.0F);
    image.SetAutoUpdateDisplay(1);
    EXPECT_EQ(image.Shown(), (std::vector<int>{255, 0, 0}));
    image(1, 0);
    for (const auto& [written, kept] :
         {std::pair{-1.5F, 65535.0F}, {65537.9F, 1.0F}, {1e10F, 0.0F}, {noNumber, 0.0F}}) {
        image = written;
        EXPECT_EQ(image(1, 0), kept);
    }

    // The largest sample is white, where the range is a power of two as well.
    image.Fill(1, 3, {0, 512, 1024});
    EXPECT_EQ(image.Shown(), (std::vector<int>{0, 127, 255}));

    OpenFloat real;
    real.Fill(1, 4, {1.0F, noNumber, 1.5F, 2.0F});
    EXPECT_EQ(real.Shown(), (std::vector<int>{0, 0, 127, 255}));
    // A range without an end has no scale; what that makes of the samples is no number, and 0.
    for (const auto& [first, level] : {std::pair{noNumber, 0}, {infinity, 0}, {-infinity, 255}}) {
        real.Fill(1, 4, {first, 1.0F, 1.5F, 2.0F});
        EXPECT_EQ(real.Shown(), (std::vector<int>{0, level, level, level}));
        real.Through(101);
    }

    // The normalising operation of any arrays.
    const unsigned short samples[] = {0, 50, 100};
    unsigned char bytes[3];
    Open16 tool;
    EXPECT_EQ(tool.NormalizeInt16ToByteImage(samples, nullptr, 1, 3, 1), 0);
    EXPECT_EQ(tool.NormalizeInt16ToByteImage(samples, bytes, 3, 1, 0), 0);
    EXPECT_EQ(bytes[1], 127);
    for (const auto& [rows, columns] : {std::pair{0, 3}, {3, -1}, {INT_MAX, INT_MAX}})
        EXPECT_EQ(tool.NormalizeInt16ToByteImage(samples, bytes, rows, columns, 0), -1);
    EXPECT_EQ(tool.NormalizeInt16ToByteImage(samples, nullptr, 1, 3, 0), -1);
    EXPECT_EQ(tool.NormalizeInt16ToByteImage(nullptr, bytes, 1, 3, 0), -1);
}

TEST(WideImageDisplay, PointListsMoveTheDisplayRange) {
    Open16 image;
    image.Fill(1, 4, {0, 500, 1022, 1023});
    image.SetAutoUpdateDisplay(0);
    EXPECT_EQ(image.Shown(), (std::vector<int>{0, 255, 255, 255}));
    std::vector<tagPoints> points = image.List(102, 0);
    points[255].x = 1024.0F;
    EXPECT_EQ(image.SetDisplayLUT(102, 0, points.data()), 0);
    EXPECT_EQ(image.fDisplayMax, 1024.0F);
    EXPECT_EQ(image.Shown(), (std::vector<int>{0, 125, 255, 255}));
    // All lists are spread over the new range, and keep their levels.
    EXPECT_NEAR(image.List(104, 0)[63].x, 1024.0F, 0.01F);
    EXPECT_EQ(image.List(103, 0)[64].y, 128.0F);
    EXPECT_EQ(image.Through(102).At(1, 0), 0x7D7D7Du);

    // Ends that hardly move only recompute their own table; the picture turns negative in that one.
    points = image.List(102, 0);
    for (tagPoints& point : points) point.y = 255.0F - point.y;
    points[0].x += 0.05F;
    points[255].x += 0.05F;
    EXPECT_EQ(image.SetDisplayLUT(102, 0, points.data()), 0);
    EXPECT_EQ(image.fDisplayMax, 1024.0F);
    EXPECT_EQ(image.fDisplayMin, 0.0F);
    EXPECT_EQ(image.List(102, 0)[0].x, points[0].x);
    for (const auto& [lut, level] : {std::pair{102, 0x82}, {101, 0x7D}, {103, 0x7C}, {104, 0x7C}})
        EXPECT_EQ(image.Through(static_cast<unsigned short>(lut)).At(1, 0), Gray(level)) << lut;

    points[255].x += 0.15F;
    EXPECT_EQ(image.SetDisplayLUT(102, 0, points.data()), 0);
    EXPECT_NEAR(image.fDisplayMax, 1024.2F, 0.01F);

    // A display range without a width has one level, that of the first point.
    points.assign(256, {600.0F, 300.0F});
    EXPECT_EQ(image.SetDisplayLUT(101, 1, points.data()), 0);
    EXPECT_EQ(image.Shown(), (std::vector<int>{0, 0, 255, 255}));
    EXPECT_EQ(image.Through(101).At(0, 0), 0xFF0000u);

    ExpectAll(-1, {image.GetDisplayLUT(101, 1, nullptr), image.GetDisplayLUT(101, 0, points.data()),
                   image.SetDisplayLUT(104, 0, nullptr), image.ReconfigureColorTable(102, 1)});
    for (const int list : {INT_MIN, -1, 0, 5, 6, INT_MAX}) EXPECT_EQ(image.ReconfigureDisplayLUT(list), -1);
    points[0].x = noNumber;
    points[9].x = infinity;
    points[255].x = -infinity;
    EXPECT_EQ(image.SetDisplayLUT(101, 1, points.data()), 0);
    image.Shown();
}

TEST(WideImageDisplay, ThresholdsAreDisplayLevels) {
    // Sums of single-precision steps over such a range end beside its end; that must not move the range.
    OpenFloat image;
    image.Fill(1, 4, {1e6F + 1.0F, 3e6F, 5e6F, 7654321.0F});
    EXPECT_EQ(image.GetMaxPixelValue(), 7654321.0F);
    const Picture gray = image.Through(101);
    const float displayMin = image.fDisplayMin, displayMax = image.fDisplayMax;
    const float end = image.List(101, 1)[255].x;
    EXPECT_EQ(image.ThresholdImage(nullptr, 76.5F, 100.2F, 255, 0, 0), 0);
    EXPECT_EQ(image.Through(101).At(1, 0), 0xFF0000u);
    EXPECT_EQ(image.Through(101).At(2, 0), gray.At(2, 0));
    const std::vector<tagPoints> list = image.List(101, 1);
    EXPECT_EQ(list[76].y, 255.0F);
    EXPECT_EQ(list[75].y, 75.0F);
    EXPECT_EQ(list[255].x, end);
    EXPECT_EQ(image.ThresholdImage(nullptr, 150.0F, 100.0F, 255, 0, 0), -1);
    ThresholdTag bands[] = {{0.0F, 10.0F, 0, 0, 255}, {150.0F, 160.0F, 0, 255, 0}};
    EXPECT_EQ(image.ThresholdImageMulti(nullptr, bands, 2), 0);
    const Picture banded = image.Through(101);
    EXPECT_EQ(banded.At(0, 0), 0x0000FFu);
    EXPECT_EQ(banded.At(1, 0), gray.At(1, 0));
    EXPECT_EQ(banded.At(2, 0), 0x00FF00u);
    EXPECT_EQ(image.EndThresholding(), 0);
    EXPECT_EQ(image.Through(101), gray);
    EXPECT_EQ(image.fDisplayMin, displayMin);
    EXPECT_EQ(image.fDisplayMax, displayMax);
    // From then on a point list moves the range again.
    std::vector<tagPoints> wider = image.List(102, 0);
    wider[255].x = 8e6F;
    EXPECT_EQ(image.SetDisplayLUT(102, 0, wider.data()), 0);
    EXPECT_EQ(image.fDisplayMax, 8e6F);

    // Before the first Show the lists still cover 0 to 255, the samples do not.
    Open16 fresh;
    fresh.Fill(1, 2, {1000, 3000});
    EXPECT_EQ(fresh.GetMinPixelValue(), 1000.0F);
    EXPECT_EQ(fresh.ThresholdImage(nullptr, 150.0F, 100.0F, 1, 2, 3), -1);
    EXPECT_EQ(fresh.List(101, 1)[255].x, 255.0F) << "nothing is changed by an empty band";
    ExpectAll(0, {fresh.BeginThresholding(nullptr, 101), fresh.ThresholdImage(nullptr, 200.0F, 255.0F, 1, 2, 3)});
    EXPECT_EQ(fresh.fDisplayMax, 3000.0F);
    EXPECT_EQ(fresh.Through(101).At(3, 0), 0x010203u);
    EXPECT_EQ(fresh.Through(101).At(0, 0), 0u);

    // A colour list may be spaced as it likes: its points are the levels, and in the end plain gray is shown.
    Open16 uneven;
    uneven.Fill(1, 4, {0, 120, 160, 255});
    const Picture plain = uneven.Through(101);
    for (int channel = 1; channel <= 3; ++channel) {
        std::vector<tagPoints> squares = uneven.List(101, channel);
        for (tagPoints& point : squares) point.x = point.x * point.x / 255.0F;
        EXPECT_EQ(uneven.SetDisplayLUT(101, channel, squares.data()), 0);
    }
    EXPECT_EQ(uneven.ThresholdImage(nullptr, 100.0F, 150.0F, 255, 0, 0), 0);
    EXPECT_EQ(uneven.Through(101).At(1, 0), 0xFF0000u);
    EXPECT_EQ(uneven.Through(101).At(2, 0), plain.At(2, 0));
    EXPECT_EQ(uneven.EndThresholding(), 0);
    EXPECT_EQ(uneven.Through(101), plain);

    // Nor do they when a range is not to follow the samples: the bounds are levels all the same.
    Open16 fixed;
    fixed.Fill(1, 4, {0, 390, 600, 1000});
    EXPECT_EQ(fixed.GetMaxPixelValue(), 1000.0F);
    fixed.SetAutoUpdateDisplay(0);
    const Picture before = fixed.Through(101);
    EXPECT_EQ(fixed.ThresholdImage(nullptr, 90.0F, 110.0F, 255, 0, 0), 0);
    const Picture after = fixed.Through(101);
    EXPECT_EQ(after.At(1, 0), 0xFF0000u);
    EXPECT_NEAR(fixed.List(101, 1)[100].x, 392.157F, 0.01F);
    EXPECT_EQ(fixed.List(102, 0)[100].x, 100.0F) << "the other tables stay";
    for (const int x : {0, 3}) EXPECT_EQ(after.At(x, 0), before.At(x, 0)) << x;
}

TEST(WideImages, PictureReplacedWhileTheSaveDialogIsOpen) {
    const TemporaryFile bmp("replaced.bmp"), raw("replaced.i32");
    CcGrayImageInt32 image, opened;
    image.MakeBlankBMP(2000, 2000, 5, "large");
    AnswerFileDialog(bmp.Path(), [&] { image.MakeBlankBMP(3, 4, 70000, "small"); });
    ASSERT_EQ(image.SaveBMPFile(nullptr), 0);
    EXPECT_EQ(raw.Content().size(), 12u + 4 * 12);
    ASSERT_EQ(opened.OpenBMPFile(bmp.Path()), 0);
    EXPECT_EQ(opened(3, 2), 70000.0F);
    EXPECT_EQ(TakeFileDialogs().size(), 1u);
}

TEST(WideImages, PathsThatAreTooLongForTheRawFile) {
    CreateDirectoryA("folder", nullptr);
    std::string bmp = "folder";
    while (bmp.size() < 254) bmp += "\\.";
    bmp[253] = '\\';
    for (bmp += "w"; bmp.size() <= 259; bmp += "w") {
        SCOPED_TRACE(bmp.size());
        const std::string raw = bmp + ".i32";
        // Whether there can be one is the platform's to say.
        const HANDLE made = CreateFileA(raw.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
        const bool fits = made != INVALID_HANDLE_VALUE && CloseHandle(made) && DeleteFileA(raw.c_str());
        Open32 image, back;
        image.Fill(2, 3, {10, 20, 30, 40, 50, 265});
        image.Shown();
        EXPECT_EQ(image.SaveBMPFile(bmp.c_str()), fits ? 0 : -1);
        EXPECT_EQ(back.OpenBMPFile(bmp.c_str()), 0);
        EXPECT_EQ(back(2, 1), fits ? 265.0F : 255.0F);
        EXPECT_EQ(TakeBoxes().size(), fits ? 0u : 1u);
        DeleteFileA(raw.c_str());
        DeleteFileA(bmp.c_str());
    }
    EXPECT_TRUE(RemoveDirectoryA("folder"));
}
