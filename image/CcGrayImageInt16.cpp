// CcGrayImageInt16: the grayscale image of unsigned 16-bit samples.
#include "CcGrayImageInt16.h"

#include "image/RegionExtract.h"

#define WIDE_CLASS CcGrayImageInt16
#include "image/WideOverrides.inl"

int CcGrayImageInt16::NormalizeInt16ToByteImage(const unsigned short* pSource, unsigned char* pBytes, int iRows,
                                                int iColumns, int iMode) {
    return Members::Normalise(*this, pSource, pBytes, iRows, iColumns, iMode);
}

int CcGrayImageInt16::Copy8BitToInt16(const unsigned char* pBytes, unsigned short* pTarget, int iRows, int iColumns) {
    return Members::Copy8Bit(pBytes, pTarget, iRows, iColumns);
}

CcImage* CcGrayImageInt16::GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) {
    kest::RegionFrame frame;
    if (Members::Samples(*this).empty() || !kest::FrameRegion(pRoi, iAlign, szObjectName, iWidth, iHeight, frame))
        return nullptr;
    return kest::MakeRegion<CcGrayImageInt16>(frame, iFillValue, [&](CcGrayImageInt16& region) {
        return kest::CopyRegion(*pRoi, frame,
                                {reinterpret_cast<const std::uint8_t*>(pSamples), iWidth, iHeight, SizeOf()},
                                {reinterpret_cast<std::uint8_t*>(region.pSamples), frame.width, frame.height, SizeOf()});
    });
}
