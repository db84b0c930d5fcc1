// DIB blocks from and to BMP files, and blank ones. The format itself is in kernel/BmpFormat.
#pragma once

#include <cstdint>
#include <span>

#include "KestBlocks.h"
#include "KestWholeFile.h"
#include "image/kernel/DibLayout.h"

namespace kest {

/// Reads an 8-bit BMP file into a block: info header, colour table and pixels, which lie in it as `layout` says. Null,
/// without a message, when the file is refused.
std::uint8_t* ReadDib8(const char* path, KestGlobalBlock& dib, DibLayout& layout);

/// Reads a 24-bit BMP file into a block: info header and pixels, as above. Null, after a message, when the file is
/// refused. A `plane`, if there is one, is allocated with the size of the pixels of a file that is accepted, and
/// released when it is refused for what follows its file header. Messages have the focus window as owner; with a plane
/// they have none.
std::uint8_t* ReadDib24(const char* path, KestGlobalBlock& dib, DibLayout& layout, KestGlobalBlock* plane = nullptr);

/// Writes a DIB of 8 or 24 bits as a BMP file, which Replace then puts in its place. What went wrong is the file's to
/// tell. Of a DIB whose header counts more than the block holds, what the block holds is written.
void WriteDib(std::span<const std::uint8_t> dib, int bitCount, KestWholeFile& file);

/// Tells that an 8-bit BMP file was not written; -1.
int TellDib8NotWritten();

/// Writes a 24-bit DIB as the BMP file at the path. 0, also after "Can't open file" when it cannot be created; -1 after
/// "Can't write file", with the old file as it was.
int WriteDib24(std::span<const std::uint8_t> dib, const char* path);

/// A DIB with 256 grays and every pixel `fill`. Null when it cannot be had.
std::uint8_t* MakeBlankDib8(int height, int width, std::uint8_t fill, KestGlobalBlock& dib);

/// A 24-bit DIB with every byte `fill`. Null, after a message, when it cannot be had.
std::uint8_t* MakeBlankDib24(int height, int width, std::uint8_t fill, KestGlobalBlock& dib);

/// A plane of three zero bytes for each pixel. One without pixels counts as allocated, but not locked.
KestGlobalBlock::AllocateResult AllocatePlane(KestGlobalBlock& plane, int width, int height);

inline std::span<const std::uint8_t> BytesOf(const KestGlobalBlock& block) {
    return {static_cast<const std::uint8_t*>(block.Get()), static_cast<std::size_t>(block.Size())};
}

}  // namespace kest
