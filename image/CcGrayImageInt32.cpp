// CcGrayImageInt32: the grayscale image of signed 32-bit samples.
#include "CcGrayImageInt32.h"

#define WIDE_CLASS CcGrayImageInt32
#include "image/WideOverrides.inl"

int CcGrayImageInt32::NormalizeInt32ToByteImage(const int* pSource, unsigned char* pBytes, int iRows, int iColumns,
                                                int iMode) {
    return Members::Normalise(*this, pSource, pBytes, iRows, iColumns, iMode);
}

int CcGrayImageInt32::Copy8BitToInt32(const unsigned char* pBytes, int* pTarget, int iRows, int iColumns) {
    return Members::Copy8Bit(pBytes, pTarget, iRows, iColumns);
}
