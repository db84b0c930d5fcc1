// Raw sample files of the wide images, beside a BMP file and of its name. Their form is in kernel/WideSamplesFile.
#pragma once

#include "image/kernel/WideSamplesFile.h"

namespace kest {

/// Reads the samples of the raw file beside a BMP file into an array that holds as many as the header says. False when
/// there is none with this header and all samples; the array's content is then of no use.
bool ReadRawFile(const char* bmpPath, const char* extension, const RawHeader& header, void* samples,
                 int bytesPerSample);

/// False when the file cannot be created.
bool WriteRawFile(const char* bmpPath, const char* extension, const RawHeader& header, const void* samples,
                  int bytesPerSample);

}  // namespace kest
