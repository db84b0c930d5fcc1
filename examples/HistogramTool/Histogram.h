// How often each value occurs in an image.
#pragma once

#include <KestApi.h>

/// The pixels of an image, counted in 256 steps between its lowest and its highest value: one row of counts for an
/// image of grey values, three (red, green, blue) for a colour image. Steps of 8-bit images are the values 0 to 255.
struct Histogram {
    static constexpr int steps = 256;

    int channels = 0;  ///< 0: no pixels to count
    double lowest = 0, highest = 0;
    unsigned counts[3][steps] = {};

    /// The largest count.
    unsigned Peak() const;
    /// The lowest value of a step.
    double ValueOf(int step) const;
};

/// Of no image, or one without pixels, an empty one.
Histogram CountPixels(CcImage* image);
