// A window's picture: shown, zoomed and scrolled, its regions of interest drawn and edited with the mouse.
#include "Viewer.h"

#include <algorithm>

namespace guide {

// [messages]
LRESULT Viewer::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    // Signed: a captured mouse is told outside the window, too.
    const POINT mouse = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    switch (message) {
        case WM_PAINT: Paint(); return 0;
        case WM_LBUTTONDOWN: ButtonDown(mouse); return 0;
        case WM_MOUSEMOVE: MouseMove(mouse); return 0;
        case WM_LBUTTONUP: ButtonUp(mouse); return 0;
        case WM_RBUTTONDOWN:
            if (IsDrawingPolygon()) Finish(mouse);
            return 0;
        case WM_KEYDOWN:
            if (wParam == VK_ESCAPE && dragged) Cancel({});
            if (wParam == VK_DELETE && !dragged) DeleteSelected();
            return 0;
        default: return DefWindowProcA(window, message, wParam, lParam);
    }
}
// [/messages]

// [paint]
void Viewer::Draw(HDC dc) {
    image.Show(dc, window, display.lut, display.mode, display.column, display.row, display.zoom);
    if (hasOverlay) image.ShowOverlay(dc, window, display.mode, display.column, display.row, display.zoom);
    for (int index = 0; index < image.GetListROI()->GetNumberOfObjects(); ++index) {
        CcRoiBase* roi = RoiAt(index);
        // -1: in the colour of selected or unselected ROIs, as the ROI itself says.
        if (roi != dragged)
            roi->ShowROI(dc, window, display.column, display.row, display.mode, &image, display.zoom, -1);
    }
}

void Viewer::Paint() {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(window, &paint);
    RECT client;
    GetClientRect(window, &client);
    // Into a bitmap first, so that nothing flickers.
    const HDC buffer = CreateCompatibleDC(dc);
    const HBITMAP bitmap = CreateCompatibleBitmap(dc, client.right, client.bottom);
    const HGDIOBJ old = SelectObject(buffer, bitmap);
    FillRect(buffer, &client, GetSysColorBrush(COLOR_APPWORKSPACE));
    Draw(buffer);
    BitBlt(dc, 0, 0, client.right, client.bottom, buffer, 0, 0, SRCCOPY);
    SelectObject(buffer, old);
    DeleteObject(bitmap);
    DeleteDC(buffer);
    EndPaint(window, &paint);
}
// [/paint]

// [zoom]
void Viewer::SetZoom(int zoom) {
    display.zoom = std::max(zoom, 1);
    // Thicker outlines at a larger zoom. The pens belong to all ROIs, so any ROI takes the call.
    if (auto* roi = static_cast<CcRoiBase*>(image.GetListROI()->GetHead())) roi->SetZoomPen(display.zoom);
    Scroll(display.column, display.row);
}

void Viewer::Scroll(int column, int row) {
    int height, width;
    image.GetHeightWidth(&height, &width);
    RECT client;
    GetClientRect(window, &client);
    display.column = std::clamp(column, 0, std::max(0, width - static_cast<int>(client.right) / display.zoom));
    display.row = std::clamp(row, 0, std::max(0, height - static_cast<int>(client.bottom) / display.zoom));
    Redraw();
}
// [/zoom]

// [press]
void Viewer::ButtonDown(POINT mouse) {
    if (IsDrawingPolygon()) {
        // 1: a vertex here.
        dragged->DoMouseDrag(window, display.column, display.row, display.mode, &image, mouse, 1);
        return;
    }
    // The ROI drawn last lies on top.
    for (int index = image.GetListROI()->GetNumberOfObjects() - 1; index >= 0; --index) {
        CcRoiBase* roi = RoiAt(index);
        const int hit =
            roi->MouseHitTest(window, display.column, display.row, display.mode, &image, mouse, display.zoom);
        if (hit < 0) continue;
        history.Remember();
        Select(index);
        // 0 is the shape itself, above 0 one of its handles, which the ROI has noted.
        Start(roi, hit == 0 ? KEST_DRAG_MOVE : KEST_DRAG_RESIZE, mouse);
        return;
    }
    if (!makeRoi) return;
    CcRoiBase* roi = makeRoi();
    if (!roi) return;
    isNew = true;
    Start(roi, KEST_DRAG_CREATE, mouse);
}

void Viewer::Start(CcRoiBase* roi, KestDragMode dragMode, POINT mouse) {
    dragged = roi;
    // Whatever is still to be painted is painted now, without this ROI: a later paint would cover the rubber band.
    Redraw();
    UpdateWindow(window);
    if (roi->StartMouseDrag(window, display.column, display.row, display.mode, &image, mouse, dragMode, nullptr,
                            display.zoom) == 0)
        return;
    // What a start that failed has taken stays taken until the next one.
    ReleaseCapture();
    if (isNew) delete roi;
    dragged = nullptr;
    isNew = false;
}
// [/press]

// [move]
void Viewer::MouseMove(POINT mouse) {
    if (dragged) dragged->DoMouseDrag(window, display.column, display.row, display.mode, &image, mouse, 0);
}

void Viewer::ButtonUp(POINT mouse) {
    // A polygon goes on until the right button is pressed.
    if (dragged && !IsDrawingPolygon()) Finish(mouse);
}

bool Viewer::IsDrawingPolygon() const {
    KestRoiFacts facts;
    return dragged && isNew && KestGetRoiFacts(dragged->GetROIType(), &facts) == 0 && facts.bVertices;
}
// [/move]

// [release]
void Viewer::Finish(POINT mouse) {
    CcRoiBase* roi = dragged;
    const bool wasNew = isNew;
    dragged = nullptr;
    isNew = false;
    const int result = roi->StopMouseDrag(window, display.column, display.row, display.mode, &image, mouse);
    if (wasNew && result == 0) {
        history.Remember();
        image.GetListROI()->InsertTail(roi);  // the image's list owns it from now on
        Select(image.GetListROI()->GetNumberOfObjects() - 1);
    } else if (wasNew) {
        delete roi;
    }
    Redraw();
}

void Viewer::Cancel(POINT mouse) {
    CcRoiBase* roi = dragged;
    dragged = nullptr;
    if (isNew) {
        delete roi;  // a ROI that is deleted in the middle of a drag gives the mouse back
    } else {
        roi->StopMouseDrag(window, display.column, display.row, display.mode, &image, mouse);
        history.Cancel();
    }
    isNew = false;
    Redraw();
}
// [/release]

// [select]
CcRoiBase* Viewer::RoiAt(int index) { return static_cast<CcRoiBase*>(image.GetListROI()->GetAtIndex(index)); }

void Viewer::Select(int index) {
    CcList* rois = image.GetListROI();
    for (int other = 0; other < rois->GetNumberOfObjects(); ++other) RoiAt(other)->SetSelected(other == index);
    rois->SelectObjectAtIndex(index);
    Redraw();
}

void Viewer::DeleteSelected() {
    if (!image.GetListROI()->GetSelected()) return;
    history.Remember();
    image.GetListROI()->DeleteSelected();
    Redraw();
}
// [/select]

// [undo]
void Viewer::Undo() {
    if (history.CanUndo()) history.Undo();
    Redraw();
}

void Viewer::Redo() {
    if (history.CanRedo()) history.Redo();
    Redraw();
}
// [/undo]

}  // namespace guide
