// Pictures that the system's imaging component (WIC) decodes: PNG, JPEG, TIFF, GIF, padded BMP and whatever is
// installed.
#pragma once

#include <memory>
#include <string>

#include "document/ImageClasses.h"

namespace kestview {

/// The first frame, in the class that loses nothing: black and white as binary, 8-bit gray, 16-bit gray, float, and
/// everything else as 24-bit RGB (transparency is dropped). Null, with the reason in plain words, when it cannot.
std::unique_ptr<CcImage> DecodePicture(const std::string& path, std::string& error);

}  // namespace kestview
