// Pixel access and thresholding of the colour images, the HSL plane, and a session with a real picture.
#include "support/ClassTests.h"

using namespace test;

namespace {

using Pixels = std::vector<std::uint8_t>;

Pixels PlaneOf(Cc24BitHSLImage& image, std::size_t count) {
    const auto* bytes = static_cast<const std::uint8_t*>(image.GetBitMapImageDataHSL());
    return {bytes, bytes + 3 * count};
}

struct OpenRgb : Cc24BitRGBImage {
    using Cc24BitRGBImage::operator=;
    using Cc24BitRGBImage::iPixelIndex;
};
struct OpenHsl : Cc24BitHSLImage {
    using Cc24BitHSLImage::operator=;
};

}  // namespace

TEST(Cc24BitRGBImage, PixelsThroughTheAccessChannel) {
    EXPECT_EQ(SlotOf(&Cc24BitRGBImage::ThresholdImageRGB), 32);
    OpenRgb image;
    SetPixels(image, 2, 2, {10, 20, 30, 40, 50, 60, 0, 0, 0, 200, 100, 250});
    EXPECT_EQ(image(0, 0), static_cast<float>(0.299 * 30 + 0.587 * 20 + 0.114 * 10));
    for (const int none : {4, -1}) EXPECT_EQ(image.SetAccess(none), -1);
    for (const int channel : {1, 2, 3}) {
        EXPECT_EQ(image.SetAccess(channel), 0);
        EXPECT_EQ(image(1, 0), 70.0F - 10.0F * static_cast<float>(channel));
        image = 300.0F;
        EXPECT_EQ(image(1, 0), 44.0F);
    }
    image.SetAccess(1);
    EXPECT_EQ(image(0.5F, 0.0F), 37.0F);
    EXPECT_EQ(image(1.0F, 0.25F), 95.5F);
    EXPECT_EQ(image(1.0F, 1.0F), 250.0F);
    EXPECT_EQ(image.iPixelIndex, 3);
    ExpectAll(-1.0F, {image(1.5F, 0.0F), image(0.0F, NAN)});
    image = 7.0F;
    EXPECT_EQ(image(1, 1), 250.0F);
    image.SetAccess(0);
    for (const auto& [luminance, red] : {std::pair{121.85F, 130}, {1000.0F, 255}, {-INFINITY, 0}, {9.75F, 9}}) {
        image(0, 0);
        image = luminance;
        const auto* bytes = static_cast<const std::uint8_t*>(image.GetBitMapImageData());
        EXPECT_EQ(bytes[2], red);
        EXPECT_EQ(bytes[1], red == 130 ? 120 : red);
        EXPECT_EQ(bytes[0], red == 130 ? 110 : red);
    }
    image.CreateOverlay();
    image.SetOperatorOverloadAccess(1);
    image(1, 1) = 3.0F;
    image = 13.9F;
    EXPECT_EQ(image(1.0F, 1.0F), 13.0F);
}

TEST(Cc24BitRGBImage, ThresholdingStartsFromTheCopyAndPutsItBack) {
    TestWindow window(8, 8);
    const Pixels pixels = {10, 10, 10, 20, 20, 20, 30, 30, 30, 40, 40, 40};
    Cc24BitRGBImage image;
    SetPixels(image, 4, 1, pixels);
    const auto expect = [&](const Pixels& expected) { EXPECT_EQ(PixelsOf(image), expected); };
    image.SetAccess(3);
    EXPECT_EQ(image.BeginThresholding(window, 100), 0);
    ValidateRect(window, nullptr);
    EXPECT_EQ(image.ThresholdImage(window, 20.9F, 30.0F, 256 + 5, -1, 7), 0);
    EXPECT_TRUE(GetUpdateRect(window, nullptr, FALSE));
    expect({10, 10, 10, 7, 255, 5, 7, 255, 5, 40, 40, 40});
    EXPECT_EQ(image.ThresholdImage(window, 40, 40, 1, 2, 3), 0);
    expect({10, 10, 10, 20, 20, 20, 30, 30, 30, 3, 2, 1});
    // An empty band leaves even what is painted.
    ThresholdTag bands[] = {{10, 10, 0, 0, 30}, {30, 30, 50, 60, 70}, {9, 8, 1, 1, 1}};
    ExpectAll(0, {image.ThresholdImage(window, 41, 40, 9, 9, 9), image.ThresholdImageMulti(window, bands, 3)});
    EXPECT_EQ(image.ThresholdImageRGB(window, 5, 5, 0, 255, 0, 255, 1, 2, 3), -1);
    EXPECT_EQ(image.ThresholdImageMulti(window, nullptr, 1), -1);
    expect({10, 10, 10, 20, 20, 20, 30, 30, 30, 3, 2, 1});
    EXPECT_EQ(image.ThresholdImageMulti(window, bands, 2), 0);
    expect({70, 60, 50, 20, 20, 20, 70, 60, 50, 40, 40, 40});
    image.SetAccess(0);
    EXPECT_EQ(image.ThresholdImageMulti(window, bands, 2), 0);
    expect({30, 0, 0, 20, 20, 20, 70, 60, 50, 40, 40, 40});
    EXPECT_EQ(image.ThresholdImageRGB(window, -5, 30, 15, 400, 0, 30, 300, -3, 8), 0);
    expect({10, 10, 10, 8, 0, 255, 8, 0, 255, 40, 40, 40});
    EXPECT_EQ(image.ThresholdImageMulti(window, bands, 0), 0);
    expect(pixels);
    image.ThresholdImage(window, 0, 300, 1, 1, 1);
    EXPECT_EQ(image.EndThresholding(), 0);
    expect(pixels);
    // Without a copy what is painted stays.
    EXPECT_EQ(image.ThresholdImage(window, 40, 40, 1, 1, 1), 0);
    expect({10, 10, 10, 20, 20, 20, 30, 30, 30, 1, 1, 1});
}

TEST(Cc24BitHSLImage, ThePlaneLeadsAndTheDibFollows) {
    EXPECT_EQ(SlotOf(&Cc24BitHSLImage::ThresholdImageHSL), 32);
    OpenHsl image;
    RGBQUAD colour = {1, 1, 1, 77};
    EXPECT_EQ(image.RGB2HSL(0, 0, 255, &colour), 0);
    EXPECT_EQ((Pixels{colour.rgbRed, colour.rgbGreen, colour.rgbBlue, colour.rgbReserved}),
              (Pixels{160, 240, 120, 77}));
    ExpectAll(-1, {image.HSL2RGB(241, 0, 0, &colour), image.DoConvert(), image.UpdateRGB()});
    EXPECT_EQ(TakeBoxes(), (Boxes{{"Error", "Error in DoConvert."}, {"Error", "Error in UpdateRGB."}}));

    image.MakeBlankBMP(1, 3, 128, "gray");
    EXPECT_EQ(PlaneOf(image, 3), (Pixels{120, 0, 0, 120, 0, 0, 120, 0, 0}));
    EXPECT_EQ(image.SetAccess(1), -1);
    EXPECT_EQ(image.GetAccess(), 4);
    for (const auto& [channel, value] : {std::pair{4, 160.0F}, {5, 240.9F}}) {
        image.SetAccess(channel);
        image(1, 0);
        image = value;
    }
    EXPECT_EQ(image(1.5F, 0.0F), 120.0F);
    EXPECT_EQ(PixelsOf(image), Pixels(9, 128));
    EXPECT_EQ(image.UpdateRGB(), 0);
    EXPECT_EQ(PixelsOf(image), (Pixels{127, 127, 127, 255, 0, 0, 127, 127, 127}));
    image(2, 0);
    image = 241.0F;
    ExpectAll(-1, {image.UpdateRGB(), image.ThresholdImage(nullptr, 0, 0, 0, 0, 0)});
    image.SetClipping(true);
    ExpectAll(0, {image.UpdateRGB(), image.DoConvert()});
    TakeBoxes();

    // A loaded image has a plane of the right size, and none of the old values counts.
    Cc24BitHSLImage loaded;
    loaded.MakeBlankBMP(50, 50, 9, "larger");
    ASSERT_EQ(LoadRecord(loaded, StoredBytes(image)), 0);
    EXPECT_EQ(PlaneOf(loaded, 3), Pixels(9));
    EXPECT_EQ(loaded.DoConvert(), 0);
    EXPECT_EQ(PlaneOf(loaded, 3), PlaneOf(image, 3));
    const auto roi = Boxed<CcRoiRect>({1, 1, 3, 0});
    const std::unique_ptr<CcImage> region(image.GetRegion(roi.get(), 0, 0));
    const Pixels plane = PlaneOf(image, 3);
    EXPECT_EQ(PlaneOf(static_cast<Cc24BitHSLImage&>(*region), 2), Pixels(plane.begin() + 3, plane.end()));
}

TEST(Cc24BitHSLImage, PlanesMadeOnTheirOwn) {
    Cc24BitHSLImage image;
    void* dib = nullptr;
    image.MakeBlankBMP(30, 30, 7, "image");
    const void* header = image.MakeBlankDibBM24HSL(2, 1, 300, &dib);
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(GlobalLock(dib), header);
    EXPECT_TRUE(GlobalUnlock(dib));
    EXPECT_FALSE(GlobalUnlock(dib));
    EXPECT_EQ(GlobalFree(dib), nullptr);
    EXPECT_EQ(PlaneOf(image, 2), (Pixels{240, 0, 0, 240, 0, 0}));
    // The plane is now too small for the image: nothing goes through it.
    ExpectAll(-1.0F, {image(29, 29), image(1.5F, 1.5F)});
    EXPECT_EQ(image.UpdateRGB(), -1);
    EXPECT_EQ(image.BeginThresholding(nullptr, 0), 0);
    ExpectAll(-1, {image.ThresholdImageHSL(nullptr, 0, 9, 0, 9, 0, 9, 1, 1, 1), image.EndThresholding()});
    EXPECT_EQ(image.MakeBlankDibBM24HSL(0, 5, 1, &dib), nullptr);
    EXPECT_EQ(TakeBoxes(), (Boxes{{"Error", "Error in UpdateRGB."}, {"File Error", "Unable to allocate HSL memory."}}));

    // A file is read into both planes; one that is cut short leaves none, one that is not there the old one.
    const Bytes file = BmpFile24(1, 2, {10, 10, 10, 255, 0, 0});
    const TemporaryFile whole("whole.bmp", file), cut("cut.bmp", {file.begin(), file.begin() + 30});
    ASSERT_NE(image.ReadDibBM24HSL(whole.Path(), &dib), nullptr);
    GlobalFree(dib);
    EXPECT_EQ(image.ReadDibBM24HSL("none.bmp", &dib), nullptr);
    EXPECT_EQ(PlaneOf(image, 2), (Pixels{9, 0, 0, 120, 240, 160}));
    EXPECT_EQ(image.ReadDibBM24HSL(cut.Path(), &dib), nullptr);
    EXPECT_EQ(image.GetBitMapImageDataHSL(), nullptr);
    EXPECT_EQ(TakeBoxes().size(), 2u);
}

TEST(Cc24BitHSLImage, ARealPictureIsThresholdedByHueAndEndsAsItBegan) {
    OpenHsl image;
    ASSERT_EQ(image.OpenBMPFile(DataPath("tissue.bmp").c_str()), 0);
    constexpr std::size_t count = 128 * 128;
    const Pixels original = PixelsOf(image), plane = PlaneOf(image, count);
    ASSERT_EQ(image.BeginThresholding(nullptr, 100), 0);
    for (const auto& [low, high] : {std::pair{0, 30}, {10, 25}, {150, 180}, {0, 239}}) {
        ASSERT_EQ(image.ThresholdImage(nullptr, static_cast<float>(low), static_cast<float>(high), 0, 255, 0), 0);
        Pixels expected;
        for (auto hsl = plane.begin(); hsl != plane.end(); hsl += 3) {
            RGBQUAD rgb = {0, 255, 0, 0};
            if (hsl[2] < low || hsl[2] > high) image.HSL2RGB(hsl[2], hsl[1], hsl[0], &rgb);
            expected.insert(expected.end(), {rgb.rgbBlue, rgb.rgbGreen, rgb.rgbRed});
        }
        EXPECT_TRUE(PixelsOf(image) == expected) << low << ' ' << high;
    }
    ThresholdTag bands[] = {{0, 30, 255, 0, 0}, {0, 5, 0, 0, 255}, {100, 239, 9, 9, 9}};
    EXPECT_EQ(image.ThresholdImageMulti(nullptr, bands, 3), 0);
    EXPECT_EQ(image.ThresholdImageHSL(nullptr, 5, 5, 0, 255, 0, 255, 1, 1, 1), -1);
    EXPECT_EQ(image.ThresholdImageHSL(nullptr, 0, 239, 50, 300, -1, 255, 400, 0, 0), 0);
    Pixels painted = plane;
    for (std::size_t i = 0; i < 3 * count; i += 3)
        if (plane[i + 1] >= 50) std::copy_n(Pixels{120, 240, 0}.begin(), 3, &painted[i]);
    EXPECT_TRUE(PlaneOf(image, count) == painted);
    EXPECT_EQ(image.EndThresholding(), 0);
    EXPECT_TRUE(PixelsOf(image) == original);
    EXPECT_TRUE(PlaneOf(image, count) == plane);
}
