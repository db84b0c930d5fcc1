// How an image is shown, as one call of a ROI tells it.
#pragma once

#include <windows.h>

#include <optional>

#include "CcImage.h"
#include "core/WindowView.h"
#include "core/kernel/Geometry.h"

namespace kest {

/// How the image is shown, as one call tells it.
struct DisplayArguments {
    int xOffset;
    int yOffset;
    unsigned short mode;
    CcImage* image;
    int zoom;

    /// False for a null image.
    bool MakeView(int clientWidth, int clientHeight, View& view) const {
        if (!image) return false;
        int height = 0, width = 0;
        image->GetHeightWidth(&height, &width);
        view = {clientWidth, clientHeight, width, height, xOffset, yOffset, mode, zoom};
        return true;
    }
    /// False for a null image or window.
    bool MakeView(HWND window, View& view) const {
        int width, height;
        return GetClientSize(window, width, height) && MakeView(width, height, view);
    }
    /// For a drag, which goes on without an image: there is no view then. False for an image without a window.
    bool MakeDragView(HWND window, std::optional<View>& view) const {
        View made;
        if (MakeView(window, made)) view = made;
        return view || !image;
    }
};

inline IntPoint ToPoint(POINT point) { return {point.x, point.y}; }

inline IntRect ToRect(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

inline RECT FromRect(const IntRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

}  // namespace kest
