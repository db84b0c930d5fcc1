// The bars between the parts of a window.
#include "window/Splitters.h"

#include <algorithm>

namespace kestview {

int Splitters::BarAt(POINT mouse) const {
    for (std::size_t i = 0; i < bars.size(); ++i)
        if (PtInRect(&bars[i].place, mouse)) return static_cast<int>(i);
    return -1;
}

bool Splitters::ShowCursor(POINT mouse) const {
    const int bar = dragged >= 0 ? dragged : BarAt(mouse);
    if (bar < 0) return false;
    SetCursor(LoadCursor(nullptr, bars[static_cast<std::size_t>(bar)].isUpright ? IDC_SIZEWE : IDC_SIZENS));
    return true;
}

void Splitters::Press(HWND window, POINT mouse) {
    dragged = BarAt(mouse);
    if (dragged < 0) return;
    pressed = mouse;
    // What is shown of a length that there is no room for.
    const Bar& bar = bars[static_cast<std::size_t>(dragged)];
    pressedLength = std::clamp(*bar.length, bar.least, std::max(bar.least, bar.most));
    SetCapture(window);
}

bool Splitters::Drag(POINT mouse, int dpi) {
    if (dragged < 0 || dragged >= static_cast<int>(bars.size())) return false;
    const Bar& bar = bars[static_cast<std::size_t>(dragged)];
    const int way = static_cast<int>(bar.isUpright ? mouse.x - pressed.x : mouse.y - pressed.y);
    const int length =
        std::clamp(pressedLength + bar.sign * MulDiv(way, 96, dpi), bar.least, std::max(bar.least, bar.most));
    if (length == *bar.length) return false;
    *bar.length = length;
    return true;
}

void Splitters::Release(HWND window) {
    dragged = -1;
    if (GetCapture() == window) ReleaseCapture();
}

}  // namespace kestview
