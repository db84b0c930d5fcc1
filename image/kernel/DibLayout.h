// The packed device-independent bitmap (DIB) as this library holds it: header, colour table, pixel rows without
// padding, bottom row first. Sizes are computed in 64 bits from what the header says, and compared with the bytes that
// exist.
#pragma once

#include <cstdint>
#include <span>

#include "core/kernel/CheckedSize.h"

namespace kest {

constexpr int DibHeaderBytes = 40;
constexpr int GrayColours = 256;
constexpr int ColourTableBytes = 4 * GrayColours;

/// Where the parts of a DIB lie, as its header tells it.
struct DibLayout {
    Size64 headerBytes = 0;
    int width = 0;  ///< the low 16 bits of the header's value, as is the height
    int height = 0;
    int bitCount = 0;
    Size64 colourCount = 0;  ///< 0 for 24-bit DIBs without a table
    int colourBytes = 4;     ///< of one colour: 4, or 3 behind the old 12-byte header
    Size64 pixelOffset = 0;

    Size64 ColourTableSize() const { return colourCount * colourBytes; }
    Size64 PixelCount() const { return Product(width, height); }
};

/// Reads a header: the old form of 12 bytes, any other size as the 40-byte form. False when the block is too small for
/// the fields that are read, or the header's size is smaller than they are.
bool ReadDibLayout(std::span<const std::uint8_t> block, DibLayout& layout);

/// Whether its colour count is one that the image classes take: 256 with 8 bits a pixel, none with 24. Readers refuse
/// other files.
bool HasUsualColours(const DibLayout& layout);

/// True when colour table and `bytesPerPixel` bytes for every pixel lie inside a block of `blockBytes` bytes.
bool LiesInBlock(const DibLayout& layout, int bytesPerPixel, Size64 blockBytes);

/// Bytes of a DIB that the library makes: 8-bit with 256 colours, or 24-bit without a table. 0 when a size is negative.
Size64 DibBytes(int width, int height, int bitCount);

/// Writes the 40-byte header of an uncompressed DIB; every field after the bit count is 0.
void WriteDibHeader(std::span<std::uint8_t> block, int width, int height, int bitCount);

/// 256 colours (i, i, i, 0).
void WriteGrayColours(std::span<std::uint8_t> table);

/// What a table of 256 colours makes of the values.
enum class ColourMeaning {
    Grays,      ///< the levels 0 to 255
    TwoLevels,  ///< black for 1 and white for all others, as binary images are shown
    Colours,    ///< something that the values alone do not say
};

/// A table that holds 256 palette indices of two bytes, as a gray image's does that was shown through them, means
/// grays.
ColourMeaning MeaningOfColours(std::span<const std::uint8_t, ColourTableBytes> table);

}  // namespace kest
