// Images of 16-bit, 32-bit and floating-point samples: range of display, files, streams.
#include <cstring>
#include <vector>

#include "Guide.h"

namespace guide {
namespace {

bool SaveWide(CcObjectStorage& stream, CcGrayImageInt16& image) {
    // [save-wide]
    int height, width;
    image.GetHeightWidth(&height, &width);
    const long bytes = static_cast<long>(sizeof(unsigned short)) * height * width;
    CcPropertyBag bag;
    bag.PutInt("ImageType", image.GetImageType());
    bag.PutBlob("Samples", image.GetBitMapImageData(), bytes);
    return stream.PutObject(&image) == KEST_OK && stream.PutObject(&bag) == KEST_OK;
    // [/save-wide]
}

bool LoadWide(CcObjectStorage& stream, CcGrayImageInt16& image) {
    // [load-wide]
    if (stream.GetNextObject(&image) < 0) return false;  // display image, name and ROIs
    int height, width;
    image.GetHeightWidth(&height, &width);
    CcPropertyBag bag;
    long bytes = 0;
    if (stream.GetNextObject(&bag) < 0 || bag.GetPropLength("Samples", KEST_PROPERTY_BLOB, &bytes) < 0) return false;
    if (bytes != static_cast<long>(sizeof(unsigned short)) * height * width) return false;
    const std::vector<char> name(image.GetName(), image.GetName() + std::strlen(image.GetName()) + 1);
    if (image.MakeBlankBMP(height, width, 0, name.data()) < 0) return false;  // makes the samples
    bag.GetBlob("Samples", image.GetBitMapImageData(), bytes);
    image.ReScaleImageOnShow();
    // [/load-wide]
    return true;
}

}  // namespace

void WideImages() {
    const HWND window = example::OpenWindow(
        "Wide images", 64, 64,
        [](HWND w, UINT message, WPARAM wParam, LPARAM lParam) { return DefWindowProcA(w, message, wParam, lParam); });
    // [samples]
    CcGrayImageInt16 image;
    image.MakeBlankBMP(64, 64, 0, "camera");
    auto* samples = static_cast<unsigned short*>(image.GetBitMapImageData());
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) samples[y * 64 + x] = static_cast<unsigned short>(1000 + 40 * x);
    image.ReScaleImageOnShow();  // samples were written through the pointer: scan them again
    image.Show(window, 102, 1, 0, 0, 1);
    // [/samples]
    Expect(image.GetMinPixelValue() == 1000.0F && image.GetMaxPixelValue() == 3520.0F,
           "smallest and largest sample are found");
    const HDC dc = GetDC(window);
    Expect(GetPixel(dc, 0, 5) == RGB(0, 0, 0) && GetPixel(dc, 63, 5) == RGB(255, 255, 255),
           "they are shown as black and white");

    // [window-level]
    image.SetAutoUpdateDisplay(0);  // the display range no longer follows the samples
    tagPoints points[256];
    for (int level = 0; level < 256; ++level) {
        points[level].x = 2000.0F + static_cast<float>(level) * 500.0F / 255.0F;  // a sample value
        points[level].y = static_cast<float>(level);                              // the level shown for it
    }
    image.SetDisplayLUT(102, 0, points);  // from 2000, black, to 2500, white
    image.Show(window, 102, 1, 0, 0, 1);
    // [/window-level]
    Expect(GetPixel(dc, 24, 5) == RGB(0, 0, 0) && GetPixel(dc, 40, 5) == RGB(255, 255, 255),
           "a narrower range is shown from black to white");
    ReleaseDC(window, dc);
    DestroyWindow(window);

    // [wide-files]
    image.SaveBMPFile("camera.bmp");  // the display image, and beside it the samples in camera.i16
    CcGrayImageInt16 opened;
    opened.OpenBMPFile("camera.bmp");
    // [/wide-files]
    Expect(opened(10, 10) == 1400.0F, "samples come back from the raw file");
    DeleteFileA("camera.bmp");
    DeleteFileA("camera.i16");

    image.GetListROI()->InsertTail(new CcRoiPoint);
    CcMemObjectStorage stream;
    Expect(SaveWide(stream, image), "a wide image goes into a stream");
    unsigned char* block = nullptr;
    long length = 0;
    stream.GetStorageBufferRef(&block, &length);
    CcMemObjectStorage reader(block, length, 1);
    CcGrayImageInt16 loaded;
    Expect(LoadWide(reader, loaded), "and out of it");
    Expect(loaded(10, 10) == 1400.0F && loaded.GetListROI()->GetNumberOfObjects() == 1,
           "with its samples and its ROIs");
}

}  // namespace guide
