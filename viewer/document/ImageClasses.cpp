// The image classes that the program offers, one line for each.
#include "document/ImageClasses.h"

#include "platform/Drawing.h"

namespace kestview {
namespace {

template <class Image>
std::unique_ptr<CcImage> Make() {
    return std::unique_ptr<CcImage>(new Image);
}

const ImageClass classes[] = {
    {KEST_IMAGE_GRAY256, "8-bit gray", nullptr, false, false, Make<CcGrayImage256>},
    {KEST_IMAGE_BINARY, "binary", nullptr, false, false, Make<CcBinaryImage>},
    {KEST_IMAGE_RGB, "24-bit RGB", nullptr, true, false, Make<Cc24BitRGBImage>},
    {KEST_IMAGE_HSL, "24-bit HSL", nullptr, true, false, Make<Cc24BitHSLImage>},
    {KEST_IMAGE_INT16, "16-bit gray", ".i16", false, true, Make<CcGrayImageInt16>},
    {KEST_IMAGE_INT32, "32-bit gray", ".i32", false, true, Make<CcGrayImageInt32>},
    {KEST_IMAGE_FLOAT, "float gray", ".flt", false, true, Make<CcGrayImageFloat>},
};

int Normalise(CcImage& image, const unsigned short* samples, unsigned char* levels, SIZE size) {
    return static_cast<CcGrayImageInt16&>(image).NormalizeInt16ToByteImage(samples, levels, size.cy, size.cx, 0);
}
int Normalise(CcImage& image, const int* samples, unsigned char* levels, SIZE size) {
    return static_cast<CcGrayImageInt32&>(image).NormalizeInt32ToByteImage(samples, levels, size.cy, size.cx, 0);
}
int Normalise(CcImage& image, const float* samples, unsigned char* levels, SIZE size) {
    return static_cast<CcGrayImageFloat&>(image).NormalizeFloatToByteImage(samples, levels, size.cy, size.cx, 0);
}
/// Images of other samples have no levels besides.
int Normalise(CcImage&, const void*, unsigned char*, SIZE) { return -1; }

}  // namespace

const ImageClass* ImageClassOf(int type) {
    for (const ImageClass& known : classes)
        if (known.type == type) return &known;
    return nullptr;
}

const ImageClass& ImageClassOf(CcImage& image) {
    const ImageClass* known = ImageClassOf(image.GetImageType());
    return known ? *known : classes[0];
}

std::unique_ptr<CcImage> MakeImage(int type) {
    const ImageClass* known = ImageClassOf(type);
    return known ? known->make() : nullptr;
}

std::unique_ptr<CcImage> MakeImage(int type, int height, int width, const std::string& name) {
    auto image = MakeImage(type);
    if (!image || image->MakeBlankBMP(height, width, 0, name.substr(0, KEST_NAME_SIZE - 1).c_str()) < 0) return nullptr;
    return image;
}

SIZE SizeOf(CcImage& image) {
    int height = 0, width = 0;
    image.GetHeightWidth(&height, &width);
    return {width, height};
}

std::vector<std::uint8_t> ShownLevels(CcImage& image) {
    const SIZE size = SizeOf(image);
    std::vector<std::uint8_t> levels(static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy));
    const int result =
        KestVisitSamples(image, [&](const auto* samples) { return Normalise(image, samples, levels.data(), size); });
    if (result < 0) levels.clear();
    return levels;
}

void DrawPlainly(CcImage& image) {
    const DibSection screen({1, 1});
    RECT pixel = {0, 0, 1, 1};
    if (screen) image.Show(screen, &pixel, 100, 1, 0, 0, 1);
}

long long SampleBytes(CcImage& image) {
    const SIZE size = SizeOf(image);
    return static_cast<long long>(size.cx) * size.cy * image.SizeOf();
}

}  // namespace kestview
