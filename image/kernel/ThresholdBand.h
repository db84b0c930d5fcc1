// Bands of display levels, as interactive thresholding colours them.
#pragma once

#include <cstddef>
#include <span>

#include "KestTypes.h"

namespace kest {

/// Levels, both ends included; empty when low is above high.
struct LevelBand {
    int low, high;
    bool IsEmpty() const { return low > high; }
};

/// From `low` rounded down to `high` rounded up, within 0..255. A low end of 255.0 or more, or no number, counts as 0;
/// a high end above 255.0, or no number, as 255.
LevelBand FindBand(float low, float high);

/// The three curves of a colour display table: 256 points each, red, green, blue.
using ColourCurves = tagPoints[3][256];

/// Level k shows gray k.
void MakeGray(ColourCurves& curves);

/// Shows the band's levels in one colour.
void ColourBand(ColourCurves& curves, const LevelBand& band, int red, int green, int blue);

}  // namespace kest
