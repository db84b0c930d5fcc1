// Bands of values shown in colours over the picture, and the mask of the pixels in them.
#pragma once

#include <cstdint>
#include <vector>

#include "document/BandLayer.h"

namespace kestview {

/// Begins, renews and ends the preview of one image. Of a wide image the bands lie in a layer over it; of the others
/// the library's thresholding shows them: while it runs, the 8-bit images show the bands in display table 101 and the
/// colour images hold recoloured pixels.
class ThresholdPreview {
public:
    explicit ThresholdPreview(CcImage& newImage);
    ThresholdPreview(const ThresholdPreview&) = delete;
    ThresholdPreview& operator=(const ThresholdPreview&) = delete;

    /// Whether images of this class have bands: all but binary ones.
    static bool IsPossible(CcImage& image);

    /// `canvas` is the window that shows the image.
    bool Begin(HWND canvas);
    void Show(const std::vector<Band>& bands);
    /// Brings the picture back as it was.
    void End();
    bool IsOn() const { return isOn; }
    HWND Window() const { return window; }
    /// Whether the picture itself is another one while the preview is on.
    bool ChangesPicture() const { return isOn && !isWide; }
    BandLayer& Layer() { return layer; }

    /// A byte a pixel, bottom row first: 1 in a band. A pixel counts exactly when the preview colours it: under the
    /// library's thresholding it is found by drawing the preview in two colours. Empty when memory is short.
    std::vector<std::uint8_t> Mask(const std::vector<Band>& bands);

    /// The colours of an RGB image, or the planes of an HSL image, as they are without the bands; null while nothing is
    /// shown over them.
    const unsigned char* PlainColours() const { return colours.empty() ? nullptr : colours.data(); }

private:
    void KeepColours();
    void SaveTables();
    void RestoreTables();
    void Apply(std::vector<ThresholdTag> bands);
    void MarkDrawn(const std::vector<Band>& bands, std::vector<std::uint8_t>& mask);

    CcImage& image;
    const bool isWide;
    BandLayer layer;
    HWND window = nullptr;
    bool isOn = false;
    std::vector<unsigned char> colours;
    std::vector<tagPoints> savedTables[3];
};

}  // namespace kestview
