// The overlay of an image: an 8-bit plane that is ORed onto the picture.
#include <cstring>

#include "core/Messages.h"
#include "image/ImageParts.h"
#include "image/kernel/OverlayColours.h"

namespace {

constexpr int overlayFrontBytes = kest::ImageOverlay::frontBytes;

}  // namespace

kest::DibPicture kest::ImageOverlay::Picture() const {
    if (!bits) return {nullptr, 0, 0, 8, nullptr, 0, DIB_RGB_COLORS};
    const BITMAPINFOHEADER& info = header->bmiHeader;
    return {bits, info.biWidth, info.biHeight, 8, colours, ColourTableBytes, DIB_RGB_COLORS};
}

int CcImage::CreateOverlay() {
    if (!lpBitmapInfo) return KEST_FAILED;
    lpOverlayInfo = nullptr;
    lpOverlayBits = nullptr;
    lpOverlayColors = nullptr;
    auto* bytes = static_cast<unsigned char*>(hOverlay.Allocate(overlayFrontBytes + kest::Product(iWidth, iHeight)));
    if (!bytes) {
        kest::ShowUnownedMessage("Can't Create Memory for Overlay", "Overlay Error");
        return KEST_FAILED;
    }
    const std::span<unsigned char> block(bytes, static_cast<std::size_t>(hOverlay.Size()));
    kest::WriteDibHeader(block, iWidth, iHeight, 8);
    kest::WriteOverlayColours(block.subspan(kest::DibHeaderBytes));
    lpOverlayInfo = reinterpret_cast<BITMAPINFO*>(bytes);
    lpOverlayColors = reinterpret_cast<RGBQUAD*>(bytes + kest::DibHeaderBytes);
    lpOverlayBits = bytes + overlayFrontBytes;
    return KEST_OK;
}

int CcImage::FreeOverlay() {
    // Header pointer and handle keep their values: callers that ask for the overlay are told that there is one, and
    // make it anew with CreateOverlay. The missing pixels tell the library that nothing is left to touch.
    hOverlay.ReleaseButName();
    lpOverlayBits = nullptr;
    return KEST_OK;
}

int CcImage::ClearOverlay() {
    if (!lpBitmapInfo) return KEST_FAILED;
    if (!lpOverlayInfo) return CreateOverlay();
    if (lpOverlayBits) std::memset(lpOverlayBits, 0, static_cast<std::size_t>(hOverlay.Size() - overlayFrontBytes));
    return KEST_OK;
}

unsigned char* CcImage::GetOverlay() {
    if (!lpBitmapInfo) return nullptr;
    if (!lpOverlayInfo) CreateOverlay();
    return lpOverlayBits;
}
