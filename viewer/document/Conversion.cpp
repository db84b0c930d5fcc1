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
void ReadRow(const Sample* samples, std::vector<double>& values) {
    std::copy(samples, samples + values.size(), values.begin());
}

void ReadRow(const RGBTRIPLE* pixel, std::vector<double>& values) {
    for (double& value : values) {
        // Whole weights: a gray's luminance is its own level.
        value = (299 * pixel->rgbtRed + 587 * pixel->rgbtGreen + 114 * pixel->rgbtBlue) / 1000.0;
        ++pixel;
    }
}

template <class Sample>
void WriteRow(Sample* samples, const std::vector<double>& values) {
    constexpr double low = static_cast<double>(std::numeric_limits<Sample>::lowest());
    constexpr double high = static_cast<double>(std::numeric_limits<Sample>::max());
    for (std::size_t i = 0; i < values.size(); ++i)
        samples[i] =
            std::isnan(values[i]) ? Sample{} : static_cast<Sample>(std::clamp(std::nearbyint(values[i]), low, high));
}

void WriteRow(float* samples, const std::vector<double>& values) {
    std::transform(values.begin(), values.end(), samples, [](double value) { return static_cast<float>(value); });
}

void WriteRow(RGBTRIPLE* pixels, const std::vector<double>& values) {
    std::vector<unsigned char> levels(values.size());
    WriteRow(levels.data(), values);
    std::transform(levels.begin(), levels.end(), pixels, [](BYTE level) { return RGBTRIPLE{level, level, level}; });
}

bool IsColour(CcImage& image) { return ImageClassOf(image).isColour; }

}  // namespace

std::unique_ptr<CcImage> ConvertImage(CcImage& source, int type) {
    Busy busy("Converting");
    const SIZE size = SizeOf(source);
    auto target = MakeImage(type, size.cy, size.cx, source.GetName());
    const void* from = source.GetBitMapImageData();
    if (!target || !from) return nullptr;
    if (IsColour(source) && IsColour(*target)) {
        std::memcpy(target->GetBitMapImageData(), from,
                    3 * static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy));
    } else {
        // What is shown of wide samples, for the classes that hold no more than 8 bits.
        const bool isShown = ImageClassOf(source).isWide && !ImageClassOf(*target).isWide && type != KEST_IMAGE_BINARY;
        const std::vector<std::uint8_t> levels = isShown ? ShownLevels(source) : std::vector<std::uint8_t>();
        if (isShown && levels.empty()) return nullptr;
        std::vector<double> values(static_cast<std::size_t>(size.cx));
        for (int row = 0; row < size.cy; ++row) {
            const std::size_t first = static_cast<std::size_t>(row) * values.size();
            if (isShown)
                ReadRow(levels.data() + first, values);
            else
                KestVisitSamples(source, [&](const auto* pixels) { ReadRow(pixels + first, values); });
            if (type == KEST_IMAGE_BINARY)
                for (double& value : values) value = value != 0;
            KestVisitSamples(*target, [&](auto* pixels) { WriteRow(pixels + first, values); });
            busy.Report(row + 1, size.cy);
        }
    }
    if (auto* hsl = dynamic_cast<Cc24BitHSLImage*>(target.get())) hsl->DoConvert();
    target->ReScaleImageOnShow();
    return target;
}

}  // namespace kestview
