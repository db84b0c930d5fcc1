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
    PALETTEENTRY entries[GrayColours];
    for (int i = 0; i < grays; ++i) {
        const auto level = static_cast<BYTE>(i * (GrayColours / grays));
        entries[i] = {level, level, level, 0};
    }
    table.hPalette.Adopt(MakePalette({entries, static_cast<std::size_t>(grays)}));
}

}  // namespace

void MakeFileColourTable(KestDisplayTable& table, std::span<const std::uint8_t> dib, const DibLayout& layout) {
    PALETTEENTRY entries[GrayColours];
    const auto colours = static_cast<std::size_t>(std::min<Size64>(layout.colourCount, GrayColours));
    const std::uint8_t* own = dib.data() + layout.headerBytes;
    table.pTable = table.hTable.Allocate(ColourTableBytes);
    auto* copy = static_cast<std::uint8_t*>(table.pTable);
    for (std::size_t i = 0; i < colours; ++i, own += layout.colourBytes) {
        entries[i] = {own[2], own[1], own[0], 0};
        if (copy) std::copy(own, own + layout.colourBytes, copy + 4 * i);
    }
    table.hPalette.Adopt(MakePalette({entries, colours}));
}

void MakeColourTable(KestDisplayTable& table) {
    MakeGrayPalette(table, GrayColours);
    table.pTable = table.hTable.Allocate(ColourTableBytes);
    if (table.pTable) WriteGrayColours(ColoursOf(table));
}

void MakeIndexTable(KestDisplayTable& table, int grays) {
    MakeGrayPalette(table, grays);
    table.pTable = table.hTable.Allocate(ColourTableBytes);
    const std::span<std::uint16_t> indices = IndicesOf(table);
    for (std::size_t v = 0; v < indices.size(); ++v)
        indices[v] = static_cast<std::uint16_t>(v / static_cast<std::size_t>(GrayColours / grays));
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
