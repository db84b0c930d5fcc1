// The two steps of pixel access, for every image class: reading addresses a pixel and leaves its value in the image's
// cell, writing goes to the pixel addressed last. The image's value at a place comes from the class; it is asked for
// only inside the image. The overlay is read and written alike in all classes.
#pragma once

#include "core/kernel/Numbers.h"
#include "image/ImageParts.h"
#include "image/kernel/Bilinear.h"

namespace kest {

/// What `SetOperatorOverloadAccess` chose.
enum PixelTarget : int { ImagePixels = 0, OverlayPixels = 1 };

/// Notes the pixel as the one addressed. An index of -1 is outside the image: false, with the cell at -1.0.
inline bool Address(const ImageParts& image, int index) {
    image.pixel.index = index;
    if (index < 0) image.pixel.value = -1.0F;
    return index >= 0;
}

/// The overlay byte at the pixel addressed last; -1.0 without an overlay, or when it is not the operators' target.
inline float OverlayValue(const ImageParts& image) {
    const bool isThere = image.pixel.access == OverlayPixels && image.overlay.HasPixel(image.pixel.index);
    return isThere ? image.overlay.bits[image.pixel.index] : -1.0F;
}

/// `valueAt(index)` is the image's value at the pixel of that index.
template <class ValueAt>
float& ReadPixel(const ImageParts& image, int x, int y, const ValueAt& valueAt) {
    const ImageDib& dib = image.dib;
    const bool isInside = dib.bits && x >= 0 && x < dib.width && y >= 0 && y < dib.height;
    if (Address(image, isInside ? y * dib.width + x : -1))
        image.pixel.value = image.pixel.access == ImagePixels ? valueAt(image.pixel.index) : OverlayValue(image);
    return image.pixel.value;
}

/// Reads between the pixels: `valueAt(column, row)`, interpolated. The pixel addressed is the lower left one of the
/// four. `reach`: how far beyond the last column and row the upper right one may lie, 0 or 1.
template <class ValueAt>
float& ReadPosition(const ImageParts& image, float x, float y, int reach, const ValueAt& valueAt) {
    const ImageDib& dib = image.dib;
    const Surroundings around(x, y);
    const bool isInside = dib.bits && dib.width >= 1 && dib.height >= 1 && around.x0 >= 0 && around.y0 >= 0 &&
                          around.x1 <= dib.width - 1 + reach && around.y1 <= dib.height - 1 + reach;
    const Size64 index = isInside ? Product(static_cast<int>(around.y0), dib.width) + static_cast<int>(around.x0) : -1;
    if (Address(image, Saturate(index)))
        image.pixel.value =
            image.pixel.access == ImagePixels ? Interpolate(x, y, around, valueAt) : OverlayValue(image);
    return image.pixel.value;
}

/// Calls `writeAt(index)` for the pixel addressed last if it lies in the image, or writes its overlay byte if that is
/// the operators' target.
template <class WriteAt>
void WritePixel(const ImageParts& image, float value, const WriteAt& writeAt) {
    const int index = image.pixel.index;
    if (image.pixel.access == ImagePixels) {
        if (image.dib.bits && index >= 0 && index < image.dib.PixelCount()) writeAt(index);
    } else if (image.pixel.access == OverlayPixels && image.overlay.HasPixel(index)) {
        image.overlay.bits[index] = TruncateToByte(value);
    }
}

}  // namespace kest
