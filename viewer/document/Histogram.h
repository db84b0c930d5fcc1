// How often each value occurs in a picture or under a ROI.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "document/Document.h"

namespace kestview {

constexpr int histogramBins = 256;

struct HistogramChannel {
    const char* name;
    COLORREF colour;
    std::array<long long, histogramBins> counts = {};
};

struct Histogram {
    float low = 0;     ///< value of the first bin
    float high = 255;  ///< value of the last bin
    long long pixels = 0;
    std::vector<HistogramChannel> channels;  ///< one, or the three of a colour picture
};

/// Null: of the whole picture. Nothing when memory is short.
std::optional<Histogram> MakeHistogram(Document& document, CcRoiBase* roi);

}  // namespace kestview
