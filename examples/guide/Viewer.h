// A window's picture: shown, zoomed and scrolled, its regions of interest drawn and edited with the mouse.
#pragma once

#include <KestApi.h>

namespace guide {

// [display]
/// The display arguments of one window. Every call that shows something in it, or that is told where the mouse is, gets
/// the same ones.
struct Display {
    unsigned short lut = 102;  // display table, 100 to 104
    unsigned short mode = 1;   // 1: whole-number zoom; 0: the whole image stretched to the window
    int column = 0;            // image column at the window's left edge
    int row = 0;               // image rows hidden above the window's top edge
    int zoom = 1;              // 1, 2, 3, ...
};
// [/display]

/// Makes the ROI that the mouse draws next.
using MakeRoi = CcRoiBase* (*)();

class Viewer {
public:
    Viewer(HWND ownWindow, CcImage& shown) : window(ownWindow), image(shown), history(shown.GetListROI()) {}

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void SetZoom(int zoom);
    void Scroll(int column, int row);
    void Select(int index);
    void DeleteSelected();
    void Undo();
    void Redo();

    Display display;
    MakeRoi makeRoi = nullptr;  // null: the mouse only selects, moves and resizes
    bool hasOverlay = false;

private:
    void Paint();
    void Draw(HDC dc);
    void ButtonDown(POINT mouse);
    void MouseMove(POINT mouse);
    void ButtonUp(POINT mouse);
    void Start(CcRoiBase* roi, KestDragMode dragMode, POINT mouse);
    void Finish(POINT mouse);
    void Cancel(POINT mouse);
    CcRoiBase* RoiAt(int index);
    bool IsDrawingPolygon() const;
    void Redraw() { InvalidateRect(window, nullptr, FALSE); }

    HWND window;
    CcImage& image;
    CcRoiHistory history;
    CcRoiBase* dragged = nullptr;
    bool isNew = false;  // the ROI that is dragged is being drawn, and not in the list yet
};

}  // namespace guide
