// DIB blocks from and to BMP files, and blank ones.
#include "image/DibFiles.h"

#include <cstring>

#include "KestTypes.h"
#include "core/Files.h"
#include "image/kernel/BmpFormat.h"
#include "image/kernel/DibLayout.h"

namespace kest {

std::uint8_t* ReadDib8(const char* path, KestGlobalBlock& dib) {
    const FileHandle file(OpenForReading(path));
    if (!file.IsOpen()) return nullptr;
    std::uint8_t headerBytes[BmpFileHeaderBytes];
    BmpFileHeader header;
    if (!ReadExactly(file, headerBytes, BmpFileHeaderBytes) || !ReadBmpFileHeader(headerBytes, header)) return nullptr;
    // A size that the file does not have is not allocated.
    if (header.DibBytes() > BytesLeft(file)) return nullptr;
    auto* bytes = static_cast<std::uint8_t*>(dib.Allocate(header.DibBytes()));
    if (!bytes) return nullptr;
    if (!ReadExactly(file, bytes, dib.Size()) || JudgeBmp(header, BytesOf(dib), 8) != BmpVerdict::Accepted) {
        dib.Release();
        return nullptr;
    }
    return bytes;
}

int WriteDib8(std::span<const std::uint8_t> dib, const char* path) {
    DibLayout layout;
    if (!ReadDibLayout(dib, layout) || !LiesInBlock(layout, 1, static_cast<Size64>(dib.size()))) return KEST_FAILED;
    const FileHandle file(OpenForWriting(path));
    if (!file.IsOpen()) return KEST_FAILED;

    // The file's sizes always count a table of 256 colours.
    constexpr int pixelOffset = BmpFileHeaderBytes + DibHeaderBytes + ColourTableBytes;
    std::uint8_t front[pixelOffset] = {};
    const std::span<std::uint8_t> frontBytes(front);
    WriteBmpFileHeader(frontBytes.first<BmpFileHeaderBytes>(),
                       {static_cast<std::uint32_t>(layout.PixelCount() + pixelOffset), pixelOffset});
    Size64 tableBytes = layout.ColourTableSize();
    if (layout.headerBytes == DibHeaderBytes && tableBytes <= ColourTableBytes) {
        std::memcpy(front + BmpFileHeaderBytes, dib.data(), static_cast<std::size_t>(DibHeaderBytes + tableBytes));
    } else {
        // A DIB with another form of header came from a stream; its colours are written in the usual form.
        WriteDibHeader(frontBytes.subspan(BmpFileHeaderBytes), layout.width, layout.height, 8);
        const std::uint8_t* colour = dib.data() + layout.headerBytes;
        for (Size64 i = 0; i < layout.colourCount && i < GrayColours; ++i, colour += layout.colourBytes)
            std::memcpy(front + BmpFileHeaderBytes + DibHeaderBytes + 4 * i, colour, 3);
        tableBytes = ColourTableBytes;
    }
    WriteExactly(file, front, BmpFileHeaderBytes + DibHeaderBytes + tableBytes);
    WriteExactly(file, dib.data() + layout.pixelOffset, layout.PixelCount());
    FinishWriting(file);
    return KEST_OK;
}

std::uint8_t* MakeBlankDib8(int height, int width, std::uint8_t fill, KestGlobalBlock& dib) {
    auto* bytes = static_cast<std::uint8_t*>(dib.Allocate(DibBytes(width, height, 8)));
    if (!bytes) return nullptr;
    const std::span<std::uint8_t> block(bytes, static_cast<std::size_t>(dib.Size()));
    WriteDibHeader(block, width, height, 8);
    WriteGrayColours(block.subspan(DibHeaderBytes));
    const auto pixels = block.subspan(DibHeaderBytes + ColourTableBytes);
    if (fill != 0) std::memset(pixels.data(), fill, pixels.size());
    return bytes;
}

}  // namespace kest
