// How much of a picture, or of what lies under a ROI, is in the threshold bands.
#include "document/BandCount.h"

#include "document/Runs.h"

namespace kestview {

std::optional<BandCount> CountInBands(Document& document, const std::vector<std::uint8_t>& mask, CcRoiBase* roi) {
    if (mask.empty()) return std::nullopt;
    BandCount count;
    const float* areas = document.Calibration() ? document.Calibration()->GetAreaMap() : nullptr;
    const bool areAll = ForEachRun(document, roi, [&](std::size_t first, int length) {
        for (std::size_t at = first; at < first + static_cast<std::size_t>(length); ++at) {
            if (!mask[at]) continue;
            ++count.pixels;
            count.area += areas ? static_cast<double>(areas[at]) : 1.0;
        }
    });
    if (!areAll) return std::nullopt;
    return count;
}

}  // namespace kestview
