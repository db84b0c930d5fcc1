// The mouse over a picture: drawing, selecting, moving and resizing ROIs.
#include "picture/RoiMouse.h"

#include <cmath>
#include <cstdlib>
#include <utility>

#include "document/RoiKinds.h"

namespace kestview {
namespace {

/// The pixel of the picture, or of its surroundings, under a client point.
POINT PixelUnder(CcImage& image, const Shown& shown, POINT mouse) {
    tagPoints position = {};
    image.ConvertPointToImageCoords(shown.canvas, shown.xOffset, shown.yOffset, shown.mode, &mouse, &position,
                                    shown.zoom);
    return {static_cast<LONG>(std::floor(position.x)), static_cast<LONG>(std::floor(position.y))};
}

}  // namespace

void RoiMouse::SetTool(int newTool) {
    if (isDragging) Cancel();
    tool = newTool;
}

void RoiMouse::SetDocument(Document* newDocument) {
    if (isDragging) Cancel();
    grabbed = nullptr;
    document = newDocument;
}

RoiMouse::Hit RoiMouse::HitAt(const Shown& shown, POINT mouse) {
    // Selected ROIs first, so that their handles can be grabbed under others; then the one drawn last.
    for (const int isSelected : {1, 0})
        for (int i = document->RoiCount() - 1; i >= 0; --i) {
            CcRoiBase& roi = document->Roi(i);
            if (roi.IsROISelected() != isSelected) continue;
            const int code = roi.MouseHitTest(shown.canvas, shown.xOffset, shown.yOffset, shown.mode,
                                              &document->Image(), mouse, shown.zoom);
            if (code >= 0) return {&roi, code};
        }
    return {};
}

void RoiMouse::Press(const Shown& shown, POINT mouse, bool isAdding) {
    if (!document) return;
    if (IsDrawingVertices()) {
        lastMouse = mouse;
        if (drawn->DoMouseDrag(shown.canvas, shown.xOffset, shown.yOffset, shown.mode, &document->Image(), mouse, 1) <
            0)
            Cancel();
        return;
    }
    if (isDragging) return;
    if (tool != selectTool) {
        StartDrawing(shown, mouse);
        return;
    }
    const Hit hit = HitAt(shown, mouse);
    if (isAdding && hit.roi) {
        document->SetSelected(*hit.roi, !hit.roi->IsROISelected());
        return;
    }
    if (!hit.roi || !hit.roi->IsROISelected() || document->SelectedRois().size() > 1) document->SelectOnly(hit.roi);
    grabbed = hit.roi;
    grabbedCode = hit.code;
    pressed = mouse;
}

void RoiMouse::StartDrawing(const Shown& shown, POINT mouse) {
    const RoiKind* kind = RoiKindOf(tool);
    drawn = kind ? kind->make() : nullptr;
    if (!drawn) return;
    dragShown = shown;
    KestRoiFacts facts = {};
    KestGetRoiFacts(tool, &facts);
    hasVertices = facts.bVertices;
    lastMouse = mouse;
    isDragging = true;
    ApplyRoiLook(*drawn, shown.penZoom);
    if (drawn->StartMouseDrag(shown.canvas, shown.xOffset, shown.yOffset, shown.mode, &document->Image(), mouse,
                              KEST_DRAG_CREATE, nullptr, shown.zoom) < 0)
        Cancel();
}

void RoiMouse::StartMoving(const Shown& shown) {
    RoiEdit begun(*std::exchange(grabbed, nullptr), grabbedCode, document->Size());
    document->BeforeRoiEdit();
    edit.emplace(std::move(begun));
    dragShown = shown;
    hasVertices = false;
    isDragging = true;
    SetCapture(shown.canvas);
}

void RoiMouse::MoveGrabbed(POINT mouse) {
    const POINT from = PixelUnder(document->Image(), dragShown, pressed),
                to = PixelUnder(document->Image(), dragShown, mouse);
    edit->MoveBy({to.x - from.x, to.y - from.y});
    InvalidateRect(dragShown.canvas, nullptr, FALSE);
}

void RoiMouse::Move(const Shown& shown, POINT mouse, bool isHeld) {
    // The button was released where this window did not see it: outside, or in a menu.
    if (!isDragging && !isHeld) grabbed = nullptr;
    if (!isDragging && grabbed) {
        // It may have been deleted by a key while the button was held.
        if (document->IndexOf(grabbed) < 0) {
            grabbed = nullptr;
            return;
        }
        constexpr int slackPixels = 2;
        if (std::abs(mouse.x - pressed.x) <= slackPixels && std::abs(mouse.y - pressed.y) <= slackPixels) return;
        StartMoving(shown);
    }
    if (!isDragging) return;
    lastMouse = mouse;
    if (edit)
        MoveGrabbed(mouse);
    else if (drawn->DoMouseDrag(shown.canvas, shown.xOffset, shown.yOffset, shown.mode, &document->Image(), mouse, 0) <
             0)
        Cancel();
}

void RoiMouse::Release(POINT mouse) {
    if (!isDragging) {
        grabbed = nullptr;
        return;
    }
    if (hasVertices) return;
    lastMouse = mouse;
    if (edit) MoveGrabbed(mouse);
    End(true);
}

void RoiMouse::Finish() {
    if (IsDrawingVertices()) End(true);
}

void RoiMouse::Cancel() { End(false); }

void RoiMouse::End(bool isKept) {
    if (!isDragging) return;
    // Ending releases the capture, which must not end the drag a second time.
    isDragging = false;
    grabbed = nullptr;
    if (edit)
        EndMoving(isKept);
    else
        EndDrawing(isKept);
}

void RoiMouse::EndDrawing(bool isKept) {
    std::unique_ptr<CcRoiBase> finished = std::move(drawn);
    const bool isWhole = finished->StopMouseDrag(dragShown.canvas, dragShown.xOffset, dragShown.yOffset, dragShown.mode,
                                                 &document->Image(), lastMouse) == 0;
    if (isKept && isWhole) {
        finished->SetName(document->FreeName(*finished).c_str());
        document->AddRoi(std::move(finished));
    } else {
        document->Changed(RoisChanged);
    }
}

void RoiMouse::EndMoving(bool isKept) {
    ReleaseCapture();
    const bool hasMoved = edit->HasMoved();
    edit.reset();
    if (isKept && hasMoved)
        document->RoisEdited();
    else
        document->CancelRoiEdit();
}

void RoiMouse::SelectAt(const Shown& shown, POINT mouse) {
    if (!document || isDragging) return;
    const Hit hit = HitAt(shown, mouse);
    if (hit.roi && !hit.roi->IsROISelected()) document->SelectOnly(hit.roi);
}

LPCSTR RoiMouse::CursorAt(const Shown& shown, POINT mouse) {
    const auto system = [](LPCTSTR id) { return reinterpret_cast<LPCSTR>(id); };
    if (!document) return system(IDC_ARROW);
    if (tool != selectTool) return system(IDC_CROSS);
    const Hit hit = HitAt(shown, mouse);
    if (!hit.roi) return system(IDC_ARROW);
    if (hit.roi->GetROIType() == KEST_ROI_LINE && hit.code > 0) return system(IDC_CROSS);
    switch (hit.code) {
        case 1:
        case 2: return system(IDC_SIZENS);
        case 3:
        case 4: return system(IDC_SIZEWE);
        case 5:
        case 8: return system(IDC_SIZENWSE);
        case 6:
        case 7: return system(IDC_SIZENESW);
        default: return system(IDC_SIZEALL);
    }
}

}  // namespace kestview
