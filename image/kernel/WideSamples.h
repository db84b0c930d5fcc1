// The samples of the wide grayscale images: their range, and the display bytes that a display range makes of them.
// Unsigned 16-bit, signed 32-bit and single-precision samples are mapped by one rule.
#pragma once

#include <cstdint>
#include <span>

namespace kest {

/// Smallest and largest sample.
template <class Sample>
struct SampleRange {
    Sample smallest, largest;
};

/// Scans at least one sample. Samples that are no number (NaN) are passed over, but a first one stays.
SampleRange<std::uint16_t> ScanSamples(std::span<const std::uint16_t> samples);
SampleRange<std::int32_t> ScanSamples(std::span<const std::int32_t> samples);
SampleRange<float> ScanSamples(std::span<const float> samples);

/// A display range and the line that maps it onto the levels 0 to 255.
struct DisplayMapping {
    float displayMin, displayMax;
    float scale, offset;

    /// The line is level 0 everywhere when the range is empty.
    static DisplayMapping Of(float displayMin, float displayMax);
    /// The sample value that is mapped to a level; the offset when the range is empty.
    double SampleAt(int level) const { return scale == 0.0F ? double{offset} : (level - double{offset}) / scale; }
};

/// Writes one byte a sample: 255 above the display range, 0 below, else sample * scale + offset, each step rounded to
/// single precision, truncated toward zero and cut to its low 8 bits. With integer samples the bounds are
/// compared after truncation; NaN bounds nothing.
void MapSamples(std::span<const std::uint16_t> samples, const DisplayMapping& mapping, std::uint8_t* bytes);
void MapSamples(std::span<const std::int32_t> samples, const DisplayMapping& mapping, std::uint8_t* bytes);
void MapSamples(std::span<const float> samples, const DisplayMapping& mapping, std::uint8_t* bytes);

/// The shift that shows the ranges from 0 to 1024, 4096, 16384 and 65536; 0 for any other range.
int ShiftOfDisplayRange(float displayMin, float displayMax);

/// Writes the low 8 bits of each sample shifted right.
void ShiftSamples(std::span<const std::uint16_t> samples, int shift, std::uint8_t* bytes);
void ShiftSamples(std::span<const std::int32_t> samples, int shift, std::uint8_t* bytes);

}  // namespace kest
