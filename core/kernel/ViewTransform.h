// How an image is shown in a window, and every conversion between window and image coordinates that follows from it.
// Window coordinates are client pixels, y from the top; image coordinates count columns from the left and rows from the
// BOTTOM. Integer results are truncated toward zero; what fits no integer becomes the smallest or the nearest one.
#pragma once

#include "core/kernel/Geometry.h"

namespace kest {

/// The display arguments that every drawing and editing call passes.
struct View {
    int clientWidth;  ///< of the window, pixels
    int clientHeight;
    int imageWidth;  ///< columns and rows
    int imageHeight;
    int xOffset;      ///< image column at the window's left edge (display mode 1)
    int yOffset;      ///< image rows hidden above the window's top edge (display mode 1)
    int displayMode;  ///< 1: whole-number zoom from the offsets; any other value: stretched to the client area
    int zoom;         ///< screen pixels for an image pixel; below 1 the image is stretched whatever the mode

    bool IsStretched() const { return displayMode != 1 || zoom < 1; }
};

// Regions of interest: the last column and row, not the size, count as the image's extent, so that in stretched mode
// the image's far edges lie on the client area's far edges.

/// Not clamped to the image.
IntPoint WindowToImage(const View& view, IntPoint window);
/// The same without truncation.
RealPoint WindowToImageExact(const View& view, IntPoint window);
IntPoint ImageToWindow(const View& view, IntPoint image);
/// For positions within pixels.
IntPoint ImageToWindow(const View& view, RealPoint image);

// Pixel read-out: the image's size counts as its extent.

/// The pixel at a window point. At a zoom above 1 the zoom, not 1, is subtracted from the row: hosts rely on it.
IntPoint PixelAtWindowPoint(const View& view, IntPoint window);
/// The position within the image, fractions of a pixel included.
RealPoint PositionAtWindowPoint(const View& view, IntPoint window);

}  // namespace kest
