// The segments of a freehand outline that is being drawn.
#pragma once

#include "KestOutline.h"
#include "KestPlatform.h"
#include "core/kernel/CheckedSize.h"

namespace kest {

/// The class-wide arrays of drawn segments, and the one that is being drawn.
struct SegmentArrays {
    POINT* starts;  ///< client pixels
    POINT* stops;
    POINT* imageStarts;
    POINT* imageStops;
    int& index;  ///< of the segment that is being drawn

    /// Makes segment `index` begin and end at a point.
    void BeginAt(POINT client, POINT image) const {
        starts[index] = stops[index] = client;
        imageStarts[index] = imageStops[index] = image;
    }
    void EndAt(POINT client, POINT image) const {
        stops[index] = client;
        imageStops[index] = image;
    }
    /// Goes on with a segment of no length where the last one ended; false when the arrays are full.
    bool Advance() const {
        if (index >= KEST_MAX_SEGMENTS - 1) return false;
        ++index;
        BeginAt(stops[index - 1], imageStops[index - 1]);
        return true;
    }
    /// Gives a last segment of no length a pixel to the right.
    void KeepPixel() const {
        if (imageStops[index].x != imageStarts[index].x || imageStops[index].y != imageStarts[index].y) return;
        imageStops[index].x = Saturate(Size64{imageStops[index].x} + 1);
        stops[index].x = Saturate(Size64{stops[index].x} + 1);
    }
    /// Adds the segment from the last end back to the first start.
    void Close() const {
        if (Advance()) EndAt(starts[0], imageStarts[0]);
    }
};

}  // namespace kest
