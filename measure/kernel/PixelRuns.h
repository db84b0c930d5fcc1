// The pixels under a ROI: runs of columns made distinct, and the statistics and areas of the pixels in them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "KestTypes.h"

namespace kest {

/// Clips the runs of a row to the columns 0 to width - 1, sorts them and joins those that touch or overlap. Returns the
/// runs that are left, at the beginning of `runs`.
std::span<KestSpan> DistinctRuns(std::span<KestSpan> runs, int width);

/// Number, mean and sum of squared deviations of values, and their extremes while there are any.
struct PixelStatistics {
    std::int64_t count = 0;
    std::int64_t notFinite = 0;  ///< values that are counted nowhere else
    double mean = 0;
    double squares = 0;
    double minimum = 0;
    double maximum = 0;

    /// Of all values, not of a sample of them.
    double StandardDeviation() const;
    /// Adds the values of another one.
    void Merge(const PixelStatistics& other);
};

// Each adds a run of neighbouring pixels. Sums of integers are exact.
void AddBytes(PixelStatistics& statistics, std::span<const std::uint8_t> values);
void AddUnsigned16(PixelStatistics& statistics, std::span<const std::uint16_t> values);
void AddSigned32(PixelStatistics& statistics, std::span<const std::int32_t> values);
void AddFloats(PixelStatistics& statistics, std::span<const float> values);
/// Three bytes a pixel: blue, green, red. The value is the luminance 0.299 R + 0.587 G + 0.114 B.
void AddColours(PixelStatistics& statistics, std::span<const std::uint8_t> bgr);

/// The sum in double precision.
double SumOf(std::span<const float> values);

}  // namespace kest
