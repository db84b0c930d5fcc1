// Dragging geometry, against values worked out by hand.
#include "roi/kernel/DragGeometry.h"

#include <gtest/gtest.h>

#include <climits>

using namespace kest;

namespace {

void ExpectRect(const IntRect& rect, int left, int top, int right, int bottom) {
    EXPECT_EQ(rect.left, left);
    EXPECT_EQ(rect.top, top);
    EXPECT_EQ(rect.right, right);
    EXPECT_EQ(rect.bottom, bottom);
}

}  // namespace

TEST(DragGeometry, HandlesMoveTheirSides) {
    const IntRect start = {10, 20, 30, 40};
    const int expected[9][4] = {{10, 20, 30, 40}, {10, 22, 30, 40}, {10, 20, 30, 42}, {11, 20, 30, 40}, {10, 20, 31, 40},
                                {11, 22, 30, 40}, {10, 22, 31, 40}, {11, 20, 30, 42}, {10, 20, 31, 42}};
    for (int code = 0; code <= 8; ++code) {
        IntRect shape = start;
        MoveSides(shape, SidesOfHandle(code), 1, 2);
        ExpectRect(shape, expected[code][0], expected[code][1], expected[code][2], expected[code][3]);
    }
    IntRect offset = {INT_MAX, INT_MIN, INT_MAX, 0};
    MoveSides(offset, AllSides, 5, -5);
    ExpectRect(offset, INT_MAX, INT_MIN, INT_MAX, -5);
    ExpectRect(Normalised({9, 8, 1, 2}), 1, 2, 9, 8);
}

TEST(DragGeometry, CursorRange) {
    const IntRect client = {100, 100, 300, 250};
    const IntRect shape = {20, 30, 60, 80};
    // Moving: the mouse keeps its distance to each side.
    ExpectRect(ClipForMove(client, shape, {25, 70}), 105, 140, 265, 240);
    // Resizing: the range is shifted by the distance between mouse and side.
    ExpectRect(ClipForResize(client, shape, {22, 33}, TopSide | LeftSide), 102, 103, 302, 253);
    ExpectRect(ClipForResize(client, shape, {58, 84}, BottomSide | RightSide), 98, 104, 298, 254);
    ExpectRect(ClipForResize(client, shape, {58, 84}, 0), 100, 100, 300, 250);
}

TEST(DragGeometry, RectangleHits) {
    const IntRect window = {100, 100, 200, 160};
    const struct {
        int x, y, code;
    } hits[] = {{150, 100, 1}, {146, 104, 1}, {145, 100, -1}, {154, 160, 2}, {100, 130, 3}, {104, 126, 3}, {200, 134, 4},
                {100, 100, 5}, {204, 96, 6},  {96, 164, 7},   {204, 164, 8}, {150, 130, 0}, {101, 110, 0}, {100, 110, -1},
                {105, 95, -1}, {95, 100, -1}, {150, 105, 0},  {300, 300, -1}};
    for (const auto& hit : hits) EXPECT_EQ(HitRectangle(window, {hit.x, hit.y}), hit.code) << hit.x << ' ' << hit.y;
    // On a small rectangle the edge middles win over the corners.
    EXPECT_EQ(HitRectangle({10, 10, 16, 16}, {10, 10}), 1);
    EXPECT_EQ(HitRectangle({INT_MIN, INT_MIN, INT_MAX, INT_MAX}, {50, 50}), 0);
}
