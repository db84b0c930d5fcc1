// How much of a picture, or of what lies under a ROI, is in the threshold bands.
#pragma once

#include <optional>

#include "document/Document.h"

namespace kestview {

struct BandCount {
    long long pixels = 0;
    double area = 0;  ///< in square units of the calibration; in pixels without one
};

/// `mask` is the document's BandMask. Null counts in the whole picture. Nothing without a mask, or when memory is
/// short.
std::optional<BandCount> CountInBands(Document& document, const std::vector<std::uint8_t>& mask, CcRoiBase* roi);

}  // namespace kestview
