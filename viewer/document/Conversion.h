// A picture in another image class.
#pragma once

#include <memory>

#include "document/ImageClasses.h"

namespace kestview {

/// A new image of the class with the same name and size, or null when memory is short. Colour becomes luminance; 8 bits
/// of wide samples are their levels in the range that is shown, before a display table's curve; a binary image has 1
/// for everything but 0; to wide classes values go as they are, limited to what the class holds.
std::unique_ptr<CcImage> ConvertImage(CcImage& source, int type);

}  // namespace kestview
