// What hostile bytes are played into: a reader for each format, and whatever can then be done with what was read.
#pragma once

#include <cstdint>
#include <span>

#include "KestApi.h"

namespace fuzz {

/// A format, and the folder of fuzz/corpus that has its files.
struct Format {
    const char* name;
    void (*play)(std::span<const std::uint8_t> bytes);
};

std::span<const Format> Formats();
const Format* FormatCalled(const char* name);

/// The bytes as a program of legal calls: ROIs, queries, lists, history, images, streams, with copies and assignments.
void PlayCalls(std::span<const std::uint8_t> bytes);

/// Whether a host would ask for its boundaries, which list every pixel of a row or column however long it is.
bool IsSmall(CcRoiBase& roi);

/// A window that is there for drags; it need not show anything.
HWND Window();

}  // namespace fuzz
