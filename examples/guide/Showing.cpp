// Pictures: opening, showing, where the mouse is, the overlay.
#include <cstring>

#include "Guide.h"
#include "Viewer.h"

namespace guide {
namespace {

bool Open(CcGrayImage256& image, const char* path) {
    // [open]
    if (image.OpenBMPFile(path) < 0) return false;  // a message box has told the user why
    int height, width;
    image.GetHeightWidth(&height, &width);  // in this order, everywhere
    // [/open]
    return height > 0 && width > 0 && std::strcmp(image.GetName(), "guide") == 0;
}

bool PixelUnderMouse(CcImage& image, HWND window, const Display& display, POINT mouse, POINT& pixel) {
    // [under-mouse]
    return image.ConvertPointToImageCoords(window, display.column, display.row, display.mode, &mouse, &pixel,
                                           display.zoom) == 0;
    // [/under-mouse]
}

bool MarkInOverlay(CcImage& image) {
    // [overlay]
    int height, width;
    image.GetHeightWidth(&height, &width);
    if (image.ClearOverlay() < 0) return false;  // makes it, too, when there is none
    unsigned char* overlay = image.GetOverlay();
    // A red frame of two pixels: 13 is red, 14 green, 16 blue, 0 lets the image show.
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (x < 2 || x >= width - 2 || y < 2 || y >= height - 2) overlay[y * width + x] = 13;
    // [/overlay]
    return true;
}

}  // namespace

void Showing() {
    CcGrayImage256 image;
    example::MakeSamplePicture(image);
    image.SaveBMPFile("guide.bmp");
    Expect(Open(image, "guide.bmp"), "a saved picture opens, and takes the file's name");
    DeleteFileA("guide.bmp");

    HWND window = nullptr;
    Viewer* viewer = nullptr;
    window = example::OpenWindow("Showing", 300, 200, [&](HWND w, UINT message, WPARAM wParam, LPARAM lParam) {
        return viewer ? viewer->Handle(message, wParam, lParam) : DefWindowProcA(w, message, wParam, lParam);
    });
    Viewer shown(window, image);
    viewer = &shown;
    shown.SetZoom(2);
    shown.Scroll(100, 50);
    Expect(MarkInOverlay(image), "an image has an overlay");
    shown.hasOverlay = true;
    InvalidateRect(window, nullptr, FALSE);
    example::PumpMessages(50);

    POINT pixel = {};
    Expect(PixelUnderMouse(image, window, shown.display, {40, 60}, pixel), "a client point has an image point");
    Expect(pixel.x == 120, "the column under the mouse is the scroll position plus x / zoom");
    const HDC dc = GetDC(window);
    const COLORREF colour = GetPixel(dc, 40, 60);
    shown.Scroll(1000, 1000);
    example::PumpMessages(50);
    const COLORREF corner = GetPixel(dc, 299, 199);
    ReleaseDC(window, dc);
    Expect(GetRValue(colour) == GetBValue(colour), "a gray picture shows gray");
    Expect(GetRValue(corner) == 255 && GetGValue(corner) < 255, "the overlay's frame reddens the picture's last pixel");
    viewer = nullptr;
    DestroyWindow(window);
}

}  // namespace guide
