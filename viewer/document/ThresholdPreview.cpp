// Bands of values shown in colours over the picture, and the mask of the pixels in them.
#include "document/ThresholdPreview.h"

#include <algorithm>
#include <new>

#include "document/ImageClasses.h"
#include "platform/Drawing.h"

namespace kestview {
namespace {

constexpr unsigned short thresholdTable = 101;
constexpr int tablePoints = 256;

/// Draws the whole image in strips, and calls visit(index of the strip's first pixel, count, pixels) for each: pixels
/// are 0x00RRGGBB, bottom row first. False when memory is short.
template <class Visit>
bool DrawStrips(CcImage& image, Visit visit) {
    constexpr long stripRows = 128;
    const SIZE size = SizeOf(image);
    const DibSection drawn({size.cx, std::min<long>(size.cy, stripRows)}, 32);
    if (!drawn) return false;
    const auto width = static_cast<std::size_t>(size.cx);
    for (long top = 0; top < size.cy; top += stripRows) {
        const long rows = std::min(stripRows, size.cy - top);
        RECT strip = {0, 0, size.cx, rows};
        image.Show(drawn, &strip, thresholdTable, 1, 0, static_cast<int>(top), 1);
        GdiFlush();
        // The strip is drawn at the bitmap's top.
        const auto* pixels = reinterpret_cast<const unsigned*>(drawn.Bits()) +
                             static_cast<std::size_t>(std::min<long>(size.cy, stripRows) - rows) * width;
        visit(static_cast<std::size_t>(size.cy - top - rows) * width, static_cast<std::size_t>(rows) * width, pixels);
    }
    return true;
}

}  // namespace

bool ThresholdPreview::IsPossible(CcImage& image) {
    return image.GetImageType() != KEST_IMAGE_BINARY;
}

bool ThresholdPreview::Begin(HWND canvas) {
    if (isOn || !IsPossible(image)) return isOn;
    window = canvas;
    // Guards begin the preview again at their end, where nothing may be thrown.
    try {
        SaveTables();
        KeepColours();
    } catch (const std::bad_alloc&) {
        colours = {};
        return false;
    }
    isOn = image.BeginThresholding(window, thresholdTable) == 0;
    if (!isOn) colours = {};
    return isOn;
}

void ThresholdPreview::Apply(const std::vector<ThresholdTag>& bands) {
    std::vector<ThresholdTag> copy = bands;
    image.ThresholdImageMulti(window, copy.data(), static_cast<int>(copy.size()));
}

void ThresholdPreview::Show(const std::vector<ThresholdTag>& bands) {
    if (isOn) Apply(bands);
}

void ThresholdPreview::End() {
    if (!isOn) return;
    image.EndThresholding();
    RestoreTables();
    colours = {};
    isOn = false;
}

void ThresholdPreview::KeepColours() {
    const void* first = nullptr;
    if (image.GetImageType() == KEST_IMAGE_RGB) first = image.GetBitMapImageData();
    if (auto* hsl = dynamic_cast<Cc24BitHSLImage*>(&image)) first = hsl->GetBitMapImageDataHSL();
    const auto* bytes = static_cast<const unsigned char*>(first);
    if (bytes) colours.assign(bytes, bytes + SampleBytes(image));
}

void ThresholdPreview::SaveTables() {
    for (int channel = 0; channel < 3; ++channel) {
        savedTables[channel].resize(tablePoints);
        // Colour images have no tables.
        if (image.GetDisplayLUT(thresholdTable, channel + 1, savedTables[channel].data()) < 0)
            savedTables[channel].clear();
    }
}

void ThresholdPreview::RestoreTables() {
    for (int channel = 0; channel < 3; ++channel)
        if (!savedTables[channel].empty()) {
            // What the library lists of the range is rounded, and would be taken for another one.
            savedTables[channel].front().x = exactRange.x;
            savedTables[channel].back().x = exactRange.y;
            image.SetDisplayLUT(thresholdTable, channel + 1, savedTables[channel].data());
        }
}

std::vector<std::uint8_t> ThresholdPreview::Mask(const std::vector<ThresholdTag>& bands) {
    const SIZE size = SizeOf(image);
    std::vector<std::uint8_t> mask(static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy), 1);
    const bool wasOn = isOn;
    if (!isOn && !Begin(window)) return {};
    std::vector<ThresholdTag> marked = bands;
    const auto paint = [&](int red, int blue) {
        for (ThresholdTag& band : marked) {
            band.iRed = red;
            band.iGreen = 0;
            band.iBlue = blue;
        }
        Apply(marked);
    };
    bool isWhole = true;
    for (const unsigned colour : {0xFF0000u, 0x0000FFu}) {
        paint(colour >> 16 & 255, colour & 255);
        isWhole = isWhole && DrawStrips(image, [&](std::size_t first, std::size_t count, const unsigned* pixels) {
                      for (std::size_t i = 0; i < count; ++i)
                          mask[first + i] &= (pixels[i] & 0xFFFFFF) == colour;
                  });
    }
    if (wasOn)
        Apply(bands);
    else
        End();
    if (!isWhole) mask.clear();
    return mask;
}

}  // namespace kestview
