// Point lists of the wide grayscale images: x is a sample value, y the level shown for it.
#pragma once

#include <span>

#include "KestTypes.h"
#include "image/kernel/WideSamples.h"

namespace kest {

/// Spreads the x values of 256, 128 or 64 points over a display range, each one step from the last, in single
/// precision. The y values stay.
void SpreadPoints(std::span<tagPoints> points, float displayMin, float displayMax);

/// For each of as many evenly spaced levels as there are points, from 0 on: the y of the point nearest to the sample
/// that is mapped to the level, the first one of equally near points. No point counts that is as far away as the lists
/// and the display range reach; the first point stands in when none is left.
void PickLevels(std::span<const tagPoints> points, const DisplayMapping& mapping, std::span<tagPoints> levels);

}  // namespace kest
