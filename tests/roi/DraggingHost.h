// A window that shows an image and passes the mouse on to a ROI, as an application does.
#pragma once

#include "support/ClassTests.h"

namespace test {

template <class Roi>
struct Host {
    TestWindow window{200, 150};
    CcGrayImage256 image;
    Roi roi;
    int xOffset = 0, yOffset = 0, zoom = 1;
    unsigned short display = 1;
    int dragMode = KEST_DRAG_CREATE;
    bool hasVertices = false;  ///< a click fixes a vertex, and Finish ends the drag
    bool isDragging = false;
    POINT released = {};

    explicit Host(int imageWidth = 120, int imageHeight = 100) {
        image.MakeBlankBMP(imageHeight, imageWidth, 90, "host");
        window.onMessage = [this](UINT message, WPARAM, LPARAM lParam) { return Handle(message, lParam); };
    }
    ~Host() { window.onMessage = nullptr; }

    int Start(POINT mouse, int mode, CcRoiBase* source = nullptr) {
        return roi.StartMouseDrag(window, xOffset, yOffset, display, &image, mouse, mode, source, zoom);
    }
    int Move(POINT mouse, int isClick = 0) {
        return roi.DoMouseDrag(window, xOffset, yOffset, display, &image, mouse, isClick);
    }
    int Stop(POINT mouse) { return roi.StopMouseDrag(window, xOffset, yOffset, display, &image, mouse); }
    void Finish() {
        isDragging = false;
        EXPECT_EQ(Stop(released), 0);
    }
    int HitTest(int x, int y) { return roi.MouseHitTest(window, xOffset, yOffset, display, &image, {x, y}, zoom); }
    void Show(int penSelect = 0) {
        EXPECT_EQ(roi.ShowROI(window, xOffset, yOffset, display, &image, zoom, penSelect), 0);
    }

private:
    bool Handle(UINT message, LPARAM lParam) {
        const POINT mouse = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
        const bool isMouse = message == WM_LBUTTONDOWN || message == WM_MOUSEMOVE || message == WM_LBUTTONUP;
        if (isMouse) released = mouse;
        if (message == WM_LBUTTONDOWN && !isDragging) {
            EXPECT_EQ(Start(mouse, dragMode), 0);
            isDragging = true;
        } else if (message == WM_LBUTTONDOWN || (message == WM_MOUSEMOVE && isDragging)) {
            EXPECT_EQ(Move(mouse, message == WM_LBUTTONDOWN), 0);
        } else if (message == WM_LBUTTONUP && isDragging && !hasVertices) {
            Finish();
        }
        return isMouse;
    }
};

}  // namespace test
