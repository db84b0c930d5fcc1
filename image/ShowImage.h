// Showing an image: the three forms of Show, for every image class.
#pragma once

#include "KestPlatform.h"
#include "core/kernel/Source.h"
#include "image/DibDraw.h"

namespace kest {

/// What differs between the image classes when they are drawn.
struct ImageLook {
    const std::uint8_t* bits = nullptr;  ///< null without an image
    int width = 0;
    int height = 0;
    int bitCount = 8;
    void* dibColours = nullptr;  ///< the DIB's own colour table, which takes over the display table when it is drawn
    int dibColourBytes = 0;
    bool usesPalette = false;
    HPALETTE palette = nullptr;          ///< null: a message tells that it could not be selected
    const void* displayTable = nullptr;  ///< 1024 bytes; null: the DIB's colours stay
    UINT colourUse = DIB_RGB_COLORS;
};

/// How an image looks at this moment.
using LookSource = Source<ImageLook>;

/// The display arguments of one call.
struct ShowArguments {
    unsigned short mode;
    int xOffset;
    int yOffset;
    int zoom;
};

/// Each returns what Show returns: 0, also without an image; -1 for a null device context or window, and when the
/// picture could not be drawn.
int ShowInRect(HDC dc, const RECT* rect, const LookSource& takeLook, const ShowArguments& arguments);
int ShowInWindow(HDC dc, HWND window, const LookSource& takeLook, const ShowArguments& arguments);
int ShowInWindow(HWND window, const LookSource& takeLook, const ShowArguments& arguments);

}  // namespace kest
