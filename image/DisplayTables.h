// The display tables of the 8-bit images: a palette and 256 colours or palette indices each.
#pragma once

#include <cstdint>
#include <span>

#include "KestDisplayTable.h"
#include "KestTypes.h"
#include "image/kernel/DibLayout.h"

namespace kest {

constexpr int FirstLut = 100, LastLut = 104;
/// The file's own colours.
constexpr int FileColoursLut = 100;
/// Colours from three curves: channel 1 red, 2 green, 3 blue.
constexpr int ColourLut = 101;

/// The point lists of the tables, in the order of their numbers.
struct PointList {
    int lut, channel, count;
};
constexpr PointList PointLists[] = {{101, 1, 256}, {101, 2, 256}, {101, 3, 256},
                                    {102, 0, 256}, {103, 0, 128}, {104, 0, 64}};
constexpr int PointListCount = 6;

/// The display tables of an image with their point lists; null where its class has none.
struct DisplayTables {
    KestDisplayTable* tables[LastLut - FirstLut + 1];
    tagPoints* lists[PointListCount];

    /// Null for an unknown LUT.
    KestDisplayTable* Table(int lut) const;
    /// Empty for an unknown pair.
    std::span<tagPoints> Points(int lut, int channel) const;
    std::span<tagPoints> Points(int list) const;
    /// Copies a point list out; -1 for an unknown pair, and for null.
    int GetPoints(int lut, int channel, tagPoints* points) const;

    void Release() const;
    /// Makes what a table has not got yet, so that one for which memory was short is complete after a later call. False
    /// while there is no block; a palette that cannot be had stays null. Nothing else may be drawn through the DIB
    /// before its colours are kept here.
    bool Make(std::span<const std::uint8_t> dib, const DibLayout& layout) const;
    /// Computes what a table shows for the levels 0 to 255 from as many points as its list has.
    void Fill(int lut, int channel, std::span<const tagPoints> points) const;
};

}  // namespace kest
