// Which image class opens a picture file, asked before any is made.
#pragma once

#include "CcImage.h"

/// What KestJudgePictureFile finds.
struct KestPictureFile {
    KestImageType eType = KEST_IMAGE_NONE;              ///< the class that opens it as it is meant, or none
    KestPictureReason eReason = KEST_PICTURE_NOT_READ;  ///< why none does
    const char* pszReason = "";  ///< the same in a sentence about "it", the file; empty when a class opens it
    int iHeight = 0;             ///< rows; 0, as the next three, when no class opens it
    int iWidth = 0;              ///< columns
    long long llBytes = 0;       ///< of the pixels, and of the samples of a wide image
    int bOwnColours = 0;  ///< 1: CcGrayImage256 gives the values, but the picture shows the colours below for them
    RGBQUAD stColours[256] = {};  ///< of 8-bit files; zeros for others
};

/// Judges a picture file as the readers of the image classes do. Nothing but headers and colours is read, nothing is
/// allocated and no message shown, whatever the file says.
///
/// Of several classes that open a file the one counts that keeps all there is:
///   8 bits, samples beside the file   the wide class of the samples (".i16", then ".i32", then ".flt")
///   8 bits, black for 1, else white   CcBinaryImage
///   8 bits                            CcGrayImage256, with bOwnColours for a table that is not one of grays
///   24 bits                           Cc24BitRGBImage (Cc24BitHSLImage opens the same files)
/// Samples that do not fit the picture's size are left aside, as the wide classes leave them.
///
/// Stricter than OpenBMPFile, which takes the low 16 bits of a size, the pixels from where the header and its colours
/// end, and 24-bit pictures without pixels: a file that says otherwise has a reason here, and would open as another
/// picture.
///
/// 0 when a class opens the file; -1 with the reason in `*pFile` when none does, and for null.
KEST_API int KestJudgePictureFile(const char* pszPath, KestPictureFile* pFile);
