// The display tables of the 8-bit images: a palette and 256 colours or palette indices each.
#pragma once

#include <cstdint>
#include <span>

#include "KestDisplayTable.h"
#include "image/kernel/DibLayout.h"

namespace kest {

/// The colours of a DIB's own table, as many as it has, and a palette of them.
void MakeFileColourTable(KestDisplayTable& table, std::span<const std::uint8_t> dib, const DibLayout& layout);

/// 256 gray colours and a palette of them.
void MakeColourTable(KestDisplayTable& table);

/// Indices into a palette of `grays` grays (256, 128 or 64): entry v is v * grays / 256.
void MakeIndexTable(KestDisplayTable& table, int grays);

void ReleaseTable(KestDisplayTable& table);

/// The table's content; empty without a block.
std::span<std::uint8_t> ColoursOf(KestDisplayTable& table);
std::span<std::uint16_t> IndicesOf(KestDisplayTable& table);

}  // namespace kest
