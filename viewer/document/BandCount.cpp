// How much of a picture, or of what lies under a ROI, is in the threshold bands.
#include "document/BandCount.h"

#include "document/Runs.h"

namespace kestview {

BandCount CountInBands(Document& document, const std::vector<std::uint8_t>& mask, CcRoiBase* roi) {
    BandCount count;
    if (mask.empty()) return count;
    const float* areas = document.Calibration() ? document.Calibration()->GetAreaMap() : nullptr;
    ForEachRun(document, roi, [&](std::size_t first, int length) {
        for (std::size_t at = first; at < first + static_cast<std::size_t>(length); ++at) {
            if (!mask[at]) continue;
            ++count.pixels;
            count.area += areas ? static_cast<double>(areas[at]) : 1.0;
        }
    });
    return count;
}

}  // namespace kestview
