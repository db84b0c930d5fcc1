// Raw sample files of the wide images, beside a BMP file and of its name. Their form is in kernel/WideSamplesFile.
#pragma once

#include "CcImage.h"
#include "KestWholeFile.h"
#include "image/kernel/WideSamplesFile.h"

namespace kest {

/// What the raw files of a wide class are like.
struct RawKind {
    KestImageType code;  ///< the class, and what the file begins with
    const char* extension;
    int bytesPerSample;
};
constexpr RawKind Int16Raw = {KEST_IMAGE_INT16, ".i16", 2}, Int32Raw = {KEST_IMAGE_INT32, ".i32", 4},
                  FloatRaw = {KEST_IMAGE_FLOAT, ".flt", 4};

/// Drive, directory and name of a BMP file, with another extension.
class RawPath {
public:
    RawPath(const char* bmpPath, const char* extension);
    operator const char*() const { return path; }

private:
    char path[KEST_NAME_SIZE + 8];
};

/// A raw file that is not there, or has another header or fewer samples, is Unfit; one that is there and could be the
/// right one, but that the system does not give out, is Unreadable.
enum class RawReading { Read, Unfit, Unreadable };

/// Reads the samples into an array that holds as many as the header says; its content is of no use unless all are Read.
/// Without an array it only judges the file.
RawReading ReadRawFile(const char* path, const RawHeader& header, void* samples, int bytesPerSample);

/// Writes header and samples, which Replace then puts in their place. What went wrong is the file's to tell.
void WriteRaw(const RawHeader& header, const void* samples, int bytesPerSample, KestWholeFile& file);

}  // namespace kest
