// The point lists of a wide grayscale image. Their x values are samples, spread over the display range; a display table
// shows for each level the point that lies nearest to the level's sample.
#pragma once

#include "image/Dib8Image.h"
#include "image/kernel/WideSamples.h"

namespace kest {

/// The display range of a wide image, with the line that maps it onto the levels 0 to 255.
struct DisplayRange {
    float& max;
    float& min;
    float& scale;
    float& offset;

    DisplayMapping Mapping() const { return {min, max, scale, offset}; }
};

struct WideLists {
    Dib8Image display;
    DisplayRange range;

    /// Spreads the x values of a list (by its number in PointLists) evenly over the display range.
    void Spread(int list) const;
    /// Computes the display table that a list feeds; -1 for an unknown pair, or while memory is short.
    int Rebuild(int lut, int channel) const;
    /// Both, for all lists.
    void SpreadAll() const;
    /// Takes a colour list of thresholding into use. Its points are the levels, whatever samples they stood for before.
    void ShowLevels(int channel) const;
    /// Makes the first and last x of a list the display range, where it moves by more than a tenth of a sample unit;
    /// false when it stays.
    bool TakeRange(std::span<const tagPoints> points) const;
};

}  // namespace kest
