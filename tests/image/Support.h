// Images with known pixels.
#pragma once

#include <cstdint>
#include <vector>

#include "KestApi.h"
#include "support/Bytes.h"

namespace test {

/// The value of pixel (x, y) in pattern images: neighbours differ, and so do rows.
inline int PatternValue(int x, int y) { return (x * 7 + y * 31 + x * y) & 0xFF; }

inline void FillPattern(CcGrayImage256& image, int width, int height, const char* name = "pattern") {
    image.MakeBlankBMP(height, width, 0, name);
    auto* bytes = static_cast<std::uint8_t*>(image.GetBitMapImageData());
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) bytes[y * width + x] = static_cast<std::uint8_t>(PatternValue(x, y));
}

/// The bytes of a BMP file with 256 grays.
inline Bytes BmpFile8(int width, int height, const std::vector<std::uint8_t>& pixels, int coloursUsed = 0) {
    Bytes file;
    file.Text("BM", 2).I32(1078 + width * height).I32(0).I32(1078);
    file.I32(40).I32(width).I32(height).U16(1).U16(8).I32(0).I32(0).I32(0).I32(0).I32(coloursUsed).I32(0);
    for (unsigned i = 0; i < 256; ++i) file.U8(i).U8(i).U8(i).U8(0);
    return file.Add(pixels);
}

}  // namespace test
