// What the functions of the shape family (point, line, rectangle, ellipse) work on: the members of one object, and what
// its class differs in. Each class makes this value in its function Parts and hands it to the family's functions, in
// ShapePlace, ShapeDrag, ShapeDrawing and ShapeRecord. What is its own alone, the hit test and the boundaries, it does
// itself.
#pragma once

#include "CcRoiBase.h"
#include "KestPlatform.h"
#include "core/kernel/Geometry.h"
#include "core/kernel/ViewTransform.h"
#include "roi/BoundaryBuffer.h"
#include "roi/MouseDrag.h"

struct tagROILINE;

namespace kest {

struct ShapeParts;

/// Two corners of a shape where it keeps them (see kernel/DragGeometry.h). Those of a point are one.
struct Corners {
    POINT& first;
    POINT& second;

    IntRect Get() const;
    /// The first counts where both are one.
    void Set(const IntRect& place) const;
    bool AreOne() const { return &first == &second; }
};

Corners CornersIn(RECT& rect);
Corners CornersIn(tagROILINE& line);

/// What a class differs in.
struct ShapeKind {
    const char* className;
    const char* recordKey;  ///< of the image record in a stream
    KestRoiType typeCode;
    int recordBytes;
    bool isNormalised;  ///< whether the corners are put in order at the end of a drag
    bool keepsExtent;   ///< whether a drag that draws the shape ends where it last was, a pixel further at the mouse

    /// Takes image coordinates, clamped to the image, into the record.
    void (*takeCorners)(const ShapeParts& shape, const View& view, const IntRect& corners);
    /// Where the record lies in the window.
    IntRect (*windowCorners)(const ShapeParts& shape, const View& view);
    void (*drawRubberBand)(HDC dc, const IntRect& place);
    /// The shape as it is shown, with its decoration.
    void (*draw)(HDC dc, const IntRect& place, const char* name);
};

struct ShapeParts {
    const ShapeKind& kind;
    CcRoiBase& roi;
    RECT& bounds;
    RECT& currentBounds;
    BoundaryBuffer buffer;
    void* record;    ///< in image coordinates, `recordBytes` of them; also its form in files and streams
    Corners image;   ///< the record in pixels
    Corners window;  ///< its copy in client pixels
    DragState drag;
    int& hitCode;  ///< of the handle that a drag moves
};

}  // namespace kest
