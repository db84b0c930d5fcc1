// An image of three bytes a pixel, as Cc24BitRGBImage and Cc24BitHSLImage have it: the members that its operations work
// on, by reference (see ImageParts.h), and these operations. Streams, files and blank images stand in ColourFiles.cpp,
// drawing in ColourDisplay.cpp.
#pragma once

#include <optional>

#include "Cc24BitRGBImage.h"
#include "core/Platform.h"
#include "image/BmpPaths.h"
#include "image/HslPlane.h"
#include "image/PixelAccess.h"
#include "image/PixelBackup.h"
#include "image/ShowImage.h"
#include "image/kernel/Luminance.h"

namespace kest {

/// What the two classes differ in, but for the plane.
struct ColourClass {
    DibKeys keys;
    const char* bmpFilter;  ///< what its file dialogs offer
    int firstChannel;
    int lastChannel;

    bool IsChannel(int channel) const { return channel >= firstChannel && channel <= lastChannel; }
    /// Where a channel's byte lies in a pixel: the last one's comes first.
    int ByteOf(int channel) const { return lastChannel - channel; }
};

struct ColourImage {
    const ColourClass& kind;
    ImageParts image;
    int& access;
    int& isBackupActive;
    KestGlobalBlock& backupBlock;
    unsigned char*& backupBytes;
    PathBuffer& lastOpened;
    PathBuffer& lastSaved;
    /// Where the pixel operators and thresholding look, in a class that has one, instead of the DIB.
    std::optional<HslPlane> plane = {};

    int Load(CcObjectStorage* storage) const;
    int Store(CcObjectStorage* storage) const;
    int Open(const char* pathToOpen) const;
    int Save(const char* pathToSave) const;
    int MakeBlank(int height, int width, int value, const char* name) const;

    ImageLook Look() const;
    int Show(HDC dc, const RECT* rect, const ShowArguments& arguments) const;
    int Show(HDC dc, HWND window, const ShowArguments& arguments) const;
    int Show(HWND window, const ShowArguments& arguments) const;
    int CopyToClipboard(HWND window, const RECT* rect) const;
    int Print(HWND window, const ShowArguments& arguments) const;

    int SetAccess(int channel) const;

    /// The DIB's pixels, and the copy of them that thresholding keeps.
    std::span<std::uint8_t> Pixels() const;
    PixelBackup Backup() const { return {isBackupActive, backupBlock, backupBytes, Pixels()}; }
};

inline void Redraw(HWND window) {
    if (window) Invalidate(window);
}

// The pixel operators

/// What they look at: the access channel of the DIB's pixels, or of the plane's where the class has one.
struct ChannelPixels {
    const ColourClass& kind;
    int access;
    unsigned char* bytes;
    long long size;

    /// Null without such a channel, or an entry for every pixel.
    unsigned char* At(const ImageDib& dib, int index) const {
        const bool isThere = kind.IsChannel(access) && bytes && size >= dib.PixelCount() * PlaneBytesPerPixel;
        return isThere ? bytes + index * PlaneBytesPerPixel : nullptr;
    }
    float ValueAt(const ImageDib& dib, int index) const {
        const unsigned char* pixel = At(dib, index);
        if (!pixel) return -1.0F;
        return access == KEST_CHANNEL_LUMINANCE ? static_cast<float>(Luminance(pixel)) : pixel[kind.ByteOf(access)];
    }
};

inline float& ReadChannel(const ImageParts& image, const ChannelPixels& pixels, int x, int y) {
    return ReadPixel(image, x, y, [&](int index) { return pixels.ValueAt(image.dib, index); });
}

inline float& ReadChannel(const ImageParts& image, const ChannelPixels& pixels, float x, float y) {
    return ReadPosition(image, x, y, 0,
                        [&](int column, int row) { return pixels.ValueAt(image.dib, row * image.dib.width + column); });
}

inline void WriteChannel(const ImageParts& image, const ChannelPixels& pixels, float value) {
    WritePixel(image, value, [&](int index) {
        unsigned char* pixel = pixels.At(image.dib, index);
        if (!pixel) return;
        if (pixels.access == KEST_CHANNEL_LUMINANCE)
            SetLuminance(pixel, value);
        else
            pixel[pixels.kind.ByteOf(pixels.access)] = TruncateToByte(value);
    });
}

}  // namespace kest
