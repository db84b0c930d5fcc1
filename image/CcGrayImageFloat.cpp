// CcGrayImageFloat: the grayscale image of floating-point samples.
#include "CcGrayImageFloat.h"

#define WIDE_CLASS CcGrayImageFloat
#include "image/WideOverrides.inl"

int CcGrayImageFloat::NormalizeFloatToByteImage(const float* pSource, unsigned char* pBytes, int iRows, int iColumns,
                                                int iMode) {
    return Members::Normalise(*this, pSource, pBytes, iRows, iColumns, iMode);
}

int CcGrayImageFloat::Copy8BitToFloat(const unsigned char* pBytes, float* pTarget, int iRows, int iColumns) {
    return Members::Copy8Bit(pBytes, pTarget, iRows, iColumns);
}
