// An image on the clipboard.
#include "image/ImageClipboard.h"

#include "KestTypes.h"
#include "core/kernel/CheckedSize.h"
#include "image/LookDrawing.h"

namespace kest {
namespace {

/// Null for all of the picture.
BlitPlan PlanForClipboard(const ImageLook& look, const RECT* rect) {
    if (!rect) return {0, 0, look.width, look.height, 0, 0, look.width, look.height};
    const Size64 width = Size64{rect->right} - rect->left, height = Size64{rect->top} - rect->bottom;
    return {0, 0, width, height, rect->left, rect->bottom, width, height};
}

/// A bitmap as the device has them with the rectangle of the picture in it; null when it cannot be made.
HBITMAP MakeBitmap(HDC device, const LookSource& takeLook, const Source<DibPicture>& takeOverlay, const RECT* rect) {
    const MemoryDc memory(device);
    if (!memory) return nullptr;
    const LookPalette palette(memory, takeLook());
    const ImageLook look = takeLook();
    const BlitPlan plan = PlanForClipboard(look, rect);
    if (!look.bits || plan.targetWidth < 1 || plan.targetHeight < 1) return nullptr;
    const int width = Saturate(plan.targetWidth), height = Saturate(plan.targetHeight);
    GdiObject bitmap(CreateCompatibleBitmap(device, width, height));
    if (!bitmap) return nullptr;
    {
        const SelectedObject selectedBitmap(memory, bitmap);
        const DibPicture overlay = takeOverlay();
        if (!selectedBitmap.IsSelected() || !PatBlt(memory, 0, 0, width, height, BLACKNESS) ||
            !DrawLook(memory, look, palette, plan) || (overlay.bits && !DrawDib(memory, overlay, plan, SRCPAINT)))
            return nullptr;
    }
    return bitmap.Detach();
}

}  // namespace

int CopyToClipboard(HWND window, const LookSource& takeLook, const Source<DibPicture>& takeOverlay, const RECT* rect) {
    const WindowDc device(window ? window : GetDesktopWindow());
    GdiObject bitmap(device ? MakeBitmap(device, takeLook, takeOverlay, rect) : nullptr);
    if (!bitmap) return KEST_FAILED;
    const OpenedClipboard clipboard(window);
    if (!clipboard || !EmptyClipboard() || !SetClipboardData(CF_BITMAP, bitmap)) return KEST_FAILED;
    bitmap.Detach();
    return KEST_OK;
}

}  // namespace kest
