// Sessions of KestView: what they bring back, and what is refused.
#include "document/Conversion.h"
#include "document/Session.h"
#include "platform/Text.h"
#include "support/Imports.h"
#include "viewer/SampleDocuments.h"

namespace test {
namespace {

TEST(Session, BringsBackEveryClassWithItsValuesRegionsAndCalibration) {
    for (const int type : allTypes) {
        SCOPED_TRACE(type);
        const TemporaryFile calibrationFile("session-test.cal");
        auto document = MakeDocument(type);
        const std::string longName(120, 'n');
        document->Image().SetName(longName.c_str());
        document->AddRoi(Boxed<CcRoiRect>({2, 8, 6, 3}));
        document->RenameRoi(document->Roi(0), "a region");
        document->SetBands({{10, 20, 1}, {30, 40.5, 4}});
        document->SetDisplayTable(103);
        const bool hasTables = type != KEST_IMAGE_BINARY && !document->Class().isColour;
        if (hasTables) document->SetTableCurve(103, 0, {{0, 255}, {60, 10}, {250, 0}});
        document->SetChannel(document->Channel() + 1);
        auto calibration = HalfUnits();
        ASSERT_EQ(calibration->Save(calibrationFile.Path()), 0);
        ASSERT_TRUE(document->SetCalibration(std::move(calibration), calibrationFile.Path()));

        const Picture inOwnColours = Through(*document, 100);
        Through(*document, 104);
        auto loaded = Reopened(*document);
        ASSERT_TRUE(loaded);
        EXPECT_EQ(Through(*loaded, 100), inOwnColours);
        EXPECT_EQ(document->Name(), longName) << "cut only while it was written";
        EXPECT_EQ(loaded->Name(), longName);
        EXPECT_EQ(loaded->Class().type, type);
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
        EXPECT_FALSE(document->IsModified() || loaded->IsModified());
        if (!document->Class().isWide) continue;
        // The range that is shown.
        const tagPoints whole = document->ShownRange();
        const float third = (whole.y - whole.x) / 3;
        document->SetTableCurve(102, 0, {{whole.x + third, 0}, {whole.y - third, 255}});
        loaded = Reopened(*document);
        for (Document* shown : {document.get(), loaded.get()}) {
            Through(*shown, 102);
            EXPECT_NEAR(shown->ShownRange().x, whole.x + third, 1e-5 * third);
            EXPECT_NEAR(shown->ShownRange().y, whole.y - third, 1e-5 * third);
        }
    }
}

/// The file of a server that was looked for.
std::string lookedFor;
DWORD WINAPI LookForFile(const char* path) {
    WIN32_FILE_ATTRIBUTE_DATA found;
    if (path[0] == '\\') lookedFor = path;
    return GetFileAttributesExA(path, GetFileExInfoStandard, &found) ? found.dwFileAttributes : INVALID_FILE_ATTRIBUTES;
}

TEST(Session, OpensACalibrationElsewhereOnlyWhenTheUserWantsIt) {
    const TemporaryFile file("asked.kvs");
    auto document = MakeDocument(KEST_IMAGE_GRAY256);
    document->calibrationPath = "\\\\server\\share\\plate.cal";
    std::string error, warning, question;
    ASSERT_TRUE(SaveSession(*document, file.Path(), error)) << error;
    const auto refuse = [&](const std::string& text) { return question = text, false; };
    {
        const ReplacedImport looking(nullptr, "GetFileAttributesA", &LookForFile);
        ASSERT_TRUE(OpenSession(file.Path(), error, warning, refuse)) << error;
    }
    EXPECT_EQ(lookedFor, "") << "no server hears of it";
    EXPECT_NE(question.find("\\\\server\\share\\plate.cal\n\nOpen it?"), std::string::npos) << question;
    EXPECT_NE(warning, "");
    // The file of that name beside the session is taken unasked.
    const TemporaryFile beside("plate.cal");
    ASSERT_EQ(HalfUnits()->Save(beside.Path()), 0);
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
    const TemporaryFile list("session-list.kvs", StoredBytes(*std::make_unique<CcList>()));
    EXPECT_FALSE(OpenSession(list.Path(), error, warning));
    EXPECT_FALSE(OpenSession("no-such-file.kvs", error, warning));
    EXPECT_FALSE(FileExists("no-such-file.kvs"));
}

TEST(Session, OlderOnesHoldTheirBandsAsLevels) {
    for (const int type : wideTypes) {
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

}  // namespace
}  // namespace test
