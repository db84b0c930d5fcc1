// The image classes that the program offers, one line for each.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "KestApi.h"

namespace kestview {

struct ImageClass {
    int type;               ///< one of KestImageType
    const char* label;      ///< as menus and the status bar call it
    const char* rawSuffix;  ///< of the file with the samples beside the BMP file; null where there is none
    bool isColour;
    bool isWide;  ///< samples wider than a byte beside an 8-bit display image
    std::unique_ptr<CcImage> (*make)();
};

/// Null for a class that the program does not offer.
const ImageClass* ImageClassOf(int type);
const ImageClass& ImageClassOf(CcImage& image);

/// A new image without content; null when memory is short.
std::unique_ptr<CcImage> MakeImage(int type);
/// A new image of this size, filled with 0; null when memory is short.
std::unique_ptr<CcImage> MakeImage(int type, int height, int width, const std::string& name);

SIZE SizeOf(CcImage& image);
/// The levels at which the samples of a wide image are shown, bottom row first; none of the others, or when memory is
/// short.
std::vector<std::uint8_t> ShownLevels(CcImage& image);
/// Draws one pixel with table 100. Files and streams take the colour table of the last drawing, which should be that of
/// the grays or of the file; and wide images spread their point lists over their range when they are drawn.
void DrawPlainly(CcImage& image);
/// Bytes of all samples, as GetBitMapImageData gives them.
long long SampleBytes(CcImage& image);

}  // namespace kestview
