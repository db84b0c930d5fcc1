// The pixels of an image of any class, as the type that they have.
#pragma once

#include "CcImage.h"

/// Calls function(pixels) with what GetBitMapImageData gives, and returns what it returns. The pixels are
///   unsigned char*                  of 8-bit and binary images,
///   unsigned short*, int*, float*   of the wide images,
///   RGBTRIPLE*                      of the colour images,
/// so `function` takes all of these, as a generic lambda does. They are null without any, and for an image class of a
/// host's own.
template <class Function>
auto KestVisitSamples(CcImage& image, Function function) {
    void* pixels = image.GetBitMapImageData();
    // There is no default, so that the compiler tells of a class that is missing.
    switch (static_cast<KestImageType>(image.GetImageType())) {
        case KEST_IMAGE_GRAY256:
        case KEST_IMAGE_BINARY: return function(static_cast<unsigned char*>(pixels));
        case KEST_IMAGE_INT16: return function(static_cast<unsigned short*>(pixels));
        case KEST_IMAGE_INT32: return function(static_cast<int*>(pixels));
        case KEST_IMAGE_FLOAT: return function(static_cast<float*>(pixels));
        case KEST_IMAGE_RGB:
        case KEST_IMAGE_HSL: return function(static_cast<RGBTRIPLE*>(pixels));
        case KEST_IMAGE_NONE: break;
    }
    return function(static_cast<unsigned char*>(nullptr));
}
