// The bands of a wide picture as a layer over it.
#include "document/BandLayer.h"

#include <algorithm>

#include "document/ImageClasses.h"
#include "platform/Drawing.h"

namespace kestview {
namespace {

constexpr unsigned short colourTable = 101;

/// A colour that no band has.
COLORREF ColourBeside(const std::vector<Band>& bands) {
    COLORREF colour = 0;
    while (std::any_of(bands.begin(), bands.end(), [&](const Band& band) { return band.colour == colour; })) ++colour;
    return colour;
}

}  // namespace

bool BandLayer::Make(CcImage& picture) {
    const SIZE size = SizeOf(picture);
    layer = MakeImage(KEST_IMAGE_GRAY256, size.cy, size.cx, "bands");
    return IsMade();
}

void BandLayer::Mark(CcImage& picture, const std::vector<Band>& bands) {
    if (!IsMade()) return;
    marked = bands;
    NumberBands(picture, bands, static_cast<std::uint8_t*>(layer->GetBitMapImageData()));
}

bool BandLayer::DrawOver(HDC dc, SIZE area, const ShowImage& show) {
    if (!IsMade() || marked.empty()) return true;
    const COLORREF through = ColourBeside(marked);
    for (const auto& [channel, shift] : {std::pair{1, 0}, {2, 8}, {3, 16}}) {
        tagPoints points[256];
        for (std::size_t i = 0; i < std::size(points); ++i) {
            const COLORREF colour = i == 0 || i > marked.size() ? through : marked[i - 1].colour;
            points[i] = {static_cast<float>(i), static_cast<float>(colour >> shift & 255)};
        }
        layer->SetDisplayLUT(colourTable, channel, points);
    }
    const BackBuffer drawn(dc, area);
    if (!drawn) return false;
    const kest::GdiObject brush(CreateSolidBrush(through));
    const RECT all = {0, 0, area.cx, area.cy};
    FillRect(drawn, &all, brush);
    return show(*layer, drawn, colourTable) &&
           GdiTransparentBlt(dc, 0, 0, area.cx, area.cy, drawn, 0, 0, area.cx, area.cy, through) != 0;
}

}  // namespace kestview
