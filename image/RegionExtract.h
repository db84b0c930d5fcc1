// Region extraction: what GetRegion of every image class does around its own pixel copy.
#pragma once

#include "CcRoiBase.h"
#include "image/ImageParts.h"
#include "image/kernel/RegionCopy.h"

namespace kest {

/// The new image's name, and where its pixels come from.
struct RegionFrame {
    char name[KEST_NAME_SIZE];
    int left;  ///< image column and row of the new image's first pixel
    int bottom;
    int top;    ///< the row after the last one copied
    int width;  ///< of the new image
    int height;
};

/// Asks the ROI for its bounding rectangle. False for a null ROI, no rectangle, or one larger than the image.
bool FrameRegion(CcRoiBase* roi, int align, const char* imageName, int imageWidth, int imageHeight, RegionFrame& frame);

/// Copies the pixels under the ROI row by row: of each row all listed columns but the last one. False when memory is
/// short.
bool CopyRegion(CcRoiBase& roi, const RegionFrame& frame, const Plane<const std::uint8_t>& source,
                const Plane<std::uint8_t>& target);

/// A new image of the frame's size and name, filled with a value, into which copy(region) copies the pixels; null when
/// it cannot be made or `copy` is false.
template <class Image, class Copy>
Image* MakeRegion(const RegionFrame& frame, int fillValue, Copy copy) {
    auto* region = new Image;
    if (region && (region->MakeBlankBMP(frame.height, frame.width, fillValue, frame.name) < 0 || !copy(*region))) {
        delete region;
        region = nullptr;
    }
    return region;
}

/// The region of an image whose pixels are all in its DIB, as a new image of its class.
template <class Image>
CcImage* CutRegion(const ImageParts& image, int bytesPerPixel, CcRoiBase* roi, int fillValue, int align) {
    const ImageDib& dib = image.dib;
    RegionFrame frame;
    if (!dib.bits || !FrameRegion(roi, align, image.name, dib.width, dib.height, frame)) return nullptr;
    return MakeRegion<Image>(frame, fillValue, [&](Image& region) {
        return CopyRegion(
            *roi, frame, {dib.bits, dib.width, dib.height, bytesPerPixel},
            {static_cast<std::uint8_t*>(region.GetBitMapImageData()), frame.width, frame.height, bytesPerPixel});
    });
}

}  // namespace kest
