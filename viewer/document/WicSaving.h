// Pictures that are written for other programs: PNG, TIFF and JPEG.
//
// The system's imaging component writes them, but for TIFF files of 16-bit and float samples: not every one of these
// components can, so these are written here, uncompressed.
#pragma once

#include <string>

#include "document/ImageClasses.h"
#include "platform/SavedFile.h"

namespace kestview {

enum class OtherFormat { Png, Tiff, Jpeg };

/// Whether files of this format hold all values of the pictures of a class, but for what JPEG's compression takes away.
bool HoldsValuesOf(OtherFormat format, const ImageClass& imageClass);

/// Writes a picture of a class whose values the format holds.
Written EncodePicture(CcImage& image, OtherFormat format, const std::string& path);

}  // namespace kestview
