// How an image is shown, as one call of a ROI tells it.
#pragma once

#include <optional>

#include "CcImage.h"
#include "KestPlatform.h"
#include "core/Platform.h"
#include "core/kernel/Geometry.h"
#include "core/kernel/ViewTransform.h"

namespace kest {

/// How the image is shown, as one call tells it.
struct DisplayArguments {
    int xOffset;
    int yOffset;
    unsigned short mode;
    CcImage* image;
    int zoom;
};

/// On a surface of this width and height; none for a null image.
inline std::optional<View> MakeView(int clientWidth, int clientHeight, const DisplayArguments& display) {
    if (!display.image) return std::nullopt;
    int height = 0, width = 0;
    display.image->GetHeightWidth(&height, &width);
    return View{clientWidth, clientHeight, width, height, display.xOffset, display.yOffset, display.mode, display.zoom};
}

/// In a window's client area; none for a null image or window.
inline std::optional<View> MakeView(HWND window, const DisplayArguments& display) {
    int width, height;
    if (!GetClientSize(window, width, height)) return std::nullopt;
    return MakeView(width, height, display);
}

/// Without a window: the rectangle's right and bottom stand for the client area's size. None for a null image or
/// rectangle.
inline std::optional<View> MakeView(const RECT* surface, const DisplayArguments& display) {
    if (!surface) return std::nullopt;
    return MakeView(surface->right, surface->bottom, display);
}

/// For a drag, which goes on without an image: there is no view then. False for an image without a window.
inline bool MakeDragView(HWND window, const DisplayArguments& display, std::optional<View>& view) {
    view = MakeView(window, display);
    return view || !display.image;
}

inline IntPoint ToPoint(POINT point) { return {point.x, point.y}; }

inline IntRect ToRect(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

inline RECT FromRect(const IntRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

}  // namespace kest
