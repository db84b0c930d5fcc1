// Cc24BitRGBImage: the 24-bit colour image. What it shares with Cc24BitHSLImage is done by ColourImage.
#include "Cc24BitRGBImage.h"

#include "core/ClassName.h"
#include "image/ColourImage.h"
#include "image/RegionExtract.h"
#include "image/kernel/ColourThreshold.h"

char Cc24BitRGBImage::cFullFilePathOpen[KEST_NAME_SIZE] = KEST_NO_BMP_PATH;
char Cc24BitRGBImage::cFullFilePathSave[KEST_NAME_SIZE] = KEST_NO_BMP_PATH;

namespace {

constexpr kest::ColourClass rgbImage = {
    {"Cc24BitRGBImage_Size", "Cc24BitRGBImage_Data"}, kest::BmpFilter, KEST_CHANNEL_LUMINANCE, KEST_CHANNEL_BLUE};

}  // namespace

Cc24BitRGBImage::Cc24BitRGBImage() : iAccess(KEST_CHANNEL_LUMINANCE), bThresholdActive(0), pThresholdBackup(nullptr) {
    iImageType = KEST_IMAGE_RGB;
}

Cc24BitRGBImage::~Cc24BitRGBImage() = default;

KEST_COMPILED_ONCE kest::ColourImage Cc24BitRGBImage::Colour() {
    return {rgbImage,         Parts(),          iAccess,           bThresholdActive,
            hThresholdBackup, pThresholdBackup, cFullFilePathOpen, cFullFilePathSave};
}

int Cc24BitRGBImage::Load(CcObjectStorage* pStorage) { return Colour().Load(pStorage); }

int Cc24BitRGBImage::Store(CcObjectStorage* pStorage) { return Colour().Store(pStorage); }

int Cc24BitRGBImage::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, "Cc24BitRGBImage");
}

int Cc24BitRGBImage::CopyToClipboard(HWND hWnd, unsigned short, RECT* pRect) {
    return Colour().CopyToClipboard(hWnd, pRect);
}

int Cc24BitRGBImage::Show(HDC hDC, RECT* pRect, unsigned short, unsigned short usMode, int iXOffset, int iYOffset,
                          int iZoom) {
    return Colour().Show(hDC, pRect, {usMode, iXOffset, iYOffset, iZoom});
}

int Cc24BitRGBImage::Show(HDC hDC, HWND hWnd, unsigned short, unsigned short usMode, int iXOffset, int iYOffset,
                          int iZoom) {
    return Colour().Show(hDC, hWnd, {usMode, iXOffset, iYOffset, iZoom});
}

int Cc24BitRGBImage::Show(HWND hWnd, unsigned short, unsigned short usMode, int iXOffset, int iYOffset, int iZoom) {
    return Colour().Show(hWnd, {usMode, iXOffset, iYOffset, iZoom});
}

int Cc24BitRGBImage::Print(HWND hWnd, unsigned short, unsigned short usMode, int iXOffset, int iYOffset, int iZoom) {
    return Colour().Print(hWnd, {usMode, iXOffset, iYOffset, iZoom});
}

int Cc24BitRGBImage::GetDisplayLUT(int, int, tagPoints*) { return KEST_FAILED; }

int Cc24BitRGBImage::SetDisplayLUT(int, int, tagPoints*) { return KEST_FAILED; }

int Cc24BitRGBImage::OpenBMPFile(const char* pszPath) { return Colour().Open(pszPath); }

int Cc24BitRGBImage::SaveBMPFile(const char* pszPath) { return Colour().Save(pszPath); }

int Cc24BitRGBImage::MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) {
    return Colour().MakeBlank(iNewHeight, iNewWidth, iValue, pszName);
}

int Cc24BitRGBImage::BeginThresholding(HWND, unsigned short) { return Colour().Backup().Make(); }

float Cc24BitRGBImage::GetMinPixelValue() { return 0.0F; }

float Cc24BitRGBImage::GetMaxPixelValue() { return 255.0F; }

int Cc24BitRGBImage::SizeOf() { return kest::PlaneBytesPerPixel; }

int Cc24BitRGBImage::SetAutoUpdateDisplay(int) { return KEST_OK; }

int Cc24BitRGBImage::GetAutoUpdateDisplay() { return 1; }

float& Cc24BitRGBImage::operator()(float fX, float fY) {
    return kest::ReadChannel(Parts(), {rgbImage, iAccess, lpBits, llPixelBlockBytes}, fX, fY);
}

float& Cc24BitRGBImage::operator()(int iX, int iY) {
    return kest::ReadChannel(Parts(), {rgbImage, iAccess, lpBits, llPixelBlockBytes}, iX, iY);
}

void Cc24BitRGBImage::operator=(float fValue) {
    kest::WriteChannel(Parts(), {rgbImage, iAccess, lpBits, llPixelBlockBytes}, fValue);
}

CcImage* Cc24BitRGBImage::GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) {
    return kest::CutRegion<Cc24BitRGBImage>(Parts(), SizeOf(), pRoi, iFillValue, iAlign);
}

int Cc24BitRGBImage::SetAccess(int iChannel) { return Colour().SetAccess(iChannel); }

int Cc24BitRGBImage::GetAccess() { return iAccess; }

// Thresholding

namespace {

/// What painting starts from: the copy that is kept, or else the pixels as they are.
kest::SourcePlane Unpainted(const kest::ColourImage& image) {
    const kest::PixelBackup backup = image.Backup();
    return backup.Fits() ? kest::SourcePlane(backup.bytes, backup.pixels.size()) : backup.pixels;
}

int RefuseChannel(const kest::ColourImage& image) {
    image.Backup().PutBack();
    return KEST_FAILED;
}

}  // namespace

int Cc24BitRGBImage::ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) {
    if (fLow > fHigh) return KEST_OK;
    const kest::ColourImage image = Colour();
    if (!rgbImage.IsChannel(iAccess)) return RefuseChannel(image);
    const kest::SourcePlane source = Unpainted(image);
    const kest::TargetPlane target = image.Pixels();
    const kest::Rgb colour = kest::LowBytes(iRed, iGreen, iBlue);
    if (iAccess == KEST_CHANNEL_LUMINANCE) {
        kest::PaintLuminance(source, target, fLow, fHigh, colour);
    } else {
        kest::ChannelPainter painter(rgbImage.ByteOf(iAccess));
        painter.AddBand(kest::ToByteBand(fLow, fHigh), colour);
        painter.Paint(source, target);
    }
    kest::Redraw(hWnd);
    return KEST_OK;
}

int Cc24BitRGBImage::ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount) {
    kest::BandList bands;
    if (!kest::ListBands(pBands, iCount, bands)) return KEST_FAILED;
    if (kest::HasEmptyBand(bands)) return KEST_OK;
    const kest::ColourImage image = Colour();
    if (!rgbImage.IsChannel(iAccess)) return RefuseChannel(image);
    const kest::SourcePlane source = Unpainted(image);
    const kest::TargetPlane target = image.Pixels();
    if (iAccess == KEST_CHANNEL_LUMINANCE) {
        kest::PaintLuminance(source, target, bands);
    } else {
        kest::ChannelPainter painter(rgbImage.ByteOf(iAccess));
        for (const ThresholdTag& band : bands)
            painter.AddBand(band.fLow, band.fHigh, kest::LowBytes(band.iRed, band.iGreen, band.iBlue));
        painter.Paint(source, target);
    }
    kest::Redraw(hWnd);
    return KEST_OK;
}

int Cc24BitRGBImage::ThresholdImageRGB(HWND hWnd, int iRedLow, int iRedHigh, int iGreenLow, int iGreenHigh,
                                       int iBlueLow, int iBlueHigh, int iNewRed, int iNewGreen, int iNewBlue) {
    if (iRedLow >= iRedHigh || iGreenLow >= iGreenHigh || iBlueLow >= iBlueHigh) return KEST_FAILED;
    const kest::ByteBand box[] = {kest::ToBoxSide(iBlueLow, iBlueHigh), kest::ToBoxSide(iGreenLow, iGreenHigh),
                                  kest::ToBoxSide(iRedLow, iRedHigh)};
    const kest::ColourImage image = Colour();
    kest::PaintBox(Unpainted(image), image.Pixels(), box, kest::Clamped(iNewRed, iNewGreen, iNewBlue));
    kest::Redraw(hWnd);
    return KEST_OK;
}

int Cc24BitRGBImage::EndThresholding() {
    kest::PixelBackup backup = Colour().Backup();
    backup.PutBack();
    backup.Free();
    return KEST_OK;
}
