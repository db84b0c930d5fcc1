// DIB blocks from and to BMP files, and blank ones. The format itself is in kernel/BmpFormat.
#pragma once

#include <cstdint>
#include <span>

#include "KestBlocks.h"

namespace kest {

/// Reads an 8-bit BMP file into a block: info header, colour table and pixels. Null, without a message, when the file is
/// refused.
std::uint8_t* ReadDib8(const char* path, KestGlobalBlock& dib);

/// Writes an 8-bit DIB as a BMP file; -1 when the file cannot be created.
int WriteDib8(std::span<const std::uint8_t> dib, const char* path);

/// A DIB with 256 grays and every pixel `fill`. Null when it cannot be had.
std::uint8_t* MakeBlankDib8(int height, int width, std::uint8_t fill, KestGlobalBlock& dib);

inline std::span<const std::uint8_t> BytesOf(const KestGlobalBlock& block) {
    return {static_cast<const std::uint8_t*>(block.Get()), static_cast<std::size_t>(block.Size())};
}

}  // namespace kest
