// Regions in KestView: results and graphs of them, cut out with their place, moved by whole pixels, in files.
#include "document/Histogram.h"
#include "document/Profile.h"
#include "document/Region.h"
#include "document/ResultsTable.h"
#include "document/RoiEdit.h"
#include "document/RoiFiles.h"
#include "document/RoiKinds.h"
#include "platform/Text.h"
#include "support/Imports.h"
#include "viewer/SampleDocuments.h"

namespace test {
namespace {

std::unique_ptr<CcRoiBase> SmallRect() { return Boxed<CcRoiRect>({2, 8, 6, 3}); }

TEST(Results, AreATableThatOtherProgramsRead) {
    auto document = MakeDocument(KEST_IMAGE_GRAY256);
    document->AddRoi(SmallRect());
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
    std::string shown;
    for (const double value : {40565616.25, 999999.7, -123456789012345.0, 1e15, 0.0, 12.34567, 1.5e-7})
        shown += PlainNumber(value, 6) + ' ';
    EXPECT_EQ(shown, "40565616 1000000 -123456789012345 1e+15 0 12.3457 1.5e-07 ");
    EXPECT_EQ(ParseNumber(" 1,5 "), 1.5);
    EXPECT_EQ(ParseNumber("1.5 mm"), std::nullopt);
    EXPECT_EQ(ParseNumber("nan"), std::nullopt);
}

TEST(Graphs, CountAndFollowTheRegion) {
    auto document = MakeDocument(KEST_IMAGE_GRAY256);
    const auto rect = Boxed<CcRoiRect>({0, 1, 3, 0});
    Histogram histogram = *MakeHistogram(*document, rect.get());
    EXPECT_EQ(histogram.pixels, 8);
    for (const int value : {0, 7, 14, 21, 91, 98, 105, 112})
        EXPECT_EQ(histogram.channels[0].counts[static_cast<std::size_t>(value)], 1);
    auto colours = MakeDocument(KEST_IMAGE_HSL);
    histogram = *MakeHistogram(*colours, nullptr);
    std::vector<long long> hues(256);
    for (int i = 0; i < pixelCount; ++i)
        ++hues[static_cast<BYTE*>(static_cast<Cc24BitHSLImage&>(colours->Image()).GetBitMapImageDataHSL())[3 * i + 2]];
    EXPECT_TRUE(std::equal(hues.begin(), hues.end(), histogram.channels[0].counts.begin())) << "hue, not red";
    // A line that runs over itself counts each pixel once.
    const auto folded = Outlined<CcRoiFreeHandLine>({{3, 2}, {4, 2}, {5, 2}, {4, 2}, {5, 2}, {6, 2}});
    EXPECT_EQ(MakeHistogram(*document, folded.get())->pixels, 4);

    const std::vector<tagPoints> profile = MakeProfile(*document, *Boxed<CcRoiLine>({1, 2, 9, 2}));
    ASSERT_EQ(profile.size(), 9u);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(profile[static_cast<std::size_t>(i)].x, i);
        EXPECT_EQ(profile[static_cast<std::size_t>(i)].y, static_cast<unsigned char>((2 * columns + 1 + i) * 7));
    }

    // Beyond the picture it goes on with what lies at the picture's edge.
    const std::vector<tagPoints> beyond = MakeProfile(*document, *Boxed<CcRoiLine>({-3, -2, -3, rows + 1}));
    ASSERT_EQ(beyond.size(), 15u);
    for (const auto& [at, row] : {std::pair{0, 0}, {3, 1}, {13, rows - 1}})
        EXPECT_EQ(beyond[static_cast<std::size_t>(at)].y, static_cast<unsigned char>(row * columns * 7)) << at;

    // The stairs of a slanted outline are no longer than the line that they stand for; what stands before them stays.
    const auto polyline = Outlined<CcRoiPolyLine>(
        {{0, 0}, {0, 1}, {0, 2}, {0, 3}, {0, 4}, {1, 4}, {3, 5}, {4, 6}, {5, 6}, {6, 7}, {7, 7}, {8, 8}});
    const std::vector<tagPoints> bent = MakeProfile(*document, *polyline);
    EXPECT_NEAR(bent.back().x, KestRoiLengthPixels(polyline.get()), 1e-3);
    for (std::size_t i = 1; i < bent.size(); ++i) EXPECT_GT(bent[i].x, bent[i - 1].x) << "a corner is one sample";
    EXPECT_EQ(bent[3].x, 3);
    EXPECT_EQ(bent[3].y, static_cast<unsigned char>(3 * columns * 7));
}

TEST(Region, KeepsTheSamplesAndThePlaceInTheWorld) {
    for (const int type : allTypes) {
        SCOPED_TRACE(type);
        auto document = MakeDocument(type);
        const auto region = CutOut(*document, *SmallRect());
        ASSERT_TRUE(region);
        ASSERT_EQ(region->GetImageType(), type);
        ASSERT_TRUE(SizeOf(*region).cx == 4 && SizeOf(*region).cy == 5);
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 4; ++x)
                EXPECT_EQ(static_cast<float>((*region)(x, y)), static_cast<float>(document->Image()(x + 2, y + 3)));
    }
    auto document = MakeDocument(KEST_IMAGE_GRAY256);
    tagPoints image[4] = {{0, 0}, {10, 1}, {9, 9}, {1, 8}}, world[4] = {{0, 0}, {5, 0}, {5, 5}, {0, 5}};
    std::unique_ptr<CcCalibration> calibration(new CcCalibration);
    ASSERT_EQ(calibration->DoCalibration(image, world, 4, columns, rows), 0);
    ASSERT_TRUE(document->SetCalibration(std::move(calibration), "plate.cal"));
    Document region(CutOut(*document, *SmallRect()));
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
    tagPoints point = {1.5f, 1.75f};
    const bool isBox = kind.type == KEST_ROI_RECT || kind.type == KEST_ROI_ELLIPSE || kind.type == KEST_ROI_LINE;
    const int result = kind.type == KEST_ROI_POINT ? roi->SetRoiImageCord(&point)
                       : isBox                     ? SetBox(*roi, {1, 6, 7, 1})
                                                   : SetOutline(*roi, {{1, 1}, {5, 1}, {5, 5}, {1, 5}});
    EXPECT_EQ(result, 0) << kind.label;
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
    struct {
        int code;
        POINT by;
        Sides expected;
    } const handles[] = {{1, {9, 1}, {2, 9, 6, 3}},  {2, {9, 1}, {2, 8, 6, 4}},  {3, {1, 9}, {3, 8, 6, 3}},
                         {4, {-6, 9}, {0, 8, 2, 3}}, {5, {1, -7}, {3, 3, 6, 1}}, {6, {50, 1}, {2, 9, 12, 3}},
                         {7, {1, 1}, {3, 8, 6, 4}},  {8, {1, -1}, {2, 8, 7, 2}}};
    for (const auto& handle : handles) {
        const auto rect = SmallRect();
        RoiEdit(*rect, handle.code, document->Size()).MoveBy(handle.by);
        EXPECT_EQ(SidesOf(*rect), handle.expected) << "handle " << handle.code;
    }
    for (const auto& [code, moved] : {std::pair{5, Sides{9, 1, 3, 4}}, {8, Sides{1, 2, 11, 3}}}) {
        const auto line = Boxed<CcRoiLine>({1, 2, 3, 4});
        RoiEdit(*line, code, document->Size()).MoveBy({8, -1});
        EXPECT_EQ(SidesOf(*line), moved) << code;
    }
    // As far out as numbers go: no further, but back.
    for (const auto& [by, x] : {std::pair{-8L, INT_MIN}, {8L, INT_MIN + 8}}) {
        const auto line = Boxed<CcRoiLine>({INT_MIN, 2, INT_MIN, 4});
        RoiEdit(*line, 0, document->Size()).MoveBy({by, 0});
        EXPECT_EQ(SidesOf(*line), (Sides{x, 2, x, 4})) << by;
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
    EXPECT_FALSE(RestoreRoi(wrong.Path()));

    // Of a file that is cut off, or holds something else too, nothing is taken and nothing stays behind.
    const std::vector<std::uint8_t> whole = file.Content();
    const std::vector<std::uint8_t> other = StoredBytes(*std::make_unique<CcPropertyBag>());
    const auto bag = Record("CcList", "list", Bytes().Add(ListBag(0, 1, -1, 0)).Add(other));
    const TemporaryFile cut("cut.rois", {whole.begin(), whole.end() - 200}), mixed("mixed.rois", bag);
    for (const TemporaryFile* bad : {&wrong, &cut, &mixed}) {
        const int before = CcRoiBase::iNumOfROIs;
        EXPECT_EQ(RestoreAllRois(*document, bad->Path()), -1);
        EXPECT_EQ(CcRoiBase::iNumOfROIs, before);
        EXPECT_EQ(document->RoiCount(), roiKindCount);
    }
    EXPECT_EQ(RestoreAllRois(*document, "absent.rois"), -1);
    EXPECT_FALSE(FileExists("absent.rois")) << "asking for it does not make it";

    // The library tells of a full disk in a box, and nobody adds another one.
    EXPECT_FALSE(SaveRoi(document->Roi(0), R"(Z:\dev\full)", error));
    EXPECT_EQ(error, "");
    EXPECT_EQ(TakeBoxes().size(), 1u);
}

/// How often a list of more than a hundred ROIs can still grow; 1024 bytes are a display table.
int growthsLeft;
HGLOBAL WINAPI GrowSometimes(UINT flags, SIZE_T bytes) {
    constexpr SIZE_T slot = sizeof(void*);
    const bool isList = bytes % slot == 0 && bytes > 100 * slot && bytes < 300 * slot && bytes != 1024;
    return isList && growthsLeft-- <= 0 ? nullptr : GlobalAlloc(flags, bytes);
}

void* __cdecl GiveNothing(std::size_t) { return nullptr; }

TEST(Rois, StayAsTheyAreWhenMemoryIsShort) {
    auto document = MakeDocument(KEST_IMAGE_INT16);
    for (int i = 0; i < 149; ++i) document->Image().GetListROI()->InsertTail(SmallRect().release());
    document->SetSelected(document->Roi(7), true);
    const TemporaryFile file("many.rois"), session("many.kvs");
    std::string error, warning;
    ASSERT_TRUE(SaveAllRois(*document, file.Path(), error) && SaveSession(*document, session.Path(), error)) << error;
    const int before = CcRoiBase::iNumOfROIs;
    const HMODULE library = GetModuleHandleA("KestApi.dll");
    const ReplacedImport lists(library, "GlobalAlloc", &GrowSometimes);
    // Only the list that is read from a file can grow.
    growthsLeft = 1;
    EXPECT_EQ(RestoreAllRois(*document, file.Path()), 0);
    document->AddRoi(SmallRect());
    growthsLeft = 1;
    EXPECT_FALSE(OpenSession(session.Path(), error, warning));
    EXPECT_EQ(error, "") << "the library has told";
    EXPECT_EQ(TakeBoxes().size(), 3u);
    // The step of the history cannot be made.
    const ReplacedImport steps(library, "malloc", &GiveNothing);
    EXPECT_THROW(document->DeleteSelectedRois(), std::bad_alloc);
    EXPECT_THROW(document->RenameRoi(document->Roi(7), "other"), std::bad_alloc);
    EXPECT_EQ(TakeBoxes().size(), 0u);
    EXPECT_STRNE(document->Roi(7).GetName(), "other");
    EXPECT_EQ(document->RoiCount(), 149);
    EXPECT_EQ(CcRoiBase::iNumOfROIs, before);
    EXPECT_FALSE(document->CanUndo() || document->IsModified());
}

}  // namespace
}  // namespace test
