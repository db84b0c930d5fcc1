// The members of an image that the functions of its family work on, by reference and by subject. CcImage::Parts makes
// the value anew for each call; Dib8Image, ColourImage and WideImage hold it beside the members of their own classes.
#pragma once

#include "CcImage.h"
#include "core/kernel/CheckedSize.h"
#include "image/DibDraw.h"
#include "image/kernel/DibLayout.h"

class CcPropertyBag;

// KEST_COMPILED_ONCE stands before a function that names all members of a class for the overrides to work on: without
// it each of them would hold a copy.
#if defined(_MSC_VER)
#define KEST_COMPILED_ONCE __declspec(noinline)
#else
#define KEST_COMPILED_ONCE [[gnu::noinline]]
#endif

namespace kest {

/// What names a DIB's size and bytes in a property bag.
struct DibKeys {
    const char* size;
    const char* data;
};

/// The DIB: one block, and what lies in it. Whatever a file or a stream says about sizes is compared with the block
/// before a pointer into it is made. `bytesPerPixel` is 1 or 3.
struct ImageDib {
    KestGlobalBlock& block;
    BITMAPINFO*& header;
    RGBQUAD*& colours;
    unsigned char*& bits;
    long long& pixelBlockBytes;
    int& width;
    int& height;

    Size64 PixelCount() const { return Product(width, height); }
    /// Of the DIB in the block; empty without a header that can be read.
    DibLayout Layout() const;

    /// Frees the DIB; the size members keep their values.
    void Release() const;
    /// Takes the DIB that is in the block, laid out so, into use. False, with the block still attached but no pixels,
    /// when its header, colour table or pixels do not lie inside the block.
    bool Adopt(const DibLayout& layout, int bytesPerPixel) const;
    /// Attaches the block without using its table or pixels, as after a refused colour count.
    void AttachUnusable() const;
    /// Sets every pixel byte of an image of exactly this size; false when there is none.
    bool Refill(int sameHeight, int sameWidth, int value, int bytesPerPixel) const;
    /// Puts the DIB's size (header of 40 bytes, colour table and pixels) and its bytes into a bag; false when memory is
    /// short.
    bool PutInto(CcPropertyBag& bag, const DibKeys& keys, int bytesPerPixel) const;
    /// Replaces the DIB by the one in a bag. False, without pixels, when there is none or its parts do not fit. A bag
    /// of an image without pixels gives one, and true.
    bool TakeFrom(CcPropertyBag& bag, const DibKeys& keys, int bytesPerPixel) const;
};

/// The overlay. It keeps the size it was made with, so every access is checked against that size and not the image's.
struct ImageOverlay {
    static constexpr int frontBytes = DibHeaderBytes + ColourTableBytes;

    BITMAPINFO*& header;
    KestGlobalBlock& block;
    unsigned char*& bits;
    RGBQUAD*& colours;

    bool HasPixel(int index) const { return bits && index >= 0 && index < block.Size() - frontBytes; }
    /// As something to draw; its bits are null without an overlay.
    DibPicture Picture() const;
};

/// What the pixel operators leave in the image (see PixelAccess.h).
struct PixelCell {
    const int& access;
    float& value;
    int& index;
};

struct ImageParts {
    CcImage& owner;
    ImageDib dib;
    ImageOverlay overlay;
    PixelCell pixel;
    char (&name)[KEST_NAME_SIZE];
    DOCINFOA& printJob;
};

}  // namespace kest

inline kest::ImageParts CcImage::Parts() {
    return {*this,
            {hDib, lpBitmapInfo, lpColors, lpBits, llPixelBlockBytes, iWidth, iHeight},
            {lpOverlayInfo, hOverlay, lpOverlayBits, lpOverlayColors},
            {iOperatorAccess, fPixelValue, iPixelIndex},
            szObjectName,
            stDocInfo};
}
