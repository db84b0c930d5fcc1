// Thresholding of the colour image with an HSL plane: bands are painted in the plane, and the DIB follows it.
#include "Cc24BitHSLImage.h"
#include "image/Dib24Members.h"
#include "image/kernel/ColourConvert.h"
#include "image/kernel/ColourThreshold.h"

using Members = KestDib24Members<Cc24BitHSLImage>;

// The unpainted picture comes back, if it was kept.
int Cc24BitHSLImage::StartPainting() {
    const kest::PixelBackup backup = Members::Backup(*this);
    if (backup.Fits()) {
        backup.PutBack();
        if (ConvertDibToPlane() < 0) return KEST_FAILED;
    }
    return HasPlane() && IsChannel(iAccess) ? KEST_OK : KEST_FAILED;
}

int Cc24BitHSLImage::FinishPainting(HWND hWnd) {
    if (ConvertPlaneToDib() < 0) return KEST_FAILED;
    Members::Redraw(hWnd);
    return KEST_OK;
}

int Cc24BitHSLImage::ThresholdImage(HWND hWnd, float fLow, float fHigh, int iRed, int iGreen, int iBlue) {
    if (fLow > fHigh) return KEST_OK;
    if (StartPainting() < 0) return KEST_FAILED;
    kest::ChannelPainter painter(KEST_CHANNEL_LIGHTNESS - iAccess);
    painter.AddBand(kest::ToByteBand(fLow, fHigh), kest::RgbToHsl(kest::LowBytes(iRed, iGreen, iBlue)));
    const kest::TargetPlane plane = Members::PlaneOf(*this, pHSLData);
    painter.Paint(plane, plane);
    return FinishPainting(hWnd);
}

int Cc24BitHSLImage::ThresholdImageMulti(HWND hWnd, ThresholdTag* pBands, int iCount) {
    kest::BandList bands;
    if (!kest::ListBands(pBands, iCount, bands)) return KEST_FAILED;
    if (kest::HasEmptyBand(bands)) return KEST_OK;
    if (StartPainting() < 0) return KEST_FAILED;
    kest::ChannelPainter painter(KEST_CHANNEL_LIGHTNESS - iAccess);
    for (const ThresholdTag& band : bands)
        painter.AddBand(band.fLow, band.fHigh, kest::RgbToHsl(kest::LowBytes(band.iRed, band.iGreen, band.iBlue)));
    const kest::TargetPlane plane = Members::PlaneOf(*this, pHSLData);
    painter.Paint(plane, plane);
    return FinishPainting(hWnd);
}

int Cc24BitHSLImage::ThresholdImageHSL(HWND hWnd, int iHueLow, int iHueHigh, int iSatLow, int iSatHigh, int iLightLow,
                                       int iLightHigh, int iRed, int iGreen, int iBlue) {
    if (iHueLow >= iHueHigh || iSatLow >= iSatHigh || iLightLow >= iLightHigh) return KEST_FAILED;
    if (StartPainting() < 0) return KEST_FAILED;
    const kest::ByteBand box[] = {kest::ToBoxSide(iLightLow, iLightHigh), kest::ToBoxSide(iSatLow, iSatHigh),
                                  kest::ToBoxSide(iHueLow, iHueHigh)};
    const kest::TargetPlane plane = Members::PlaneOf(*this, pHSLData);
    kest::PaintBox(plane, plane, box, kest::RgbToHsl(kest::Clamped(iRed, iGreen, iBlue)));
    return FinishPainting(hWnd);
}

int Cc24BitHSLImage::EndThresholding() {
    kest::PixelBackup backup = Members::Backup(*this);
    if (backup.Fits()) {
        backup.PutBack();
        if (ConvertDibToPlane() < 0) return KEST_FAILED;
    }
    backup.Free();
    return KEST_OK;
}
