// What the panes need of the window that they are in.
#pragma once

#include <windows.h>

namespace kestview {

class PaneHost {
public:
    /// The window that shows the picture.
    virtual HWND Canvas() const = 0;
    /// Shows the picture anew: it looks different now, or what is drawn over it does.
    virtual void RepaintPicture() = 0;
    /// Scrolls to this part of the picture, unless something of it is seen. Image coordinates, in any order.
    virtual void BringIntoView(const RECT& part) = 0;
    /// The middle of a picture pixel in client pixels of the canvas.
    virtual POINT PointOf(double x, double y) const = 0;
    /// Clicks in the picture no longer draw.
    virtual void UseSelectTool() = 0;
    /// Does what a menu entry does, if that is possible now.
    virtual void RunCommand(int command) = 0;

protected:
    ~PaneHost() = default;
};

}  // namespace kestview
