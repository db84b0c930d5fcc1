// Bands of display levels.
#include "image/kernel/ThresholdBand.h"

#include <cmath>

namespace kest {

LevelBand FindBand(float low, float high) {
    constexpr float top = 255.0F;
    LevelBand band = {0, 255};
    if (low >= 0.0F && low < top) band.low = static_cast<int>(std::floor(low));
    if (high <= top) band.high = high > 0.0F ? static_cast<int>(std::ceil(high)) : 0;
    return band;
}

void MakeGray(ColourCurves& curves) {
    for (auto& curve : curves)
        for (int level = 0; level < 256; ++level) curve[level].y = static_cast<float>(level);
}

void ColourBand(ColourCurves& curves, const LevelBand& band, int red, int green, int blue) {
    const int colour[] = {red, green, blue};
    for (int channel = 0; channel < 3; ++channel)
        for (int level = band.low; level <= band.high; ++level)
            curves[channel][level].y = static_cast<float>(colour[channel]);
}

}  // namespace kest
