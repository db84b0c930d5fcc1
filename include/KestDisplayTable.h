// What the 8-bit images are shown through.
#pragma once

#include "KestBlocks.h"

namespace kest {
struct Dib8Image;
}

/// One display table: a palette, and a block of 1024 bytes with 256 RGBQUADs or 256 16-bit palette indices.
struct KestDisplayTable {
    KestGlobalBlock hTable;  ///< the block of colours or indices
    void* pTable = nullptr;  ///< its first byte; null without a block
    KestPalette hPalette;    ///< the palette that shows it
};
