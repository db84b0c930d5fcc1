// The DIB of an image: taking a block into use, storing it, and addressing its pixels. What a file or a stream says about
// sizes is compared with the block before a pointer into it is made.
#include <cmath>
#include <cstring>

#include "CcImage.h"
#include "CcPropertyBag.h"
#include "image/DibFiles.h"
#include "image/kernel/Bilinear.h"
#include "image/kernel/DibLayout.h"

void CcImage::ReleaseDib() {
    hDib.Release();
    lpBitmapInfo = nullptr;
    lpColors = nullptr;
    lpBits = nullptr;
    llPixelBlockBytes = 0;
}

void CcImage::AttachUnusableDib() {
    lpBitmapInfo = static_cast<BITMAPINFO*>(hDib.Get());
    lpColors = nullptr;
    lpBits = nullptr;
    llPixelBlockBytes = 0;
}

bool CcImage::AdoptDib(int iBytesPerPixel) {
    AttachUnusableDib();
    kest::DibLayout layout;
    if (!kest::ReadDibLayout(kest::BytesOf(hDib), layout) || !kest::LiesInBlock(layout, iBytesPerPixel, hDib.Size()))
        return false;
    auto* block = static_cast<unsigned char*>(hDib.Get());
    lpColors = reinterpret_cast<RGBQUAD*>(block + layout.headerBytes);
    lpBits = block + layout.pixelOffset;
    llPixelBlockBytes = hDib.Size() - layout.pixelOffset;
    iWidth = layout.width;
    iHeight = layout.height;
    return true;
}

bool CcImage::RefillDib(int iSameHeight, int iSameWidth, int iValue, int iBytesPerPixel) {
    if (!lpBits || iHeight != iSameHeight || iWidth != iSameWidth) return false;
    std::memset(lpBits, iValue, static_cast<std::size_t>(kest::Product(iWidth, iHeight) * iBytesPerPixel));
    return true;
}

bool CcImage::PutDib(CcPropertyBag& bag, const char* pszSizeKey, const char* pszDataKey, int iBytesPerPixel) const {
    kest::DibLayout layout;
    if (!lpBits || !kest::ReadDibLayout(kest::BytesOf(hDib), layout)) {
        return bag.PutLong(pszSizeKey, kest::DibHeaderBytes) == KEST_OK;
    }
    // A block that came from a stream with another form of header can be smaller than header, table and pixels in the
    // usual form.
    const kest::Size64 usual =
        kest::DibHeaderBytes + layout.ColourTableSize() + kest::Product(iWidth, iHeight) * iBytesPerPixel;
    const auto bytes = static_cast<long>(usual < hDib.Size() ? usual : hDib.Size());
    return bag.PutLong(pszSizeKey, bytes) == KEST_OK && bag.ReferToBlob(pszDataKey, hDib.Get(), bytes) == KEST_OK;
}

bool CcImage::TakeDib(CcPropertyBag& bag, const char* pszSizeKey, const char* pszDataKey, int iBytesPerPixel) {
    ReleaseDib();
    iHeight = iWidth = 0;
    constexpr int blobTag = 5;
    long size = 0, stored = 0;
    if (bag.GetLong(pszSizeKey, &size) < 0) return false;
    if (bag.GetPropLength(pszDataKey, blobTag, &stored) < 0) return size == kest::DibHeaderBytes;
    if (stored != size || !hDib.Allocate(size)) return false;
    bag.GetBlob(pszDataKey, hDib.Get(), size);
    if (AdoptDib(iBytesPerPixel)) return true;
    ReleaseDib();
    return false;
}

void CcImage::CountDibColors(int* piColors, int* piTableBytes) const {
    kest::DibLayout layout;
    if (!lpBitmapInfo || !kest::ReadDibLayout(kest::BytesOf(hDib), layout)) layout = {};
    *piColors = kest::Saturate(layout.colourCount);
    *piTableBytes = kest::Saturate(layout.ColourTableSize());
}

bool CcImage::AddressPixel(int iX, int iY) {
    if (!lpBits || iX < 0 || iX >= iWidth || iY < 0 || iY >= iHeight) {
        iPixelIndex = -1;
        fPixelValue = -1.0F;
        return false;
    }
    iPixelIndex = iY * iWidth + iX;
    return true;
}

bool CcImage::AddressPosition(float fX, float fY, bool bUpToSize) {
    const kest::Surroundings around(fX, fY);
    const int beyond = bUpToSize ? 0 : 1;
    if (!lpBits || iWidth < 1 || iHeight < 1 ||
        !(around.x0 >= 0 && around.x1 <= iWidth - beyond && around.y0 >= 0 && around.y1 <= iHeight - beyond)) {
        iPixelIndex = -1;
        fPixelValue = -1.0F;
        return false;
    }
    const auto column = static_cast<int>(around.x0), row = static_cast<int>(around.y0);
    iPixelIndex = kest::Saturate(kest::Product(row, iWidth) + column);
    return true;
}

bool CcImage::IsPixelAddressed() const {
    return lpBits && iPixelIndex >= 0 && iPixelIndex < kest::Product(iWidth, iHeight);
}
