// CcGrayImage256: the 8-bit grayscale image. Its DIB, files, pixels and regions are those of all images of one byte a
// pixel; its display tables stand in CcGrayImage256Display.cpp, its thresholding in CcGrayImage256Threshold.cpp.
#include "CcGrayImage256.h"

#include "image/Dib8Members.h"
#include "image/ShowImage.h"
#include "image/kernel/DisplayLut.h"

template <>
struct KestDib8Traits<CcGrayImage256> {
    static constexpr char className[] = "CcGrayImage256";
};

CcGrayImage256::CcGrayImage256() : iNumColors(0), iColorTableBytes(0) {
    iImageType = KEST_IMAGE_GRAY256;
    kest::MakeIdentity(stLUTRed);
    kest::MakeIdentity(stLUTGreen);
    kest::MakeIdentity(stLUTBlue);
    kest::MakeIdentity(stLUT256);
    kest::MakeIdentity(stLUT128);
    kest::MakeIdentity(stLUT64);
}

CcGrayImage256::~CcGrayImage256() = default;

float CcGrayImage256::GetMinPixelValue() { return 0.0F; }

float CcGrayImage256::GetMaxPixelValue() { return 255.0F; }

// The tables and their curves stay as they are when a DIB of the same size is refilled.
void CcGrayImage256::TakeDefaultLook() {}

#define IMAGE_CLASS CcGrayImage256
#include "image/Dib8Overrides.inl"
