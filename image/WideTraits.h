// What the three wide grayscale classes differ in.
#pragma once

#include "CcGrayImageFloat.h"
#include "CcGrayImageInt16.h"
#include "CcGrayImageInt32.h"
#include "core/kernel/Numbers.h"

template <>
struct KestWideTraits<CcGrayImageInt16> {
    using Sample = unsigned short;
    static constexpr int typeCode = KEST_IMAGE_INT16;  ///< also the code of the raw file
    static constexpr char rawExtension[] = ".i16";
    static constexpr char noMemory[] = "Unable to Allocate Memory for 16-bit Image";
    static constexpr char notSaved[] = "Can't open file for saving 16-bit image data";
    static constexpr char notWritten[] = "Can't write file of 16-bit image data";
    static constexpr char notRead[] = "Can't read file of 16-bit image data";
    static constexpr bool isInteger = true;
    static Sample Truncate(float value) { return static_cast<Sample>(kest::TruncateToInt(value)); }
};

template <>
struct KestWideTraits<CcGrayImageInt32> {
    using Sample = int;
    static constexpr int typeCode = KEST_IMAGE_INT32;
    static constexpr char rawExtension[] = ".i32";
    static constexpr char noMemory[] = "Unable to Allocate Memory for 32-bit Image";
    static constexpr char notSaved[] = "Can't open file for saving 32-bit image data";
    static constexpr char notWritten[] = "Can't write file of 32-bit image data";
    static constexpr char notRead[] = "Can't read file of 32-bit image data";
    static constexpr bool isInteger = true;
    static Sample Truncate(float value) { return kest::TruncateToInt(value); }
};

template <>
struct KestWideTraits<CcGrayImageFloat> {
    using Sample = float;
    static constexpr int typeCode = KEST_IMAGE_FLOAT;
    static constexpr char rawExtension[] = ".flt";
    static constexpr char noMemory[] = "Unable to Allocate Memory for Floating Point Image";
    static constexpr char notSaved[] = "Can't open file for saving floating point image data";
    static constexpr char notWritten[] = "Can't write file of floating point image data";
    static constexpr char notRead[] = "Can't read file of floating point image data";
    static constexpr bool isInteger = false;
    static Sample Truncate(float value) { return value; }
};
