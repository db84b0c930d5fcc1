// Figures that reach far beyond the surface show the pixels that the platform gives them, where it can draw them whole.
#include "support/ClassTests.h"

using namespace test;

namespace {

constexpr int side = 300;

/// At zoom 1, the image's last row at the top.
Picture Shown(CcRoiBase& roi, int penWidth = 1) {
    MemoryPicture picture(side, side);
    CcGrayImage256 image;
    image.MakeBlankBMP(1, 1, 0, "i");
    roi.SetZoomPen(penWidth);
    RECT client = {0, 0, side, side};
    EXPECT_EQ(roi.ShowROI(picture, &client, 0, 0, 1, &image, 1, 0), 0);
    return picture.Snapshot();
}

template <class Roi>
Picture Shown(RECT record, int penWidth = 1) {
    Roi roi;
    SetBox(roi, record);
    return Shown(roi, penWidth);
}

template <class Draw>
Picture DrawnDirectly(Draw draw) {
    MemoryPicture picture(side, side);
    const HPEN pen = CreatePen(PS_SOLID, 1, RGB(0, 255, 0));
    const HGDIOBJ oldPen = SelectObject(picture, pen), oldBrush = SelectObject(picture, GetStockObject(NULL_BRUSH));
    draw(HDC(picture));
    SelectObject(picture, oldBrush);
    SelectObject(picture, oldPen);
    DeleteObject(pen);
    return picture.Snapshot();
}

int Painted(const Picture& picture) {
    return static_cast<int>(
        std::count_if(picture.pixels.begin(), picture.pixels.end(), [](unsigned p) { return p != 0; }));
}

}  // namespace

TEST(FarDrawing, LinesHaveThePixelsOfTheWholeLine) {
    std::mt19937 random(7);
    const auto inside = [&] { return static_cast<int>(random() % side); };
    int painted = 0;
    for (int round = 0; round < 300; ++round) {
        // Through the picture, from 2^10 to 2^26 away on both sides; every fourth one with slopes that meet half
        // pixels.
        const int away = 1 << (10 + round % 17);
        POINT a = {inside(), inside()}, step = {inside() - side / 2, inside() - side / 2};
        if (round % 4 == 0) step = {round % 8 ? 2 : 1, round % 8 ? 1 : -2};
        if (step.x == 0 && step.y == 0) continue;
        const int times = away / std::max(std::abs(step.x), std::abs(step.y));
        const POINT b = {a.x + step.x * times, a.y + step.y * times};
        a = {a.x - step.x * (times / 2), a.y - step.y * (times / 2)};
        const Picture whole = DrawnDirectly([&](HDC dc) {
            MoveToEx(dc, a.x, a.y, nullptr);
            LineTo(dc, b.x, b.y);
        });
        ASSERT_EQ(Shown<CcRoiLine>({a.x, -a.y, b.x, -b.y}).DifferentFrom(whole), 0)
            << a.x << ' ' << a.y << ' ' << b.x << ' ' << b.y;
        painted += Painted(whole);
    }
    EXPECT_GT(painted, 25000);
}

TEST(FarDrawing, EllipsesHaveThePixelsOfTheWholeEllipse) {
    std::mt19937 random(8);
    const auto between = [&](int low, int high) { return low + static_cast<int>(random() % unsigned(high - low)); };
    int painted = 0;
    for (int round = 0; round < 120; ++round) {
        // One that passes a point of the picture, at any place of its outline.
        const int away = 1 << (14 + round % 3);
        const double width = between(away, 2 * away), height = between(away, 2 * away), angle = round * 6.2832 / 120;
        const int left = between(0, side) - static_cast<int>(width * (1 + std::cos(angle)));
        const int top = between(0, side) - static_cast<int>(height * (1 + std::sin(angle)));
        const RECT box = {left, top, left + static_cast<int>(2 * width), top + static_cast<int>(2 * height)};
        const Picture whole = DrawnDirectly([&](HDC dc) { Ellipse(dc, box.left, box.top, box.right, box.bottom); });
        ASSERT_EQ(Shown<CcRoiEllipse>({box.left, -box.top, box.right, -box.bottom}).DifferentFrom(whole), 0)
            << box.left << ' ' << box.top << ' ' << box.right << ' ' << box.bottom;
        painted += Painted(whole);
    }
    EXPECT_GT(painted, 2000);
}

TEST(FarDrawing, WhatNoPlatformDrawsIsDrawnWhereItShows) {
    struct {
        RECT place;
        int rectangle, ellipse;  ///< pixels painted in a picture of 300 x 300, the rectangle's without handles
    } const scenes[] = {
        {{20, -30, 10000000, -10000000}, 549, 0},
        {{13, -3, 36, -15790321}, 616, 297},  // the tip of the ellipse
        {{INT_MIN, INT_MAX, INT_MAX, INT_MIN}, 0, 0},
        {{5000, -5000, INT_MAX, INT_MIN}, 0, 0},
        {{-2000000000, -150, 2000000000, -2000000000}, 300, 300},  // the highest row of both
    };
    for (const auto& scene : scenes) {
        SCOPED_TRACE(scene.place.left);
        // Handles that lie in the picture add up to 12 pixels.
        EXPECT_NEAR(Painted(Shown<CcRoiRect>(scene.place)), scene.rectangle, 12);
        EXPECT_EQ(Painted(Shown<CcRoiEllipse>(scene.place)), scene.ellipse);
        for (const int penWidth : {5, 1}) {
            EXPECT_GE(Painted(Shown<CcRoiRect>(scene.place, penWidth)), scene.rectangle);
            EXPECT_GE(Painted(Shown<CcRoiEllipse>(scene.place, penWidth)), scene.ellipse);
            Shown<CcRoiLine>(scene.place, penWidth);
        }
    }
}

TEST(FarDrawing, OutlinesGoOnWhereTheyComeBack) {
    // Out of the picture to one billion and back, in a picture whose rows are counted from the top.
    const POINT points[] = {{10, 10}, {50, 10}, {1000000000, 10}, {1000000000, 90}, {50, 90}, {10, 90}};
    const Picture whole = DrawnDirectly([&](HDC dc) {
        const POINT drawn[] = {{10, 10}, {20000, 10}, {20000, 90}, {10, 90}, {10, 10}};
        Polyline(dc, drawn, 5);
    });
    std::vector<POINT> upward(std::begin(points), std::end(points));
    for (POINT& point : upward) point.y = -point.y;
    CcRoiPolyFreeHand roi;
    SetOutline(roi, upward);
    EXPECT_EQ(Shown(roi).DifferentFrom(whole), 0);
    EXPECT_GT(Painted(whole), 600);
}
