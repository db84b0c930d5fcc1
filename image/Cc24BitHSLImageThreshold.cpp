// Thresholding of the colour image with an HSL plane: bands are painted in the plane, and the DIB follows it.
#include "Cc24BitHSLImage.h"
#include "image/ColourImage.h"
#include "image/kernel/ColourConvert.h"
#include "image/kernel/ColourThreshold.h"

namespace {

/// The unpainted picture comes back, if it was kept.
int PutBack(const kest::ColourImage& image) {
    const kest::PixelBackup backup = image.Backup();
    if (!backup.Fits()) return KEST_OK;
    backup.PutBack();
    return image.plane->TakeFrom(image.image.dib);
}

int StartPainting(const kest::ColourImage& image) {
    if (PutBack(image) < 0) return KEST_FAILED;
    return image.plane->Fits(image.image.dib) && image.kind.IsChannel(image.access) ? KEST_OK : KEST_FAILED;
}

/// What is painted.
kest::TargetPlane Entries(const kest::ColourImage& image) { return {image.plane->bytes, image.Pixels().size()}; }

int FinishPainting(const kest::ColourImage& image, HWND window) {
    if (image.plane->PutInto(image.image.dib) < 0) return KEST_FAILED;
    kest::Redraw(window);
    return KEST_OK;
}

}  // namespace

int Cc24BitHSLImage::ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) {
    if (fLow > fHigh) return KEST_OK;
    const kest::ColourImage image = Colour();
    if (StartPainting(image) < 0) return KEST_FAILED;
    kest::ChannelPainter painter(image.kind.ByteOf(iAccess));
    painter.AddBand(kest::ToByteBand(fLow, fHigh), kest::RgbToHsl(kest::LowBytes(iRed, iGreen, iBlue)));
    const kest::TargetPlane plane = Entries(image);
    painter.Paint(plane, plane);
    return FinishPainting(image, hWnd);
}

int Cc24BitHSLImage::ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount) {
    kest::BandList bands;
    if (!kest::ListBands(pBands, iCount, bands)) return KEST_FAILED;
    if (kest::HasEmptyBand(bands)) return KEST_OK;
    const kest::ColourImage image = Colour();
    if (StartPainting(image) < 0) return KEST_FAILED;
    kest::ChannelPainter painter(image.kind.ByteOf(iAccess));
    for (const ThresholdTag& band : bands)
        painter.AddBand(band.fLow, band.fHigh, kest::RgbToHsl(kest::LowBytes(band.iRed, band.iGreen, band.iBlue)));
    const kest::TargetPlane plane = Entries(image);
    painter.Paint(plane, plane);
    return FinishPainting(image, hWnd);
}

int Cc24BitHSLImage::ThresholdImageHSL(HWND hWnd, int iHueLow, int iHueHigh, int iSatLow, int iSatHigh, int iLightLow,
                                       int iLightHigh, int iRed, int iGreen, int iBlue) {
    if (iHueLow >= iHueHigh || iSatLow >= iSatHigh || iLightLow >= iLightHigh) return KEST_FAILED;
    const kest::ColourImage image = Colour();
    if (StartPainting(image) < 0) return KEST_FAILED;
    const kest::ByteBand box[] = {kest::ToBoxSide(iLightLow, iLightHigh), kest::ToBoxSide(iSatLow, iSatHigh),
                                  kest::ToBoxSide(iHueLow, iHueHigh)};
    const kest::TargetPlane plane = Entries(image);
    kest::PaintBox(plane, plane, box, kest::RgbToHsl(kest::Clamped(iRed, iGreen, iBlue)));
    return FinishPainting(image, hWnd);
}

int Cc24BitHSLImage::EndThresholding() {
    const kest::ColourImage image = Colour();
    if (PutBack(image) < 0) return KEST_FAILED;
    image.Backup().Free();
    return KEST_OK;
}
