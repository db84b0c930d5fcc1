// A window that shows an image and passes the mouse on to a ROI, as an application does.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <memory>

#include "KestApi.h"
#include "image/Support.h"
#include "support/TestWindow.h"

namespace test {

/// Left, top, right, bottom.
using Sides = std::array<LONG, 4>;

/// The record of a ROI that is a box, or a line from its first corner to the second.
inline Sides SidesOf(CcRoiBase& roi) {
    const RECT record = *static_cast<RECT*>(roi.GetRoiImageCord());
    return {record.left, record.top, record.right, record.bottom};
}

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

    void Finish() {
        isDragging = false;
        EXPECT_EQ(roi.StopMouseDrag(window, xOffset, yOffset, display, &image, released), 0);
    }
    int HitTest(int x, int y) {
        return roi.MouseHitTest(window, xOffset, yOffset, display, &image, {x, y}, zoom);
    }
    void Show(int penSelect = 0) { EXPECT_EQ(roi.ShowROI(window, xOffset, yOffset, display, &image, zoom, penSelect), 0); }

private:
    bool Handle(UINT message, LPARAM lParam) {
        const POINT mouse = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
        const bool isMouse = message == WM_LBUTTONDOWN || message == WM_MOUSEMOVE || message == WM_LBUTTONUP;
        if (isMouse) released = mouse;
        if (message == WM_LBUTTONDOWN && !isDragging) {
            EXPECT_EQ(roi.StartMouseDrag(window, xOffset, yOffset, display, &image, mouse, dragMode, nullptr, zoom), 0);
            isDragging = true;
        } else if (message == WM_LBUTTONDOWN || (message == WM_MOUSEMOVE && isDragging)) {
            EXPECT_EQ(roi.DoMouseDrag(window, xOffset, yOffset, display, &image, mouse, message == WM_LBUTTONDOWN), 0);
        } else if (message == WM_LBUTTONUP && isDragging && !hasVertices) {
            Finish();
        }
        return isMouse;
    }
};

}  // namespace test
