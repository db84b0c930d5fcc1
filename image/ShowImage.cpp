// Showing an image.
#include "image/ShowImage.h"

#include "KestTypes.h"
#include "core/GdiGuards.h"
#include "core/Platform.h"
#include "image/LookDrawing.h"

namespace kest {
namespace {

/// Draws what is there after the palette's message. `plan(view, result)` says where; false for nowhere.
template <class Plan>
int Draw(HDC dc, const LookSource& takeLook, const ShowArguments& arguments, Plan plan) {
    const LookPalette palette(dc, takeLook());
    const ImageLook look = takeLook();
    if (!look.bits) return KEST_OK;
    BlitPlan blit;
    if (!plan({0, 0, look.width, look.height, arguments.xOffset, arguments.yOffset, arguments.mode, arguments.zoom},
              blit))
        return KEST_FAILED;
    return DrawLook(dc, look, palette, blit) ? KEST_OK : KEST_FAILED;
}

}  // namespace

int ShowInRect(HDC dc, const RECT* rect, const LookSource& takeLook, const ShowArguments& arguments) {
    if (!dc) return KEST_FAILED;
    if (!rect || !takeLook().bits) return KEST_OK;
    const IntRect target = {rect->left, rect->top, rect->right, rect->bottom};
    return Draw(dc, takeLook, arguments, [&](const View& view, BlitPlan& plan) {
        plan = PlanForRect(view, target);
        return true;
    });
}

int ShowInWindow(HDC dc, HWND window, const LookSource& takeLook, const ShowArguments& arguments) {
    if (!dc) return KEST_FAILED;
    if (!takeLook().bits) return KEST_OK;
    if (!IsWindow(window)) return KEST_FAILED;
    return Draw(dc, takeLook, arguments, [&](View view, BlitPlan& plan) {
        if (!GetClientSize(window, view.clientWidth, view.clientHeight)) return false;
        plan = PlanForWindow(view);
        return true;
    });
}

int ShowInWindow(HWND window, const LookSource& takeLook, const ShowArguments& arguments) {
    if (!takeLook().bits) return KEST_OK;
    const WindowDc dc(window);
    return ShowInWindow(dc, window, takeLook, arguments);
}

}  // namespace kest
