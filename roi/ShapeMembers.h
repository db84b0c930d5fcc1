// The members that the four shape classes (point, line, rectangle, ellipse) have in common: drawing, dragging, files and
// streams. What differs stands in each class's KestShapeTraits, in the file of the class:
//
//   className, recordKey, typeCode         what names the class in streams and files
//   Record, RecordOf, TakeRecord           the image record, also its form in files and streams
//   CornersOf, TakeCorners                 the image record as two corners; taking clamps them to the image
//   WindowCornersOf                        where they lie in the window
//   WindowRecord, WindowRecordOf           the window copy
//   WindowOf, SetWindow                    the window copy as two corners (see kernel/DragGeometry.h)
//   DrawRubberBand, DrawOutline            the shape while it is dragged, and when it is shown
//   DrawDecoration                         what is drawn besides when the shape is shown
//   FollowCreation, FinishCreation         where the corners go in a drag that draws the shape, and at its release
//   isNormalised                           whether the corners are put in order at the end of a drag
//   HitTest                                the hit code under the mouse
//   ListRow, ListColumn                    the boundary queries
#pragma once

#include <algorithm>
#include <cstring>
#include <optional>

#include "CcObjectStorage.h"
#include "CcPropertyBag.h"
#include "core/ClassName.h"
#include "core/GdiGuards.h"
#include "roi/DisplayArguments.h"
#include "roi/MouseDrag.h"
#include "roi/RoiFiles.h"
#include "roi/RoiStreams.h"
#include "roi/kernel/DragGeometry.h"

namespace kest {

inline IntRect ImageCorners(const View& view, const IntRect& window) {
    const IntPoint first = WindowToImage(view, {window.left, window.top});
    const IntPoint second = WindowToImage(view, {window.right, window.bottom});
    return {first.x, first.y, second.x, second.y};
}

/// Each coordinate clamped to the image.
inline IntRect ClampToImage(const View& view, const IntRect& corners) {
    const int lastColumn = std::max(view.imageWidth - 1, 0), lastRow = std::max(view.imageHeight - 1, 0);
    return {std::clamp(corners.left, 0, lastColumn), std::clamp(corners.top, 0, lastRow),
            std::clamp(corners.right, 0, lastColumn), std::clamp(corners.bottom, 0, lastRow)};
}

inline IntRect WindowCorners(const View& view, const IntRect& image) {
    const IntPoint first = ImageToWindow(view, IntPoint{image.left, image.top});
    const IntPoint second = ImageToWindow(view, IntPoint{image.right, image.bottom});
    return {first.x, first.y, second.x, second.y};
}

/// The bounding rectangle of two corners in the image. A shape whose corners are kept in order has them as they stand.
inline IntRect ImageBounds(const IntRect& corners, bool areOrdered) {
    if (areOrdered) return corners;
    return {std::min(corners.left, corners.right), std::max(corners.top, corners.bottom),
            std::max(corners.left, corners.right), std::min(corners.top, corners.bottom)};
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
        Traits::SetWindow(shape, Traits::WindowCornersOf(shape, view));
    }

    /// A null image or window leaves the window copy as it was.
    static void MakeWindowCorners(Shape& shape, HWND window, const Display& display) {
        kest::View view;
        if (display.MakeView(window, view)) MakeWindowCorners(shape, view);
    }

    // Dragging

    static int StartDrag(Shape& shape, HWND window, const Display& display, POINT mouse, int mode, CcRoiBase* source) {
        shape.iZoom = display.zoom;
        if (!kest::BeginDrag(window, shape.hDragDC, shape.iDragMode, mode)) return KEST_FAILED;
        std::optional<kest::View> view;
        if (!display.MakeDragView(window, view)) {
            kest::EndDrag(shape.hDragDC, shape.iDragMode);
            return KEST_FAILED;
        }
        if (!PlaceForDrag(shape, view, mouse, source)) {
            shape.iDragMode = -1;
            return KEST_FAILED;
        }
        const kest::IntRect place = Traits::WindowOf(shape);
        kest::IntRect range = kest::ClientOnScreen(window);
        // A message that was shown lets the host do anything, also end the drag.
        if (!kest::GoesOn(shape.hDragDC, shape.iDragMode)) return KEST_FAILED;
        if (mode == KEST_DRAG_CONVERT || mode == KEST_DRAG_MOVE)
            range = kest::ClipForMove(range, kest::Normalised(place), kest::ToPoint(mouse));
        else if (mode == KEST_DRAG_RESIZE)
            range = kest::ClipForResize(range, place, kest::ToPoint(mouse), kest::SidesOfHandle(shape.iHitCode));
        kest::ConfineCursor(range);

        shape.stLastMouse = mouse;
        Traits::DrawRubberBand(shape.hDragDC, place);
        if (view) Traits::TakeCorners(shape, *view, kest::ImageCorners(*view, place));
        return KEST_OK;
    }

    static int ContinueDrag(Shape& shape, HWND window, Display display, POINT mouse, int) {
        display.zoom = shape.iZoom;
        std::optional<kest::View> view;
        if (!kest::GoesOn(shape.hDragDC, shape.iDragMode) || !display.MakeDragView(window, view)) return KEST_FAILED;
        kest::IntRect place = Traits::WindowOf(shape);
        Traits::DrawRubberBand(shape.hDragDC, place);
        if (shape.iDragMode == KEST_DRAG_CREATE)
            Traits::FollowCreation(place, kest::ToPoint(mouse));
        else
            MoveByMouse(shape, place, mouse);
        shape.stLastMouse = mouse;
        Traits::SetWindow(shape, place);
        Traits::DrawRubberBand(shape.hDragDC, place);
        if (view) Traits::TakeCorners(shape, *view, kest::ImageCorners(*view, place));
        return KEST_OK;
    }

    static int StopDrag(Shape& shape, HWND window, Display display, POINT mouse) {
        if (!kest::GoesOn(shape.hDragDC, shape.iDragMode)) return KEST_FAILED;
        kest::IntRect place = Traits::WindowOf(shape);
        Traits::DrawRubberBand(shape.hDragDC, place);
        if (shape.iDragMode == KEST_DRAG_CREATE)
            Traits::FinishCreation(place, kest::ToPoint(mouse));
        else
            MoveByMouse(shape, place, mouse);
        if (Traits::isNormalised) place = kest::Normalised(place);
        Traits::SetWindow(shape, place);
        display.zoom = shape.iZoom;
        std::optional<kest::View> view;
        const bool isThere = display.MakeDragView(window, view);
        if (view) Traits::TakeCorners(shape, *view, kest::ImageCorners(*view, place));
        kest::EndDrag(shape.hDragDC, shape.iDragMode);
        return isThere ? KEST_OK : KEST_FAILED;
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
        return Show(shape, dc, rect->right, rect->bottom, display, penSelect);
    }

    static int Show(Shape& shape, HDC dc, HWND window, const Display& display, int penSelect) {
        int width, height;
        if (!kest::GetClientSize(window, width, height)) return KEST_FAILED;
        return Show(shape, dc, width, height, display, penSelect);
    }

    // Queries

    static int HitTest(Shape& shape, HWND window, const Display& display, POINT mouse) {
        kest::View view;
        if (!display.MakeView(window, view)) return KEST_FAILED;
        MakeWindowCorners(shape, view);
        return Traits::HitTest(shape, view, kest::ToPoint(mouse));
    }

    static RECT* CurrentBounds(Shape& shape) {
        shape.stCurrentBoundingRect = kest::FromRect(Traits::CornersOf(shape));
        return &shape.stCurrentBoundingRect;
    }

    static RECT* Bounds(Shape& shape) {
        shape.stBoundingRect = kest::FromRect(kest::ImageBounds(Traits::CornersOf(shape), Traits::isNormalised));
        return shape.SizeBoundary() ? &shape.stBoundingRect : nullptr;
    }

    static int* ListRow(Shape& shape, int row, int* count) { return Traits::ListRow(shape, row, count); }
    static int* ListColumn(Shape& shape, int column, int* count) { return Traits::ListColumn(shape, column, count); }

    // Record, files and streams

    static int TakeRecord(Shape& shape, const void* record) {
        if (!record) return KEST_FAILED;
        Record copy;
        std::memcpy(&copy, record, sizeof copy);
        Traits::TakeRecord(shape, copy);
        return KEST_OK;
    }

    static void* RecordOf(Shape& shape) { return &Traits::RecordOf(shape); }

    static int Save(Shape& shape, const char* path) {
        return kest::WriteRoiFile(path, Traits::typeCode, sizeof(Record), shape.szObjectName, &Traits::RecordOf(shape),
                                  sizeof(Record));
    }

    static int Restore(Shape& shape, const char* path) {
        kest::RoiFile file;
        if (!kest::ReadRoiFile(path, Traits::typeCode, 1, file) || file.count != static_cast<int>(sizeof(Record)))
            return KEST_FAILED;
        if (shape.SetRoiImageCord(file.record.Get()) < 0) return KEST_FAILED;
        shape.SetName(file.name);
        return KEST_OK;
    }

    static int Store(Shape& shape, CcObjectStorage* storage) {
        if (!storage) return KEST_FAILED;
        CcPropertyBag bag;
        const bool isPut = bag.PutBlob(Traits::recordKey, &Traits::RecordOf(shape), sizeof(Record)) == KEST_OK;
        return !isPut || storage->PutObject(&bag) < 0 ? KEST_FAILED : KEST_OK;
    }

    static int Load(Shape& shape, CcObjectStorage* storage) {
        if (!storage) return KEST_FAILED;
        CcPropertyBag bag;
        if (storage->GetNextObject(&bag) < 0) return KEST_FAILED;
        Record record;
        if (!kest::TakeWholeBlob(bag, Traits::recordKey, &record, sizeof record)) return KEST_FAILED;
        return shape.SetRoiImageCord(&record);
    }

private:
    /// Without a view the window copy stays.
    static bool PlaceForDrag(Shape& shape, const std::optional<kest::View>& view, POINT mouse, CcRoiBase* source) {
        switch (shape.iDragMode) {
            case KEST_DRAG_CONVERT: {
                const RECT* bounds = source ? source->GetCurrentBoundingRect() : nullptr;
                if (bounds && view) Traits::SetWindow(shape, kest::WindowCorners(*view, kest::ToRect(*bounds)));
                return bounds != nullptr;
            }
            case KEST_DRAG_MOVE:
            case KEST_DRAG_RESIZE:
                if (view) MakeWindowCorners(shape, *view);
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
