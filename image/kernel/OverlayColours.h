// The colours of the overlay: the 20 fixed system colours.
#pragma once

#include <cstdint>
#include <span>

#include "image/kernel/Colours.h"

namespace kest {

/// The system colour that overlay value `value` shows: value modulo 20.
Rgb OverlayColour(int value);

/// The overlay's colour table, 256 four-byte colours: the system colours twelve times, then black from entry 240 on.
void WriteOverlayColours(std::span<std::uint8_t> table);

}  // namespace kest
