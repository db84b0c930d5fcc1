// What a picture file tells in front of its pixels: the memory for them, before any decoder takes it, and which way up
// they are, which the decoders do not look at.
//
// Read are PNG, JPEG, TIFF, GIF and BMP files, and icons. Everything else, and what lies beyond the end of the file,
// counts as not told.
#pragma once

#include <string>

namespace kestview {

struct PictureHeader {
    /// Of all pixels that a decoder holds at once, as it holds them; 0: not told. A double, as hostile sizes multiply
    /// beyond every integer.
    double pixelBytes = 0;
    int orientation = 1;  ///< 1 to 8, as cameras write it: where the first row and column belong
};

/// `page` from 0: of the pages of a TIFF file, or an icon's pictures.
PictureHeader ReadPictureHeader(const std::string& path, unsigned page);

}  // namespace kestview
