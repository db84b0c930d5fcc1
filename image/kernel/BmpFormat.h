// BMP files of version 3.
//
// Accepted: "BM", a 40-byte info header, no compression, 8 or 24 bits a pixel, and pixel data of exactly width x height
// (x 3) bytes: rows without padding. So a file with padded rows, where the row length is no multiple of four, is
// refused, and so is a top-down one. Whatever the header describes must lie inside the file.
// Ignored: the reserved fields, planes, image size, resolutions, important colours; the offset to the pixels counts
// only in the size check, the pixels are found from the header and its colour count.
// Not done: other depths, run-length encoding, padding.
#pragma once

#include <cstdint>
#include <span>

#include "image/kernel/DibLayout.h"

namespace kest {

constexpr int BmpFileHeaderBytes = 14;

struct BmpFileHeader {
    std::uint32_t fileBytes;    ///< bfSize; the reader loads what follows the file header
    std::uint32_t pixelOffset;  ///< bfOffBits

    Size64 DibBytes() const { return Size64{fileBytes} - BmpFileHeaderBytes; }
};

/// False when the bytes do not begin with "BM".
bool ReadBmpFileHeader(std::span<const std::uint8_t, BmpFileHeaderBytes> bytes, BmpFileHeader& header);

/// `dibBytes` counts header, colour table and pixels as written.
void WriteBmpFileHeader(std::span<std::uint8_t, BmpFileHeaderBytes> bytes, BmpFileHeader header);

/// What a reader has against a file, in the order of its checks.
enum class BmpVerdict { Accepted, WrongHeaderSize, Compressed, WrongDepth, WrongSize };

/// Every depth that a reader takes, as a bit count.
constexpr int AnyBmpDepth = 0;

/// Judges the header.DibBytes() bytes that follow the file header, of which `dib` holds at least the info header. A
/// colour count that the image class will refuse itself (other than 256 at 8 bits, any at 24) does not count here: its
/// table and pixels are never read. `layout` gets what the info header says, of every file with the right header size
/// that is not compressed.
BmpVerdict JudgeBmp(const BmpFileHeader& header, std::span<const std::uint8_t> dib, int bitCount, DibLayout& layout);

}  // namespace kest
