// CcGrayImage256: construction, its DIB and where that comes from, pixel access and regions. How it is shown stands in
// CcGrayImage256Display.cpp.
#include "CcGrayImage256.h"

#include <algorithm>

#include "CcObjectStorage.h"
#include "CcPropertyBag.h"
#include "core/ClassName.h"
#include "core/Messages.h"
#include "core/kernel/Numbers.h"
#include "core/kernel/TextField.h"
#include "image/BmpPaths.h"
#include "image/DibFiles.h"
#include "image/DisplayTables.h"
#include "image/RegionExtract.h"
#include "image/kernel/Bilinear.h"
#include "image/kernel/DisplayLut.h"

char CcGrayImage256::cFullFilePathOpen[KEST_NAME_SIZE] = "C:\\NONE.bmp";
char CcGrayImage256::cFullFilePathSave[KEST_NAME_SIZE] = "C:\\NONE.bmp";

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

int CcGrayImage256::Load(CcObjectStorage* pStorage) {
    if (!pStorage) return KEST_FAILED;
    ReleaseDib();
    ReleaseTables();
    CcPropertyBag bag;
    const int result = pStorage->GetNextObject(&bag);
    if (result < 0) return result;
    bag.GetString("IMAGE_NAME", szObjectName, sizeof szObjectName);
    if (!TakeDib(bag, "DIB_SIZE", "DIB_DATA", 1)) return KEST_FAILED;
    if (lpBits) MakeTables();
    return CcImage::Load(pStorage);
}

int CcGrayImage256::Store(CcObjectStorage* pStorage) {
    if (!pStorage) return KEST_FAILED;
    {
        CcPropertyBag bag;
        bag.PutString("IMAGE_NAME", szObjectName);
        PutDib(bag, "DIB_SIZE", "DIB_DATA", 1);
        if (pStorage->PutObject(&bag) < 0) return KEST_FAILED;
    }
    return CcImage::Store(pStorage);
}

int CcGrayImage256::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, "CcGrayImage256");
}

void* CcGrayImage256::GetBitMapImageData() { return lpBits; }

int CcGrayImage256::OpenBMPFile(const char* pszPath) {
    kest::PathBuffer path;
    if (!kest::ChoosePathToOpen(pszPath, cFullFilePathOpen, path)) return KEST_FAILED;
    kest::RememberOpened(path, cFullFilePathOpen, cFullFilePathSave);
    ReleaseDib();
    ReleaseTables();
    if (!kest::ReadDib8(path, hDib)) {
        kest::ShowUnownedMessage("Could not open DIB file", "Error", MB_ICONEXCLAMATION);
        return KEST_FAILED;
    }
    AttachUnusableDib();
    CountDibColors(&iNumColors, &iColorTableBytes);
    if (iNumColors != kest::GrayColours || !AdoptDib(1)) {
        kest::ShowMessage("This type of Object only handles 256 Color BitMaps", "Error");
        return KEST_FAILED;
    }
    kest::TakeNameOfPath(path, szObjectName);
    MakeTables();
    return KEST_OK;
}

int CcGrayImage256::SaveBMPFile(const char* pszPath) {
    if (!lpBits) {
        kest::ShowUnownedMessage("No Image to save", "Error");
        return KEST_FAILED;
    }
    kest::PathBuffer path;
    if (!kest::ChoosePathToSave(pszPath, szObjectName, cFullFilePathSave, path)) return KEST_FAILED;
    kest::WriteDib8(kest::BytesOf(hDib), path);
    kest::CopyCut(cFullFilePathSave, path);
    return KEST_OK;
}

int CcGrayImage256::MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) {
    if (!RefillDib(iNewHeight, iNewWidth, iValue, 1)) {
        ReleaseDib();
        ReleaseTables();
        if (!kest::MakeBlankDib8(iNewHeight, iNewWidth, static_cast<unsigned char>(iValue), hDib) || !AdoptDib(1)) {
            kest::ShowUnownedMessage("Could not make Blank DIB", "Error", MB_ICONEXCLAMATION);
            return KEST_FAILED;
        }
        MakeTables();
    }
    if (pszName) kest::CopyCut(szObjectName, pszName);
    return KEST_OK;
}

float CcGrayImage256::GetMinPixelValue() { return 0.0F; }

float CcGrayImage256::GetMaxPixelValue() { return 255.0F; }

int CcGrayImage256::SizeOf() { return 1; }

int CcGrayImage256::SetAutoUpdateDisplay(int) { return KEST_OK; }

int CcGrayImage256::GetAutoUpdateDisplay() { return KEST_FAILED; }

float& CcGrayImage256::operator()(float fX, float fY) {
    if (AddressPosition(fX, fY, true)) fPixelValue = iOperatorAccess == 0 ? BilinearByte(fX, fY) : OverlayTarget();
    return fPixelValue;
}

float& CcGrayImage256::operator()(int iX, int iY) {
    if (AddressPixel(iX, iY)) fPixelValue = iOperatorAccess == 0 ? lpBits[iPixelIndex] : OverlayTarget();
    return fPixelValue;
}

void CcGrayImage256::operator=(float fValue) {
    if (iOperatorAccess == 0) {
        if (IsPixelAddressed()) lpBits[iPixelIndex] = kest::TruncateToByte(fValue);
    } else {
        SetOverlayTarget(fValue);
    }
}

float CcGrayImage256::BilinearByte(float fX, float fY) const {
    return kest::Interpolate(fX, fY, kest::Surroundings(fX, fY), [this](int column, int row) {
        const kest::Size64 index = kest::Product(row, iWidth) + column;
        if (index < llPixelBlockBytes) return lpBits[index];
        return lpBits[std::min(row, iHeight - 1) * iWidth + std::min(column, iWidth - 1)];
    });
}

CcImage* CcGrayImage256::GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) {
    kest::RegionFrame frame;
    if (!lpBits || !kest::FrameRegion(pRoi, iAlign, szObjectName, iWidth, iHeight, frame)) return nullptr;
    auto* region = kest::MakeBlankRegion<CcGrayImage256>(frame, iFillValue);
    if (region) kest::CopyRegion(*pRoi, frame, {lpBits, iWidth, iHeight, 1}, {region->lpBits, frame.width, frame.height, 1});
    return region;
}
