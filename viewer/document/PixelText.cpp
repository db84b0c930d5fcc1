// A pixel in words: its value and its world position, as the status bar shows them.
#include "document/PixelText.h"

#include "document/ImageClasses.h"
#include "platform/Text.h"

namespace kestview {

std::string ValueText(Document& document, long x, long y) {
    CcImage& image = document.Image();
    const int column = static_cast<int>(x), row = static_cast<int>(y);
    const SIZE size = SizeOf(image);
    if (x < 0 || y < 0 || x >= size.cx || y >= size.cy) return "";
    const std::size_t index =
        static_cast<std::size_t>(y) * static_cast<std::size_t>(size.cx) + static_cast<std::size_t>(x);
    if (image.GetImageType() == KEST_IMAGE_RGB) {
        const unsigned char* pixel = document.Colours() + 3 * index;
        return Format("R %d  G %d  B %d", pixel[2], pixel[1], pixel[0]);
    }
    if (image.GetImageType() == KEST_IMAGE_HSL) {
        const unsigned char* pixel = document.Colours();
        if (!pixel) return "";
        pixel += 3 * index;
        return Format("H %d  S %d  L %d", pixel[2], pixel[1], pixel[0]);
    }
    if (image.GetImageType() == KEST_IMAGE_INT32)
        return Format("%d", static_cast<const int*>(image.GetBitMapImageData())[index]);
    // What is read here can be typed as the bound of a band.
    if (image.GetImageType() == KEST_IMAGE_FLOAT)
        return NumberText(static_cast<const float*>(image.GetBitMapImageData())[index]);
    return Format("%.6g", static_cast<double>(image(column, row)));
}

std::string WorldText(CcImage& image, long x, long y) {
    if (!image.GetCalibrationObject()) return "";
    tagPoints pixel = {static_cast<float>(x), static_cast<float>(y)}, world = {};
    if (image.ConvertImagePointToWorldCoords(&pixel, &world) < 0) return "";
    return Format("%.5g, %.5g %s", static_cast<double>(world.x), static_cast<double>(world.y), UnitOf(image).c_str());
}

std::string UnitOf(CcImage& image) {
    CcCalibration* calibration = image.GetCalibrationObject();
    return calibration ? calibration->GetUnitsOfMeasure() : "pixels";
}

}  // namespace kestview
