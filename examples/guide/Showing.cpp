// Pictures: opening, showing, where the mouse is, the overlay.
#include <cstdio>
#include <cstring>
#include <memory>

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

std::unique_ptr<CcImage> OpenInItsClass(const char* path) {
    // [judge]
    KestPictureFile file;
    if (KestJudgePictureFile(path, &file) < 0) {
        std::printf("%s: %s\n", path, file.pszReason);  // "Its rows are padded to multiples of four bytes."
        return nullptr;
    }
    std::unique_ptr<CcImage> image;
    switch (file.eType) {
        case KEST_IMAGE_RGB: image = std::make_unique<Cc24BitRGBImage>(); break;
        case KEST_IMAGE_BINARY: image = std::make_unique<CcBinaryImage>(); break;
        case KEST_IMAGE_INT16: image = std::make_unique<CcGrayImageInt16>(); break;  // its samples are beside it
        case KEST_IMAGE_INT32: image = std::make_unique<CcGrayImageInt32>(); break;
        case KEST_IMAGE_FLOAT: image = std::make_unique<CcGrayImageFloat>(); break;
        default: image = std::make_unique<CcGrayImage256>(); break;
    }
    if (image->OpenBMPFile(path) < 0) return nullptr;
    // [/judge]
    return image;
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
    const std::unique_ptr<CcImage> opened = OpenInItsClass("guide.bmp");
    Expect(opened && opened->GetImageType() == KEST_IMAGE_GRAY256, "its class is known before it is opened");
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
