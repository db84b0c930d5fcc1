// The luminance of colour pixels.
#include "image/kernel/Luminance.h"

#include "core/kernel/Numbers.h"

namespace kest {

void SetLuminance(std::uint8_t* pixel, float luminance) {
    // The summands in another order than in Luminance: the last bit of the sum can differ.
    const double difference = luminance - (0.587 * pixel[1] + 0.299 * pixel[2] + 0.114 * pixel[0]);
    for (int component = 2; component >= 0; --component) {
        const auto moved = static_cast<float>(pixel[component] + difference);
        pixel[component] = moved > 255.0F ? 255 : moved < 0.0F ? 0 : TruncateToByte(moved);
    }
}

}  // namespace kest
