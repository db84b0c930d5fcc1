// Thresholding of colour planes.
#include "image/kernel/ColourThreshold.h"

#include <algorithm>
#include <cstring>

#include "core/kernel/Numbers.h"
#include "image/kernel/Luminance.h"

namespace kest {
namespace {

std::uint8_t ToBandEnd(float value) {
    return value < 0.0F ? 0 : value > 255.0F ? 255 : TruncateToByte(value);
}

/// Calls `choose(pixel)` for every source pixel; it gives the bytes to write.
template <class Choose>
void ForEachPixel(SourcePlane source, TargetPlane target, Choose choose) {
    for (std::size_t i = 0; i + PlaneBytesPerPixel <= source.size(); i += PlaneBytesPerPixel) {
        PixelBytes pixel;
        std::memcpy(pixel.bytes, choose(&source[i]), PlaneBytesPerPixel);
        std::memcpy(&target[i], pixel.bytes, PlaneBytesPerPixel);
    }
}

}  // namespace

bool ListBands(const ThresholdTag* bands, int count, BandList& list) {
    list = {};
    if (count < 1) return true;
    if (bands) list = {bands, static_cast<std::size_t>(count)};
    return bands != nullptr;
}

bool HasEmptyBand(BandList bands) {
    return std::any_of(bands.begin(), bands.end(), [](const ThresholdTag& band) { return band.fLow > band.fHigh; });
}

ByteBand ToByteBand(float low, float high) {
    return {ToBandEnd(low), ToBandEnd(high)};
}

ByteBand ToBoxSide(int low, int high) {
    return {static_cast<std::uint8_t>(std::max(low, 0)), static_cast<std::uint8_t>(std::min(high, 255))};
}

void PaintLuminance(SourcePlane source, TargetPlane target, float low, float high, Rgb colour) {
    const PixelBytes paint = colour;
    ForEachPixel(source, target, [&](const std::uint8_t* pixel) {
        const auto luminance = static_cast<float>(Luminance(pixel));
        return luminance >= low && luminance <= high ? paint.bytes : pixel;
    });
}

void PaintLuminance(SourcePlane source, TargetPlane target, BandList bands) {
    PixelBytes paint;
    ForEachPixel(source, target, [&](const std::uint8_t* pixel) {
        const auto luminance = static_cast<float>(Luminance(pixel));
        for (std::size_t i = bands.size(); i-- > 0;) {
            const ThresholdTag& band = bands[i];
            if (!(luminance >= band.fLow && luminance <= band.fHigh)) continue;
            paint = LowBytes(band.iRed, band.iGreen, band.iBlue);
            return static_cast<const std::uint8_t*>(paint.bytes);
        }
        return pixel;
    });
}

ChannelPainter::ChannelPainter(int byte) : byteInPixel(byte) {}

template <class HasValue>
void ChannelPainter::Add(HasValue hasValue, PixelBytes colour) {
    for (int value = 0; value < 256; ++value) {
        const int current = isPainted[value] ? paint[value].bytes[byteInPixel] : value;
        if (!hasValue(static_cast<std::uint8_t>(current))) continue;
        isPainted[value] = true;
        paint[value] = colour;
    }
}

void ChannelPainter::AddBand(ByteBand band, PixelBytes colour) {
    Add([&](std::uint8_t value) { return band.Has(value); }, colour);
}

void ChannelPainter::AddBand(float low, float high, PixelBytes colour) {
    Add([&](std::uint8_t value) { return value >= low && value <= high; }, colour);
}

void ChannelPainter::Paint(SourcePlane source, TargetPlane target) const {
    ForEachPixel(source, target, [&](const std::uint8_t* pixel) {
        const std::uint8_t value = pixel[byteInPixel];
        return isPainted[value] ? paint[value].bytes : pixel;
    });
}

void PaintBox(SourcePlane source, TargetPlane target, const ByteBand (&box)[PlaneBytesPerPixel], PixelBytes colour) {
    ForEachPixel(source, target, [&](const std::uint8_t* pixel) {
        return box[0].Has(pixel[0]) && box[1].Has(pixel[1]) && box[2].Has(pixel[2]) ? colour.bytes : pixel;
    });
}

}  // namespace kest
