// Bands of values shown in colours over the picture, and the mask of the pixels in them.
#include "document/ThresholdPreview.h"

#include "document/ImageClasses.h"
#include "platform/Drawing.h"

namespace kestview {
namespace {

constexpr int thresholdTable = 101, tablePoints = 256;

/// What a table shows of the whole image: 0x00RRGGBB a pixel, bottom row first.
std::vector<unsigned> Draw(CcImage& image, unsigned short table) {
    const SIZE size = SizeOf(image);
    DibSection drawn(size, 32);
    if (!drawn) return {};
    RECT all = {0, 0, size.cx, size.cy};
    image.Show(drawn, &all, table, 1, 0, 0, 1);
    GdiFlush();
    const auto* first = reinterpret_cast<const unsigned*>(drawn.Bits());
    return {first, first + static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy)};
}

}  // namespace

bool ThresholdPreview::IsPossible(CcImage& image) {
    return image.GetImageType() != KEST_IMAGE_BINARY;
}

bool ThresholdPreview::Begin(HWND canvas) {
    if (isOn || !IsPossible(image)) return isOn;
    window = canvas;
    SaveTables();
    isOn = image.BeginThresholding(window, thresholdTable) == 0;
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
    isOn = false;
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

std::vector<std::uint8_t> ThresholdPreview::Mask(const std::vector<ThresholdTag>& bands) {
    const bool wasOn = isOn;
    if (!isOn && !Begin(window)) return {};
    std::vector<ThresholdTag> marked = bands;
    const auto drawIn = [&](int red, int green, int blue) {
        for (ThresholdTag& band : marked) {
            band.iRed = red;
            band.iGreen = green;
            band.iBlue = blue;
        }
        Apply(marked);
        return Draw(image, thresholdTable);
    };
    const std::vector<unsigned> inRed = drawIn(255, 0, 0), inBlue = drawIn(0, 0, 255);
    if (wasOn)
        Apply(bands);
    else
        End();
    if (inRed.empty() || inRed.size() != inBlue.size()) return {};
    std::vector<std::uint8_t> mask(inRed.size());
    for (std::size_t i = 0; i < mask.size(); ++i)
        mask[i] = inRed[i] != inBlue[i];
    return mask;
}

}  // namespace kestview
