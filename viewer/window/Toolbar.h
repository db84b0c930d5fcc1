// The toolbar: its pictures are drawn by the program, at the monitor's resolution.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <vector>

#include "platform/Guards.h"
#include "platform/Window.h"

namespace kestview {

class Toolbar {
public:
    bool Create(HWND parent);
    operator HWND() const { return window; }
    /// Lays the buttons out in as many rows as they need in this width, at the parent's top. Returns the height.
    int Arrange(int width);
    /// Draws the pictures anew for the window's resolution.
    void MakePictures();
    /// A button for a tool library, at the end. The picture stays the tool's.
    void AddTool(int command, HBITMAP picture);
    void SetState(int command, bool isEnabled, bool isChecked) const;

private:
    void AddToolPicture(HBITMAP picture);

    HWND window = nullptr;
    Held<HIMAGELIST, ImageList_Destroy> pictures, disabledPictures;
    std::vector<HBITMAP> toolPictures;  ///< the tools' own
};

}  // namespace kestview
