// Files, streams, queries and drawing of all ROI classes.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "KestApi.h"
#include "image/Support.h"
#include "roi/Host.h"
#include "support/Dialogs.h"

using test::Bytes;

namespace {

/// What distinguishes the classes in files and streams, written out by hand.
struct Kind {
    const char* className;
    int type;
    const char* namePattern;
    const char* recordKey;
    Bytes record;  ///< of a ROI with known coordinates
    bool isOutline;
};

const Kind kinds[] = {
    {"CcRoiRect", 0, "Rect.", "CcRoiRect::stImageRect", Bytes().I32(3).I32(9).I32(7).I32(4), false},
    {"CcRoiLine", 1, "Line.", "CcRoiLine::stImageLine", Bytes().I32(1).I32(2).I32(8).I32(5), false},
    {"CcRoiFreeHandLine", 2, "FreeLine.", "CcRoiFreeHandLine::stImageFreeHand", Bytes(), true},
    {"CcRoiPolyLine", 3, "PolyLine.", "CcRoiPolyLine::stImageFreeHand", Bytes(), true},
    {"CcRoiEllipse", 4, "Ellipse.", "CcRoiEllipse::stImageEllipse", Bytes().I32(-3).I32(9).I32(7).I32(4), false},
    {"CcRoiFreeHand", 5, "Freehand.", "CcRoiFreeHand::stImageFreeHand", Bytes(), true},
    {"CcRoiPolyFreeHand", 6, "PolyFree.", "CcRoiPolyFreeHand::stImageFreeHand", Bytes(), true},
    {"CcRoiPoint", 7, "P.", "CcRoiPoint::stSubPixelImagePoint", Bytes().F32(2.75F).F32(6.5F), false},
};

Bytes OutlinePoints() { return Bytes().I32(4).I32(5).I32(5).I32(5).I32(5).I32(6).I32(4).I32(6); }

/// Gives a ROI the record of its kind: an outline, a point, or a box, which is a line from corner to corner as well.
void SetRecord(const Kind& kind, CcRoiBase& roi, std::vector<POINT> pixels, RECT box, tagPoints point) {
    PixelGroupTag outline = {0, 0, 0, static_cast<int>(pixels.size()), pixels.data(), nullptr};
    void* record = kind.isOutline ? static_cast<void*>(&outline) : kind.type == 7 ? static_cast<void*>(&point) : &box;
    EXPECT_EQ(roi.SetRoiImageCord(record), 0);
}

std::unique_ptr<CcRoiBase> Make(const Kind& kind, bool filled = true) {
    CcMemObjectStorage stream;
    CcHLObject* made = nullptr;
    EXPECT_EQ(stream.CreateObject(kind.className, &made), 0);
    std::unique_ptr<CcRoiBase> roi(dynamic_cast<CcRoiBase*>(made));
    if (!filled) return roi;
    RECT box = {};
    std::memcpy(&box, kind.record.data(), std::min(sizeof box, kind.record.size()));
    SetRecord(kind, *roi, {{4, 5}, {5, 5}, {5, 6}, {4, 6}}, box, {2.75F, 6.5F});
    return roi;
}

Bytes ExpectedRecord(const Kind& kind) { return kind.isOutline ? OutlinePoints() : kind.record; }

Bytes FileOf(const Kind& kind, float version = 1.0F, const std::string& name = "roi") {
    const int third = kind.isOutline ? 4 : static_cast<int>(kind.record.size());
    return Bytes().F32(version).I32(kind.type).I32(third).Text(name, 260).Add(ExpectedRecord(kind));
}

Bytes BagOf(const Kind& kind) {
    Bytes bag = Bytes().I32(kind.isOutline ? 2 : 1);
    if (!kind.isOutline) {
        const int bytes = static_cast<int>(kind.record.size());
        return bag.Add(test::PropertyEntry(kind.recordKey, 5, 0, bytes)).I32(bytes).Add(kind.record);
    }
    return bag.Add(test::PropertyEntry(kind.recordKey, 5, 0, 24))
        .Add(test::PropertyEntry(std::string(kind.recordKey) + "::stPOINTS", 5, 24, 32))
        .I32(56)
        .I32(0).I32(255).I32(0).I32(4).I32(0).I32(0)  // unselected green, four points, no pointer and no handle
        .Add(OutlinePoints());
}

Bytes StreamOf(const Kind& kind) {
    return test::Record(kind.className, "roi", test::Record("CcPropertyBag", "", BagOf(kind)));
}

Bytes RecordBytes(const Kind& kind, CcRoiBase& roi) {
    Bytes bytes;
    if (kind.isOutline) {
        const auto& outline = *static_cast<PixelGroupTag*>(roi.GetRoiImageCord());
        for (int i = 0; i < outline.iNumOfPoints; ++i) bytes.I32(outline.stPOINTS[i].x).I32(outline.stPOINTS[i].y);
    } else {
        const auto* record = static_cast<std::uint8_t*>(roi.GetRoiImageCord());
        bytes.assign(record, record + kind.record.size());
    }
    return bytes;
}

}  // namespace

TEST(RoiRecords, NamesTypesFilesAndStreamsToTheByte) {
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.className);
        const auto roi = Make(kind), next = Make(kind, false);
        EXPECT_EQ(roi->GetROIType(), kind.type);
        const std::string pattern = kind.namePattern, name = roi->GetName(), nextName = next->GetName();
        EXPECT_EQ(name.substr(0, pattern.size()), pattern);
        EXPECT_EQ(std::stoi(nextName.substr(pattern.size())), std::stoi(name.substr(pattern.size())) + 1);

        roi->SetName("roi");
        const test::TemporaryFile file("one.roi", Bytes().Fill(999, 7));
        EXPECT_EQ(roi->Save(file.Path()), 0);
        EXPECT_EQ(file.Content(), FileOf(kind));
        EXPECT_EQ(next->Restore(file.Path()), 0);
        EXPECT_STREQ(next->GetName(), "roi");
        EXPECT_EQ(RecordBytes(kind, *next), ExpectedRecord(kind));
        EXPECT_EQ(roi->Save("no such folder\\x"), -1);

        EXPECT_EQ(test::StoredBytes(*roi), StreamOf(kind));
        const auto loaded = Make(kind, false);
        EXPECT_EQ(test::LoadRecord(*loaded, StreamOf(kind)), 0);
        EXPECT_EQ(RecordBytes(kind, *loaded), ExpectedRecord(kind));
        EXPECT_EQ(loaded->Load(nullptr), -1);
        EXPECT_EQ(loaded->Store(nullptr), -1);
        EXPECT_EQ(loaded->SetRoiImageCord(nullptr), -1);
        EXPECT_EQ(loaded->UpdateImageIfNeeded(nullptr, 0, 0, 1, nullptr, 1), 0);
    }
}

TEST(RoiRecords, WhatIsRefusedChangesNothing) {
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.className);
        const auto roi = Make(kind);
        roi->SetName("kept");
        Bytes otherType = FileOf(kind), tooFew = FileOf(kind), tooMany = FileOf(kind), negative = FileOf(kind);
        otherType[4] = static_cast<std::uint8_t>((kind.type + 1) % 8);
        tooFew.pop_back();
        tooMany[11] = 0x7F;
        negative[11] = 0xFF;
        for (const Bytes& bad : {otherType, tooFew, tooMany, negative, FileOf(kind, 1.5F), FileOf(kind, NAN), Bytes()}) {
            const test::TemporaryFile file("bad.roi", bad);
            EXPECT_EQ(roi->Restore(file.Path()), -1);
        }
        EXPECT_STREQ(roi->GetName(), "kept");
        Bytes otherKey = StreamOf(kind), shortRecord = StreamOf(kind), noFooter = StreamOf(kind);
        otherKey[128 + 128 + 4] = 'X';
        shortRecord[128 + 128 + 4 + 268] = 3;  // the entry's length: the bag then contradicts itself
        noFooter.resize(noFooter.size() - 200);
        for (const Bytes& bad : {otherKey, shortRecord, noFooter}) EXPECT_LT(test::LoadRecord(*roi, bad), 0);
        EXPECT_EQ(RecordBytes(kind, *roi), ExpectedRecord(kind));
        const test::TemporaryFile fullName("full.roi", FileOf(kind, 1.0F, std::string(260, 'f')));
        EXPECT_EQ(roi->Restore(fullName.Path()), 0);
        EXPECT_EQ(roi->GetName(), std::string(259, 'f'));
        if (!kind.isOutline) continue;
        // A count that the points do not bear out, and one that no block could hold.
        for (const int count : {-1, 3, 5, 0x10000000, INT_MAX}) {
            Bytes lie = StreamOf(kind);
            const std::size_t at = 128 + 128 + 4 + 2 * 272 + 4 + 12;
            for (int i = 0; i < 4; ++i) lie[at + i] = static_cast<std::uint8_t>(count >> (8 * i));
            EXPECT_LT(test::LoadRecord(*roi, lie), 0) << count;
        }
        EXPECT_EQ(RecordBytes(kind, *roi), ExpectedRecord(kind));
    }
}

TEST(RoiRecords, FilesInUseOrOnAFullDiskOrWithoutMemory) {
    const char fullDisk[] = R"(Z:\dev\full)";
    const std::vector<test::Box> lost = {{"File I/O Error", "Problem writing ROI to file"}};
    CcRoiFreeHand roi;
    SetRecord(kinds[5], roi, std::vector<POINT>(50000, {7, 8}), {}, {});
    const test::TemporaryFile file("used.roi", Bytes().Fill(5, 7));
    {
        const HANDLE reader = CreateFileA(file.Path(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                          OPEN_EXISTING, 0, nullptr);
        EXPECT_EQ(roi.Save(file.Path()), -1);
        EXPECT_EQ(roi.PrintPerimiterPointsToFile(file.Path()), 0);
        CloseHandle(reader);
    }
    EXPECT_EQ(test::TakeBoxes(), std::vector<test::Box>());
    EXPECT_EQ(roi.Save(fullDisk), 0);
    EXPECT_EQ(test::TakeBoxes(), lost);
    EXPECT_EQ(roi.PrintPerimiterPointsToFile(fullDisk), -1);
    EXPECT_EQ(test::TakeBoxes(), lost);

    struct Refusing : CcRoiFreeHand {
        bool refuses = false;
        int SetRoiImageCord(void* record) override { return refuses ? -1 : CcRoiFreeHand::SetRoiImageCord(record); }
    } full;
    SetRecord(kinds[5], full, {{1, 2}, {3, 4}}, {}, {});
    full.refuses = true;
    EXPECT_EQ(roi.Save(file.Path()), 0);
    EXPECT_EQ(full.Restore(file.Path()), -1);
    EXPECT_EQ(RecordBytes(kinds[5], full), Bytes().I32(1).I32(2).I32(3).I32(4));
}

TEST(RoiRecords, EmptyOutlines) {
    for (const Kind& kind : kinds) {
        if (!kind.isOutline) continue;
        SCOPED_TRACE(kind.className);
        const auto empty = Make(kind, false);
        int count = 5;
        EXPECT_EQ(empty->GetCurrentBoundingRect(), nullptr);
        EXPECT_EQ(empty->GetXBoundary(0, &count), nullptr);
        EXPECT_EQ(count, 0);
        PixelGroupTag record = {0, 0, 0, 0, nullptr, nullptr};
        EXPECT_EQ(empty->SetRoiImageCord(&record), -1);
        record.iNumOfPoints = 5;
        EXPECT_EQ(empty->SetRoiImageCord(&record), -1);
        const auto full = Make(kind);
        EXPECT_EQ(test::LoadRecord(*full, test::StoredBytes(*empty)), 0);
        EXPECT_EQ(full->GetBoundingRect(), nullptr);
        // Its file is that of another one without points, and takes none away.
        empty->SetName("nothing");
        const test::TemporaryFile file("empty.roi", Bytes());
        EXPECT_EQ(empty->Save(file.Path()), 0);
        const auto other = Make(kind);
        const std::string name = other->GetName();
        EXPECT_EQ(other->Restore(file.Path()), -1);
        EXPECT_EQ(other->GetName(), name);
        EXPECT_EQ(RecordBytes(kind, *other), ExpectedRecord(kind));
        EXPECT_EQ(full->Restore(file.Path()), 0);
        EXPECT_STREQ(full->GetName(), "nothing");
    }
}

TEST(RoiRecords, ExtremeCoordinatesNeitherOverflowNorHang) {
    CcGrayImage256 image;
    image.MakeBlankBMP(50, 60, 1, "i");
    test::MemoryPicture picture(64, 64);
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.className);
        const auto roi = Make(kind, false);
        SetRecord(kind, *roi, {{INT_MIN, INT_MAX}, {INT_MAX, INT_MIN}, {INT_MIN, INT_MIN}},
                  {INT_MIN, INT_MAX, INT_MAX, INT_MIN}, {1e30F, NAN});
        roi->GetBoundingRect();
        int count = 0;
        for (const int line : {INT_MIN, -1, 0, 7, INT_MAX}) {
            roi->GetXBoundary(line, &count);
            roi->GetYBoundary(line, &count);
        }
        // All but the point, wherever it is, are larger than the image.
        const std::unique_ptr<CcImage> region(image.GetRegion(roi.get(), 0, 0));
        EXPECT_EQ(region != nullptr, kind.type == 7);
        roi->MouseHitTest(GetDesktopWindow(), 0, 0, 1, &image, {5, 5}, 1);
        RECT client = {0, 0, 64, 64};
        EXPECT_EQ(roi->ShowROI(picture, &client, 0, 0, 1, &image, 3, 0), 0);
    }
}

TEST(RoiRecords, RegionsUnderEveryKind) {
    CcGrayImage256 image;
    test::FillPattern(image, 100, 80, "i");
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.className);
        const auto roi = Make(kind, false);
        SetRecord(kind, *roi, {{50, 40}, {51, 41}, {52, 42}, {53, 41}, {54, 40}, {53, 39}, {52, 38}, {51, 39}},
                  {20, 60, 60, 30}, {5.5F, 6.5F});
        const std::unique_ptr<CcImage> region(image.GetRegion(roi.get(), 255, 0));
        ASSERT_NE(region, nullptr);
        // Of each row all listed columns but the last one are copied, everything else keeps the fill value.
        const RECT bounds = *roi->GetBoundingRect();
        int height, width;
        region->GetHeightWidth(&height, &width);
        ASSERT_EQ(width, bounds.right - bounds.left);
        ASSERT_EQ(height, bounds.top - bounds.bottom);
        for (int y = 0; y < height; ++y) {
            std::map<LONG, float> copied;
            int count = 0;
            const int* columns = roi->GetXBoundary(y + bounds.bottom, &count);
            for (int i = 0; i + 1 < count; ++i) copied[columns[i]] = test::PatternFloat(columns[i], y + bounds.bottom);
            for (int x = 0; x < width; ++x) {
                const auto column = copied.find(x + bounds.left);
                ASSERT_EQ((*region)(x, y), column == copied.end() ? 255.0F : column->second) << x << ' ' << y;
            }
        }
    }
}

namespace {

/// Places a ROI between two corners: a box or a line by its record, an outline as a zigzag between them.
template <class Roi>
void Place(Roi& roi, int low, int high) {
    if constexpr (requires { roi.stDrawSegStartPoint; }) {
        std::vector<POINT> zigzag;
        for (int i = low; i <= high; ++i) zigzag.push_back({i, i % 2 ? low : high});
        PixelGroupTag record = {0, 0, 0, static_cast<int>(zigzag.size()), zigzag.data(), nullptr};
        ASSERT_EQ(roi.SetRoiImageCord(&record), 0);
    } else {
        RECT box = {low, high, high, low};
        if (std::is_same_v<Roi, CcRoiLine>) std::swap(box.top, box.bottom);
        ASSERT_EQ(roi.SetRoiImageCord(&box), 0);
    }
}

std::vector<int> RowOf(CcRoiBase& roi, int y) {
    int count = 0;
    const int* columns = roi.GetXBoundary(y, &count);
    return std::vector<int>(columns, columns + count);
}

template <class Roi>
struct Copies : testing::Test {};
using ListingKinds = testing::Types<CcRoiRect, CcRoiEllipse, CcRoiLine, CcRoiFreeHand, CcRoiFreeHandLine, CcRoiPolyLine,
                                    CcRoiPolyFreeHand>;

}  // namespace

TYPED_TEST_SUITE(Copies, ListingKinds);

TYPED_TEST(Copies, AnswerQueriesFromBuffersOfTheirOwn) {
    TypeParam assigned;
    Place(assigned, 0, 8);
    ASSERT_NE(assigned.GetBoundingRect(), nullptr);
    auto source = std::make_unique<TypeParam>();
    Place(*source, 0, 3000);
    int count = 0;
    EXPECT_EQ(TypeParam(*source).GetXBoundary(0, &count), nullptr);
    ASSERT_NE(source->GetBoundingRect(), nullptr);
    TypeParam made(*source);
    assigned = *source;
    const int* listed = source->GetXBoundary(0, &count);
    const std::vector<int> expected(listed, listed + count);
    ASSERT_FALSE(expected.empty());
    for (TypeParam* copy : {&made, &assigned}) {
        EXPECT_EQ(RowOf(*copy, 0), expected);
        EXPECT_NE(copy->GetXBoundary(0, &count), listed);
        EXPECT_NE(copy->GetYBoundary(1, &count), nullptr);
    }
    EXPECT_EQ(RowOf(assigned = assigned, 0), expected);
    source.reset();
    // Shapes stand for themselves; an outline's points went with the source.
    Place(assigned, 0, 3000);
    ASSERT_NE(assigned.GetBoundingRect(), nullptr);
    EXPECT_EQ(RowOf(assigned, 0), expected);
}

TEST(Copies, ForgottenBlocksAreNotTakenForTheirOwn) {
    // The copy tells of a buffer of 800,000 entries whose block is freed, and the next one can lie at its place.
    auto source = std::make_unique<CcRoiRect>();
    RECT wide = {0, 2, 400000, 0}, narrow = {0, 2, 180000, 0};
    source->SetRoiImageCord(&wide);
    ASSERT_NE(source->GetBoundingRect(), nullptr);
    const CcRoiRect copy(*source);
    source.reset();
    CcRoiRect other;
    other.SetRoiImageCord(&narrow);
    ASSERT_NE(other.GetBoundingRect(), nullptr);
    other = copy;
    ASSERT_NE(other.GetBoundingRect(), nullptr);
    EXPECT_EQ(RowOf(other, 1).size(), 400001u);
}

TEST(CcRoiLine, BoundsInTheDirectionDrawnAndInOrder) {
    CcRoiLine line;
    tagROILINE record = {40, 50, 10, 90};
    line.SetRoiImageCord(&record);
    const RECT drawn = *line.GetCurrentBoundingRect(), inOrder = *line.GetBoundingRect();
    EXPECT_TRUE(drawn.left == 40 && drawn.top == 50 && drawn.right == 10 && drawn.bottom == 90);
    EXPECT_TRUE(inOrder.left == 10 && inOrder.top == 90 && inOrder.right == 40 && inOrder.bottom == 50);
}

TEST(FreehandQueries, RunsEndWhereTheListIsFull) {
    // Twelve pixels on the lower row of a box that has room for four.
    std::vector<POINT> scribble(12);
    for (std::size_t i = 0; i < scribble.size(); ++i) scribble[i] = {static_cast<LONG>(i % 3), 0};
    scribble.push_back({1, 1});
    PixelGroupTag record = {0, 0, 0, 13, scribble.data(), nullptr};
    CcRoiFreeHandLine ascending;
    CcRoiPolyLine drawn;
    for (CcRoiBase* roi : std::initializer_list<CcRoiBase*>{&ascending, &drawn}) {
        ASSERT_EQ(roi->SetRoiImageCord(&record), 0);
        ASSERT_NE(roi->GetBoundingRect(), nullptr);
        CcRoiRows rows(roi);
        int runs = 0;
        const KestSpan* spans = rows.GetSpans(0, &runs);
        std::vector<int> columns;
        for (int i = 0; i < runs; ++i)
            for (int x = spans[i].iFirst; x <= spans[i].iLast; ++x) columns.push_back(x);
        EXPECT_EQ(columns, RowOf(*roi, 0));
        EXPECT_EQ(columns.size(), 4u);
    }
}

TEST(FreehandQueries, RoisOfOneClassDoNotDisturbEachOther) {
    POINT first[] = {{0, 0}, {1, 0}, {2, 0}, {2, 1}, {2, 2}, {1, 2}, {0, 2}, {0, 1}};
    POINT second[] = {{10, 1}, {11, 1}, {12, 1}};
    PixelGroupTag record = {0, 0, 0, 8, first, nullptr};
    CcRoiFreeHand a, b;
    a.SetRoiImageCord(&record);
    record = {0, 0, 0, 3, second, nullptr};
    b.SetRoiImageCord(&record);
    ASSERT_NE(a.GetBoundingRect(), nullptr);
    EXPECT_EQ(CcRoiFreeHand::iSizeOfCommonPerimPointsArr, 8);
    ASSERT_NE(b.GetBoundingRect(), nullptr);
    EXPECT_EQ(RowOf(b, 1), (std::vector<int>{10, 11, 12}));
    EXPECT_EQ(RowOf(a, 1), (std::vector<int>{0, 1, 2}));
    // The class-wide array names the pixels of the row queried last.
    EXPECT_EQ(CcRoiFreeHand::stXCommonPerimPoints[0].iIndex, 7);
    EXPECT_EQ(CcRoiFreeHand::stXCommonPerimPoints[1].x, 2);
    int count;
    const int* rows = a.GetYBoundary(1, &count);
    EXPECT_EQ(std::vector<int>(rows, rows + count), (std::vector<int>{0, 1, 2}));

    // A new outline is seen at once, as far as the work buffer reaches.
    POINT third[] = {{4, 7}, {5, 7}, {6, 7}, {7, 7}, {8, 7}};
    record = {0, 0, 0, 5, third, nullptr};
    b.SetRoiImageCord(&record);
    EXPECT_EQ(RowOf(b, 1).size(), 0u);
    EXPECT_EQ(RowOf(b, 7), (std::vector<int>{4, 5, 6, 7}));
    record = {0, 0, 0, 3, second, nullptr};
    b.SetRoiImageCord(&record);
    b.GetBoundingRect();

    // A moved pixel is seen by the next GetBoundingRect.
    auto& outline = *static_cast<PixelGroupTag*>(b.GetRoiImageCord());
    outline.stPOINTS[0].x = -50;
    outline.stPOINTS[1].y = 70;
    EXPECT_EQ(RowOf(b, 1), (std::vector<int>{10, 11, 12}));
    EXPECT_EQ(b.GetBoundingRect()->left, -50);
    EXPECT_EQ(RowOf(b, 70).size(), 1u);
    // A count that reaches past the block is not followed.
    outline.iNumOfPoints = INT_MAX;
    EXPECT_EQ(b.GetBoundingRect()->left, -50);
    // Two copies take both from the count; what was released is made again.
    for (int i = 0; i < 2; ++i) const CcRoiFreeHand copy(a);
    EXPECT_EQ(CcRoiFreeHand::hstXCommonPerimPoints, nullptr);
    EXPECT_EQ(a.GetXBoundary(1, &count), nullptr);
    ASSERT_NE(a.GetBoundingRect(), nullptr);
    EXPECT_EQ(RowOf(a, 1).size(), 3u);
}

TEST(FreehandQueries, PerimeterTextFile) {
    POINT points[] = {{4, -5}, {5, 6}};
    PixelGroupTag record = {0, 0, 0, 2, points, nullptr};
    CcRoiPolyLine roi;
    roi.SetRoiImageCord(&record);
    const test::TemporaryFile file("perimeter.txt");
    for (const char* path : {file.Path(), "no such folder\\x", static_cast<const char*>(nullptr)})
        EXPECT_EQ(roi.PrintPerimiterPointsToFile(path), 0);
    const auto content = file.Content();
    EXPECT_EQ(std::string(content.begin(), content.end()), "0\t4\t-5\r\n1\t5\t6\r\n");
}

TEST(FreehandQueries, LongOutlinesAreFast) {
    CcGrayImage256 image;
    image.MakeBlankBMP(4096, 4096, 3, "large");
    std::vector<POINT> points;
    for (int i = 0; i < 1000000; ++i) {
        const double angle = i * 6.283185307179586e-6;
        const double radius = 1500 + 400 * std::sin(angle * 37) + 100 * std::sin(angle * 991);
        points.push_back({static_cast<LONG>(2048 + radius * std::cos(angle)),
                          static_cast<LONG>(2048 + radius * std::sin(angle))});
    }
    PixelGroupTag record = {0, 0, 0, 1000000, points.data(), nullptr};
    CcRoiFreeHand roi;
    roi.SetRoiImageCord(&record);
    const DWORD start = GetTickCount();
    const std::unique_ptr<CcImage> region(image.GetRegion(&roi, 0, 0));
    EXPECT_LT(GetTickCount() - start, 1000u);
    EXPECT_NE(region, nullptr);
}

TEST(ShownRois, PixelsOfEveryKind) {
    const auto expectPixels = [](auto& host, void* record, std::initializer_list<POINT> on,
                                 std::initializer_list<POINT> off) {
        host.roi.SetRoiImageCord(record);
        host.window.Fill(RGB(0, 0, 64));
        host.Show(1);
        const test::Picture shown = host.window.Snapshot();
        for (const POINT& at : on) EXPECT_EQ(shown.At(at.x, at.y), 0xFF0000u) << at.x << ' ' << at.y;
        for (const POINT& at : off) EXPECT_EQ(shown.At(at.x, at.y), 0x000040u) << at.x << ' ' << at.y;
    };
    {
        test::Host<CcRoiEllipse> host;
        RECT box = {20, 79, 60, 39};  // window 20, 20 to 60, 60
        expectPixels(host, &box, {{20, 40}, {40, 20}, {59, 40}, {40, 59}}, {{60, 40}, {40, 60}, {20, 20}, {40, 40}});
    }
    {
        test::Host<CcRoiLine> host;
        tagROILINE line = {10, 89, 30, 79};  // window 10, 10 to 30, 20
        expectPixels(host, &line, {{10, 10}, {20, 15}, {28, 19}}, {{30, 20}, {9, 10}});
        host.zoom = 3;
        expectPixels(host, &line, {{30, 30}, {60, 45}}, {{90, 60}});
    }
    {
        test::Host<CcRoiPoint> host;
        tagPoints point = {50.0F, 49.0F};  // window 50, 50
        host.roi.SetName("");
        expectPixels(host, &point, {{50, 50}, {35, 50}, {64, 50}, {50, 35}, {50, 64}, {40, 50}, {50, 40}, {59, 50}},
                     {{65, 50}, {34, 50}, {50, 65}, {56, 44}});
        const test::Picture without = host.window.Snapshot();
        host.roi.SetName("P.8");
        host.Show(1);
        const test::Picture with = host.window.Snapshot();
        // The device context's own colour, black.
        EXPECT_NE(std::find(with.pixels.begin(), with.pixels.end(), 0u), with.pixels.end());
        int left = 999, bottom = 0;
        for (int i = 0; i < with.width * with.height; ++i)
            if (with.pixels[i] != without.pixels[i]) {
                left = std::min(left, i % with.width);
                bottom = i / with.width;
            }
        EXPECT_GE(left, 58);
        EXPECT_LE(left, 62);
        EXPECT_LT(bottom, 42);
        // Within a pixel, the mark lies within the magnified pixel.
        point = {10.5F, 89.5F};
        host.zoom = 4;
        expectPixels(host, &point, {{42, 38}}, {});
    }
    {
        test::Host<CcRoiPolyFreeHand> closed;
        POINT corner[] = {{10, 89}, {11, 89}, {12, 88}, {12, 87}, {11, 88}};
        PixelGroupTag record = {0, 0, 0, 5, corner, nullptr};
        expectPixels(closed, &record, {{10, 10}, {11, 10}, {12, 11}, {12, 12}, {11, 11}}, {{13, 11}, {10, 11}});
        const auto& outline = *static_cast<PixelGroupTag*>(closed.roi.GetRoiImageCord());
        EXPECT_EQ(outline.iRed, 255);
        closed.Show(0);
        EXPECT_EQ(outline.iGreen, 255);
        EXPECT_EQ(outline.iRed, 0);
    }
}
