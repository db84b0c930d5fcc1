// Cc24BitHSLImage: the 24-bit colour image with a plane of hue, saturation and lightness. Its thresholding stands in
// Cc24BitHSLImageThreshold.cpp.
//
// The operations that make a plane can be called on their own, so the plane need not have the DIB's size: whatever goes
// through it asks HasPlane first.
#include "Cc24BitHSLImage.h"

#include <algorithm>

#include "core/kernel/Numbers.h"
#include "image/Dib24Members.h"
#include "image/kernel/ColourConvert.h"
#include "image/kernel/DibLayout.h"

namespace {

std::span<std::uint8_t> PlaneOf(unsigned char* bytes, int rows, int columns) {
    return {bytes, static_cast<std::size_t>(kest::Product(rows, columns) * kest::PlaneBytesPerPixel)};
}

void FillPlane(unsigned char* plane, kest::Size64 pixels, const kest::PixelBytes& value) {
    for (kest::Size64 i = 0; i < pixels; ++i, plane += kest::PlaneBytesPerPixel)
        std::copy_n(value.bytes, kest::PlaneBytesPerPixel, plane);
}

kest::PixelBytes GrayInHsl(std::uint8_t value) {
    return kest::RgbToHsl({value, value, value});
}

}  // namespace

template <>
struct KestDib24Traits<Cc24BitHSLImage> {
    using Image = Cc24BitHSLImage;
    static constexpr char className[] = "Cc24BitHSLImage";
    static constexpr char sizeKey[] = "Cc24BitHSLImage_Size";
    static constexpr char dataKey[] = "Cc24BitHSLImage_Data";
    // The second pattern is empty, which ends the list: only BMP files are offered.
    static constexpr char bmpFilter[] = "Bitmap Files (*.BMP)\0*.bmp\0All Files (*.*)\0\0";

    static bool ReadFile(Image& image, const char* path) { return image.ReadBothPlanes(path, image.hDib) != nullptr; }

    static bool MakeBlankDib(Image& image, int height, int width, int value) {
        return image.MakeBothPlanes(height, width, value, image.hDib) != nullptr;
    }
    static bool Refill(Image& image, int height, int width, int value) {
        if (!image.HasPlane() || !image.RefillDib(height, width, value, kest::PlaneBytesPerPixel)) return false;
        FillPlane(image.pHSLData, kest::Product(width, height), GrayInHsl(static_cast<std::uint8_t>(value)));
        return true;
    }
    static void ReleasePlane(Image& image) { image.ReleasePlane(); }
    static bool FitPlane(Image& image) {
        const kest::Size64 bytes = kest::Product(image.iWidth, image.iHeight) * kest::PlaneBytesPerPixel;
        if (image.pHSLData && image.hHSLData.Size() == bytes) return true;
        return image.AllocatePlane(image.iHeight, image.iWidth) != KestGlobalBlock::NotAllocated;
    }
    static bool CopyPlaneRegion(const Image& image, CcRoiBase& roi, const kest::RegionFrame& frame, Image& region) {
        return !image.HasPlane() || !region.HasPlane() ||
               KestDib24Members<Image>::CopyRegion(image, roi, frame, image.pHSLData, region.pHSLData);
    }

    static unsigned char* ByteAt(const Image& image, int index) {
        if (!image.HasPlane() || !image.IsChannel(image.iAccess)) return nullptr;
        return image.pHSLData + index * kest::PlaneBytesPerPixel + (KEST_CHANNEL_LIGHTNESS - image.iAccess);
    }
    static float ReadValue(const Image& image, int index) {
        const unsigned char* byte = ByteAt(image, index);
        return byte ? *byte : -1.0F;
    }
    static void WriteValue(Image& image, int index, float value) {
        unsigned char* byte = ByteAt(image, index);
        if (byte) *byte = kest::TruncateToByte(value);
    }
};

Cc24BitHSLImage::Cc24BitHSLImage()
    : iAccess(KEST_CHANNEL_HUE), pHSLData(nullptr), bThresholdActive(0), pThresholdBackup(nullptr), bClipping(false) {
    iImageType = KEST_IMAGE_HSL;
}

Cc24BitHSLImage::~Cc24BitHSLImage() = default;

#define IMAGE_CLASS Cc24BitHSLImage
#include "image/Dib24Overrides.inl"

int Cc24BitHSLImage::SetAccess(int iChannel) {
    if (!IsChannel(iChannel)) return KEST_FAILED;
    iAccess = iChannel;
    return KEST_OK;
}

// Colours

int Cc24BitHSLImage::RGB2HSL(unsigned char ucRed, unsigned char ucGreen, unsigned char ucBlue, RGBQUAD* pHsl) {
    if (!pHsl) return KEST_FAILED;
    const kest::Hsl hsl = kest::RgbToHsl({ucRed, ucGreen, ucBlue});
    pHsl->rgbRed = hsl.hue;
    pHsl->rgbGreen = hsl.saturation;
    pHsl->rgbBlue = hsl.lightness;
    return KEST_OK;
}

int Cc24BitHSLImage::HSL2RGB(unsigned char ucHue, unsigned char ucSat, unsigned char ucLight, RGBQUAD* pRgb) {
    if (!pRgb || std::max({ucHue, ucSat, ucLight}) > kest::LargestHslValue) return KEST_FAILED;
    const kest::Rgb rgb = kest::HslToRgb({ucHue, ucSat, ucLight});
    pRgb->rgbRed = rgb.red;
    pRgb->rgbGreen = rgb.green;
    pRgb->rgbBlue = rgb.blue;
    return KEST_OK;
}

double Cc24BitHSLImage::HSL2RGB_Helper(double dM1, double dM2, double dHue) {
    return kest::HslComponent(dM1, dM2, dHue);
}

void Cc24BitHSLImage::SetClipping(bool bClip) {
    bClipping = bClip;
}

// The plane

void* Cc24BitHSLImage::GetBitMapImageDataHSL() {
    return pHSLData;
}

bool Cc24BitHSLImage::HasPlane() const {
    return lpBits && pHSLData && hHSLData.Size() >= kest::Product(iWidth, iHeight) * kest::PlaneBytesPerPixel;
}

void Cc24BitHSLImage::ReleasePlane() {
    hHSLData.Release();
    pHSLData = nullptr;
}

KestGlobalBlock::AllocateResult Cc24BitHSLImage::AllocatePlane(int iRows, int iColumns) {
    const KestGlobalBlock::AllocateResult result = kest::AllocatePlane(hHSLData, iColumns, iRows);
    pHSLData = static_cast<unsigned char*>(hHSLData.Get());
    return result;
}

int Cc24BitHSLImage::ConvertRGBDibToHSL(unsigned char* pRgb, unsigned char* pHsl, int iRows, int iColumns) {
    if (!pRgb || !pHsl || iRows < 1 || iColumns < 1) return KEST_FAILED;
    kest::ConvertRgbToHsl(PlaneOf(pRgb, iRows, iColumns), PlaneOf(pHsl, iRows, iColumns));
    return KEST_OK;
}

int Cc24BitHSLImage::ConvertHSLDibToRGB(unsigned char* pRgb, unsigned char* pHsl, int iRows, int iColumns) {
    if (!pRgb || !pHsl || iRows < 1 || iColumns < 1) return KEST_FAILED;
    const bool isConverted =
        kest::ConvertHslToRgb(PlaneOf(pHsl, iRows, iColumns), PlaneOf(pRgb, iRows, iColumns), bClipping);
    return isConverted ? KEST_OK : KEST_FAILED;
}

int Cc24BitHSLImage::ConvertDibToPlane() {
    return HasPlane() ? ConvertRGBDibToHSL(lpBits, pHSLData, iHeight, iWidth) : KEST_FAILED;
}

int Cc24BitHSLImage::ConvertPlaneToDib() {
    return HasPlane() ? ConvertHSLDibToRGB(lpBits, pHSLData, iHeight, iWidth) : KEST_FAILED;
}

int Cc24BitHSLImage::DoConvert() {
    if (ConvertDibToPlane() == KEST_OK) return KEST_OK;
    kest::ShowMessage("Error in DoConvert.", "Error");
    return KEST_FAILED;
}

int Cc24BitHSLImage::UpdateRGB() {
    if (ConvertPlaneToDib() == KEST_OK) return KEST_OK;
    kest::ShowMessage("Error in UpdateRGB.", "Error");
    return KEST_FAILED;
}

// Both planes at once

unsigned char* Cc24BitHSLImage::ReadBothPlanes(const char* pszPath, KestGlobalBlock& dib) {
    pHSLData = nullptr;
    const bool isRead = kest::ReadDib24(pszPath, dib, &hHSLData) != nullptr;
    pHSLData = static_cast<unsigned char*>(hHSLData.Get());
    if (!isRead) return nullptr;

    kest::DibLayout layout;
    kest::ReadDibLayout(kest::BytesOf(dib), layout);
    const auto refuse = [&](const char* text, const char* caption) {
        dib.Release();
        ReleasePlane();
        kest::ShowUnownedMessage(text, caption);
        return nullptr;
    };
    if (!pHSLData) return refuse("Unable to allocate HSL memory.", "File Error");
    // A colour table, which the image will refuse, can push the pixels out of the block.
    auto* const bytes = static_cast<unsigned char*>(dib.Get());
    if (kest::LiesInBlock(layout, kest::PlaneBytesPerPixel, dib.Size()) &&
        ConvertRGBDibToHSL(bytes + layout.pixelOffset, pHSLData, layout.height, layout.width) < 0)
        return refuse("Error in ConvertRGBDibToHSL", "Error");
    return bytes;
}

unsigned char* Cc24BitHSLImage::MakeBothPlanes(int iNewHeight, int iNewWidth, int iValue, KestGlobalBlock& dib) {
    const auto value = static_cast<std::uint8_t>(std::clamp(iValue, 0, 255));
    unsigned char* header = kest::MakeBlankDib24(iNewHeight, iNewWidth, value, dib);
    if (!header) return nullptr;
    const KestGlobalBlock::AllocateResult plane = AllocatePlane(iNewHeight, iNewWidth);
    if (plane != KestGlobalBlock::Allocated) {
        dib.Release();
        if (plane == KestGlobalBlock::NotAllocated)
            kest::ShowUnownedMessage("Memory Allocation Failure", "Memory Error");
        else
            kest::ShowUnownedMessage("Unable to allocate HSL memory.", "File Error");
        return nullptr;
    }
    FillPlane(pHSLData, kest::Product(iNewHeight, iNewWidth), GrayInHsl(value));
    return header;
}

unsigned char* Cc24BitHSLImage::ReadDibBM24HSL(const char* pszPath, void** phDIB) {
    if (!pszPath || !phDIB) return nullptr;
    KestGlobalBlock dib;
    unsigned char* header = ReadBothPlanes(pszPath, dib);
    *phDIB = dib.Detach();
    return header;
}

unsigned char* Cc24BitHSLImage::MakeBlankDibBM24HSL(int iNewHeight, int iNewWidth, int iValue, void** phDIB) {
    if (!phDIB) return nullptr;
    KestGlobalBlock dib;
    unsigned char* header = MakeBothPlanes(iNewHeight, iNewWidth, iValue, dib);
    *phDIB = dib.Detach();
    return header;
}
