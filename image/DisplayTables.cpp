// The display tables of the 8-bit images.
#include "image/DisplayTables.h"

#include <algorithm>

namespace kest {
namespace {

HPALETTE MakePalette(std::span<const PALETTEENTRY> entries) {
    struct {
        WORD version;
        WORD count;
        PALETTEENTRY entries[GrayColours];
    } palette = {0x300, static_cast<WORD>(entries.size()), {}};
    if (entries.empty()) return nullptr;
    std::copy(entries.begin(), entries.end(), palette.entries);
    return CreatePalette(reinterpret_cast<const LOGPALETTE*>(&palette));
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

}  // namespace

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

bool MakeColourTable(KestDisplayTable& table) {
    MakeGrayPalette(table, GrayColours);
    if (IsBlockNew(table)) WriteGrayColours(ColoursOf(table));
    return table.pTable != nullptr;
}

bool MakeIndexTable(KestDisplayTable& table, int grays) {
    MakeGrayPalette(table, grays);
    if (IsBlockNew(table)) {
        const std::span<std::uint16_t> indices = IndicesOf(table);
        for (std::size_t v = 0; v < indices.size(); ++v)
            indices[v] = static_cast<std::uint16_t>(v / static_cast<std::size_t>(GrayColours / grays));
    }
    return table.pTable != nullptr;
}

void ReleaseTable(KestDisplayTable& table) {
    table.hTable.Release();
    table.pTable = nullptr;
    table.hPalette.Release();
}

std::span<std::uint8_t> ColoursOf(KestDisplayTable& table) {
    if (!table.pTable) return {};
    return {static_cast<std::uint8_t*>(table.pTable), ColourTableBytes};
}

std::span<std::uint16_t> IndicesOf(KestDisplayTable& table) {
    if (!table.pTable) return {};
    return {static_cast<std::uint16_t*>(table.pTable), GrayColours};
}

}  // namespace kest
