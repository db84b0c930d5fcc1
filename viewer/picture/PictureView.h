// The window that shows a document's picture: zoom, scrolling, painting through a back buffer, and the mouse.
//
// The picture itself is a child window, the canvas, whose client area holds whole picture pixels only. So the library's
// display arguments are exact at every zoom, and a ROI cannot be dragged out of the picture.
#pragma once

#include <functional>

#include "picture/RoiMouse.h"
#include "platform/Window.h"

namespace kestview {

class PictureView : public Window {
public:
    PictureView();
    bool Create(HWND parent);

    /// Null shows an empty view.
    void SetDocument(Document* newDocument);
    /// Shows what has changed.
    void Refresh(unsigned change);

    // Zoom: 1 to 16, 0 fits: at the largest zoom at which all is seen, or smaller than 1. The picture point at `anchor`
    // (client pixels of the canvas) stays where it is.
    void SetZoom(int zoom, const POINT* anchor = nullptr);
    void ZoomIn(const POINT* anchor = nullptr);
    void ZoomOut(const POINT* anchor = nullptr);
    void ScrollTo(int xOffset, int yOffset);
    /// Scrolls to this part of the picture, unless something of it is seen. Image coordinates, in any order.
    void BringIntoView(const RECT& part);
    /// How much larger than its pixels the picture is shown.
    double Magnification() const;

    RoiMouse& Mouse() { return roiMouse; }
    Shown GetShown() const;
    HWND Canvas() const { return canvas; }
    /// The pixel under a client point of the canvas; false outside the picture.
    bool PixelAt(POINT point, POINT& pixel) const;
    /// The middle of a picture pixel in client pixels of the canvas.
    POINT PointOf(double x, double y) const;

    bool showsRoiNames = true;

    // Hooks of the main window
    std::function<void(const POINT* pixel)> onHover;  ///< null: the mouse has left
    std::function<void()> onToolChanged;
    std::function<void()> onContextMenu;
    /// A click with the select tool; true when it was taken (the calibration pane picks points).
    std::function<bool(POINT pixel)> onPick;
    /// Whether the next click would be taken.
    std::function<bool()> picksPoints;
    /// Draws over picture and ROIs.
    std::function<void(HDC dc)> onPaintOver;

private:
    class CanvasWindow : public Window {
    public:
        explicit CanvasWindow(PictureView& newOwner) : owner(newOwner) {}
        bool Create(HWND parent);

    private:
        LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
        void Paint();
        PictureView& owner;
    };

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool OnKey(WPARAM key);
    void OnScroll(int bar, WPARAM wParam);
    void OnWheel(WPARAM wParam, POINT screen);

    // The mouse over the canvas
    LRESULT OnCanvasMessage(UINT message, WPARAM wParam, LPARAM lParam, bool& isHandled);
    void OnLeftButton(POINT mouse, bool isDouble, bool isAdding);
    void OnRightButtonUp(POINT mouse);
    void OnMouseMove(POINT mouse, bool isHeld);
    /// Of the left or the middle button.
    void OnButtonUp(POINT mouse);
    void OnCaptureChanged(HWND taker);
    void OnHover(POINT point);
    void StartPanning(POINT mouse);
    void ShowCursor();

    /// Sizes the canvas and the scroll bars.
    void Arrange();
    /// What the canvas and the bars take of a window of this size.
    struct Places {
        SIZE room;  ///< beside the bars
        SIZE canvas = {0, 0};
        bool hasHorizontal = false, hasVertical = false;
    };
    Places PlacesAtZoom(SIZE all, int zoom) const;
    Places PlacesToFit(SIZE all) const;
    void SetScrollBar(int bar, bool isShown, LONG whole, LONG seen, int position) const;
    void PlaceCanvas(const Places& places);
    void PaintPicture(HDC dc);
    void PaintEmpty(HDC dc);
    SIZE VisiblePixels() const;

    Document* document = nullptr;
    CanvasWindow canvas;
    RoiMouse roiMouse;
    bool isArranging = false;
    int shownZoom = 0;  ///< 0: the whole picture is shown smaller than its pixels
    bool isPanning = false;
    bool isHovering = false;
    int wheelRest = 0;  ///< turned since the last whole step
    POINT panStart = {};
    POINT panOffset = {};
};

}  // namespace kestview
