// The bars between the parts of a window, by which the user makes the parts larger and smaller.
#pragma once

#include <windows.h>

#include <vector>

namespace kestview {

class Splitters {
public:
    struct Bar {
        RECT place;       ///< client pixels of the window
        bool isUpright;   ///< is moved sideways
        int* length;      ///< of the part at its right or below it, for 96 dots an inch
        int sign;         ///< -1: moving the bar right or down makes the part smaller
        int least, most;  ///< of the length
    };
    /// To be called when the parts have been arranged anew.
    void SetBars(std::vector<Bar> newBars) { bars = std::move(newBars); }

    /// Sets the cursor; false when no bar is there.
    bool ShowCursor(POINT mouse) const;
    void Press(HWND window, POINT mouse);
    /// True when a length has changed.
    bool Drag(POINT mouse, int dpi);
    /// The button was released, or the mouse was taken away.
    void Release(HWND window);

private:
    int BarAt(POINT mouse) const;

    std::vector<Bar> bars;
    int dragged = -1;
    POINT pressed = {};
    int pressedLength = 0;
};

}  // namespace kestview
