// BMP files of version 3.
#include "image/kernel/BmpFormat.h"

#include "core/kernel/ByteReader.h"

namespace kest {

bool ReadBmpFileHeader(std::span<const std::uint8_t, BmpFileHeaderBytes> bytes, BmpFileHeader& header) {
    if (bytes[0] != 'B' || bytes[1] != 'M') return false;
    ByteReader reader(bytes.subspan(2));
    return reader.Read(header.fileBytes) && reader.Skip(4) && reader.Read(header.pixelOffset);
}

void WriteBmpFileHeader(std::span<std::uint8_t, BmpFileHeaderBytes> bytes, BmpFileHeader header) {
    ByteWriter writer(bytes);
    writer.WriteBytes("BM", 2);
    writer.Write(header.fileBytes);
    writer.Write(std::uint32_t{0});
    writer.Write(header.pixelOffset);
}

BmpVerdict JudgeBmp(const BmpFileHeader& header, std::span<const std::uint8_t> dib, int bitCount, DibLayout& layout) {
    ByteReader reader(dib);
    std::uint32_t headerBytes, compression;
    if (!reader.Read(headerBytes) || headerBytes != DibHeaderBytes) return BmpVerdict::WrongHeaderSize;
    if (dib.size() < DibHeaderBytes) return BmpVerdict::WrongSize;
    reader.Skip(12);
    reader.Read(compression);
    if (compression != 0) return BmpVerdict::Compressed;

    if (!ReadDibLayout(dib, layout)) return BmpVerdict::WrongHeaderSize;
    const bool hasDepth =
        bitCount == AnyBmpDepth ? layout.bitCount == 8 || layout.bitCount == 24 : layout.bitCount == bitCount;
    if (!hasDepth) return BmpVerdict::WrongDepth;

    const int bytesPerPixel = layout.bitCount / 8;
    const Size64 pixelBytes = layout.PixelCount() * bytesPerPixel;
    if (pixelBytes != Size64{header.fileBytes} - header.pixelOffset) return BmpVerdict::WrongSize;
    if (HasUsualColours(layout) && !LiesInBlock(layout, bytesPerPixel, header.DibBytes())) return BmpVerdict::WrongSize;
    return BmpVerdict::Accepted;
}

}  // namespace kest
