// Regions of interest: drawn, selected, moved, resized and deleted with the mouse, undone and redone.
#include <cstring>

#include "Guide.h"
#include "Viewer.h"

namespace guide {
namespace {

// [make-roi]
template <class Roi>
CcRoiBase* Make() {
    return new Roi;  // null when memory is short; it names itself "Rect.1", "Rect.2", ...
}
// [/make-roi]

bool SetByHand(CcImage& image) {
    // [by-hand]
    auto* roi = new CcRoiRect;
    if (!roi) return false;
    RECT record = {40, 80, 90, 30};  // left, top, right, bottom in image pixels: the top is the larger row
    roi->SetRoiImageCord(&record);
    roi->SetName("north wall");
    image.GetListROI()->InsertTail(roi);
    // [/by-hand]
    return true;
}

void Colours(CcRoiBase* roi) {
    // [colours]
    RGBTRIPLE yellow = {0, 255, 255};  // blue, green, red
    roi->SetSelectedColor(&yellow);    // of every ROI in the program
    // [/colours]
}

}  // namespace

void DrawingRegions() {
    CcGrayImage256 image;
    example::MakeSamplePicture(image);
    CcList* rois = image.GetListROI();
    Viewer* viewer = nullptr;
    const HWND window =
        example::OpenWindow("Drawing regions", 384, 300, [&](HWND w, UINT message, WPARAM wParam, LPARAM lParam) {
            return viewer ? viewer->Handle(message, wParam, lParam) : DefWindowProcA(w, message, wParam, lParam);
        });
    Viewer edited(window, image);
    viewer = &edited;

    edited.makeRoi = Make<CcRoiRect>;
    example::DragMouse(window, {50, 50}, {150, 120});
    Expect(rois->GetNumberOfObjects() == 1, "press, move and release draw a rectangle");
    auto& rect = *static_cast<RECT*>(static_cast<CcRoiBase*>(rois->GetHead())->GetRoiImageCord());
    Expect(rect.left == 50 && rect.top > rect.bottom, "its record has the top above the bottom");

    example::DragMouse(window, {100, 90}, {130, 100});
    Expect(rect.left == 80 && rois->GetNumberOfObjects() == 1, "a press inside a ROI moves it");
    const LONG top = rect.top, right = rect.right;
    example::DragMouse(window, {180, 95}, {220, 95});
    Expect(rect.right > right + 30 && rect.top == top, "a press on a handle resizes it");

    edited.makeRoi = Make<CcRoiPolyFreeHand>;
    for (const POINT vertex : {POINT{250, 150}, POINT{330, 150}, POINT{330, 250}}) {
        example::MoveMouse(window, vertex.x, vertex.y);
        example::PressButton();
        example::ReleaseButton();
    }
    example::MoveMouse(window, 250, 250);
    SendMessageA(window, WM_RBUTTONDOWN, 0, MAKELPARAM(250, 250));
    Expect(rois->GetNumberOfObjects() == 2, "clicks draw a polygon, the right button ends it");
    Expect(static_cast<CcRoiBase*>(rois->GetTail())->IsROISelected() == 1, "what was drawn is selected");

    edited.DeleteSelected();
    Expect(rois->GetNumberOfObjects() == 1, "deleting takes the selected ROI out");
    edited.Undo();
    Expect(rois->GetNumberOfObjects() == 2, "undo brings a deleted ROI back");
    edited.Redo();
    Expect(rois->GetNumberOfObjects() == 1, "redo takes it out again");
    edited.Undo();
    edited.Undo();
    edited.Undo();
    Expect(rois->GetNumberOfObjects() == 1 && rect.right == right, "undo goes back through resizing");

    example::MoveMouse(window, 130, 100);
    example::PressButton();
    example::MoveMouse(window, 160, 120);
    SendMessageA(window, WM_KEYDOWN, VK_ESCAPE, 0);
    example::ReleaseButton();
    Expect(rect.left == 80 && !GetCapture(), "Escape puts a ROI back and gives the mouse back");

    Expect(SetByHand(image) && rois->GetViaName("north wall"), "a ROI can be set by its record and found by its name");
    Colours(static_cast<CcRoiBase*>(rois->GetHead()));
    RGBTRIPLE colour = {};
    static_cast<CcRoiBase*>(rois->GetTail())->GetSelectedColor(&colour);
    Expect(colour.rgbtRed == 255 && colour.rgbtGreen == 255 && colour.rgbtBlue == 0, "colours are those of all ROIs");
    viewer = nullptr;
    DestroyWindow(window);
}

}  // namespace guide
