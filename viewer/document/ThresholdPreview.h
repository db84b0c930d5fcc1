// Bands of values shown in colours over the picture, and the mask of the pixels in them.
#pragma once

#include <cstdint>
#include <vector>

#include "KestApi.h"

namespace kestview {

/// Begins, renews and ends the library's thresholding of one image. While it runs, the gray images show the bands in
/// display table 101 and the colour images hold recoloured pixels.
class ThresholdPreview {
public:
    explicit ThresholdPreview(CcImage& newImage) : image(newImage) {}
    ThresholdPreview(const ThresholdPreview&) = delete;
    ThresholdPreview& operator=(const ThresholdPreview&) = delete;

    /// Whether images of this class have bands: all but binary ones.
    static bool IsPossible(CcImage& image);

    /// `canvas` is the window that shows the image.
    bool Begin(HWND canvas);
    void Show(const std::vector<ThresholdTag>& bands);
    /// Brings the picture back as it was.
    void End();
    bool IsOn() const { return isOn; }
    HWND Window() const { return window; }

    /// A byte a pixel, bottom row first: 1 in a band. A pixel counts exactly when the preview colours it: it is found
    /// by drawing the preview in two colours. Empty when memory is short.
    std::vector<std::uint8_t> Mask(const std::vector<ThresholdTag>& bands);

    /// The range that a wide image shows, exactly; the preview leaves it.
    void SetShownRange(const tagPoints& range) { exactRange = range; }
    /// The colours of an RGB image, or the planes of an HSL image, as they are without the bands; null while nothing is
    /// shown over them.
    const unsigned char* PlainColours() const { return colours.empty() ? nullptr : colours.data(); }

private:
    void KeepColours();
    void SaveTables();
    void RestoreTables();
    void Apply(const std::vector<ThresholdTag>& bands);

    CcImage& image;
    HWND window = nullptr;
    bool isOn = false;
    tagPoints exactRange = {0, 255};
    std::vector<unsigned char> colours;
    std::vector<tagPoints> savedTables[3];
};

}  // namespace kestview
