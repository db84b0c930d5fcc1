// The packed device-independent bitmap.
#include "image/kernel/DibLayout.h"

#include "core/kernel/ByteReader.h"

namespace kest {
namespace {

constexpr std::uint32_t coreHeaderBytes = 12;
constexpr std::uint32_t smallestHeaderBytes = 16;     // up to the bit count
constexpr std::uint32_t headerBytesWithColours = 36;  // up to biClrUsed

Size64 ColoursOfDepth(int bitCount) {
    if (bitCount == 24) return 0;
    // Deeper than any table that a block could hold; the caller's check then refuses it.
    return bitCount > 32 ? Size64{1} << 32 : Size64{1} << bitCount;
}

}  // namespace

bool ReadDibLayout(std::span<const std::uint8_t> block, DibLayout& layout) {
    ByteReader reader(block);
    std::uint32_t headerBytes;
    if (!reader.Read(headerBytes)) return false;

    DibLayout read;
    read.headerBytes = headerBytes;
    std::uint16_t width, height, bitCount;
    if (headerBytes == coreHeaderBytes) {
        if (!reader.Read(width) || !reader.Read(height) || !reader.Skip(2) || !reader.Read(bitCount)) return false;
        read.colourBytes = 3;
        read.colourCount = ColoursOfDepth(bitCount);
    } else {
        if (headerBytes < smallestHeaderBytes) return false;
        if (!reader.Read(width) || !reader.Skip(2) || !reader.Read(height) || !reader.Skip(4) || !reader.Read(bitCount))
            return false;
        std::uint32_t coloursUsed = 0;
        if (headerBytes >= headerBytesWithColours && (!reader.Skip(16) || !reader.Read(coloursUsed))) return false;
        read.colourCount = coloursUsed != 0 ? coloursUsed : ColoursOfDepth(bitCount);
    }
    read.width = width;
    read.height = height;
    read.bitCount = bitCount;
    read.pixelOffset = read.headerBytes + read.ColourTableSize();
    layout = read;
    return true;
}

bool HasUsualColours(const DibLayout& layout) { return layout.colourCount == (layout.bitCount == 8 ? GrayColours : 0); }

bool LiesInBlock(const DibLayout& layout, int bytesPerPixel, Size64 blockBytes) {
    return LiesInside(layout.pixelOffset, layout.PixelCount() * bytesPerPixel, blockBytes);
}

Size64 DibBytes(int width, int height, int bitCount) {
    if (width < 0 || height < 0) return 0;
    // The product of two 31-bit sizes fits 62 bits, three times it need not be computed beyond what a block can hold.
    const Size64 pixels = Product(width, height);
    if (pixels > LargestBlockBytes) return pixels;
    return bitCount == 24 ? DibHeaderBytes + 3 * pixels : DibHeaderBytes + ColourTableBytes + pixels;
}

void WriteDibHeader(std::span<std::uint8_t> block, int width, int height, int bitCount) {
    ByteWriter writer(block);
    writer.Write(std::uint32_t{DibHeaderBytes});
    writer.Write(width);
    writer.Write(height);
    writer.Write(std::uint16_t{1});
    writer.Write(static_cast<std::uint16_t>(bitCount));
    for (int field = 0; field < 6; ++field) writer.Write(std::uint32_t{0});
}

void WriteGrayColours(std::span<std::uint8_t> table) {
    for (int i = 0; i < GrayColours; ++i) {
        const auto level = static_cast<std::uint8_t>(i);
        table[4 * i] = table[4 * i + 1] = table[4 * i + 2] = level;
        table[4 * i + 3] = 0;
    }
}

ColourMeaning MeaningOfColours(std::span<const std::uint8_t, ColourTableBytes> table) {
    const auto isAllOf = [&](auto levelOf) {
        for (std::size_t value = 0; value < GrayColours; ++value)
            for (std::size_t component = 0; component < 3; ++component)
                if (table[4 * value + component] != levelOf(value)) return false;
        return true;
    };
    if (isAllOf([](std::size_t value) { return value; })) return ColourMeaning::Grays;
    if (isAllOf([](std::size_t value) { return value == 1 ? 0U : 255U; })) return ColourMeaning::TwoLevels;
    // Where the colours were stand 256 indices of two bytes.
    bool isIndices = table[0] == 0;
    for (std::size_t i = 0; i < GrayColours; ++i)
        isIndices = isIndices && table[2 * i + 1] == 0 && (i == 0 || table[2 * i] >= table[2 * i - 2]);
    return isIndices ? ColourMeaning::Grays : ColourMeaning::Colours;
}

}  // namespace kest
