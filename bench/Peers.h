// The peer: OpenCV on the same work, one thread. Without it every function gives an empty run.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "KestTypes.h"
#include "Work.h"
#include "core/kernel/Geometry.h"

namespace bench {

using Bytes = std::vector<std::uint8_t>;
using Points = std::vector<kest::IntPoint>;
using Transform = const float (&)[3][3];

void UseOneThread();

// The buffers must live as long as the run.

Run PeerToHsl(Bytes& rgb, Bytes& hsl);
Run PeerToRgb(Bytes& hsl, Bytes& rgb);
// The picture comes back from its backup, and what lies in the band is painted.
Run PeerPaintLuminance(Bytes& backup, Bytes& picture, float low, float high);
Run PeerPaintChannel(Bytes& backup, Bytes& picture, int channel, float low, float high);
Run PeerPaintBox(Bytes& backup, Bytes& picture, std::array<int, 3> low, std::array<int, 3> high);

Run PeerMapWords(std::vector<std::uint16_t>& samples);
Run PeerScanAndMap(std::vector<std::int32_t>& samples);
Run PeerScanAndMap(std::vector<float>& samples);

// Of a square picture; the region lies `margin` from every side.
Run PeerCutRect(Bytes& picture, int side, Bytes& region, int margin);
Run PeerCutEllipse(Bytes& picture, int side, Bytes& region, int margin);
Run PeerCutOutline(Bytes& picture, int side, const Points& outline, int margin, int regionSide);
Run PeerRasterise(const Points& starts, const Points& ends, Points& chain);

Run PeerAreaMap(Transform transform, int width, int height);
Run PeerToWorld(Transform transform, std::vector<tagPoints>& image, std::vector<tagPoints>& world);

}  // namespace bench
