// Window and image coordinates, against values worked out by hand.
#include "core/kernel/ViewTransform.h"

#include <gtest/gtest.h>

#include <climits>

using namespace kest;

namespace {

View Zoomed(int width, int height, int zoom, int xOffset = 0, int yOffset = 0) {
    return {300, 200, width, height, xOffset, yOffset, 1, zoom};
}

View Stretched(int clientWidth, int clientHeight, int width, int height) {
    return {clientWidth, clientHeight, width, height, 7, 9, 0, 3};
}

void ExpectPoint(IntPoint point, int x, int y) {
    EXPECT_EQ(point.x, x);
    EXPECT_EQ(point.y, y);
}

}  // namespace

TEST(ViewTransform, RoiPointsAtZoomOne) {
    const View view = Zoomed(50, 100, 1, 4, 6);
    ExpectPoint(WindowToImage(Zoomed(50, 100, 1), {20, 15}), 20, 84);
    ExpectPoint(WindowToImage(view, {10, 5}), 14, 88);
    ExpectPoint(ImageToWindow(view, IntPoint{14, 88}), 10, 5);
}

TEST(ViewTransform, RoiPointsAtHigherZoomTruncate) {
    const View view = Zoomed(50, 100, 3, 1, 2);
    ExpectPoint(WindowToImage(view, {7, 8}), 3, 95);
    // Left of the window the quotient is truncated toward zero, not down.
    ExpectPoint(WindowToImage(view, {-2, -2}), 1, 97);
    ExpectPoint(ImageToWindow(view, IntPoint{3, 95}), 6, 6);
    const RealPoint exact = WindowToImageExact(view, {7, 8});
    EXPECT_DOUBLE_EQ(exact.x, 7 / 3.0 + 1);
    EXPECT_DOUBLE_EQ(exact.y, 99 - 8 / 3.0 - 2);
}

TEST(ViewTransform, StretchedRoiPointsUseLastRowAndColumn) {
    const View view = Stretched(200, 100, 51, 101);
    ExpectPoint(WindowToImage(view, {200, 0}), 50, 100);
    ExpectPoint(WindowToImage(view, {0, 100}), 0, 0);
    ExpectPoint(WindowToImage(view, {7, 1}), 1, 99);
    ExpectPoint(ImageToWindow(view, IntPoint{50, 0}), 200, 100);
    ExpectPoint(ImageToWindow(view, IntPoint{25, 100}), 100, 0);
    // A zoom below 1 stretches in every mode.
    View zoomless = view;
    zoomless.displayMode = 1;
    zoomless.zoom = 0;
    ExpectPoint(WindowToImage(zoomless, {200, 0}), 50, 100);
}

TEST(ViewTransform, PixelReadOutKeepsItsOwnRules) {
    ExpectPoint(PixelAtWindowPoint(Zoomed(50, 100, 1), {0, 0}), 0, 99);
    ExpectPoint(PixelAtWindowPoint(Zoomed(50, 100, 2), {0, 0}), 0, 98);
    EXPECT_DOUBLE_EQ(PositionAtWindowPoint(Zoomed(50, 100, 2), {0, 0}).y, 99.5);
    ExpectPoint(PixelAtWindowPoint(Zoomed(50, 100, 4, 3, 5), {9, 6}), 5, 90);
    const View view = Stretched(200, 150, 100, 300);
    ExpectPoint(PixelAtWindowPoint(view, {199, 0}), 99, 298);
    ExpectPoint(PixelAtWindowPoint(view, {0, 149}), 0, 0);
    EXPECT_DOUBLE_EQ(PositionAtWindowPoint(view, {199, 0}).x, 99.5);
}

TEST(ViewTransform, ExtremesNeitherOverflowNorDivideByZero) {
    ExpectPoint(ImageToWindow(Zoomed(50, 100, 16), IntPoint{INT_MAX, INT_MIN}), INT_MAX, INT_MAX);
    ExpectPoint(ImageToWindow(Zoomed(50, 100, 16), IntPoint{INT_MIN, INT_MAX}), INT_MIN, INT_MIN);
    ExpectPoint(WindowToImage(Zoomed(50, 100, 1, INT_MAX, INT_MAX), {INT_MAX, INT_MAX}), INT_MAX, INT_MIN);
    ExpectPoint(WindowToImage(Stretched(0, 0, 50, 100), {5, 5}), 0, 0);
    ExpectPoint(ImageToWindow(Stretched(200, 100, 1, 1), IntPoint{0, 0}), 0, 100);
    ExpectPoint(PixelAtWindowPoint(Stretched(0, 0, 50, 100), {5, 5}), 0, 0);
}
