// Thresholding of colour planes of three bytes a pixel: pixels in a band or box are painted in one colour.
//
// Every function reads a pixel from `source` and writes it to `target`, painted or as it is. So a picture that is kept
// aside comes back in the same pass; source and target may also be the same plane. Both have the same size.
#pragma once

#include <cstdint>
#include <span>

#include "KestTypes.h"
#include "core/kernel/InstructionSet.h"
#include "image/kernel/Colours.h"

namespace kest {

using SourcePlane = std::span<const std::uint8_t>;
using TargetPlane = std::span<std::uint8_t>;

struct BoxRule;

using BandList = std::span<const ThresholdTag>;

/// Makes a list of a caller's bands; false for null with a count.
bool ListBands(const ThresholdTag* bands, int count, BandList& list);

/// True when the low end of any band is above its high end.
bool HasEmptyBand(BandList bands);

/// Byte values, both ends included; none when low is above high.
struct ByteBand {
    std::uint8_t low, high;

    bool Has(std::uint8_t value) const { return value >= low && value <= high; }
};

/// Each end cut to 0..255 and truncated; no number counts as 0.
ByteBand ToByteBand(float low, float high);

/// The low end raised to 0, the high end lowered to 255, of each its low 8 bits.
ByteBand ToBoxSide(int low, int high);

/// Luminances from `low` to `high`. A luminance is rounded to single precision before it is compared.
void PaintLuminance(SourcePlane source, TargetPlane target, float low, float high, Rgb colour,
                    InstructionSet instructions = BestInstructionSet());

/// Several bands of luminance, of which the last that has a pixel's own luminance counts.
void PaintLuminance(SourcePlane source, TargetPlane target, BandList bands,
                    InstructionSet instructions = BestInstructionSet());

/// Bands of one byte of the pixel, one after another: what an earlier band has painted is what a later one looks at.
/// The outcome depends on nothing but the byte, so there are 256 of them.
class ChannelPainter {
public:
    /// `byteInPixel` 0 to 2.
    explicit ChannelPainter(int byteInPixel);

    void AddBand(ByteBand band, PixelBytes colour);
    /// Bytes from `low` to `high`, compared as they are.
    void AddBand(float low, float high, PixelBytes colour);
    void Paint(SourcePlane source, TargetPlane target, InstructionSet instructions = BestInstructionSet()) const;

private:
    template <class HasValue>
    void Add(HasValue hasValue, PixelBytes colour);
    std::size_t ListBoxes(std::span<BoxRule> boxes) const;

    int byteInPixel;
    bool isPainted[256] = {};
    PixelBytes paint[256];
};

/// Pixels of which each byte lies in its side of the box; the sides stand in memory order.
void PaintBox(SourcePlane source, TargetPlane target, const ByteBand (&box)[PlaneBytesPerPixel], PixelBytes colour,
              InstructionSet instructions = BestInstructionSet());

}  // namespace kest
