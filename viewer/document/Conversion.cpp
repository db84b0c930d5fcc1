// A picture in another image class. Every class is read as values row by row, and written from them.
#include "document/Conversion.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

#include "platform/Busy.h"

namespace kestview {
namespace {

template <class Sample>
void ReadSamples(const void* pixels, std::size_t first, std::vector<double>& values) {
    const Sample* samples = static_cast<const Sample*>(pixels) + first;
    std::copy(samples, samples + values.size(), values.begin());
}

template <class Sample>
void WriteSamples(void* pixels, std::size_t first, const std::vector<double>& values) {
    Sample* samples = static_cast<Sample*>(pixels) + first;
    constexpr double low = static_cast<double>(std::numeric_limits<Sample>::lowest());
    constexpr double high = static_cast<double>(std::numeric_limits<Sample>::max());
    for (std::size_t i = 0; i < values.size(); ++i)
        samples[i] =
            std::isnan(values[i]) ? Sample{} : static_cast<Sample>(std::clamp(std::nearbyint(values[i]), low, high));
}

void ReadRow(CcImage& image, const void* pixels, std::size_t first, std::vector<double>& values) {
    switch (image.GetImageType()) {
        case KEST_IMAGE_INT16:
            ReadSamples<std::uint16_t>(pixels, first, values);
            return;
        case KEST_IMAGE_INT32:
            ReadSamples<std::int32_t>(pixels, first, values);
            return;
        case KEST_IMAGE_FLOAT:
            ReadSamples<float>(pixels, first, values);
            return;
        case KEST_IMAGE_RGB:
        case KEST_IMAGE_HSL: {
            const unsigned char* pixel = static_cast<const unsigned char*>(pixels) + 3 * first;
            for (double& value : values) {
                // Whole weights: a gray's luminance is its own level.
                value = (299 * pixel[2] + 587 * pixel[1] + 114 * pixel[0]) / 1000.0;
                pixel += 3;
            }
            return;
        }
        default:
            ReadSamples<unsigned char>(pixels, first, values);
            return;
    }
}

void WriteRow(CcImage& image, void* pixels, std::size_t first, const std::vector<double>& values) {
    switch (image.GetImageType()) {
        case KEST_IMAGE_INT16:
            WriteSamples<std::uint16_t>(pixels, first, values);
            return;
        case KEST_IMAGE_INT32:
            WriteSamples<std::int32_t>(pixels, first, values);
            return;
        case KEST_IMAGE_FLOAT: {
            float* samples = static_cast<float*>(pixels) + first;
            std::transform(values.begin(), values.end(), samples,
                           [](double value) { return static_cast<float>(value); });
            return;
        }
        case KEST_IMAGE_RGB:
        case KEST_IMAGE_HSL: {
            unsigned char* pixel = static_cast<unsigned char*>(pixels) + 3 * first;
            for (const double value : values) {
                std::memset(pixel,
                            std::isnan(value) ? 0 : static_cast<int>(std::nearbyint(std::clamp(value, 0.0, 255.0))), 3);
                pixel += 3;
            }
            return;
        }
        default:
            WriteSamples<unsigned char>(pixels, first, values);
            return;
    }
}

bool IsColour(CcImage& image) {
    return ImageClassOf(image).isColour;
}

}  // namespace

std::unique_ptr<CcImage> ConvertImage(CcImage& source, int type) {
    Busy busy("Converting");
    const SIZE size = SizeOf(source);
    auto target = MakeImage(type, size.cy, size.cx, source.GetName());
    const void* from = source.GetBitMapImageData();
    if (!target || !from) return nullptr;
    void* to = target->GetBitMapImageData();
    if (IsColour(source) && IsColour(*target)) {
        std::memcpy(to, from, 3 * static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy));
    } else {
        // What is shown of wide samples, for the classes that hold no more than 8 bits.
        const bool isShown = ImageClassOf(source).isWide && !ImageClassOf(*target).isWide && type != KEST_IMAGE_BINARY;
        const std::vector<std::uint8_t> levels = isShown ? ShownLevels(source) : std::vector<std::uint8_t>();
        if (isShown && levels.empty()) return nullptr;
        std::vector<double> values(static_cast<std::size_t>(size.cx));
        for (int row = 0; row < size.cy; ++row) {
            const std::size_t first = static_cast<std::size_t>(row) * values.size();
            if (isShown)
                ReadSamples<std::uint8_t>(levels.data(), first, values);
            else
                ReadRow(source, from, first, values);
            if (type == KEST_IMAGE_BINARY)
                for (double& value : values)
                    value = value != 0;
            WriteRow(*target, to, first, values);
            busy.Report(row + 1, size.cy);
        }
    }
    if (auto* hsl = dynamic_cast<Cc24BitHSLImage*>(target.get())) hsl->DoConvert();
    target->ReScaleImageOnShow();
    return target;
}

}  // namespace kestview
