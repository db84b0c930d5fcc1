// Images with known pixels.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "KestApi.h"
#include "support/KnownRois.h"
#include "support/Streams.h"

namespace test {

/// The value of pixel (x, y) in pattern images: neighbours differ, and so do rows.
inline int PatternValue(int x, int y) { return (x * 7 + y * 31 + x * y) & 0xFF; }

inline void FillPattern(CcGrayImage256& image, int width, int height, const char* name = "pattern") {
    image.MakeBlankBMP(height, width, 0, name);
    auto* bytes = static_cast<std::uint8_t*>(image.GetBitMapImageData());
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) bytes[y * width + x] = static_cast<std::uint8_t>(PatternValue(x, y));
}

/// A colour of pixel (x, y) for colour images.
struct PatternColour {
    std::uint8_t blue, green, red;
    PatternColour(int x, int y)
        : blue(static_cast<std::uint8_t>(PatternValue(x, y))),
          green(static_cast<std::uint8_t>(PatternValue(y, x + 3))),
          red(static_cast<std::uint8_t>(PatternValue(x + y, 5))) {}
    unsigned Screen() const { return static_cast<unsigned>(red) << 16 | static_cast<unsigned>(green) << 8 | blue; }
};

inline std::vector<std::uint8_t> PatternPixels24(int width, int height) {
    std::vector<std::uint8_t> pixels;
    for (int i = 0; i < width * height; ++i) {
        const PatternColour colour(i % width, i / width);
        pixels.insert(pixels.end(), {colour.blue, colour.green, colour.red});
    }
    return pixels;
}

/// The pixel bytes of a colour image.
inline std::vector<std::uint8_t> PixelsOf(CcImage& image) {
    int height, width;
    image.GetHeightWidth(&height, &width);
    const auto* bytes = static_cast<const std::uint8_t*>(image.GetBitMapImageData());
    return {bytes, bytes + 3 * height * width};
}

/// A colour image with known pixels.
inline void SetPixels(CcImage& image, int width, int height, const std::vector<std::uint8_t>& pixels,
                      const char* name = "pixels") {
    image.MakeBlankBMP(height, width, 0, name);
    std::copy(pixels.begin(), pixels.end(), static_cast<std::uint8_t*>(image.GetBitMapImageData()));
}

inline void FillPattern(CcImage& image, int width, int height, const char* name) {
    SetPixels(image, width, height, PatternPixels24(width, height), name);
}

/// The record of an empty ROI list.
inline Bytes EmptyListRecord() { return Record("CcList", "", ListBag(0, 0, -1, 1)); }

/// The bytes of a 24-bit BMP file.
inline Bytes BmpFile24(int width, int height, const std::vector<std::uint8_t>& pixels, int coloursUsed = 0) {
    Bytes file;
    file.Text("BM", 2).I32(54 + static_cast<int>(pixels.size())).I32(0).I32(54);
    file.I32(40).I32(width).I32(height).U16(1).U16(24).I32(0).I32(0).I32(0).I32(0).I32(coloursUsed).I32(0);
    return file.Add(pixels);
}

/// The bytes of a BMP file with 256 grays.
inline Bytes BmpFile8(int width, int height, const std::vector<std::uint8_t>& pixels, int coloursUsed = 0) {
    Bytes file;
    file.Text("BM", 2).I32(1078 + width * height).I32(0).I32(1078);
    file.I32(40).I32(width).I32(height).U16(1).U16(8).I32(0).I32(0).I32(0).I32(0).I32(coloursUsed).I32(0);
    for (unsigned i = 0; i < 256; ++i) file.U8(i).U8(i).U8(i).U8(0);
    return file.Add(pixels);
}

/// A DIB: what follows the file header in a BMP file.
inline Bytes DibOf(const Bytes& bmpFile) {
    Bytes dib;
    dib.assign(bmpFile.begin() + 14, bmpFile.end());
    return dib;
}

/// An image's record that says that its DIB has `size` bytes.
inline Bytes ImageRecord(const std::string& className, long size, const Bytes& dib) {
    const bool isGray = className == "CcGrayImage256";
    const int bytes = static_cast<int>(dib.size());
    Bytes bag = Bytes().I32(2).Add(PropertyEntry(isGray ? "DIB_SIZE" : className + "_Size", 1, 0, 4));
    bag.Add(PropertyEntry(isGray ? "DIB_DATA" : className + "_Data", 5, 4, bytes)).I32(4 + bytes).I32(size).Add(dib);
    return Record(className, "record", Record("CcPropertyBag", "", bag).Add(EmptyListRecord()));
}

/// The pattern's value of an 8-bit image as it is read.
inline float PatternFloat(int x, int y) { return static_cast<float>(PatternValue(x, y)); }

/// A level as a window shows it.
inline unsigned Gray(int level) { return static_cast<unsigned>(level) * 0x010101u; }

}  // namespace test
