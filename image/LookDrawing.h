// Drawing the look of an image through its display table.
#pragma once

#include <optional>

#include "core/GdiGuards.h"
#include "image/ShowImage.h"

namespace kest {

/// The palette of a look, selected and realised, if its class uses one. A message tells when it could not be selected:
/// whatever the look refers to may be gone afterwards.
class LookPalette : Guard {
public:
    LookPalette(HDC dc, const ImageLook& look);
    bool IsSelected() const { return selected && selected->IsSelected(); }

private:
    std::optional<SelectedPalette> selected;
};

/// Copies the display table into the DIB and gives the picture in these colours.
DibPicture TakeDisplayTable(const ImageLook& look);

/// Draws the look's picture through its display table.
bool DrawLook(HDC dc, const ImageLook& look, const LookPalette& palette, const BlitPlan& plan);

}  // namespace kest
