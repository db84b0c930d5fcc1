// A picture that the project makes itself: a flat plate with objects of known sizes, seen at an angle.
#pragma once

#include <span>

#include "KestApi.h"

namespace example {

constexpr int plateWidthPixels = 640, plateHeightPixels = 480;
/// Gray levels: everything of an object lies above this one, everything else below it.
constexpr int plateThreshold = 130;

/// A cross on the plate: where it is on it, in millimetres, and which pixel shows its middle (y from the bottom).
struct PlateMark {
    double worldX, worldY;
    int pixelX, pixelY;
};
std::span<const PlateMark> PlateMarks();

enum class PlateShape { Disc, Rectangle, Ring, Ellipse, Triangle };

/// Millimetres. The sizes are radius; width and height; outer and inner radius; half axes; base and height.
struct PlateObject {
    const char* name;
    PlateShape shape;
    double centreX, centreY;
    double sizeA, sizeB;

    /// Square millimetres.
    double Area() const;
    bool Contains(double worldX, double worldY) const;
};
std::span<const PlateObject> PlateObjects();

/// The pixel position of a place on the plate.
tagPoints PlatePixel(double worldX, double worldY);

/// Makes the image "plate": objects bright on dark, with uneven light, noise and soft edges as a camera gives.
bool MakePlate(CcGrayImage256& image);

}  // namespace example
