// Bands of values with their colours. Those of wide pictures are bands of sample values; those of the others are bands
// of the levels 0 to 255 that the library's thresholds take.
#pragma once

#include <cstdint>
#include <vector>

#include "KestApi.h"

namespace kestview {

/// Both bounds belong to the band. One whose low bound is above its high one holds nothing.
struct Band {
    double low = 0;
    double high = 0;
    COLORREF colour = 0;
};

/// More could not be told apart by their colours.
constexpr std::size_t mostBands = 8;

/// A band of levels as the library takes it, and back.
ThresholdTag TagOf(const Band& band);
Band BandOf(const ThresholdTag& tag);

struct SampleRange {
    double low, high;
};

/// The smallest and the largest sample of a wide image that is a number, exactly; 0 and 255 of the other images.
SampleRange RangeOfSamples(CcImage& image);

/// Writes a byte for each sample of a wide image, in their order: the number of the last band that holds it, counted
/// from 1, or 0. Bounds between two numbers of the sample's kind are exact; those of float images are taken as floats,
/// so that a bound typed as 0.1 holds the samples 0.1.
void NumberBands(CcImage& image, const std::vector<Band>& bands, std::uint8_t* numbers);

/// Bands of sample values that hold the samples which a wide image shows at the levels of these bands now. None when
/// memory is short.
std::vector<Band> SampleBandsOf(CcImage& image, const std::vector<Band>& levelBands);

}  // namespace kestview
