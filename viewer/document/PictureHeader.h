// What a picture file tells in front of its pixels: their number, before any decoder takes memory for them, and which
// way up they are, which the decoders do not look at.
//
// Read are PNG, JPEG, TIFF, GIF and BMP files, and the PNG pictures in icons. Everything else, and what lies beyond the
// end of the file, counts as not told.
#pragma once

#include <string>

namespace kestview {

struct PictureHeader {
    long long width = 0, height = 0;  ///< 0: not told
    int bytesPerPixel = 4;            ///< as they are decoded; palettes and fewer than 8 bits become colours of 4 bytes
    int orientation = 1;              ///< 1 to 8, as cameras write it: where the first row and column belong

    /// A double, as hostile sizes multiply beyond every integer.
    double PixelBytes() const { return static_cast<double>(width) * static_cast<double>(height) * bytesPerPixel; }
};

/// `page` from 0: of the pages of a TIFF file, or an icon's pictures.
PictureHeader ReadPictureHeader(const std::string& path, unsigned page);

}  // namespace kestview
