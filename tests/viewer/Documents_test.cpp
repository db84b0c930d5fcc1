// KestView's documents without its windows: sessions, decoded files, conversions, masks, tables of results.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>

#include "document/Conversion.h"
#include "document/Histogram.h"
#include "document/Profile.h"
#include "document/Region.h"
#include "document/ResultsTable.h"
#include "document/RoiEdit.h"
#include "document/RoiFiles.h"
#include "document/RoiKinds.h"
#include "document/Session.h"
#include "platform/Drawing.h"
#include "platform/Text.h"
#include "support/Bytes.h"
#include "support/Census.h"
#include "support/Streams.h"
#include "viewer/Samples.h"

namespace test {
namespace {

std::unique_ptr<CcRoiBase> MakeRect(RECT place) {
    std::unique_ptr<CcRoiBase> roi(new CcRoiRect);
    roi->SetRoiImageCord(&place);
    return roi;
}

TEST(Session, BringsBackEveryClassWithItsValuesRegionsAndCalibration) {
    for (const int type : allTypes) {
        SCOPED_TRACE(type);
        const TemporaryFile file("session-test.kvs"), calibrationFile("session-test.cal");
        auto document = MakeDocument(type);
        const std::string longName(120, 'n');
        document->Image().SetName(longName.c_str());
        document->AddRoi(MakeRect({2, 8, 6, 3}));
        document->RenameRoi(document->Roi(0), "a region");
        document->SetBands({{10, 20, 1}, {30, 40.5, 4}});
        document->SetDisplayTable(103);
        const bool hasTables = type != KEST_IMAGE_BINARY && !document->Class().isColour;
        if (hasTables) document->SetTableCurve(103, 0, {{0, 255}, {60, 10}, {250, 0}});
        document->SetChannel(document->Channel() + 1);
        tagPoints image[4] = {{0, 0}, {10, 0}, {10, 9}, {0, 9}}, world[4] = {{0, 0}, {5, 0}, {5, 4.5f}, {0, 4.5f}};
        std::unique_ptr<CcCalibration> calibration(new CcCalibration);
        ASSERT_EQ(calibration->DoCalibration(image, world, 4, columns, rows), 0);
        ASSERT_EQ(calibration->Save(calibrationFile.Path()), 0);
        ASSERT_TRUE(document->SetCalibration(std::move(calibration), calibrationFile.Path()));

        std::string error, warning;
        ASSERT_TRUE(SaveSession(*document, file.Path(), error)) << error;
        EXPECT_EQ(document->Name(), longName) << "cut only while it was written";
        EXPECT_FALSE(document->IsModified());
        auto loaded = OpenSession(file.Path(), error, warning);
        ASSERT_TRUE(loaded) << error;
        EXPECT_EQ(warning, "");
        EXPECT_EQ(loaded->Class().type, type);
        EXPECT_EQ(loaded->Name(), longName);
        EXPECT_EQ(PixelBytes(loaded->Image()), PixelBytes(document->Image()));
        ASSERT_EQ(loaded->RoiCount(), 1);
        EXPECT_STREQ(loaded->Roi(0).GetName(), "a region");
        EXPECT_TRUE(EqualRect(loaded->Roi(0).GetBoundingRect(), document->Roi(0).GetBoundingRect()));
        ASSERT_EQ(loaded->Bands().size(), 2u);
        EXPECT_EQ(loaded->Bands()[1].high, 40.5);
        EXPECT_EQ(loaded->DisplayTable(), 103);
        EXPECT_EQ(loaded->Channel(), document->Channel());
        EXPECT_EQ(loaded->TableCurves().size(), hasTables);
        tagPoints entries[2][128] = {};
        document->Image().GetDisplayLUT(103, 0, entries[0]);
        loaded->Image().GetDisplayLUT(103, 0, entries[1]);
        EXPECT_EQ(std::memcmp(entries[0], entries[1], sizeof entries[0]), 0);
        ASSERT_TRUE(loaded->Calibration());
        EXPECT_FLOAT_EQ(loaded->Calibration()->GetAreaOfPixel(4, 4), 0.25f);
        EXPECT_FALSE(loaded->IsModified());
        document->RemoveCalibration();
        loaded->RemoveCalibration();
    }
}

TEST(Session, KeepsTheRangeThatAWidePictureShows) {
    for (const int type : {KEST_IMAGE_INT16, KEST_IMAGE_INT32, KEST_IMAGE_FLOAT}) {
        SCOPED_TRACE(type);
        auto document = MakeDocument(type);
        const DibSection screen({columns, rows}, 32);
        RECT all = {0, 0, columns, rows};
        const auto show = [&](Document& shown) { shown.Image().Show(screen, &all, 102, 1, 0, 0, 1); };
        show(*document);
        const tagPoints whole = document->ShownRange();
        const float third = (whole.y - whole.x) / 3;
        document->SetTableCurve(102, 0, {{whole.x + third, 0}, {whole.y - third, 255}});
        show(*document);
        const tagPoints chosen = document->ShownRange();
        EXPECT_NEAR(chosen.x, whole.x + third, 1e-5 * third);
        EXPECT_NEAR(chosen.y, whole.y - third, 1e-5 * third);
        const TemporaryFile file("range.kvs");
        std::string error, warning;
        ASSERT_TRUE(SaveSession(*document, file.Path(), error)) << error;
        auto loaded = OpenSession(file.Path(), error, warning);
        ASSERT_TRUE(loaded) << error;
        show(*loaded);
        EXPECT_EQ(loaded->ShownRange().x, chosen.x);
        EXPECT_EQ(loaded->ShownRange().y, chosen.y);
    }
}

TEST(WideDocuments, ShowTheirWholeRangeWhateverComesFirst) {
    const auto levels = [](Document& document) {
        const DibSection screen({columns, rows}, 32);
        RECT all = {0, 0, columns, rows};
        document.Image().Show(screen, &all, 102, 1, 0, 0, 1);
        GdiFlush();
        std::string shown;
        for (int i = 0; i < rows * columns; ++i)
            shown += static_cast<char>(screen.Bits()[4 * i]);
        return shown;
    };
    for (const int type : {KEST_IMAGE_INT16, KEST_IMAGE_INT32, KEST_IMAGE_FLOAT}) {
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
        // A curve over the whole range, in a session.
        document->SetTableCurve(102, 0, {{range.x, 255}, {range.y, 0}});
        const TemporaryFile file("inverted.dat");
        std::string error, warning;
        ASSERT_TRUE(SaveSession(*document, file.Path(), error)) << error;
        EXPECT_TRUE(IsSessionFile(file.Path())) << "whatever its extension";
        auto loaded = OpenSession(file.Path(), error, warning);
        ASSERT_TRUE(loaded) << error;
        EXPECT_EQ(levels(*loaded), levels(*document));
        loaded->ResetTableCurve(102, 0);
        EXPECT_EQ(levels(*loaded), whole);
    }
}

TEST(WideDocuments, ShowWhatIsANumber) {
    auto document = MakeDocument(KEST_IMAGE_FLOAT);
    auto* samples = static_cast<float*>(document->Image().GetBitMapImageData());
    const float low = samples[1], high = samples[rows * columns - 2];
    samples[0] = std::numeric_limits<float>::quiet_NaN();
    for (const float last : {high, std::numeric_limits<float>::infinity()}) {
        samples[rows * columns - 1] = last;
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
    for (const float from : {0.5f, 0.08f, 0.05f})
        document->SetTableCurve(102, 0, {{from, 0}, {1, 255}});
    EXPECT_EQ(document->ShownRange().x, 0.05f);
    samples[1] = 0.05f;
    samples[2] = 0.05f + 0.95f / 2;
    const auto shown = ConvertImage(document->Image(), KEST_IMAGE_GRAY256);
    EXPECT_EQ((*shown)(1, 0), 0.0f);
    EXPECT_EQ((*shown)(2, 0), 127.0f);
}

TEST(Session, KeepsTheColoursOfTheFile) {
    auto document = MakeDocument(KEST_IMAGE_GRAY256);
    const DibSection screen({columns, rows}, 32);
    RECT all = {0, 0, columns, rows};
    const auto drawn = [&](Document& shown) {
        shown.Image().Show(screen, &all, 100, 1, 0, 0, 1);
        GdiFlush();
        return std::string(reinterpret_cast<const char*>(screen.Bits()), 4 * rows * columns);
    };
    const std::string before = drawn(*document);
    document->Image().Show(screen, &all, 104, 1, 0, 0, 1);
    const TemporaryFile file("gray.kvs");
    std::string error, warning;
    ASSERT_TRUE(SaveSession(*document, file.Path(), error)) << error;
    auto loaded = OpenSession(file.Path(), error, warning);
    ASSERT_TRUE(loaded) << error;
    EXPECT_EQ(drawn(*loaded), before);
}

TEST(Session, OpensACalibrationElsewhereOnlyWhenTheUserWantsIt) {
    const TemporaryFile file("asked.kvs");
    auto document = MakeDocument(KEST_IMAGE_GRAY256);
    document->calibrationPath = "\\\\server\\share\\plate.cal";
    std::string error, warning, question;
    ASSERT_TRUE(SaveSession(*document, file.Path(), error)) << error;
    const auto refuse = [&](const std::string& text) { return question = text, false; };
    ASSERT_TRUE(OpenSession(file.Path(), error, warning, refuse)) << error;
    EXPECT_NE(question.find("\\\\server\\share\\plate.cal\n\nOpen it?"), std::string::npos) << question;
    EXPECT_NE(warning, "");
    // The file of that name beside the session is taken unasked.
    tagPoints image[4] = {{0, 0}, {10, 0}, {10, 9}, {0, 9}}, world[4] = {{0, 0}, {5, 0}, {5, 4.5f}, {0, 4.5f}};
    const TemporaryFile beside("plate.cal");
    CcCalibration calibration;
    ASSERT_EQ(calibration.DoCalibration(image, world, 4, columns, rows), 0);
    ASSERT_EQ(calibration.Save(beside.Path()), 0);
    question = warning = "";
    const auto opened = OpenSession(file.Path(), error, warning, refuse);
    ASSERT_TRUE(opened) << error;
    EXPECT_EQ(question + warning, "");
    EXPECT_TRUE(opened->Calibration());
}

TEST(Session, RefusesWhatIsCutOffOrSomethingElse) {
    const TemporaryFile whole("session-whole.kvs");
    std::string error, warning;
    ASSERT_TRUE(SaveSession(*MakeDocument(KEST_IMAGE_INT16), whole.Path(), error));
    const std::vector<std::uint8_t> bytes = whole.Content();
    for (std::size_t length = 0; length < bytes.size(); length += 97) {
        const TemporaryFile part("session-part.kvs",
                                 {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length)});
        EXPECT_FALSE(OpenSession(part.Path(), error, warning)) << length;
        EXPECT_NE(error, "");
    }
    // A stream that holds a list where the bag should be.
    const TemporaryFile list("session-list.kvs");
    {
        CcFileObjectStorage stream;
        CcList empty;
        stream.Open(list.Path(), GENERIC_READ | GENERIC_WRITE);
        stream.PutObject(&empty);
    }
    EXPECT_FALSE(OpenSession(list.Path(), error, warning));
    EXPECT_FALSE(OpenSession("no-such-file.kvs", error, warning));
    EXPECT_FALSE(FileExists("no-such-file.kvs"));
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
    RGBQUAD expected = {};
    const std::string first = PixelBytes(colour->Image()).substr(3, 3);
    auto& converter = static_cast<Cc24BitHSLImage&>(*hsl);
    converter.RGB2HSL(static_cast<BYTE>(first[2]), static_cast<BYTE>(first[1]), static_cast<BYTE>(first[0]), &expected);
    EXPECT_EQ(std::memcmp(static_cast<BYTE*>(converter.GetBitMapImageDataHSL()) + 3, &expected, 3), 0)
        << "the plane is made";
    const auto mask = ConvertImage(colour->Image(), KEST_IMAGE_BINARY);
    EXPECT_EQ((*mask)(0, 0), 0.0f);
    EXPECT_EQ((*mask)(1, 0), 1.0f);
}

TEST(ThresholdPreview, MaskIsWhatTheBandsHoldAndThePictureComesBack) {
    for (const int type : {KEST_IMAGE_GRAY256, KEST_IMAGE_RGB}) {
        SCOPED_TRACE(type);
        auto document = MakeDocument(type);
        if (type == KEST_IMAGE_RGB) document->SetChannel(2);
        const std::string before = PixelBytes(document->Image());
        tagPoints tableBefore[256] = {}, tableAfter[256] = {};
        document->SetDisplayTable(101);
        std::vector<tagPoints> curve = {{0, 255}, {255, 0}};
        if (type == KEST_IMAGE_GRAY256) document->SetTableCurve(101, 2, curve);
        document->Image().GetDisplayLUT(101, 2, tableBefore);
        document->SetBands({{40, 60, RGB(255, 0, 0)}, {50, 90, 0}});
        document->PreviewBands(true, GetDesktopWindow());
        ASSERT_TRUE(document->IsPreviewing());
        const std::vector<std::uint8_t> mask = document->BandMask();
        document->PreviewBands(false, nullptr);
        EXPECT_EQ(PixelBytes(document->Image()), before);
        document->Image().GetDisplayLUT(101, 2, tableAfter);
        EXPECT_EQ(std::memcmp(tableBefore, tableAfter, sizeof tableBefore), 0) << "the user's own curves";
        ASSERT_EQ(mask.size(), static_cast<std::size_t>(rows * columns));
        for (int i = 0; i < rows * columns; ++i) {
            const int level = static_cast<unsigned char>(
                type == KEST_IMAGE_RGB ? before[static_cast<std::size_t>(3 * i + 1)] : static_cast<char>(i * 7));
            EXPECT_EQ(mask[static_cast<std::size_t>(i)], level >= 40 && level <= 90) << i;
        }
    }
}

/// What is on the screen at a whole zoom: 0x00RRGGBB, top row first.
std::vector<unsigned> Drawn(Document& document, int zoom) {
    const SIZE area = {columns * zoom, rows * zoom};
    const DibSection screen(area, 32);
    RECT all = {0, 0, area.cx, area.cy};
    document.Draw(screen, area,
                  [&](CcImage& image, HDC dc, unsigned short table) { image.Show(dc, &all, table, 1, 0, 0, zoom); });
    GdiFlush();
    std::vector<unsigned> shown;
    for (long y = area.cy; y-- > 0;)
        for (long x = 0; x < area.cx; ++x)
            shown.push_back(reinterpret_cast<const unsigned*>(screen.Bits())[y * area.cx + x] & 0xFFFFFF);
    return shown;
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
        std::vector<std::uint8_t> expected(rows * columns);
        for (const std::size_t i : {5, 6, 7, 8, 9, 10, 100})
            expected[i] = 1;
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
        for (const int zoom : {1, 3}) {
            const std::vector<unsigned> plain = Drawn(*document, zoom);
            document->PreviewBands(true, GetDesktopWindow());
            const std::vector<unsigned> shown = Drawn(*document, zoom);
            document->PreviewBands(false, nullptr);
            for (int i = 0; i < rows * columns * zoom * zoom; ++i) {
                const auto at = static_cast<std::size_t>(i);
                const int x = i % (columns * zoom) / zoom, y = rows - 1 - i / (columns * zoom * zoom);
                const int pixel = y * columns + x;
                EXPECT_EQ(shown[at], !expected[static_cast<std::size_t>(pixel)] ? plain[at]
                                     : pixel == 100                             ? 0u
                                                                                : 0x010203u)
                    << pixel;
            }
        }
        const TemporaryFile file("bands.kvs");
        std::string error, warning;
        ASSERT_TRUE(SaveSession(*document, file.Path(), error)) << error;
        auto loaded = OpenSession(file.Path(), error, warning);
        ASSERT_TRUE(loaded) << error;
        EXPECT_EQ(loaded->BandMask(), expected);
        EXPECT_EQ(loaded->Bands()[0].low, document->Bands()[0].low);
    }
}

TEST(WideBands, OfOlderSessionsHoldWhatTheLevelsHeld) {
    for (const int type : {KEST_IMAGE_INT16, KEST_IMAGE_INT32, KEST_IMAGE_FLOAT}) {
        SCOPED_TRACE(type);
        auto document = MakeDocument(type);
        const tagPoints whole = document->WholeRange();
        const float third = (whole.y - whole.x) / 3;
        document->SetTableCurve(102, 0, {{whole.x + third, 0}, {whole.y - third, 255}});
        const auto levels = ConvertImage(document->Image(), KEST_IMAGE_GRAY256);
        // Two that overlap, one that holds nothing between two samples, one up to the white ones.
        const ThresholdTag bands[] = {
            {40.5f, 60, 1, 2, 3}, {50, 89.5f, 4, 5, 6}, {100, 100, 7, 8, 9}, {254, 255, 1, 1, 1}};
        const TemporaryFile file("new.kvs"), old("old.kvs");
        std::string error, warning;
        ASSERT_TRUE(SaveSession(*document, file.Path(), error)) << error;
        {
            CcFileObjectStorage from, to;
            from.Open(file.Path(), GENERIC_READ);
            to.Open(old.Path(), GENERIC_READ | GENERIC_WRITE);
            for (int i = 0; i < 2; ++i) {
                CcHLObject* object = nullptr;
                ASSERT_GE(from.GetNextObject(&object), 0);
                const std::unique_ptr<CcHLObject> held(object);
                if (i == 0) static_cast<CcPropertyBag*>(object)->PutBlob("KestView::stBands", bands, sizeof bands);
                ASSERT_GE(to.PutObject(object), 0);
            }
        }
        const auto loaded = OpenSession(old.Path(), error, warning);
        ASSERT_TRUE(loaded) << error;
        ASSERT_EQ(loaded->Bands().size(), 4u);
        EXPECT_EQ(loaded->Bands()[1].colour, RGB(4, 5, 6));
        const std::string shown = PixelBytes(*levels);
        const std::vector<std::uint8_t> mask = loaded->BandMask();
        for (std::size_t i = 0; i < mask.size(); ++i) {
            const int level = static_cast<unsigned char>(shown[i]);
            EXPECT_EQ(mask[i], (level >= 40 && level <= 90) || level == 100 || level >= 254) << i;
        }
    }
}

TEST(Results, AreATableThatOtherProgramsRead) {
    auto document = MakeDocument(KEST_IMAGE_GRAY256);
    document->AddRoi(MakeRect({2, 8, 6, 3}));
    document->RenameRoi(document->Roi(0), "one, \"two\"");
    document->SetBands({{0, 254.5, 1}});
    const ResultsTable table = MeasureRois(*document);
    ASSERT_EQ(table.rows.size(), 1u);
    EXPECT_EQ(table.rows[0].values.llPixels, 30);
    EXPECT_EQ(table.rows[0].areaInBands, 30);
    const std::string text = ResultsAsText(table, ',');
    EXPECT_EQ(text.substr(0, text.find('\r')),
              "Name,Kind,Pixels,Length (pixels),Area (square pixels),Mean,Minimum,Maximum,Std. dev.,In bands (square "
              "pixels)");
    EXPECT_NE(text.find("\n\"one, \"\"two\"\"\",Rectangle,30,22,30,"), std::string::npos) << text;
    for (const auto& [value, shown] : {std::pair{40565616.25, "40565616"},
                                       {999999.7, "1000000"},
                                       {-123456789012345.0, "-123456789012345"},
                                       {1e15, "1e+15"},
                                       {0.0, "0"},
                                       {12.34567, "12.3457"},
                                       {1.5e-7, "1.5e-07"}})
        EXPECT_EQ(PlainNumber(value, 6), shown);
    EXPECT_EQ(ParseNumber(" 1,5 "), 1.5);
    EXPECT_EQ(ParseNumber("1.5 mm"), std::nullopt);
    EXPECT_EQ(ParseNumber("nan"), std::nullopt);
}

TEST(Graphs, CountAndFollowTheRegion) {
    auto document = MakeDocument(KEST_IMAGE_GRAY256);
    auto rect = MakeRect({0, 1, 3, 0});
    Histogram histogram = *MakeHistogram(*document, rect.get());
    EXPECT_EQ(histogram.pixels, 8);
    for (const int value : {0, 7, 14, 21, 91, 98, 105, 112})
        EXPECT_EQ(histogram.channels[0].counts[static_cast<std::size_t>(value)], 1);
    auto colours = MakeDocument(KEST_IMAGE_HSL);
    histogram = *MakeHistogram(*colours, nullptr);
    std::vector<long long> hues(256);
    for (int i = 0; i < rows * columns; ++i)
        ++hues[static_cast<BYTE*>(static_cast<Cc24BitHSLImage&>(colours->Image()).GetBitMapImageDataHSL())[3 * i + 2]];
    EXPECT_TRUE(std::equal(hues.begin(), hues.end(), histogram.channels[0].counts.begin())) << "hue, not red";

    std::unique_ptr<CcRoiBase> line(new CcRoiLine);
    int ends[4] = {1, 2, 9, 2};
    line->SetRoiImageCord(ends);
    const std::vector<tagPoints> profile = MakeProfile(*document, *line);
    ASSERT_EQ(profile.size(), 9u);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(profile[static_cast<std::size_t>(i)].x, i);
        EXPECT_EQ(profile[static_cast<std::size_t>(i)].y, static_cast<unsigned char>((2 * columns + 1 + i) * 7));
    }

    // The stairs of a slanted outline are no longer than the line that they stand for; what stands before them stays.
    auto polyline = RoiKindOf(KEST_ROI_POLYLINE)->make();
    POINT stairs[] = {{0, 0}, {0, 1}, {0, 2}, {0, 3}, {0, 4}, {2, 5}, {3, 5}, {4, 6}, {5, 6}, {6, 7}, {7, 7}, {8, 8}};
    stairs[5] = {1, 4};
    PixelGroupTag outline = {0, 0, 0, 12, stairs, nullptr};
    polyline->SetRoiImageCord(&outline);
    const std::vector<tagPoints> bent = MakeProfile(*document, *polyline);
    EXPECT_NEAR(bent.back().x, KestRoiLengthPixels(polyline.get()), 1e-3);
    EXPECT_EQ(bent[3].x, 3);
    EXPECT_EQ(bent[3].y, static_cast<unsigned char>(3 * columns * 7));
}

TEST(Region, KeepsTheSamples) {
    for (const int type : {KEST_IMAGE_INT16, KEST_IMAGE_INT32, KEST_IMAGE_FLOAT, KEST_IMAGE_BINARY}) {
        SCOPED_TRACE(type);
        auto document = MakeDocument(type);
        auto rect = MakeRect({2, 8, 6, 3});
        const auto region = CutOut(*document, *rect);
        ASSERT_TRUE(region);
        ASSERT_EQ(region->GetImageType(), type);
        ASSERT_EQ(SizeOf(*region).cx, 4);
        ASSERT_EQ(SizeOf(*region).cy, 5);
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 4; ++x)
                EXPECT_EQ(static_cast<float>((*region)(x, y)), static_cast<float>(document->Image()(x + 2, y + 3)));
    }
}

TEST(Region, KeepsThePlaceInTheWorld) {
    auto document = MakeDocument(KEST_IMAGE_GRAY256);
    tagPoints image[4] = {{0, 0}, {10, 1}, {9, 9}, {1, 8}}, world[4] = {{0, 0}, {5, 0}, {5, 5}, {0, 5}};
    std::unique_ptr<CcCalibration> calibration(new CcCalibration);
    ASSERT_EQ(calibration->DoCalibration(image, world, 4, columns, rows), 0);
    ASSERT_TRUE(document->SetCalibration(std::move(calibration), "plate.cal"));
    auto rect = MakeRect({2, 8, 6, 3});
    Document region(CutOut(*document, *rect));
    region.CalibrateLike(*document, {2, 3});
    ASSERT_TRUE(region.Calibration());
    EXPECT_EQ(region.calibrationPath, "") << "it is another calibration";
    tagPoints inRegion = {1, 1}, inPicture = {3, 4}, here = {}, there = {};
    region.Calibration()->ConvertPoint(&inRegion, &here);
    document->Calibration()->ConvertPoint(&inPicture, &there);
    EXPECT_NEAR(here.x, there.x, 1e-4);
    EXPECT_NEAR(here.y, there.y, 1e-4);
}

/// A ROI of the kind, with its left bottom corner at (1, 1) and a few pixels in size.
std::unique_ptr<CcRoiBase> MakeRoi(const RoiKind& kind) {
    auto roi = kind.make();
    POINT outline[4] = {{1, 1}, {5, 1}, {5, 5}, {1, 5}};
    PixelGroupTag group = {0, 0, 0, 4, outline, nullptr};
    int record[4] = {1, 6, 7, 1};
    tagPoints point = {1.5f, 1.75f};
    const bool isOutline = kind.type == KEST_ROI_FREEHAND || kind.type == KEST_ROI_FREEHANDLINE ||
                           kind.type == KEST_ROI_POLYLINE || kind.type == KEST_ROI_POLYFREEHAND;
    void* given = kind.type == KEST_ROI_POINT ? static_cast<void*>(&point)
                  : isOutline                 ? static_cast<void*>(&group)
                                              : record;
    EXPECT_EQ(roi->SetRoiImageCord(given), 0) << kind.label;
    return roi;
}

TEST(RoiEdit, MovesByWholePixelsInsideThePictureAndKeepsWhatIsNotHeld) {
    auto document = MakeDocument(KEST_IMAGE_GRAY256);
    for (const RoiKind& kind : roiKinds) {
        SCOPED_TRACE(kind.label);
        auto roi = MakeRoi(kind);
        KestRoiMeasurement first = {}, present = {};
        KestMeasureRoi(&document->Image(), roi.get(), &first);
        const RECT from = *roi->GetBoundingRect();
        const long width = from.right - from.left, height = from.top - from.bottom;
        RoiEdit edit(*roi, 0, document->Size());
        EXPECT_FALSE(edit.HasMoved());
        // The last ones go out of the picture at two sides each.
        for (const POINT by : {POINT{3, 2}, {-1, 1}, {500, 500}, {-500, -500}, {0, 0}}) {
            edit.MoveBy(by);
            const RECT to = *roi->GetBoundingRect();
            EXPECT_EQ(to.left, std::clamp(from.left + by.x, 0L, columns - 1 - width));
            EXPECT_EQ(to.bottom, std::clamp(from.bottom + by.y, 0L, rows - 1 - height));
            EXPECT_EQ(to.right - to.left, width);
            EXPECT_EQ(to.top - to.bottom, height);
            KestMeasureRoi(&document->Image(), roi.get(), &present);
            EXPECT_EQ(present.llPixels, first.llPixels);
            EXPECT_NEAR(present.dLengthPixels, first.dLengthPixels, 1e-6);
        }
        if (kind.type == KEST_ROI_POINT) {
            EXPECT_EQ(static_cast<tagPoints*>(roi->GetRoiImageCord())->y, 1.75f);
        }
    }
    // The handles of a rectangle from (2, 3) to (6, 8), and past the other side.
    struct Case {
        int code;
        POINT by;
        RECT expected;
    };
    for (const Case& wanted : {Case{1, {9, 1}, {2, 9, 6, 3}},
                               {2, {9, 1}, {2, 8, 6, 4}},
                               {3, {1, 9}, {3, 8, 6, 3}},
                               {4, {-6, 9}, {0, 8, 2, 3}},
                               {5, {1, -7}, {3, 3, 6, 1}},
                               {6, {50, 1}, {2, 9, 12, 3}},
                               {7, {1, 1}, {3, 8, 6, 4}},
                               {8, {1, -1}, {2, 8, 7, 2}}}) {
        auto rect = MakeRect({2, 8, 6, 3});
        RoiEdit(*rect, wanted.code, document->Size()).MoveBy(wanted.by);
        EXPECT_TRUE(EqualRect(rect->GetBoundingRect(), &wanted.expected)) << "handle " << wanted.code;
    }
    auto line = RoiKindOf(KEST_ROI_LINE)->make();
    int ends[4] = {1, 2, 3, 4};
    for (const auto& [code, moved] : {std::pair{5, std::array{9, 1, 3, 4}}, {8, std::array{1, 2, 11, 3}}}) {
        line->SetRoiImageCord(ends);
        RoiEdit(*line, code, document->Size()).MoveBy({8, -1});
        EXPECT_EQ(std::memcmp(line->GetRoiImageCord(), moved.data(), sizeof moved), 0) << code;
    }
}

TEST(RoiFiles, BringBackOneAndAll) {
    std::string error;
    auto document = MakeDocument(KEST_IMAGE_GRAY256);
    for (const RoiKind& kind : roiKinds) {
        auto roi = MakeRoi(kind);
        const TemporaryFile file("one.roi");
        ASSERT_TRUE(SaveRoi(*roi, file.Path(), error)) << error;
        const auto restored = RestoreRoi(file.Path());
        ASSERT_TRUE(restored) << kind.label;
        EXPECT_EQ(restored->GetROIType(), kind.type);
        EXPECT_TRUE(EqualRect(restored->GetBoundingRect(), roi->GetBoundingRect())) << kind.label;
        document->AddRoi(std::move(roi));
    }
    const TemporaryFile file("all.rois"), wrong("wrong.rois", Bytes().Fill(300, 7));
    ASSERT_TRUE(SaveAllRois(*document, file.Path(), error)) << error;
    EXPECT_EQ(RestoreAllRois(*document, file.Path()), roiKindCount);
    EXPECT_EQ(document->RoiCount(), 2 * roiKindCount);
    document->Undo();
    EXPECT_EQ(document->RoiCount(), roiKindCount) << "one step";
    EXPECT_EQ(RestoreAllRois(*document, wrong.Path()), -1);
    EXPECT_FALSE(RestoreRoi(wrong.Path()));

    // Of a file that is cut off, or holds something else too, nothing is taken and nothing stays behind.
    const std::vector<std::uint8_t> whole = file.Content();
    const std::vector<std::uint8_t> other = StoredBytes(*std::make_unique<CcPropertyBag>());
    const auto bag = Record("CcList", "list", Bytes().Add(ListBag(0, 1, -1, 0)).Add(other));
    const TemporaryFile cut("cut.rois", {whole.begin(), whole.end() - 200}), mixed("mixed.rois", bag);
    for (const TemporaryFile* bad : {&cut, &mixed}) {
        Census before = TakeCensus();
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(RestoreAllRois(*document, bad->Path()), -1);
            if (i == 0) before = TakeCensus();
        }
        EXPECT_EQ(TakeCensus(), before);
        EXPECT_EQ(document->RoiCount(), roiKindCount);
    }
    EXPECT_EQ(RestoreAllRois(*document, "absent.rois"), -1);
    EXPECT_FALSE(FileExists("absent.rois")) << "asking for it does not make it";
}

}  // namespace
}  // namespace test
