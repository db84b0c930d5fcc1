// Drawing the overlay of an image onto what a window shows.
#include "core/GdiGuards.h"
#include "core/Messages.h"
#include "core/Platform.h"
#include "image/ImageParts.h"

namespace {

bool DrawOverlay(HDC dc, HWND window, const kest::DibPicture& overlay, HPALETTE palette, kest::View view) {
    if (!kest::GetClientSize(window, view.clientWidth, view.clientHeight)) return false;
    const kest::MemoryDc memory(dc);
    const kest::GdiObject bitmap(CreateCompatibleBitmap(dc, view.clientWidth, view.clientHeight));
    if (!memory || !bitmap) return false;
    const kest::SelectedObject selectedBitmap(memory, bitmap);
    const kest::SelectedPalette selectedPalette(memory, palette);
    return selectedBitmap.IsSelected() && PatBlt(memory, 0, 0, view.clientWidth, view.clientHeight, BLACKNESS) &&
           kest::DrawDib(memory, overlay, kest::PlanForWindow(view), SRCCOPY) &&
           BitBlt(dc, 0, 0, view.clientWidth, view.clientHeight, memory, 0, 0, SRCPAINT);
}

}  // namespace

int CcImage::ShowOverlay(HWND hWnd, unsigned short usMode, int iXOffset, int iYOffset, int iZoom) {
    if (!lpBitmapInfo || iZoom < 1 || !hWnd) return KEST_FAILED;
    if (!lpOverlayBits) {
        kest::ShowMessage("No Overlay to Display", "Error");
        return KEST_FAILED;
    }
    const kest::WindowDc dc(hWnd);
    return ShowOverlay(dc, hWnd, usMode, iXOffset, iYOffset, iZoom);
}

int CcImage::ShowOverlay(HDC hDC, HWND hWnd, unsigned short usMode, int iXOffset, int iYOffset, int iZoom) {
    if (!lpBitmapInfo || iZoom < 1 || !hDC || !hWnd || !lpOverlayBits) return KEST_FAILED;
    const kest::View view = {0, 0, iWidth, iHeight, iXOffset, iYOffset, usMode, iZoom};
    return DrawOverlay(hDC, hWnd, Parts().overlay.Picture(), hPalette, view) ? KEST_OK : KEST_FAILED;
}
