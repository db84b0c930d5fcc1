// Draws a document's ROIs and their names over its picture: on the screen, and into pictures for printing and copying.
#pragma once

#include <windows.h>

#include <memory>

#include "document/Document.h"
#include "picture/Shown.h"

namespace kestview {

struct RoiPaint {
    bool showsNames = true;
    bool marksSelected = true;  ///< selected ones in their own colour and with handles
    int dpi = 96;               ///< for the distance of names
};

/// `area` is the size of the drawn area, as the client area of a window is; the names are written in the font of the
/// device context.
void PaintRois(HDC dc, SIZE area, Document& document, const Shown& shown, const RoiPaint& paint);

enum class DrawnRois { None, Plain, WithNames };

/// A colour picture of `area` pixels as it is shown, with the ROIs drawn in: the part of the picture from the offsets
/// of `shown` on, at its zoom, or all of it where `shown` is stretched. Null when memory is short.
std::unique_ptr<CcImage> DrawnPicture(Document& document, Shown shown, SIZE area, DrawnRois rois);

}  // namespace kestview
