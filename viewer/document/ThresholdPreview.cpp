// Bands of values shown in colours over the picture, and the mask of the pixels in them.
#include "document/ThresholdPreview.h"

#include <algorithm>
#include <iterator>
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
    DibSection drawn({size.cx, std::min<long>(size.cy, stripRows)});
    if (!drawn) return false;
    const auto width = static_cast<std::size_t>(size.cx);
    for (long top = 0; top < size.cy; top += stripRows) {
        const long rows = std::min(stripRows, size.cy - top);
        RECT strip = {0, 0, size.cx, rows};
        drawn.MarkUndrawn();
        image.Show(drawn, &strip, thresholdTable, 1, 0, static_cast<int>(top), 1);
        if (!drawn.IsDrawn(rows)) return false;
        visit(static_cast<std::size_t>(size.cy - top - rows) * width, static_cast<std::size_t>(rows) * width,
              drawn.Top(rows));
    }
    return true;
}

std::vector<ThresholdTag> TagsOf(const std::vector<Band>& bands) {
    std::vector<ThresholdTag> tags;
    std::transform(bands.begin(), bands.end(), std::back_inserter(tags), TagOf);
    return tags;
}

}  // namespace

ThresholdPreview::ThresholdPreview(CcImage& newImage) : image(newImage), isWide(ImageClassOf(newImage).isWide) {}

bool ThresholdPreview::IsPossible(CcImage& image) { return image.GetImageType() != KEST_IMAGE_BINARY; }

bool ThresholdPreview::Begin(HWND canvas) {
    if (isOn || !IsPossible(image)) return isOn;
    window = canvas;
    if (isWide) return isOn = layer.Make(image);
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

void ThresholdPreview::Apply(std::vector<ThresholdTag> bands) {
    image.ThresholdImageMulti(window, bands.data(), static_cast<int>(bands.size()));
}

void ThresholdPreview::Show(const std::vector<Band>& bands) {
    if (!isOn) return;
    if (isWide)
        layer.Mark(image, bands);
    else
        Apply(TagsOf(bands));
}

void ThresholdPreview::End() {
    if (!isOn) return;
    isOn = false;
    layer.Drop();
    if (isWide) return;
    image.EndThresholding();
    RestoreTables();
    colours = {};
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
        if (!savedTables[channel].empty())
            image.SetDisplayLUT(thresholdTable, channel + 1, savedTables[channel].data());
}

std::vector<std::uint8_t> ThresholdPreview::Mask(const std::vector<Band>& bands) {
    const SIZE size = SizeOf(image);
    std::vector<std::uint8_t> mask(static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy), 1);
    if (isWide) {
        NumberBands(image, bands, mask.data());
        for (std::uint8_t& pixel : mask) pixel = pixel != 0;
        return mask;
    }
    const bool wasOn = isOn;
    if (!isOn && !Begin(window)) return {};
    MarkDrawn(bands, mask);
    if (wasOn)
        Show(bands);
    else
        End();
    return mask;
}

void ThresholdPreview::MarkDrawn(const std::vector<Band>& bands, std::vector<std::uint8_t>& mask) {
    bool isWhole = true;
    for (const unsigned colour : {0xFF0000u, 0x0000FFu}) {
        std::vector<ThresholdTag> marked = TagsOf(bands);
        for (ThresholdTag& band : marked) {
            band.iRed = colour >> 16 & 255;
            band.iGreen = 0;
            band.iBlue = colour & 255;
        }
        Apply(std::move(marked));
        isWhole = isWhole && DrawStrips(image, [&](std::size_t first, std::size_t count, const std::uint32_t* pixels) {
                      for (std::size_t i = 0; i < count; ++i) mask[first + i] &= (pixels[i] & 0xFFFFFF) == colour;
                  });
    }
    if (!isWhole) mask.clear();
}

}  // namespace kestview
