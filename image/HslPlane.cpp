// The plane of hue, saturation and lightness.
#include "image/HslPlane.h"

#include <algorithm>

#include "core/Messages.h"
#include "image/DibFiles.h"
#include "image/kernel/ColourConvert.h"

namespace kest {

bool HslPlane::Fits(const ImageDib& dib) const {
    return dib.bits && bytes && block.Size() >= dib.PixelCount() * PlaneBytesPerPixel;
}

void HslPlane::Release() const {
    block.Release();
    bytes = nullptr;
}

KestGlobalBlock::AllocateResult HslPlane::Allocate(int rows, int columns) const {
    const KestGlobalBlock::AllocateResult result = AllocatePlane(block, columns, rows);
    bytes = static_cast<unsigned char*>(block.Get());
    return result;
}

bool HslPlane::Fit(const ImageDib& dib) const {
    if (bytes && block.Size() == dib.PixelCount() * PlaneBytesPerPixel) return true;
    return Allocate(dib.height, dib.width) != KestGlobalBlock::NotAllocated;
}

void HslPlane::Fill(std::uint8_t gray, Size64 pixels) const {
    const PixelBytes value = RgbToHsl({gray, gray, gray});
    unsigned char* entry = bytes;
    for (Size64 i = 0; i < pixels; ++i, entry += PlaneBytesPerPixel)
        std::copy_n(value.bytes, PlaneBytesPerPixel, entry);
}

int HslPlane::TakeFrom(const ImageDib& dib) const {
    if (!Fits(dib) || dib.PixelCount() < 1) return KEST_FAILED;
    ConvertRgbToHsl(PlaneBytes(dib.bits, dib.height, dib.width), PlaneBytes(bytes, dib.height, dib.width));
    return KEST_OK;
}

int HslPlane::PutInto(const ImageDib& dib) const {
    if (!Fits(dib) || dib.PixelCount() < 1) return KEST_FAILED;
    const bool isConverted =
        ConvertHslToRgb(PlaneBytes(bytes, dib.height, dib.width), PlaneBytes(dib.bits, dib.height, dib.width), clips);
    return isConverted ? KEST_OK : KEST_FAILED;
}

unsigned char* HslPlane::ReadWithDib(const char* path, KestGlobalBlock& dib, DibLayout& layout) const {
    bytes = nullptr;
    const bool isRead = ReadDib24(path, dib, layout, &block) != nullptr;
    // Also after a message, in which the host may have got itself another picture with its plane.
    bytes = static_cast<unsigned char*>(block.Get());
    if (!isRead) return nullptr;

    const auto refuse = [&](const char* text, const char* caption) {
        dib.Release();
        Release();
        ShowUnownedMessage(text, caption);
        return nullptr;
    };
    if (!bytes) return refuse("Unable to allocate HSL memory.", "File Error");
    // A colour table, which the image will refuse, can push the pixels out of the block.
    auto* const header = static_cast<unsigned char*>(dib.Get());
    if (LiesInBlock(layout, PlaneBytesPerPixel, dib.Size())) {
        if (layout.PixelCount() < 1) return refuse("Error in ConvertRGBDibToHSL", "Error");
        ConvertRgbToHsl(PlaneBytes(header + layout.pixelOffset, layout.height, layout.width),
                        PlaneBytes(bytes, layout.height, layout.width));
    }
    return header;
}

unsigned char* HslPlane::MakeWithDib(int height, int width, int value, KestGlobalBlock& dib) const {
    const auto gray = static_cast<std::uint8_t>(std::clamp(value, 0, 255));
    unsigned char* header = MakeBlankDib24(height, width, gray, dib);
    if (!header) return nullptr;
    const KestGlobalBlock::AllocateResult plane = Allocate(height, width);
    if (plane != KestGlobalBlock::Allocated) {
        dib.Release();
        if (plane == KestGlobalBlock::NotAllocated)
            ShowUnownedMessage("Memory Allocation Failure", "Memory Error");
        else
            ShowUnownedMessage("Unable to allocate HSL memory.", "File Error");
        return nullptr;
    }
    Fill(gray, Product(height, width));
    return header;
}

}  // namespace kest
