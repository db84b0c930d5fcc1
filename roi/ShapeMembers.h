// The members that the four shape classes (point, line, rectangle, ellipse) have in common: drawing, dragging, files and
// streams. What differs stands in each class's ShapeTraits, in the file of the class:
//
//   className, recordKey, typeCode         what names the class in streams and files
//   Record, RecordOf                       the image record, also its form in files and streams
//   CornersOf, TakeCorners                 the image record as two corners; taking clamps them to the image
//   WindowOf, SetWindow                    the window copy as two corners (see kernel/DragGeometry.h)
//   DrawOutline                            the shape as rubber band and as outline
//   DrawDecoration                         what is drawn besides when the shape is shown
//   FollowCreation, FinishCreation         where the corners go in a drag that draws the shape, and at its release
//   isNormalised                           whether the corners are put in order at the end of a drag
#pragma once

#include <cstring>

#include "CcImage.h"
#include "CcObjectStorage.h"
#include "CcPropertyBag.h"
#include "core/ClassName.h"
#include "core/GdiGuards.h"
#include "core/WindowView.h"
#include "roi/MouseDrag.h"
#include "roi/RoiFiles.h"
#include "roi/kernel/DragGeometry.h"

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
};

inline IntPoint ToPoint(POINT point) { return {point.x, point.y}; }

inline IntRect ToRect(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

inline RECT FromRect(const IntRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

inline IntRect ImageCorners(const View& view, const IntRect& window) {
    const IntPoint first = WindowToImage(view, {window.left, window.top});
    const IntPoint second = WindowToImage(view, {window.right, window.bottom});
    return {first.x, first.y, second.x, second.y};
}

inline IntRect WindowCorners(const View& view, const IntRect& image) {
    const IntPoint first = ImageToWindow(view, {image.left, image.top});
    const IntPoint second = ImageToWindow(view, {image.right, image.bottom});
    return {first.x, first.y, second.x, second.y};
}

}  // namespace kest

template <class Shape>
struct KestShapeMembers {
    using Traits = KestShapeTraits<Shape>;
    using Record = typename Traits::Record;
    using Display = kest::DisplayArguments;

    // Window and image coordinates

    static int TakeWindowCorners(Shape& shape, HWND window, const Display& display) {
        kest::View view;
        if (!display.MakeView(window, view)) return KEST_FAILED;
        Traits::TakeCorners(shape, view, kest::ImageCorners(view, Traits::WindowOf(shape)));
        return KEST_OK;
    }

    static void MakeWindowCorners(Shape& shape, const kest::View& view) {
        Traits::SetWindow(shape, kest::WindowCorners(view, Traits::CornersOf(shape)));
    }

    /// A null image or window leaves the window copy as it was.
    static void MakeWindowCorners(Shape& shape, HWND window, const Display& display) {
        kest::View view;
        if (display.MakeView(window, view)) MakeWindowCorners(shape, view);
    }

    // Dragging

    static int StartDrag(Shape& shape, HWND window, const Display& display, POINT mouse, int mode, CcRoiBase* source) {
        kest::TakeMouse(window, shape.hDragDC, shape.hDragWindow);
        shape.iZoom = display.zoom;
        shape.iDragMode = mode;
        if (!PlaceForDrag(shape, window, display, mouse, source)) {
            shape.iDragMode = -1;
            return KEST_FAILED;
        }
        const kest::IntRect place = Traits::WindowOf(shape);
        kest::IntRect range = kest::ClientOnScreen(window);
        if (mode == KEST_DRAG_CONVERT || mode == KEST_DRAG_MOVE)
            range = kest::ClipForMove(range, kest::Normalised(place), kest::ToPoint(mouse));
        else if (mode == KEST_DRAG_RESIZE)
            range = kest::ClipForResize(range, place, kest::ToPoint(mouse), kest::SidesOfHandle(shape.iHitCode));
        kest::ConfineCursor(range);

        shape.stLastMouse = mouse;
        Traits::DrawOutline(shape.hDragDC, place);
        TakeWindowCorners(shape, window, display);
        return KEST_OK;
    }

    static int ContinueDrag(Shape& shape, HWND window, Display display, POINT mouse) {
        if (shape.iDragMode < 0) return KEST_FAILED;
        kest::IntRect place = Traits::WindowOf(shape);
        Traits::DrawOutline(shape.hDragDC, place);
        if (shape.iDragMode == KEST_DRAG_CREATE)
            Traits::FollowCreation(place, kest::ToPoint(mouse));
        else
            MoveByMouse(shape, place, mouse);
        shape.stLastMouse = mouse;
        Traits::SetWindow(shape, place);
        Traits::DrawOutline(shape.hDragDC, place);
        display.zoom = shape.iZoom;
        TakeWindowCorners(shape, window, display);
        return KEST_OK;
    }

    static int StopDrag(Shape& shape, HWND window, Display display, POINT mouse) {
        if (shape.iDragMode < 0) return KEST_FAILED;
        kest::IntRect place = Traits::WindowOf(shape);
        Traits::DrawOutline(shape.hDragDC, place);
        if (shape.iDragMode == KEST_DRAG_CREATE)
            Traits::FinishCreation(place, kest::ToPoint(mouse));
        else
            MoveByMouse(shape, place, mouse);
        if (Traits::isNormalised) place = kest::Normalised(place);
        Traits::SetWindow(shape, place);
        display.zoom = shape.iZoom;
        TakeWindowCorners(shape, window, display);
        shape.iDragMode = -1;
        kest::ReleaseMouse(shape.hDragDC, shape.hDragWindow);
        return KEST_OK;
    }

    /// What a ROI that is destroyed in the middle of a drag still holds.
    static void Abandon(Shape& shape) {
        if (shape.hDragDC) kest::ReleaseMouse(shape.hDragDC, shape.hDragWindow);
    }

    // Drawing

    static int Show(Shape& shape, HDC dc, int clientWidth, int clientHeight, const Display& display, int penSelect) {
        kest::View view;
        if (!dc || !display.MakeView(clientWidth, clientHeight, view)) return KEST_FAILED;
        MakeWindowCorners(shape, view);
        const kest::IntRect place = Traits::WindowOf(shape);
        const kest::SelectedObject pen(dc, shape.PenFor(penSelect));
        const kest::SelectedObject brush(dc, GetStockObject(NULL_BRUSH));
        Traits::DrawOutline(dc, place);
        Traits::DrawDecoration(dc, place, shape);
        return KEST_OK;
    }

    static int Show(Shape& shape, HDC dc, const RECT* rect, const Display& display, int penSelect) {
        if (!rect) return KEST_FAILED;
        return Show(shape, dc, rect->right - rect->left, rect->bottom - rect->top, display, penSelect);
    }

    static int Show(Shape& shape, HDC dc, HWND window, const Display& display, int penSelect) {
        int width, height;
        if (!kest::GetClientSize(window, width, height)) return KEST_FAILED;
        return Show(shape, dc, width, height, display, penSelect);
    }

    static int Show(Shape& shape, HWND window, const Display& display, int penSelect) {
        const kest::WindowDc dc(window);
        return Show(shape, dc, window, display, penSelect);
    }

    // Files and streams

    static int Save(Shape& shape, const char* path) {
        return kest::WriteRoiFile(path, Traits::typeCode, sizeof(Record), shape.szObjectName, &Traits::RecordOf(shape),
                                  sizeof(Record));
    }

    static int Restore(Shape& shape, const char* path) {
        kest::RoiFile file;
        if (!kest::ReadRoiFile(path, Traits::typeCode, 1, file) || file.count != static_cast<int>(sizeof(Record)))
            return KEST_FAILED;
        shape.SetName(file.name);
        shape.SetRoiImageCord(file.record.Get());
        return KEST_OK;
    }

    static int Store(Shape& shape, CcObjectStorage* storage) {
        if (!storage) return KEST_FAILED;
        CcPropertyBag bag;
        bag.PutBlob(Traits::recordKey, &Traits::RecordOf(shape), sizeof(Record));
        return storage->PutObject(&bag) < 0 ? KEST_FAILED : KEST_OK;
    }

    static int Load(Shape& shape, CcObjectStorage* storage) {
        if (!storage) return KEST_FAILED;
        CcPropertyBag bag;
        if (storage->GetNextObject(&bag) < 0) return KEST_FAILED;
        Record record;
        constexpr int blobTag = 5;
        long stored = 0;
        if (bag.GetPropLength(Traits::recordKey, blobTag, &stored) < 0 || stored != sizeof record) return KEST_FAILED;
        bag.GetBlob(Traits::recordKey, &record, sizeof record);
        return shape.SetRoiImageCord(&record);
    }

private:
    static bool PlaceForDrag(Shape& shape, HWND window, const Display& display, POINT mouse, CcRoiBase* source) {
        switch (shape.iDragMode) {
            case KEST_DRAG_CONVERT: {
                const RECT* bounds = source ? source->GetCurrentBoundingRect() : nullptr;
                if (!bounds) return false;
                kest::View view;
                if (display.MakeView(window, view))
                    Traits::SetWindow(shape, kest::WindowCorners(view, kest::ToRect(*bounds)));
                return true;
            }
            case KEST_DRAG_MOVE:
            case KEST_DRAG_RESIZE:
                MakeWindowCorners(shape, window, display);
                return true;
            case KEST_DRAG_CREATE:
                Traits::SetWindow(shape, {mouse.x, mouse.y, mouse.x, mouse.y});
                return true;
            default:
                return false;
        }
    }

    static void MoveByMouse(Shape& shape, kest::IntRect& place, POINT mouse) {
        const unsigned sides =
            shape.iDragMode == KEST_DRAG_RESIZE ? kest::SidesOfHandle(shape.iHitCode) : unsigned{kest::AllSides};
        kest::MoveSides(place, sides, kest::Size64{mouse.x} - shape.stLastMouse.x,
                        kest::Size64{mouse.y} - shape.stLastMouse.y);
    }
};
