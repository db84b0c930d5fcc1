// The display tables of the 8-bit images.
#include "image/DisplayTables.h"

#include <algorithm>

#include "core/Platform.h"
#include "image/kernel/DisplayLut.h"

namespace kest {
namespace {

/// The table's content; empty without a block.
std::span<std::uint8_t> ColoursOf(const KestDisplayTable& table) {
    if (!table.pTable) return {};
    return {static_cast<std::uint8_t*>(table.pTable), ColourTableBytes};
}

std::span<std::uint16_t> IndicesOf(const KestDisplayTable& table) {
    if (!table.pTable) return {};
    return {static_cast<std::uint16_t*>(table.pTable), GrayColours};
}

void MakeGrayPalette(KestDisplayTable& table, int grays) {
    if (table.hPalette) return;
    PALETTEENTRY entries[GrayColours];
    for (int i = 0; i < grays; ++i) {
        const auto level = static_cast<BYTE>(i * (GrayColours / grays));
        entries[i] = {level, level, level, 0};
    }
    table.hPalette.Adopt(MakePalette({entries, static_cast<std::size_t>(grays)}));
}

/// True when there was none, and one could be had.
bool IsBlockNew(KestDisplayTable& table) {
    if (table.pTable) return false;
    table.pTable = table.hTable.Allocate(ColourTableBytes);
    return table.pTable != nullptr;
}

/// The colours of a DIB's own table, as many as it has, and a palette of them.
bool MakeFileColourTable(KestDisplayTable& table, std::span<const std::uint8_t> dib, const DibLayout& layout) {
    const auto colours = static_cast<std::size_t>(std::min<Size64>(layout.colourCount, GrayColours));
    if (IsBlockNew(table)) {
        const std::uint8_t* own = dib.data() + layout.headerBytes;
        std::uint8_t* copy = ColoursOf(table).data();
        for (std::size_t i = 0; i < colours; ++i, own += layout.colourBytes, copy += 4)
            std::copy_n(own, layout.colourBytes, copy);
    }
    if (!table.pTable) return false;
    if (!table.hPalette) {
        PALETTEENTRY entries[GrayColours];
        const std::uint8_t* colour = ColoursOf(table).data();
        for (std::size_t i = 0; i < colours; ++i, colour += 4) entries[i] = {colour[2], colour[1], colour[0], 0};
        table.hPalette.Adopt(MakePalette({entries, colours}));
    }
    return true;
}

/// 256 gray colours and a palette of them.
bool MakeColourTable(KestDisplayTable& table) {
    MakeGrayPalette(table, GrayColours);
    if (IsBlockNew(table)) WriteGrayColours(ColoursOf(table));
    return table.pTable != nullptr;
}

/// Indices into a palette of `grays` grays (256, 128 or 64): entry v is v * grays / 256.
bool MakeIndexTable(KestDisplayTable& table, int grays) {
    MakeGrayPalette(table, grays);
    if (IsBlockNew(table)) {
        const std::span<std::uint16_t> indices = IndicesOf(table);
        for (std::size_t v = 0; v < indices.size(); ++v)
            indices[v] = static_cast<std::uint16_t>(v / static_cast<std::size_t>(GrayColours / grays));
    }
    return table.pTable != nullptr;
}

}  // namespace

KestDisplayTable* DisplayTables::Table(int lut) const {
    return lut >= FirstLut && lut <= LastLut ? tables[lut - FirstLut] : nullptr;
}

std::span<tagPoints> DisplayTables::Points(int list) const {
    if (list < 0 || list >= PointListCount || !lists[list]) return {};
    return {lists[list], static_cast<std::size_t>(PointLists[list].count)};
}

std::span<tagPoints> DisplayTables::Points(int lut, int channel) const {
    for (int list = 0; list < PointListCount; ++list)
        if (PointLists[list].lut == lut && PointLists[list].channel == channel) return Points(list);
    return {};
}

int DisplayTables::GetPoints(int lut, int channel, tagPoints* points) const {
    const std::span<const tagPoints> own = Points(lut, channel);
    if (!points || own.empty()) return KEST_FAILED;
    std::copy(own.begin(), own.end(), points);
    return KEST_OK;
}

void DisplayTables::Release() const {
    for (KestDisplayTable* table : tables) {
        if (!table) continue;
        table->hTable.Release();
        table->pTable = nullptr;
        table->hPalette.Release();
    }
}

bool DisplayTables::Make(std::span<const std::uint8_t> dib, const DibLayout& layout) const {
    for (int lut = FirstLut; lut <= LastLut; ++lut) {
        KestDisplayTable* const table = Table(lut);
        if (!table) continue;
        const bool isMade = lut == FileColoursLut ? MakeFileColourTable(*table, dib, layout)
                            : lut == ColourLut    ? MakeColourTable(*table)
                                                  : MakeIndexTable(*table, static_cast<int>(Points(lut, 0).size()));
        if (!isMade) return false;
    }
    return true;
}

void DisplayTables::Fill(int lut, int channel, std::span<const tagPoints> points) const {
    KestDisplayTable* const table = Table(lut);
    if (!table) return;
    if (lut == ColourLut)
        FillColourChannel(points, ColoursOf(*table), 3 - channel);
    else
        FillGrayIndices(points, IndicesOf(*table));
}

}  // namespace kest
