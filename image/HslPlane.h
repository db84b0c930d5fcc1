// The plane of hue, saturation and lightness beside the DIB of a Cc24BitHSLImage.
//
// The operations that make a plane can be called on their own, so the plane need not have the DIB's size: whatever goes
// through it asks Fits first.
#pragma once

#include <cstdint>
#include <span>

#include "image/ImageParts.h"
#include "image/kernel/Colours.h"

namespace kest {

/// The bytes of a plane of three bytes a pixel.
inline std::span<std::uint8_t> PlaneBytes(unsigned char* bytes, int rows, int columns) {
    return {bytes, static_cast<std::size_t>(Product(rows, columns) * PlaneBytesPerPixel)};
}

/// The members that keep the plane.
struct HslPlane {
    unsigned char*& bytes;
    KestGlobalBlock& block;
    const bool& clips;  ///< values above 240 count as 240, instead of making PutInto fail

    /// There is a DIB, and an entry for each of its pixels.
    bool Fits(const ImageDib& dib) const;
    void Release() const;
    /// Zeros for every pixel, in place of what was there.
    KestGlobalBlock::AllocateResult Allocate(int rows, int columns) const;
    /// Keeps a plane of exactly the DIB's size, or makes one of zeros; false when memory is short.
    bool Fit(const ImageDib& dib) const;
    void Fill(std::uint8_t gray, Size64 pixels) const;

    /// Computes the plane from the DIB; -1 when they do not fit together.
    int TakeFrom(const ImageDib& dib) const;
    /// Computes the DIB from the plane; -1 also for values above 240, with the pixels before them converted.
    int PutInto(const ImageDib& dib) const;

    /// Reads a BMP file into a block, and its plane. Its header; null after a message, without a plane.
    unsigned char* ReadWithDib(const char* path, KestGlobalBlock& dib, DibLayout& layout) const;
    /// Makes a gray DIB in a block, and its plane. Its header; null after a message.
    unsigned char* MakeWithDib(int height, int width, int value, KestGlobalBlock& dib) const;
};

}  // namespace kest
