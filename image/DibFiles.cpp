// DIB blocks from and to BMP files, and blank ones.
#include "image/DibFiles.h"

#include <algorithm>
#include <cstring>

#include "KestTypes.h"
#include "core/Files.h"
#include "core/Messages.h"
#include "image/kernel/BmpFormat.h"
#include "image/kernel/Colours.h"

namespace kest {
namespace {

struct Refusal {
    const char* text;
    const char* caption;
};

void Tell(const Refusal& refusal) { ShowUnownedMessage(refusal.text, refusal.caption); }

constexpr Refusal notOpened = {"Can't open file", "File I/O Error"};
constexpr Refusal notWritten = {"Can't write file", "File I/O Error"};
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

/// What speaks against a loaded 24-bit file; null when nothing does. Only a file that is accepted gets its plane.
const Refusal* Judge24(const BmpFileHeader& header, std::span<const std::uint8_t> dib, DibLayout& layout,
                       KestGlobalBlock* plane) {
    const BmpVerdict verdict = JudgeBmp(header, dib, 24, layout);
    if (verdict != BmpVerdict::Accepted) return &verdictRefusals[static_cast<int>(verdict)];
    const bool hasPlane = !plane || AllocatePlane(*plane, layout.width, layout.height) != KestGlobalBlock::NotAllocated;
    return hasPlane ? nullptr : &noMemory;
}

/// DIBs from streams can have headers that a file of that depth must not have.
bool HasUsualHeader(const DibLayout& layout, int bitCount) {
    return layout.headerBytes == DibHeaderBytes && layout.bitCount == bitCount &&
           (bitCount == 8 || layout.colourCount == 0);
}

/// Header and colours in the usual form, of a DIB that has them in another one.
void WriteUsualFront(std::span<const std::uint8_t> dib, const DibLayout& layout, int bitCount, KestWholeFile& file) {
    std::uint8_t front[DibHeaderBytes + ColourTableBytes] = {};
    WriteDibHeader(front, layout.width, layout.height, bitCount);
    if (bitCount == 24) {
        file.Write(front, DibHeaderBytes);
        return;
    }
    const std::uint8_t* colour = dib.data() + layout.headerBytes;
    for (Size64 i = 0; i < layout.colourCount && i < GrayColours; ++i, colour += layout.colourBytes)
        std::memcpy(front + DibHeaderBytes + 4 * i, colour, 3);
    file.Write(front, sizeof front);
}

}  // namespace

std::uint8_t* ReadDib8(const char* path, KestGlobalBlock& dib, DibLayout& layout) {
    BmpFileHeader header;
    if (LoadDib(path, header, dib) != LoadFault::None ||
        JudgeBmp(header, BytesOf(dib), 8, layout) != BmpVerdict::Accepted) {
        dib.Release();
        return nullptr;
    }
    return static_cast<std::uint8_t*>(dib.Get());
}

std::uint8_t* ReadDib24(const char* path, KestGlobalBlock& dib, DibLayout& layout, KestGlobalBlock* plane) {
    BmpFileHeader header;
    const LoadFault fault = LoadDib(path, header, dib);
    const Refusal* refusal = fault == LoadFault::None ? Judge24(header, BytesOf(dib), layout, plane)
                                                      : &loadRefusals[static_cast<int>(fault)];
    if (!refusal) return static_cast<std::uint8_t*>(dib.Get());
    if (plane && (fault == LoadFault::None || fault == LoadFault::CutShort)) plane->Release();
    dib.Release();
    if (plane)
        Tell(*refusal);
    else
        ShowMessage(refusal->text, refusal->caption);
    return nullptr;
}

void WriteDib(std::span<const std::uint8_t> dib, int bitCount, KestWholeFile& file) {
    DibLayout layout;
    if (!ReadDibLayout(dib, layout)) return file.Abandon();
    // The file's sizes always count the usual table.
    const int pixelOffset = BmpFileHeaderBytes + DibHeaderBytes + (bitCount == 8 ? ColourTableBytes : 0);
    const Size64 pixelBytes = layout.PixelCount() * (bitCount / 8);
    std::uint8_t header[BmpFileHeaderBytes];
    WriteBmpFileHeader(header,
                       {static_cast<std::uint32_t>(pixelBytes + pixelOffset), static_cast<std::uint32_t>(pixelOffset)});
    file.Write(header, sizeof header);

    const auto held = static_cast<Size64>(dib.size());
    Size64 start = 0;
    if (!HasUsualHeader(layout, bitCount)) {
        WriteUsualFront(dib, layout, bitCount, file);
        start = std::min(layout.pixelOffset, held);
    }
    // Table and pixels follow the header in the block as in the file.
    file.Write(dib.data() + start, std::min(layout.pixelOffset + pixelBytes, held) - start);
}

int TellDib8NotWritten() {
    ShowUnownedMessage("Could not write DIB file", "Error", MB_ICONEXCLAMATION);
    return KEST_FAILED;
}

int WriteDib24(std::span<const std::uint8_t> dib, const char* path) {
    KestWholeFile file(path);
    WriteDib(dib, 24, file);
    if (file.Replace() == KEST_OK) return KEST_OK;
    const bool isCreated = file.GetResult() != KestWholeFile::NotCreated;
    Tell(isCreated ? notWritten : notOpened);
    return isCreated ? KEST_FAILED : KEST_OK;
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
