// What ROIs tell of their pixels: bounds, rows and columns, regions under them, and what copies and neighbours keep.
#include "roi/RoiKinds.h"

using namespace test;

TEST(RoiQueries, ExtremeCoordinatesNeitherOverflowNorHang) {
    CcGrayImage256 image;
    image.MakeBlankBMP(50, 60, 1, "i");
#if defined(_WIN32)
    MemoryPicture picture(64, 64);
#endif
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
        roi->MouseHitTest(AnyWindow(), 0, 0, 1, &image, {5, 5}, 1);
#if defined(_WIN32)
        RECT client = {0, 0, 64, 64};
        EXPECT_EQ(roi->ShowROI(picture, &client, 0, 0, 1, &image, 3, 0), 0);
#endif
    }
}

TEST(RoiQueries, RegionsUnderEveryKind) {
    CcGrayImage256 image;
    FillPattern(image, 100, 80, "i");
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
            std::vector<float> expected(static_cast<std::size_t>(width), 255.0F), copied;
            std::vector<int> columns = RowOf(*roi, y + bounds.bottom);
            if (!columns.empty()) columns.pop_back();
            for (const int x : columns) expected[x - bounds.left] = PatternFloat(x, y + bounds.bottom);
            for (int x = 0; x < width; ++x) copied.push_back((*region)(x, y));
            ASSERT_EQ(copied, expected) << y;
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
        ASSERT_EQ(SetOutline(roi, zigzag), 0);
    } else {
        const bool isLine = roi.GetROIType() == KEST_ROI_LINE;
        ASSERT_EQ(SetBox(roi, {low, isLine ? low : high, high, isLine ? high : low}), 0);
    }
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
    SetBox(*source, {0, 2, 400000, 0});
    ASSERT_NE(source->GetBoundingRect(), nullptr);
    const CcRoiRect copy(*source);
    source.reset();
    CcRoiRect other;
    SetBox(other, {0, 2, 180000, 0});
    ASSERT_NE(other.GetBoundingRect(), nullptr);
    other = copy;
    ASSERT_NE(other.GetBoundingRect(), nullptr);
    EXPECT_EQ(RowOf(other, 1).size(), 400001u);
}

TEST(RoiQueries, LinesInTheDirectionDrawnAndInOrder) {
    CcRoiLine line;
    SetBox(line, {40, 50, 10, 90});
    const RECT inOrder = {10, 90, 40, 50}, drawn = {40, 50, 10, 90};
    EXPECT_EQ(std::memcmp(line.GetCurrentBoundingRect(), &drawn, sizeof drawn), 0);
    EXPECT_EQ(std::memcmp(line.GetBoundingRect(), &inOrder, sizeof inOrder), 0);
}

TEST(FreehandQueries, RunsEndWhereTheListIsFull) {
    // Twelve pixels on the lower row of a box that has room for four.
    std::vector<POINT> scribble(12);
    for (std::size_t i = 0; i < scribble.size(); ++i) scribble[i] = {static_cast<LONG>(i % 3), 0};
    scribble.push_back({1, 1});
    CcRoiFreeHandLine ascending;
    CcRoiPolyLine drawn;
    for (CcRoiBase* roi : std::initializer_list<CcRoiBase*>{&ascending, &drawn}) {
        ASSERT_EQ(SetOutline(*roi, scribble), 0);
        ASSERT_NE(roi->GetBoundingRect(), nullptr);
        CcRoiRows rows(roi);
        int runs = 0;
        const KestSpan* spans = rows.GetSpans(0, &runs);
        std::vector<int> columns;
        for (const KestSpan& span : std::span(spans, spans + runs))
            for (int x = span.iFirst; x <= span.iLast; ++x) columns.push_back(x);
        EXPECT_EQ(columns, RowOf(*roi, 0));
        EXPECT_EQ(columns.size(), 4u);
    }
}

TEST(FreehandQueries, RoisOfOneClassDoNotDisturbEachOther) {
    CcRoiFreeHand a, b;
    SetOutline(a, {{0, 0}, {1, 0}, {2, 0}, {2, 1}, {2, 2}, {1, 2}, {0, 2}, {0, 1}});
    SetOutline(b, {{10, 1}, {11, 1}, {12, 1}});
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
    SetOutline(b, {{4, 7}, {5, 7}, {6, 7}, {7, 7}, {8, 7}});
    EXPECT_EQ(RowOf(b, 1).size(), 0u);
    EXPECT_EQ(RowOf(b, 7), (std::vector<int>{4, 5, 6, 7}));
    SetOutline(b, {{10, 1}, {11, 1}, {12, 1}});
    b.GetBoundingRect();

    // A moved pixel is seen by the next GetBoundingRect.
    PixelGroupTag& outline = OutlineOf(b);
    EXPECT_NE(b.GetYBoundary(12, &count), nullptr);
    outline.stPOINTS[0].x = -50;
    outline.stPOINTS[1].y = 70;
    EXPECT_EQ(RowOf(b, 1), (std::vector<int>{10, 11, 12}));
    EXPECT_EQ(b.GetBoundingRect()->left, -50);
    EXPECT_EQ(RowOf(b, 70).size(), 1u);
    rows = b.GetYBoundary(11, &count);
    EXPECT_TRUE(rows && count == 1 && rows[0] == 70);
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

TEST(RoiQueries, Rectangles) {
    CcRoiRect roi;
    // A rectangle of one pixel.
    ASSERT_NE(roi.GetBoundingRect(), nullptr);
    EXPECT_EQ(RowOf(roi, 0), std::vector{0});
    SetBox(roi, {10, 30, 20, 5});
    ASSERT_EQ(roi.GetBoundingRect()->right, 20);
    std::vector<int> columns(11);
    std::iota(columns.begin(), columns.end(), 10);
    EXPECT_EQ(RowOf(roi, 7), columns);
    int count = 0;
    const int* rows = roi.GetYBoundary(12, &count);
    ASSERT_EQ(count, 26);
    EXPECT_EQ(rows[25], 30);
    // A record that grows behind the buffer's back is not written past it.
    SetBox(roi, {0, 1000, 1000, 0});
    EXPECT_EQ(roi.GetXBoundary(0, &count), nullptr);
    SetBox(roi, {5, 4, 4, 5});
    roi.GetBoundingRect();
    EXPECT_TRUE(RowOf(roi, 4).empty());
}
