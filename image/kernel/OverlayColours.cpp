// The colours of the overlay.
#include "image/kernel/OverlayColours.h"

namespace kest {
namespace {

constexpr int systemColourCount = 20;
constexpr Rgb systemColours[systemColourCount] = {
    {0, 0, 0},       {128, 0, 0},     {0, 128, 0},     {128, 128, 0},   {0, 0, 128},     {128, 0, 128},   {0, 128, 128},
    {192, 192, 192}, {192, 220, 192}, {166, 202, 240}, {255, 251, 240}, {160, 160, 164}, {128, 128, 128}, {255, 0, 0},
    {0, 255, 0},     {255, 255, 0},   {0, 0, 255},     {255, 0, 255},   {0, 255, 255},   {255, 255, 255},
};
constexpr int colouredEntries = 12 * systemColourCount;

}  // namespace

Rgb OverlayColour(int value) { return systemColours[value % systemColourCount]; }

void WriteOverlayColours(std::span<std::uint8_t> table) {
    for (int i = 0; i < 256; ++i) {
        const Rgb colour = i < colouredEntries ? OverlayColour(i) : Rgb{0, 0, 0};
        table[4 * i] = colour.blue;
        table[4 * i + 1] = colour.green;
        table[4 * i + 2] = colour.red;
        table[4 * i + 3] = 0;
    }
}

}  // namespace kest
