// The bands of a wide picture as a layer over it. The picture below is shown through its own display table, which so
// has no part in what the bands hold.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "document/Bands.h"

namespace kestview {

/// Draws an image through a display table into a device context, as the picture itself is shown. False when it was not
/// drawn.
using ShowImage = std::function<bool(CcImage& image, HDC dc, unsigned short table)>;

class BandLayer {
public:
    /// False when memory is short.
    bool Make(CcImage& picture);
    void Drop() { layer.reset(); }
    bool IsMade() const { return layer != nullptr; }
    void Mark(CcImage& picture, const std::vector<Band>& bands);
    /// Draws the pixels of the bands, and nothing else, over `area` of the device context. False when memory is short.
    bool DrawOver(HDC dc, SIZE area, const ShowImage& show);

private:
    std::unique_ptr<CcImage> layer;  ///< of the picture's size; each pixel is the number of its band, or 0
    std::vector<Band> marked;
};

}  // namespace kestview
