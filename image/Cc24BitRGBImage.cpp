// Cc24BitRGBImage: the 24-bit colour image.
#include "Cc24BitRGBImage.h"

#include "core/kernel/Numbers.h"
#include "image/Dib24Members.h"
#include "image/kernel/ColourThreshold.h"
#include "image/kernel/Luminance.h"

namespace {

/// Where a colour channel's byte lies in a pixel.
int ByteOfChannel(int channel) {
    return KEST_CHANNEL_BLUE - channel;
}

}  // namespace

template <>
struct KestDib24Traits<Cc24BitRGBImage> {
    using Image = Cc24BitRGBImage;
    static constexpr char className[] = "Cc24BitRGBImage";
    static constexpr char sizeKey[] = "Cc24BitRGBImage_Size";
    static constexpr char dataKey[] = "Cc24BitRGBImage_Data";
    static constexpr auto& bmpFilter = kest::BmpFilter;

    static bool ReadFile(Image& image, const char* path) { return kest::ReadDib24(path, image.hDib) != nullptr; }

    static bool MakeBlankDib(Image& image, int height, int width, int value) {
        return kest::MakeBlankDib24(height, width, static_cast<std::uint8_t>(value), image.hDib) != nullptr;
    }
    static bool Refill(Image& image, int height, int width, int value) {
        return image.RefillDib(height, width, value, kest::PlaneBytesPerPixel);
    }
    static void ReleasePlane(Image&) {}
    static bool FitPlane(Image&) { return true; }
    static bool CopyPlaneRegion(const Image&, CcRoiBase&, const kest::RegionFrame&, Image&) { return true; }

    static float ReadValue(const Image& image, int index) {
        const unsigned char* pixel = image.lpBits + index * kest::PlaneBytesPerPixel;
        if (image.iAccess == KEST_CHANNEL_LUMINANCE) return static_cast<float>(kest::Luminance(pixel));
        return image.IsChannel(image.iAccess) ? pixel[ByteOfChannel(image.iAccess)] : -1.0F;
    }
    static void WriteValue(Image& image, int index, float value) {
        unsigned char* pixel = image.lpBits + index * kest::PlaneBytesPerPixel;
        if (image.iAccess == KEST_CHANNEL_LUMINANCE)
            kest::SetLuminance(pixel, value);
        else if (image.IsChannel(image.iAccess))
            pixel[ByteOfChannel(image.iAccess)] = kest::TruncateToByte(value);
    }

    /// What painting starts from: the copy that is kept, or else the pixels as they are.
    static kest::SourcePlane Unpainted(Image& image) {
        const kest::PixelBackup backup = KestDib24Members<Image>::Backup(image);
        return backup.Fits() ? kest::SourcePlane(backup.bytes, backup.pixels.size()) : backup.pixels;
    }
};

Cc24BitRGBImage::Cc24BitRGBImage() : iAccess(KEST_CHANNEL_LUMINANCE), bThresholdActive(0), pThresholdBackup(nullptr) {
    iImageType = KEST_IMAGE_RGB;
}

Cc24BitRGBImage::~Cc24BitRGBImage() = default;

#define IMAGE_CLASS Cc24BitRGBImage
#include "image/Dib24Overrides.inl"

int Cc24BitRGBImage::SetAccess(int iChannel) {
    if (!IsChannel(iChannel)) return KEST_FAILED;
    iAccess = iChannel;
    return KEST_OK;
}

// Thresholding

int Cc24BitRGBImage::RefuseChannel() {
    Members::Backup(*this).PutBack();
    return KEST_FAILED;
}

int Cc24BitRGBImage::ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) {
    if (fLow > fHigh) return KEST_OK;
    if (!IsChannel(iAccess)) return RefuseChannel();
    const kest::SourcePlane source = Members::Traits::Unpainted(*this);
    const kest::TargetPlane target = Members::Pixels(*this);
    const kest::Rgb colour = kest::LowBytes(iRed, iGreen, iBlue);
    if (iAccess == KEST_CHANNEL_LUMINANCE) {
        kest::PaintLuminance(source, target, fLow, fHigh, colour);
    } else {
        kest::ChannelPainter painter(ByteOfChannel(iAccess));
        painter.AddBand(kest::ToByteBand(fLow, fHigh), colour);
        painter.Paint(source, target);
    }
    Members::Redraw(hWnd);
    return KEST_OK;
}

int Cc24BitRGBImage::ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount) {
    kest::BandList bands;
    if (!kest::ListBands(pBands, iCount, bands)) return KEST_FAILED;
    if (kest::HasEmptyBand(bands)) return KEST_OK;
    if (!IsChannel(iAccess)) return RefuseChannel();
    const kest::SourcePlane source = Members::Traits::Unpainted(*this);
    const kest::TargetPlane target = Members::Pixels(*this);
    if (iAccess == KEST_CHANNEL_LUMINANCE) {
        kest::PaintLuminance(source, target, bands);
    } else {
        kest::ChannelPainter painter(ByteOfChannel(iAccess));
        for (const ThresholdTag& band : bands)
            painter.AddBand(band.fLow, band.fHigh, kest::LowBytes(band.iRed, band.iGreen, band.iBlue));
        painter.Paint(source, target);
    }
    Members::Redraw(hWnd);
    return KEST_OK;
}

int Cc24BitRGBImage::ThresholdImageRGB(HWND hWnd, int iRedLow, int iRedHigh, int iGreenLow, int iGreenHigh,
                                       int iBlueLow, int iBlueHigh, int iNewRed, int iNewGreen, int iNewBlue) {
    if (iRedLow >= iRedHigh || iGreenLow >= iGreenHigh || iBlueLow >= iBlueHigh) return KEST_FAILED;
    const kest::ByteBand box[] = {kest::ToBoxSide(iBlueLow, iBlueHigh), kest::ToBoxSide(iGreenLow, iGreenHigh),
                                  kest::ToBoxSide(iRedLow, iRedHigh)};
    kest::PaintBox(Members::Traits::Unpainted(*this), Members::Pixels(*this), box,
                   kest::Clamped(iNewRed, iNewGreen, iNewBlue));
    Members::Redraw(hWnd);
    return KEST_OK;
}

int Cc24BitRGBImage::EndThresholding() {
    kest::PixelBackup backup = Members::Backup(*this);
    backup.PutBack();
    backup.Free();
    return KEST_OK;
}
