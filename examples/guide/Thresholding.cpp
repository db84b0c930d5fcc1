// Bands shown in colours, and masks made of them.
#include "Guide.h"

namespace guide {
namespace {

bool MakeMask(CcGrayImage256& image, CcBinaryImage& mask, float low, float high) {
    // [mask]
    int height, width;
    image.GetHeightWidth(&height, &width);
    if (mask.MakeBlankBMP(height, width, 0, "mask") < 0) return false;
    const auto* values = static_cast<const unsigned char*>(image.GetBitMapImageData());
    auto* bits = static_cast<unsigned char*>(mask.GetBitMapImageData());
    for (int pixel = 0; pixel < height * width; ++pixel) bits[pixel] = values[pixel] >= low && values[pixel] <= high;
    // [/mask]
    return true;
}

COLORREF ShownAt(HWND window, CcImage& image, unsigned short lut, int x, int y) {
    image.Show(window, lut, 1, 0, 0, 1);
    const HDC dc = GetDC(window);
    const COLORREF colour = GetPixel(dc, x, y);
    ReleaseDC(window, dc);
    return colour;
}

}  // namespace

void Thresholding() {
    CcGrayImage256 image;
    image.MakeBlankBMP(64, 64, 100, "thresholding");
    const HWND window = example::OpenWindow(
        "Thresholding", 64, 64,
        [](HWND w, UINT message, WPARAM wParam, LPARAM lParam) { return DefWindowProcA(w, message, wParam, lParam); });

    // [threshold]
    image.BeginThresholding(window, 101);
    image.ThresholdImage(window, 90.0F, 140.0F, 255, 0, 0);  // this band in red, all others gray
    image.Show(window, 101, 1, 0, 0, 1);                     // bands are seen through display table 101
    // [/threshold]
    Expect(ShownAt(window, image, 101, 5, 5) == RGB(255, 0, 0), "a band shows in its colour");
    Expect(image(5, 5) == 100.0F, "and changes no pixel");

    // [threshold-multi]
    ThresholdTag bands[] = {
        {0.0F, 60.0F, 0, 0, 255},  // low, high, red, green, blue
        {61.0F, 180.0F, 0, 255, 0},
    };
    image.ThresholdImageMulti(window, bands, 2);
    image.Show(window, 101, 1, 0, 0, 1);
    // [/threshold-multi]
    Expect(ShownAt(window, image, 101, 5, 5) == RGB(0, 255, 0), "each of several bands has a colour");

    // [threshold-end]
    image.EndThresholding();
    // [/threshold-end]
    Expect(ShownAt(window, image, 101, 5, 5) == RGB(100, 100, 100), "afterwards the image is gray again");

    image(3, 3);
    image = 200.0F;
    CcBinaryImage mask;
    Expect(MakeMask(image, mask, 150, 255) && mask(3, 3) == 1.0F && mask(4, 4) == 0.0F, "a mask holds 1 in the band");
    Expect(ShownAt(window, mask, 102, 3, 60) == RGB(0, 0, 0) && ShownAt(window, mask, 102, 5, 5) == RGB(255, 255, 255),
           "value 1 shows black, value 0 white");
    DestroyWindow(window);
}

void Colour() {
    Cc24BitRGBImage image;
    image.MakeBlankBMP(16, 16, 100, "colour");

    // [rgb]
    image.SetAccess(KEST_CHANNEL_RED);  // which value the operators read and write
    image(3, 4);
    image = 250.0F;
    image.SetAccess(KEST_CHANNEL_LUMINANCE);
    float luminance = image(3, 4);
    // Or all three bytes at once: blue, green, red.
    int height, width;
    image.GetHeightWidth(&height, &width);
    unsigned char* pixel = static_cast<unsigned char*>(image.GetBitMapImageData()) + 3 * (4 * width + 3);
    // [/rgb]
    Expect(pixel[0] == 100 && pixel[2] == 250 && luminance > 144.0F && luminance < 145.0F,
           "a channel is written, and luminance is 0.299 R + 0.587 G + 0.114 B");

    // [rgb-threshold]
    image.BeginThresholding(nullptr, 0);  // keeps a copy of the pixels
    // Red 200 to 255, green and blue 0 to 150 become white.
    image.ThresholdImageRGB(nullptr, 200, 255, 0, 150, 0, 150, 255, 255, 255);
    // ... Show it, look at it ...
    image.EndThresholding();  // puts the copy back
    // [/rgb-threshold]
    Expect(pixel[0] == 100 && pixel[2] == 250, "colour images paint their pixels, and get them back");

    Cc24BitHSLImage hsl;
    hsl.MakeBlankBMP(16, 16, 100, "hsl");
    // [hsl]
    auto* colours = static_cast<unsigned char*>(hsl.GetBitMapImageData());  // what is shown and saved
    colours[0] = 0, colours[1] = 255, colours[2] = 0;
    hsl.DoConvert();  // computes the plane of hue, saturation and lightness from it
    hsl.SetAccess(KEST_CHANNEL_HUE);
    float hue = hsl(0, 0);  // 0 to 239: red 0, green 80, blue 160
    hsl = 160.0F;           // changes the plane only
    hsl.UpdateRGB();        // and now what is shown
    // [/hsl]
    Expect(hue == 80.0F && colours[0] == 255 && colours[1] == 0, "a hue is read and changed");
}

}  // namespace guide
