// Raw sample files, beside the BMP files of wide images: file code, height and width as 32-bit numbers, then the
// samples without padding, bottom row first, all little-endian. Bytes behind the samples are ignored.
#pragma once

#include <cstdint>
#include <span>

#include "core/kernel/CheckedSize.h"

namespace kest {

constexpr int RawHeaderBytes = 12;

struct RawHeader {
    std::int32_t code, height, width;
    bool operator==(const RawHeader&) const = default;

    /// Bytes of the samples; beyond any block when a size is negative.
    Size64 SampleBytes(int bytesPerSample) const;
};

void WriteRawHeader(std::span<std::uint8_t, RawHeaderBytes> bytes, const RawHeader& header);

/// True when the header is the one expected, and at least its samples' bytes follow it.
bool IsRawFile(std::span<const std::uint8_t, RawHeaderBytes> bytes, Size64 bytesBehind, const RawHeader& expected,
               int bytesPerSample);

}  // namespace kest
