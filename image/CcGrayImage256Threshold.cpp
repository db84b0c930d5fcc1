// Interactive thresholding of the 8-bit grayscale image: bands of levels are coloured in the curves of display table
// 101.
#include "CcGrayImage256.h"
#include "image/kernel/ThresholdBand.h"

namespace {

constexpr int colourTable = 101;

/// The image's curves, all gray.
struct Curves {
    kest::ColourCurves channels;

    explicit Curves(CcGrayImage256& image) {
        for (int channel = 0; channel < 3; ++channel) image.GetDisplayLUT(colourTable, channel + 1, channels[channel]);
        kest::MakeGray(channels);
    }
    /// -1, and nothing changed, when the display tables cannot be had.
    int PutInto(CcGrayImage256& image) {
        for (int channel = 0; channel < 3; ++channel)
            if (image.SetDisplayLUT(colourTable, channel + 1, channels[channel]) < 0) return KEST_FAILED;
        return KEST_OK;
    }
};

}  // namespace

int CcGrayImage256::BeginThresholding(HWND, unsigned short) { return Curves(*this).PutInto(*this); }

int CcGrayImage256::ThresholdImage(HWND, float fLow, float fHigh, int iRed, int iGreen, int iBlue) {
    const kest::LevelBand band = kest::FindBand(fLow, fHigh);
    if (band.IsEmpty()) return KEST_FAILED;
    Curves curves(*this);
    kest::ColourBand(curves.channels, band, iRed, iGreen, iBlue);
    return curves.PutInto(*this);
}

int CcGrayImage256::ThresholdImageMulti(HWND, ThresholdTag* pBands, int iCount) {
    if (!pBands && iCount > 0) return KEST_FAILED;
    Curves curves(*this);
    for (int i = 0; i < iCount; ++i) {
        const ThresholdTag& tag = pBands[i];
        kest::ColourBand(curves.channels, kest::FindBand(tag.fLow, tag.fHigh), tag.iRed, tag.iGreen, tag.iBlue);
    }
    return curves.PutInto(*this);
}

int CcGrayImage256::EndThresholding() { return BeginThresholding(nullptr, 0); }
