// What stands in front of a BMP file's pixels, judged without them: whether a reader opens the file, and whether the
// picture is then the one that the file means.
#pragma once

#include <cstdint>
#include <span>

#include "KestTypes.h"
#include "image/kernel/BmpFormat.h"

namespace kest {

/// File header, info header and 256 colours.
constexpr int BmpFrontBytes = BmpFileHeaderBytes + DibHeaderBytes + ColourTableBytes;

/// Judges the first bytes, up to BmpFrontBytes, of a file of `fileBytes` bytes. The layout is that of a file that
/// opens; if that has 8 bits a pixel, all BmpFrontBytes are there.
KestPictureReason JudgeBmpFront(std::span<const std::uint8_t> front, Size64 fileBytes, DibLayout& layout);

}  // namespace kest
