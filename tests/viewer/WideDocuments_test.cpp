// Wide pictures in KestView: the range that is shown, bands of sample values, conversions, and previews of bands.
#include "document/Conversion.h"
#include "document/Histogram.h"
#include "picture/RoiPainting.h"
#include "support/Imports.h"
#include "viewer/SampleDocuments.h"

namespace test {
namespace {

TEST(WideDocuments, ShowTheirWholeRangeWhateverComesFirst) {
    const auto levels = [](Document& document) { return LevelsOf(Through(document, 102)); };
    for (const int type : wideTypes) {
        SCOPED_TRACE(type);
        const std::string whole = levels(*MakeDocument(type));
        EXPECT_EQ(whole.front(), '\0');
        EXPECT_EQ(whole.back(), '\xFF');
        auto document = MakeDocument(type);
        EXPECT_EQ(PixelBytes(*ConvertImage(document->Image(), KEST_IMAGE_GRAY256)), whole);
        const tagPoints range = document->ShownRange();
        document->PixelsReplaced();
        EXPECT_EQ(levels(*document), whole);
        EXPECT_EQ(document->ShownRange().y, range.y);
        document->SetTableCurve(102, 0, {{range.x, 255}, {range.y, 0}});
        document->ResetTableCurve(102, 0);
        EXPECT_EQ(levels(*document), whole);
    }
}

TEST(WideDocuments, ShowWhatIsANumber) {
    auto document = MakeDocument(KEST_IMAGE_FLOAT);
    auto* samples = static_cast<float*>(document->Image().GetBitMapImageData());
    const float low = samples[1], high = samples[pixelCount - 2];
    samples[0] = std::numeric_limits<float>::quiet_NaN();
    for (const float last : {high, std::numeric_limits<float>::infinity()}) {
        samples[pixelCount - 1] = last;
        document->PixelsReplaced();
        EXPECT_EQ(document->ShownRange().x, low);
        EXPECT_EQ(document->ShownRange().y, high);
        EXPECT_TRUE(std::isnan(samples[0])) << "the samples stay";
        const auto shown = ConvertImage(document->Image(), KEST_IMAGE_GRAY256);
        EXPECT_EQ((*shown)(1, 0), 0.0f);
        EXPECT_EQ((*shown)(columns - 2, rows - 1), 255.0f);
    }
    EXPECT_EQ(MakeHistogram(*document, nullptr)->high, high);
    // Any range can be had, however it was reached.
    for (const float from : {0.5f, 0.08f, 0.05f}) document->SetTableCurve(102, 0, {{from, 0}, {1, 255}});
    EXPECT_EQ(document->ShownRange().x, 0.05f);
    for (const float to : {0.95f, 1.0f}) document->SetTableCurve(102, 0, {{0.05f, 0}, {to, 255}});
    EXPECT_EQ(document->ShownRange().y, 1.0f);
    samples[1] = 0.05f;
    samples[2] = 0.05f + 0.95f / 2;
    const auto shown = ConvertImage(document->Image(), KEST_IMAGE_GRAY256);
    EXPECT_EQ((*shown)(1, 0), 0.0f);
    EXPECT_EQ((*shown)(2, 0), 127.0f);
}

TEST(Conversion, TakesValuesOverOrShowsThem) {
    auto wide = MakeDocument(KEST_IMAGE_INT16);  // 0 to 56800 in steps of 400
    const auto shown = ConvertImage(wide->Image(), KEST_IMAGE_GRAY256);
    EXPECT_EQ((*shown)(0, 0), 0.0f);
    EXPECT_EQ((*shown)(columns - 1, rows - 1), 255.0f);
    const auto floats = ConvertImage(wide->Image(), KEST_IMAGE_FLOAT);
    EXPECT_EQ((*floats)(5, 2), (columns * 2 + 5) * 400.0f);
    auto negative = MakeDocument(KEST_IMAGE_INT32);
    const auto limited = ConvertImage(negative->Image(), KEST_IMAGE_INT16);
    EXPECT_EQ((*limited)(0, 0), 0.0f);
    EXPECT_EQ((*limited)(columns - 1, rows - 1), 65535.0f);

    // A gray stays the gray that it is, on the way to colours and back.
    auto ramp = MakeImage(KEST_IMAGE_GRAY256, 1, 256, "ramp");
    for (int i = 0; i < 256; ++i)
        static_cast<unsigned char*>(ramp->GetBitMapImageData())[i] = static_cast<unsigned char>(i);
    const auto grays = ConvertImage(*ramp, KEST_IMAGE_RGB);
    EXPECT_EQ(PixelBytes(*ConvertImage(*grays, KEST_IMAGE_GRAY256)), PixelBytes(*ramp));

    auto colour = MakeDocument(KEST_IMAGE_RGB);
    const auto hsl = ConvertImage(colour->Image(), KEST_IMAGE_HSL);
    EXPECT_EQ(PixelBytes(*hsl), PixelBytes(colour->Image()));
    const auto planeOf = [](CcImage& image) { return static_cast<Cc24BitHSLImage&>(image).GetBitMapImageDataHSL(); };
    EXPECT_EQ(std::memcmp(planeOf(*hsl), planeOf(MakeDocument(KEST_IMAGE_HSL)->Image()), 3 * pixelCount), 0)
        << "the plane is made";
    const auto mask = ConvertImage(colour->Image(), KEST_IMAGE_BINARY);
    EXPECT_EQ((*mask)(0, 0), 0.0f);
    EXPECT_EQ((*mask)(1, 0), 1.0f);
}

TEST(ThresholdPreview, MaskIsWhatTheBandsHoldAndThePictureComesBack) {
    for (const int type : {KEST_IMAGE_GRAY256, KEST_IMAGE_RGB, KEST_IMAGE_HSL}) {
        SCOPED_TRACE(type);
        auto document = MakeDocument(type);
        const bool isGray = type == KEST_IMAGE_GRAY256;
        if (type == KEST_IMAGE_RGB) document->SetChannel(2);
        const std::string before = PixelBytes(document->Image());
        const void* const plane =
            type == KEST_IMAGE_HSL ? static_cast<Cc24BitHSLImage&>(document->Image()).GetBitMapImageDataHSL() : nullptr;
        // Every level, every green, or, as the picture comes, every hue.
        const int step = isGray ? 1 : 3, first = isGray ? 0 : plane ? 2 : 1;
        const std::string values = plane ? std::string(static_cast<const char*>(plane), 3 * pixelCount) : before;
        tagPoints tableBefore[256] = {}, tableAfter[256] = {};
        document->SetDisplayTable(101);
        if (isGray) document->SetTableCurve(101, 2, {{0, 255}, {255, 0}});
        document->Image().GetDisplayLUT(101, 2, tableBefore);
        document->PreviewBands(true, GetDesktopWindow());
        EXPECT_FALSE(document->IsPreviewing()) << "without a band the picture is shown as it is";
        document->SetBands({{40, 60, RGB(255, 0, 0)}, {50, 90, 0}});
        ASSERT_TRUE(document->IsPreviewing());
        const std::vector<std::uint8_t> mask = document->BandMask();
        document->PreviewBands(false, nullptr);
        EXPECT_EQ(PixelBytes(document->Image()), before);
        document->Image().GetDisplayLUT(101, 2, tableAfter);
        EXPECT_EQ(std::memcmp(tableBefore, tableAfter, sizeof tableBefore), 0) << "the user's own curves";
        ASSERT_EQ(mask.size(), static_cast<std::size_t>(pixelCount));
        for (int i = 0; i < pixelCount; ++i) {
            const int level = static_cast<unsigned char>(values[static_cast<std::size_t>(step * i + first)]);
            EXPECT_EQ(mask[static_cast<std::size_t>(i)], level >= 40 && level <= 90) << i;
        }
    }
}

/// What is on the screen at a whole zoom; at 0 in half the size.
Picture Drawn(Document& document, int zoom) {
    RECT all = {0, 0, zoom > 0 ? columns * zoom : columns / 2, zoom > 0 ? rows * zoom : rows / 2};
    const MemoryPicture screen(all.right, all.bottom);
    document.Draw(screen, {all.right, all.bottom}, [&](CcImage& image, HDC dc, unsigned short table) {
        return image.Show(dc, &all, table, zoom > 0, 0, 0, zoom) == 0;
    });
    return screen.Snapshot();
}

TEST(WideBands, AreSampleValuesWhateverIsDisplayed) {
    // The samples number 5 to 10 and 100, which neighbours just outside the bounds leave out.
    struct Case {
        int type;
        double low, high, other;
    };
    for (const Case& wanted : {Case{KEST_IMAGE_INT16, 1600.5, 4399, 40000},
                               {KEST_IMAGE_INT16, 2000, 4000, 40000},
                               {KEST_IMAGE_INT32, -65.0 * 1000003, -60.0 * 1000003, 30.0 * 1000003},
                               {KEST_IMAGE_INT32, -66.0 * 1000003 + 1, -59.0 * 1000003 - 1, 30.0 * 1000003},
                               {KEST_IMAGE_FLOAT, 5 / 7.0 - 3, 10 / 7.0 - 3, 100 / 7.0 - 3}}) {
        SCOPED_TRACE(testing::Message() << wanted.type << " from " << wanted.low);
        auto document = MakeDocument(wanted.type);
        std::vector<std::uint8_t> expected(pixelCount);
        for (const std::size_t i : {5, 6, 7, 8, 9, 10, 100}) expected[i] = 1;
        if (wanted.type == KEST_IMAGE_FLOAT) {
            // As the samples are made, in floats; and the ones that are no number, or too large.
            auto* samples = static_cast<float*>(document->Image().GetBitMapImageData());
            samples[5] = -2.3f, samples[10] = -1.5f, samples[100] = 11.2f;
            samples[0] = std::numeric_limits<float>::quiet_NaN();
            samples[1] = std::numeric_limits<float>::infinity();
            document->PixelsReplaced();
            document->SetBands({{-2.3, -1.5, RGB(1, 2, 3)}, {11.2, 11.2, 0}, {9, 8, RGB(9, 9, 9)}});
        } else {
            document->SetBands({{wanted.low, wanted.high, RGB(1, 2, 3)}, {wanted.other, wanted.other, 0}});
        }
        EXPECT_EQ(document->BandMask(), expected);
        const tagPoints whole = document->WholeRange();
        document->SetTableCurve(102, 0, {{whole.x / 2, 255}, {whole.y / 2, 0}});
        EXPECT_EQ(document->BandMask(), expected) << "another display";
        auto numbers = MakeDocument(KEST_IMAGE_GRAY256);
        auto* const number = static_cast<std::uint8_t*>(numbers->Image().GetBitMapImageData());
        std::iota(number, number + pixelCount, std::uint8_t{0});
        for (const int zoom : {0, 1, 3}) {
            Picture wantedPicture = Drawn(*document, zoom);
            const Picture places = Drawn(*numbers, zoom);
            for (std::size_t i = 0; i < places.pixels.size(); ++i)
                if (const unsigned pixel = places.pixels[i] & 255; expected[pixel])
                    wantedPicture.pixels[i] = pixel == 100 ? 0 : 0x010203;
            document->PreviewBands(true, GetDesktopWindow());
            EXPECT_EQ(Drawn(*document, zoom), wantedPicture) << zoom;
            document->PreviewBands(false, nullptr);
        }
    }
}

/// The system draws nothing.
int WINAPI DrawNothing(HDC, int, int, DWORD, DWORD, int, int, UINT, UINT, const void*, const BITMAPINFO*, UINT) {
    return 0;
}

TEST(Drawings, ThatFailedAreNeitherCountedNorHandedOut) {
    for (const int type : allTypes) {
        SCOPED_TRACE(type);
        auto document = MakeDocument(type);
        document->SetBands({{0, 255, 1}});
        const auto draw = [&] { return DrawnPicture(*document, {}, document->Size(), DrawnRois::None); };
        Document drawn(draw());
        EXPECT_EQ(Through(drawn, 100), Through(*document, 102));
        const ReplacedImport broken(GetModuleHandleA("KestApi.dll"), "SetDIBitsToDevice", &DrawNothing);
        EXPECT_FALSE(draw());
        if (!document->Class().isWide) {
            EXPECT_EQ(document->BandMask(), std::vector<std::uint8_t>());
        }
    }
}

}  // namespace
}  // namespace test
