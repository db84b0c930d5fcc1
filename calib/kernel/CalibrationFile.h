// The header of a calibration file (".cal"): little-endian, version 1 in 392 bytes, version 2 in 456. The area map,
// width x height floats, follows where both are above 0. Fields of text may lack their terminator; nothing past them is
// read.
#pragma once

#include <cstdint>
#include <span>

#include "KestTypes.h"
#include "calib/kernel/Perspective.h"
#include "core/kernel/CheckedSize.h"

namespace kest {

constexpr int calibrationVersion1 = 1;
constexpr int calibrationVersion2 = 2;
constexpr std::size_t headerBytesVersion1 = 392;
constexpr std::size_t headerBytesVersion2 = 456;
constexpr std::size_t unitsFieldBytes = 80;

struct CalibrationHeader {
    int type;
    int version;
    char name[KEST_NAME_SIZE + 1];  ///< of 260 characters when the field has no terminator
    char units[unitsFieldBytes + 1];
    Perspective mapping;
    int mapWidth;
    int mapHeight;
    tagPoints imagePoints[4];  ///< these and the world points from version 2 on
    tagPoints worldPoints[4];

    bool HasMap() const { return mapWidth > 0 && mapHeight > 0; }
};

/// The part that both versions have.
void ReadVersion1(std::span<const std::uint8_t, headerBytesVersion1> bytes, CalibrationHeader& header);
/// What version 2 has behind it.
void ReadPoints(std::span<const std::uint8_t, headerBytesVersion2 - headerBytesVersion1> bytes,
                CalibrationHeader& header);

/// Bytes behind the texts' terminators are zeros.
void WriteVersion2(const CalibrationHeader& header, std::span<std::uint8_t, headerBytesVersion2> bytes);

/// Bytes of a map of this size; 0 when a side is below 1 or no block can hold it.
Size64 AreaMapBytes(int width, int height);

}  // namespace kest
