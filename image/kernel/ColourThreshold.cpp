// Thresholding of colour planes.
#include "image/kernel/ColourThreshold.h"

#include <algorithm>
#include <cstring>

#include "core/kernel/Numbers.h"
#include "image/kernel/ColourLoops.h"
#include "image/kernel/Luminance.h"

namespace kest {
namespace {

std::uint8_t ToBandEnd(float value) { return value < 0.0F ? 0 : value > 255.0F ? 255 : TruncateToByte(value); }

/// Calls `choose(pixel)` for every source pixel from number `first` on; it gives the bytes to write.
template <class Choose>
void ForEachPixel(SourcePlane source, TargetPlane target, std::size_t first, Choose choose) {
    for (std::size_t i = first * PlaneBytesPerPixel; i + PlaneBytesPerPixel <= source.size(); i += PlaneBytesPerPixel) {
        PixelBytes pixel;
        std::memcpy(pixel.bytes, choose(&source[i]), PlaneBytesPerPixel);
        std::memcpy(&target[i], pixel.bytes, PlaneBytesPerPixel);
    }
}

std::size_t PixelsOf(SourcePlane plane) { return plane.size() / PlaneBytesPerPixel; }

constexpr int luminanceUnits = 1000, largestLuminance = 255 * luminanceUnits;

/// The smallest luminance, in thousandths, for which `isReached` holds; one more than the largest when there is none.
/// Rounded to single precision, a luminance is its thousandths' quotient whatever the colour, so it rises with them.
template <class IsReached>
int FirstLuminance(IsReached isReached) {
    int first = 0, end = largestLuminance + 1;
    while (first < end) {
        const int middle = (first + end) / 2;
        if (isReached(static_cast<float>(middle / static_cast<double>(luminanceUnits))))
            end = middle;
        else
            first = middle + 1;
    }
    return first;
}

LuminanceRule RuleOf(const ThresholdTag& band) {
    const int first = FirstLuminance([&](float luminance) { return luminance >= band.fLow; });
    const int behind = FirstLuminance([&](float luminance) { return !(luminance <= band.fHigh); });
    return {first, behind - 1, LowBytes(band.iRed, band.iGreen, band.iBlue)};
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

ByteBand ToByteBand(float low, float high) { return {ToBandEnd(low), ToBandEnd(high)}; }

ByteBand ToBoxSide(int low, int high) {
    return {static_cast<std::uint8_t>(std::max(low, 0)), static_cast<std::uint8_t>(std::min(high, 255))};
}

void PaintLuminance(SourcePlane source, TargetPlane target, float low, float high, Rgb colour,
                    InstructionSet instructions) {
    const ThresholdTag band = {low, high, colour.red, colour.green, colour.blue};
    PaintLuminance(source, target, {&band, 1}, instructions);
}

void PaintLuminance(SourcePlane source, TargetPlane target, BandList bands, InstructionSet instructions) {
    std::size_t done = 0;
    if (bands.size() <= ColourLoops::mostRules) {
        LuminanceRule rules[ColourLoops::mostRules];
        std::transform(bands.begin(), bands.end(), rules, RuleOf);
        const ColourLoops& loops = ColourLoopsFor(instructions);
        done = loops.paintLuminance(source.data(), target.data(), PixelsOf(source), {rules, bands.size()});
    }
    PixelBytes paint;
    ForEachPixel(source, target, done, [&](const std::uint8_t* pixel) {
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

/// Neighbouring values painted in one colour as boxes; `count` of them, or more than the loops take.
std::size_t ChannelPainter::ListBoxes(std::span<BoxRule> boxes) const {
    std::size_t count = 0;
    for (int value = 0; value < 256; ++value) {
        if (!isPainted[value]) continue;
        const auto byte = static_cast<std::uint8_t>(value);
        if (count > 0 && value > 0 && isPainted[value - 1] && paint[value] == paint[value - 1]) {
            boxes[count - 1].box[byteInPixel].high = byte;
            continue;
        }
        if (count == boxes.size()) return count + 1;
        boxes[count] = {{{0, 255}, {0, 255}, {0, 255}}, paint[value]};
        boxes[count++].box[byteInPixel] = {byte, byte};
    }
    return count;
}

void ChannelPainter::Paint(SourcePlane source, TargetPlane target, InstructionSet instructions) const {
    BoxRule boxes[ColourLoops::mostRules];
    const std::size_t count = ListBoxes(boxes);
    std::size_t done = 0;
    if (count <= ColourLoops::mostRules) {
        const ColourLoops& loops = ColourLoopsFor(instructions);
        done = loops.paintBoxes(source.data(), target.data(), PixelsOf(source), {boxes, count});
    }
    ForEachPixel(source, target, done, [&](const std::uint8_t* pixel) {
        const std::uint8_t value = pixel[byteInPixel];
        return isPainted[value] ? paint[value].bytes : pixel;
    });
}

void PaintBox(SourcePlane source, TargetPlane target, const ByteBand (&box)[PlaneBytesPerPixel], PixelBytes colour,
              InstructionSet instructions) {
    const BoxRule rule = {{box[0], box[1], box[2]}, colour};
    const ColourLoops& loops = ColourLoopsFor(instructions);
    const std::size_t done = loops.paintBoxes(source.data(), target.data(), PixelsOf(source), {&rule, 1});
    ForEachPixel(source, target, done, [&](const std::uint8_t* pixel) {
        return box[0].Has(pixel[0]) && box[1].Has(pixel[1]) && box[2].Has(pixel[2]) ? colour.bytes : pixel;
    });
}

}  // namespace kest
