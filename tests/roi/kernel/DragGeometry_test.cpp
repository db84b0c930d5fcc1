// Dragging geometry, against values worked out by hand.
#include "roi/kernel/DragGeometry.h"
#include "support/KernelTests.h"

using namespace kest;

TEST(DragGeometry, HandlesMoveTheirSides) {
    const IntRect expected[] = {{10, 20, 30, 40}, {10, 22, 30, 40}, {10, 20, 30, 42},
                                {11, 20, 30, 40}, {10, 20, 31, 40}, {11, 22, 30, 40},
                                {10, 22, 31, 40}, {11, 20, 30, 42}, {10, 20, 31, 42}};
    for (int code = 0; code <= 8; ++code) {
        IntRect shape = expected[0];
        MoveSides(shape, SidesOfHandle(code), 1, 2);
        EXPECT_EQ(shape, expected[code]) << code;
    }
    IntRect offset = {INT_MAX, INT_MIN, INT_MAX, 0};
    MoveSides(offset, AllSides, 5, -5);
    EXPECT_EQ(offset, (IntRect{INT_MAX, INT_MIN, INT_MAX, -5}));
    EXPECT_EQ(Normalised({9, 8, 1, 2}), (IntRect{1, 2, 9, 8}));
}

TEST(DragGeometry, CursorRange) {
    const IntRect client = {100, 100, 300, 250}, shape = {20, 30, 60, 80};
    // Moving: the mouse keeps its distance to each side.
    EXPECT_EQ(ClipForMove(client, shape, {25, 70}), (IntRect{105, 140, 265, 240}));
    // Resizing: the range is shifted by the distance between mouse and side.
    EXPECT_EQ(ClipForResize(client, shape, {22, 33}, TopSide | LeftSide), (IntRect{102, 103, 302, 253}));
    EXPECT_EQ(ClipForResize(client, shape, {58, 84}, BottomSide | RightSide), (IntRect{98, 104, 298, 254}));
    EXPECT_EQ(ClipForResize(client, shape, {58, 84}, 0), client);
}

TEST(DragGeometry, RectangleHits) {
    const IntRect window = {100, 100, 200, 160};
    const struct {
        int x, y, code;
    } hits[] = {{150, 100, 1}, {146, 104, 1},  {145, 100, -1}, {154, 160, 2}, {100, 130, 3}, {104, 126, 3},
                {200, 134, 4}, {100, 100, 5},  {204, 96, 6},   {96, 164, 7},  {204, 164, 8}, {150, 130, 0},
                {101, 110, 0}, {100, 110, -1}, {105, 95, -1},  {95, 100, -1}, {150, 105, 0}, {300, 300, -1}};
    for (const auto& hit : hits) EXPECT_EQ(HitRectangle(window, {hit.x, hit.y}), hit.code) << hit.x << ' ' << hit.y;
    // On a small rectangle the edge middles win over the corners.
    EXPECT_EQ(HitRectangle({10, 10, 16, 16}, {10, 10}), 1);
    EXPECT_EQ(HitRectangle({INT_MIN, INT_MIN, INT_MAX, INT_MAX}, {50, 50}), 0);
}
