// DIB blocks from and to BMP files, and blank ones.
#include "image/DibFiles.h"

#include <cstring>

#include "KestTypes.h"
#include "core/Files.h"
#include "core/Messages.h"
#include "image/kernel/BmpFormat.h"
#include "image/kernel/Colours.h"
#include "image/kernel/DibLayout.h"

namespace kest {
namespace {

struct Refusal {
    const char* text;
    const char* caption;
};

void Tell(const Refusal& refusal) {
    ShowUnownedMessage(refusal.text, refusal.caption);
}

constexpr Refusal notOpened = {"Can't open file", "File I/O Error"};
constexpr Refusal noMemory = {"Memory Allocation Failure", "Memory Error"};

/// What can go wrong until a file's bytes are in memory, in this order.
enum class LoadFault { None, NotOpened, NoFileHeader, NotBmp, NoMemory, CutShort };

constexpr Refusal loadRefusals[] = {
    {},
    notOpened,
    {"Can't read 'BITMAPFILEHEADER' info from file", "File I/O Error"},
    {"Not a DIB type file format", "File Type Error"},
    noMemory,
    {"Problem reading in information into memory", "File I/O Error"},
};

/// By BmpVerdict.
constexpr Refusal verdictRefusals[] = {
    {},
    {"Bad BITMAPINFOHEADER size in file", "File Error"},
    {"Can't open .bmp files using Compression", "File Error"},
    {"Can't open .bmp files other than 24-bit color", "File Error"},
    {"Incorrect Header; Can't open file", "File Error"},
};

/// Loads what follows the file header.
LoadFault LoadDib(const char* path, BmpFileHeader& header, KestGlobalBlock& dib) {
    const FileHandle file(OpenForReading(path));
    if (!file.IsOpen()) return LoadFault::NotOpened;
    std::uint8_t headerBytes[BmpFileHeaderBytes];
    if (!ReadExactly(file, headerBytes, BmpFileHeaderBytes)) return LoadFault::NoFileHeader;
    if (!ReadBmpFileHeader(headerBytes, header)) return LoadFault::NotBmp;
    if (!IsBlockSize(header.DibBytes())) return LoadFault::NoMemory;
    // A size that the file does not have is not allocated.
    if (header.DibBytes() > BytesLeft(file)) return LoadFault::CutShort;
    if (!dib.Allocate(header.DibBytes())) return LoadFault::NoMemory;
    return ReadExactly(file, dib.Get(), dib.Size()) ? LoadFault::None : LoadFault::CutShort;
}

/// What speaks against a loaded 24-bit file; null when nothing does. The plane's turn comes after the header's size.
const Refusal* Judge24(const BmpFileHeader& header, std::span<const std::uint8_t> dib, KestGlobalBlock* plane) {
    const BmpVerdict verdict = JudgeBmp(header, dib, 24);
    DibLayout layout;
    if (plane && verdict != BmpVerdict::WrongHeaderSize && ReadDibLayout(dib, layout) &&
        AllocatePlane(*plane, layout.width, layout.height) == KestGlobalBlock::NotAllocated)
        return &noMemory;
    return verdict == BmpVerdict::Accepted ? nullptr : &verdictRefusals[static_cast<int>(verdict)];
}

/// Writes header, `tableBytes` of colours and pixels. The DIB's own header and table are written where they have the
/// usual form, else `rebuild(front)` makes them.
template <class Rebuild>
int WriteDib(std::span<const std::uint8_t> dib, const char* path, int bitCount, int usualColours, Rebuild rebuild) {
    DibLayout layout;
    const int bytesPerPixel = bitCount / 8;
    if (!ReadDibLayout(dib, layout) || !LiesInBlock(layout, bytesPerPixel, static_cast<Size64>(dib.size())))
        return KEST_FAILED;
    const FileHandle file(OpenForWriting(path));
    if (!file.IsOpen()) return KEST_FAILED;

    // The file's sizes always count the usual table.
    constexpr int largestFront = BmpFileHeaderBytes + DibHeaderBytes + ColourTableBytes;
    const int pixelOffset = BmpFileHeaderBytes + DibHeaderBytes + 4 * usualColours;
    const Size64 pixelBytes = layout.PixelCount() * bytesPerPixel;
    std::uint8_t front[largestFront] = {};
    const std::span<std::uint8_t> frontBytes(front);
    WriteBmpFileHeader(frontBytes.first<BmpFileHeaderBytes>(),
                       {static_cast<std::uint32_t>(pixelBytes + pixelOffset), static_cast<std::uint32_t>(pixelOffset)});
    Size64 frontLength = pixelOffset;
    if (layout.headerBytes == DibHeaderBytes && layout.colourCount <= usualColours) {
        std::memcpy(front + BmpFileHeaderBytes, dib.data(), static_cast<std::size_t>(layout.pixelOffset));
        frontLength = BmpFileHeaderBytes + layout.pixelOffset;
    } else {
        // A DIB with another form of header, or more colours, came from a stream.
        WriteDibHeader(frontBytes.subspan(BmpFileHeaderBytes), layout.width, layout.height, bitCount);
        rebuild(layout, frontBytes.subspan(BmpFileHeaderBytes + DibHeaderBytes));
    }
    WriteExactly(file, front, frontLength);
    WriteExactly(file, dib.data() + layout.pixelOffset, pixelBytes);
    FinishWriting(file);
    return KEST_OK;
}

}  // namespace

std::uint8_t* ReadDib8(const char* path, KestGlobalBlock& dib) {
    BmpFileHeader header;
    if (LoadDib(path, header, dib) != LoadFault::None || JudgeBmp(header, BytesOf(dib), 8) != BmpVerdict::Accepted) {
        dib.Release();
        return nullptr;
    }
    return static_cast<std::uint8_t*>(dib.Get());
}

std::uint8_t* ReadDib24(const char* path, KestGlobalBlock& dib, KestGlobalBlock* plane) {
    BmpFileHeader header;
    const LoadFault fault = LoadDib(path, header, dib);
    const Refusal* refusal =
        fault == LoadFault::None ? Judge24(header, BytesOf(dib), plane) : &loadRefusals[static_cast<int>(fault)];
    if (!refusal) return static_cast<std::uint8_t*>(dib.Get());
    if (plane && (fault == LoadFault::None || fault == LoadFault::CutShort)) plane->Release();
    dib.Release();
    Tell(*refusal);
    return nullptr;
}

int WriteDib8(std::span<const std::uint8_t> dib, const char* path) {
    return WriteDib(dib, path, 8, GrayColours, [&](const DibLayout& layout, std::span<std::uint8_t> table) {
        const std::uint8_t* colour = dib.data() + layout.headerBytes;
        for (Size64 i = 0; i < layout.colourCount && i < GrayColours; ++i, colour += layout.colourBytes)
            std::memcpy(&table[static_cast<std::size_t>(4 * i)], colour, 3);
    });
}

int WriteDib24(std::span<const std::uint8_t> dib, const char* path) {
    const int result = WriteDib(dib, path, 24, 0, [](const DibLayout&, std::span<std::uint8_t>) {});
    if (result < 0) Tell(notOpened);
    return result;
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

std::uint8_t* MakeBlankDib24(int height, int width, std::uint8_t fill, KestGlobalBlock& dib) {
    auto* bytes = static_cast<std::uint8_t*>(dib.Allocate(DibBytes(width, height, 24)));
    if (!bytes) {
        Tell(noMemory);
        return nullptr;
    }
    WriteDibHeader({bytes, static_cast<std::size_t>(dib.Size())}, width, height, 24);
    if (fill != 0) std::memset(bytes + DibHeaderBytes, fill, static_cast<std::size_t>(dib.Size() - DibHeaderBytes));
    return bytes;
}

KestGlobalBlock::AllocateResult AllocatePlane(KestGlobalBlock& plane, int width, int height) {
    plane.Release();
    const Size64 pixels = Product(width, height);
    if (pixels == 0) return KestGlobalBlock::NotLocked;
    if (pixels > LargestBlockBytes) return KestGlobalBlock::NotAllocated;
    return plane.AllocateLocked(pixels * PlaneBytesPerPixel);
}

}  // namespace kest
