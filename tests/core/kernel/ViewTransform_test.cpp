// Window and image coordinates, against values worked out by hand.
#include "core/kernel/ViewTransform.h"
#include "support/KernelTests.h"

using namespace kest;

namespace {

View Zoomed(int width, int height, int zoom, int xOffset = 0, int yOffset = 0) {
    return {300, 200, width, height, xOffset, yOffset, 1, zoom};
}

View Stretched(int clientWidth, int clientHeight, int width, int height) {
    return {clientWidth, clientHeight, width, height, 7, 9, 0, 3};
}

}  // namespace

TEST(ViewTransform, RoiPointsInTheWindowAndInTheImage) {
    struct Case {
        View view;
        IntPoint inWindow, inImage;
        bool isBackExact;
    };
    View zoomless = Stretched(200, 100, 51, 101);
    zoomless.displayMode = 1;
    zoomless.zoom = 0;
    const Case cases[] = {
        {Zoomed(50, 100, 1), {20, 15}, {20, 84}, true},
        {Zoomed(50, 100, 1, 4, 6), {10, 5}, {14, 88}, true},
        // At higher zoom a pixel's corner comes back; left of the window the quotient is truncated toward zero, not
        // down.
        {Zoomed(50, 100, 3, 1, 2), {6, 6}, {3, 95}, true},
        {Zoomed(50, 100, 3, 1, 2), {7, 8}, {3, 95}, false},
        {Zoomed(50, 100, 3, 1, 2), {-2, -2}, {1, 97}, false},
        // Stretched, the last row and column count.
        {Stretched(200, 100, 51, 101), {200, 0}, {50, 100}, true},
        {Stretched(200, 100, 51, 101), {0, 100}, {0, 0}, true},
        {Stretched(200, 100, 51, 101), {100, 0}, {25, 100}, true},
        {Stretched(200, 100, 51, 101), {7, 1}, {1, 99}, false},
        // A zoom below 1 stretches in every mode.
        {zoomless, {200, 0}, {50, 100}, true},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(WindowToImage(c.view, c.inWindow), c.inImage) << &c - cases;
        EXPECT_EQ(ImageToWindow(c.view, c.inImage) == c.inWindow, c.isBackExact) << &c - cases;
    }
    const RealPoint exact = WindowToImageExact(Zoomed(50, 100, 3, 1, 2), {7, 8});
    EXPECT_DOUBLE_EQ(exact.x, 7 / 3.0 + 1);
    EXPECT_DOUBLE_EQ(exact.y, 99 - 8 / 3.0 - 2);
}

TEST(ViewTransform, PixelReadOutKeepsItsOwnRules) {
    const View stretched = Stretched(200, 150, 100, 300);
    EXPECT_EQ(PixelAtWindowPoint(Zoomed(50, 100, 1), {0, 0}), (IntPoint{0, 99}));
    EXPECT_EQ(PixelAtWindowPoint(Zoomed(50, 100, 2), {0, 0}), (IntPoint{0, 98}));
    EXPECT_EQ(PixelAtWindowPoint(Zoomed(50, 100, 4, 3, 5), {9, 6}), (IntPoint{5, 90}));
    EXPECT_EQ(PixelAtWindowPoint(stretched, {199, 0}), (IntPoint{99, 298}));
    EXPECT_EQ(PixelAtWindowPoint(stretched, {0, 149}), (IntPoint{0, 0}));
    EXPECT_DOUBLE_EQ(PositionAtWindowPoint(Zoomed(50, 100, 2), {0, 0}).y, 99.5);
    EXPECT_DOUBLE_EQ(PositionAtWindowPoint(stretched, {199, 0}).x, 99.5);
}

TEST(ViewTransform, ExtremesNeitherOverflowNorDivideByZero) {
    const View zoomed = Zoomed(50, 100, 16), empty = Stretched(0, 0, 50, 100);
    EXPECT_EQ(ImageToWindow(zoomed, IntPoint{INT_MAX, INT_MIN}), (IntPoint{INT_MAX, INT_MAX}));
    EXPECT_EQ(ImageToWindow(zoomed, IntPoint{INT_MIN, INT_MAX}), (IntPoint{INT_MIN, INT_MIN}));
    EXPECT_EQ(WindowToImage(Zoomed(50, 100, 1, INT_MAX, INT_MAX), {INT_MAX, INT_MAX}), (IntPoint{INT_MAX, INT_MIN}));
    EXPECT_EQ(WindowToImage(empty, {5, 5}), (IntPoint{0, 0}));
    EXPECT_EQ(ImageToWindow(Stretched(200, 100, 1, 1), IntPoint{0, 0}), (IntPoint{0, 100}));
    EXPECT_EQ(PixelAtWindowPoint(empty, {5, 5}), (IntPoint{0, 0}));
}
