// The mouse over a picture: drawing, selecting, moving and resizing ROIs. New ROIs are drawn by the library's drag
// calls: StartMouseDrag on press, DoMouseDrag on each move, StopMouseDrag on release. Present ones are moved by whole
// pixels of the picture instead, as rounding to those of the window would change their size.
#pragma once

#include <memory>
#include <optional>

#include "document/Document.h"
#include "document/RoiEdit.h"
#include "picture/Shown.h"

namespace kestview {

/// The tool that selects instead of drawing; any other tool is a ROI type.
constexpr int selectTool = -1;

class RoiMouse {
public:
    int Tool() const { return tool; }
    /// Ends what is being drawn.
    void SetTool(int newTool);
    void SetDocument(Document* newDocument);

    // Mouse messages; positions are client pixels of the canvas.
    void Press(const Shown& shown, POINT mouse, bool isAdding);
    /// `isHeld`: with the left button down.
    void Move(const Shown& shown, POINT mouse, bool isHeld);
    void Release(POINT mouse);

    bool IsDragging() const { return isDragging; }
    /// True while clicks add vertices.
    bool IsDrawingVertices() const { return isDragging && hasVertices; }
    /// Ends a chain of vertices at the last mouse position.
    void Finish();
    /// Ends the drag and takes back what it did.
    void Cancel();

    LPCSTR CursorAt(const Shown& shown, POINT mouse);
    /// Selects the ROI under the mouse, if there is one that is not selected yet.
    void SelectAt(const Shown& shown, POINT mouse);

private:
    struct Hit {
        CcRoiBase* roi = nullptr;
        int code = -1;
    };
    Hit HitAt(const Shown& shown, POINT mouse);
    void StartDrawing(const Shown& shown, POINT mouse);
    void StartMoving(const Shown& shown);
    void MoveGrabbed(POINT mouse);
    void End(bool isKept);
    void EndDrawing(bool isKept);
    void EndMoving(bool isKept);

    Document* document = nullptr;
    int tool = selectTool;
    bool isDragging = false;
    bool hasVertices = false;
    std::unique_ptr<CcRoiBase> drawn;  ///< while it is drawn
    CcRoiBase* grabbed = nullptr;      ///< pressed on, until the mouse moves
    int grabbedCode = 0;
    std::optional<RoiEdit> edit;  ///< while one is moved or resized
    POINT pressed = {};
    Shown dragShown;
    POINT lastMouse = {};
};

}  // namespace kestview
