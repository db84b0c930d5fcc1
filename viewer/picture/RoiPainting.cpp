// Draws a document's ROIs and their names over its picture.
#include "picture/RoiPainting.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "platform/Busy.h"
#include "platform/Drawing.h"
#include "platform/Settings.h"
#include "platform/Text.h"
#include "platform/Window.h"

namespace kestview {
namespace {

/// Takes a ROI's name away while it is drawn: points write theirs themselves.
class Nameless {
public:
    Nameless(CcRoiBase& newRoi, bool isOn) : roi(newRoi), name(isOn ? newRoi.GetName() : "") {
        if (!name.empty()) roi.SetName("");
    }
    ~Nameless() {
        if (!name.empty()) roi.SetName(name.c_str());
    }
    Nameless(const Nameless&) = delete;
    Nameless& operator=(const Nameless&) = delete;

private:
    CcRoiBase& roi;
    std::string name;
};

void PaintNames(HDC dc, SIZE area, Document& document, const Shown& shown, const RoiPaint& paint) {
    const auto scaled = [&](int length) { return static_cast<LONG>(MulDiv(length, paint.dpi, 96)); };
    const kest::BackgroundModeGuard background(dc, TRANSPARENT);
    const kest::TextAlignGuard align(dc, TA_LEFT | TA_BOTTOM);
    for (int i = 0; i < document.RoiCount(); ++i) {
        CcRoiBase& roi = document.Roi(i);
        // A point writes its name itself.
        if (roi.GetROIType() == KEST_ROI_POINT) continue;
        const RECT* bounds = roi.GetCurrentBoundingRect();
        if (!bounds) continue;
        POINT corner = ShownPoint(area, document.Size(), shown, std::min(bounds->left, bounds->right),
                                  std::max(bounds->top, bounds->bottom));
        corner.y = std::max(corner.y - scaled(2), scaled(16));
        SetTextColor(dc, KeptSettings().RoiColour(paint.marksSelected && roi.IsROISelected()));
        // The letters of the names are those of any language.
        const std::wstring name = Wide(roi.GetName());
        TextOutW(dc, corner.x, corner.y, name.c_str(), static_cast<int>(name.size()));
    }
}

}  // namespace

void PaintRois(HDC dc, SIZE area, Document& document, const Shown& shown, const RoiPaint& paint) {
    if (document.RoiCount() == 0) return;
    constexpr int asItIs = -1, asUnselected = 0;
    ApplyRoiLook(document.Roi(0), shown.penZoom);
    RECT place = {0, 0, area.cx, area.cy};
    for (int i = 0; i < document.RoiCount(); ++i) {
        CcRoiBase& roi = document.Roi(i);
        SetTextColor(dc, KeptSettings().RoiColour(paint.marksSelected && roi.IsROISelected()));
        const Nameless nameless(roi, !paint.showsNames);
        roi.ShowROI(dc, &place, shown.xOffset, shown.yOffset, shown.mode, &document.Image(), shown.zoom,
                    paint.marksSelected ? asItIs : asUnselected);
    }
    if (paint.showsNames) PaintNames(dc, area, document, shown, paint);
}

std::unique_ptr<CcImage> DrawnPicture(Document& document, Shown shown, SIZE area, DrawnRois rois) {
    const Busy busy("Drawing", 8LL * area.cx * area.cy);
    auto drawn = MakeImage(KEST_IMAGE_RGB, area.cy, area.cx, document.Name());
    DibSection pixels(area);
    if (!drawn || !pixels) return nullptr;
    RECT all = {0, 0, area.cx, area.cy};
    pixels.MarkUndrawn();
    const bool isWhole = document.Draw(pixels, area, [&](CcImage& image, HDC target, unsigned short table) {
        return image.Show(target, &all, table, shown.mode, shown.xOffset, shown.yOffset, shown.zoom) >= 0 &&
               pixels.IsDrawn(area.cy);
    });
    if (!isWhole) return nullptr;
    // Lines and letters that are seen when all of it fills a page.
    constexpr int pixelsAcrossPage = 1000;
    const int scale = 1 + static_cast<int>(std::max(area.cx, area.cy)) / pixelsAcrossPage;
    shown.penZoom = std::max(shown.zoom, 4 * (scale - 1));
    RoiPaint paint;
    paint.showsNames = rois == DrawnRois::WithNames;
    paint.marksSelected = false;
    paint.dpi = 96 * scale;
    if (rois != DrawnRois::None) {
        Font font;
        font.Make(paint.dpi);
        const kest::SelectedObject selectedFont(pixels, font);
        PaintRois(pixels, area, document, shown, paint);
    }
    GdiFlush();
    const std::uint32_t* from = pixels.Top(area.cy);
    std::transform(from, pixels.Top(0), static_cast<RGBTRIPLE*>(drawn->GetBitMapImageData()), [](std::uint32_t pixel) {
        const auto byte = [pixel](int shift) { return static_cast<BYTE>(pixel >> shift); };
        return RGBTRIPLE{byte(0), byte(8), byte(16)};
    });
    return drawn;
}

}  // namespace kestview
