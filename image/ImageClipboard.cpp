// An image on the clipboard.
#include "image/ImageClipboard.h"

#include <optional>

#include "KestTypes.h"
#include "core/GdiGuards.h"
#include "core/Messages.h"
#include "core/kernel/CheckedSize.h"

namespace kest {
namespace {

/// A bitmap as the device has them with the plan's part of the picture in it; null when it cannot be made.
HBITMAP MakeBitmap(HDC device, const ImageLook& look, const DibPicture& overlay, const BlitPlan& plan) {
    const MemoryDc memory(device);
    GdiObject bitmap(CreateCompatibleBitmap(device, Saturate(plan.targetWidth), Saturate(plan.targetHeight)));
    if (!memory || !bitmap) return nullptr;
    {
        const SelectedObject selectedBitmap(memory, bitmap);
        std::optional<SelectedPalette> selectedPalette;
        if (look.usesPalette) {
            selectedPalette.emplace(memory, look.palette);
            if (!selectedPalette->IsSelected()) ShowUnownedMessage("Returned NULL from SelectPalette", "ERROR");
        }
        const DibPicture picture = TakeDisplayTable(look);
        if (look.usesPalette) RealizePalette(memory);
        SetStretchBltMode(memory, COLORONCOLOR);
        PatBlt(memory, 0, 0, Saturate(plan.targetWidth), Saturate(plan.targetHeight), BLACKNESS);
        DrawDib(memory, picture, plan, SRCCOPY);
        if (overlay.bits) DrawDib(memory, overlay, plan, SRCPAINT);
    }
    return bitmap.Detach();
}

}  // namespace

int CopyToClipboard(HWND window, const ImageLook& look, const DibPicture& overlay, const RECT* rect) {
    BlitPlan plan = {0, 0, look.width, look.height, 0, 0, look.width, look.height};
    if (rect) {
        plan.sourceX = rect->left;
        plan.sourceY = rect->bottom;
        plan.sourceWidth = plan.targetWidth = Size64{rect->right} - rect->left;
        plan.sourceHeight = plan.targetHeight = Size64{rect->top} - rect->bottom;
    }
    if (plan.targetWidth < 1 || plan.targetHeight < 1) return KEST_FAILED;
    const WindowDc device(window ? window : GetDesktopWindow());
    GdiObject bitmap(device ? MakeBitmap(device, look, overlay, plan) : nullptr);
    if (!bitmap) return KEST_FAILED;
    const OpenedClipboard clipboard(window);
    if (!clipboard || !EmptyClipboard() || !SetClipboardData(CF_BITMAP, bitmap)) return KEST_FAILED;
    bitmap.Detach();
    return KEST_OK;
}

}  // namespace kest
