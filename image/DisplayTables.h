// The display tables of the 8-bit images: a palette and 256 colours or palette indices each.
#pragma once

#include <cstdint>
#include <span>

#include "KestDisplayTable.h"
#include "image/kernel/DibLayout.h"

namespace kest {

// Each of these makes what a table has not got yet, so that one for which memory was short is complete after a later
// call. False while there is no block; a palette that cannot be had stays null.

/// The colours of a DIB's own table, as many as it has, and a palette of them. Nothing else may be drawn through the DIB
/// before they are kept here.
bool MakeFileColourTable(KestDisplayTable& table, std::span<const std::uint8_t> dib, const DibLayout& layout);

/// 256 gray colours and a palette of them.
bool MakeColourTable(KestDisplayTable& table);

/// Indices into a palette of `grays` grays (256, 128 or 64): entry v is v * grays / 256.
bool MakeIndexTable(KestDisplayTable& table, int grays);

void ReleaseTable(KestDisplayTable& table);

/// The table's content; empty without a block.
std::span<std::uint8_t> ColoursOf(KestDisplayTable& table);
std::span<std::uint16_t> IndicesOf(KestDisplayTable& table);

}  // namespace kest
