// The values along a line or outline.
#pragma once

#include <vector>

#include "document/Document.h"

namespace kestview {

/// Points of distance from the start (in world units when calibrated) and value, one for each pixel of the way. Values
/// are interpolated between pixels; of colour images they are those of the document's channel. Empty for a point.
std::vector<tagPoints> MakeProfile(Document& document, CcRoiBase& roi);

}  // namespace kestview
