// The perspective mapping between an image and a plane of the world.
#pragma once

#include <span>

#include "KestTypes.h"
#include "core/kernel/Geometry.h"
#include "core/kernel/InstructionSet.h"

namespace kest {

/// Maps the image point (x, y) to the world point h * (x, y, 1), divided by its third component.
struct Perspective {
    float h[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
};

/// The mapping that takes four image points to four world points; its last element is 1. Solved in single precision.
/// False, with the mapping unchanged, when there is none, as with three image points on a line.
bool FitPerspective(std::span<const tagPoints, 4> image, std::span<const tagPoints, 4> world, Perspective& mapping);

/// Image to world: the three sums in double precision, each rounded to single; the quotients in single precision.
tagPoints ImageToWorld(const Perspective& mapping, tagPoints image);

/// The same for many points, bit for bit; `world` has as many, and may be `image` itself.
void ImageToWorld(const Perspective& mapping, std::span<const tagPoints> image, std::span<tagPoints> world,
                  InstructionSet instructions = BestInstructionSet());

/// Image to world in double precision throughout.
RealPoint ImageToWorldExact(const Perspective& mapping, RealPoint image);

/// World to image, not finite when one of the four coefficients is 0. The closed form is evaluated in double precision.
tagPoints WorldToImage(const Perspective& mapping, tagPoints world);

/// World area of a pixel: the lengths between its right and left and between its upper and lower neighbour (world
/// points in single precision), multiplied and divided by 4 in double precision. Neighbours may lie outside the image.
float PixelArea(const Perspective& mapping, int x, int y);

/// The area of every pixel, row by row, in `map` of width x height floats; bit for bit that of PixelArea.
void FillAreaMap(const Perspective& mapping, int width, int height, std::span<float> map,
                 InstructionSet instructions = BestInstructionSet());

}  // namespace kest
