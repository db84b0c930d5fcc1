// The pixels under a ROI as a picture of their own.
#pragma once

#include <memory>

#include "document/Document.h"

namespace kestview {

/// A picture of the same class and of the ROI's bounding rectangle, 0 outside the ROI; as the library cuts, without the
/// rectangle's right column and top row. Null when nothing is left, or memory is short.
std::unique_ptr<CcImage> CutOut(Document& document, CcRoiBase& roi);

}  // namespace kestview
