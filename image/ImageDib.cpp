// The DIB of an image: taking a block into use, storing it and loading it.
#include <cstring>

#include "CcPropertyBag.h"
#include "image/DibFiles.h"
#include "image/ImageParts.h"

namespace kest {

DibLayout ImageDib::Layout() const {
    DibLayout layout;
    return ReadDibLayout(BytesOf(block), layout) ? layout : DibLayout();
}

void ImageDib::Release() const {
    block.Release();
    header = nullptr;
    colours = nullptr;
    bits = nullptr;
    pixelBlockBytes = 0;
}

void ImageDib::AttachUnusable() const {
    header = static_cast<BITMAPINFO*>(block.Get());
    colours = nullptr;
    bits = nullptr;
    pixelBlockBytes = 0;
}

bool ImageDib::Adopt(const DibLayout& layout, int bytesPerPixel) const {
    AttachUnusable();
    if (layout.headerBytes == 0 || !LiesInBlock(layout, bytesPerPixel, block.Size())) return false;
    auto* bytes = static_cast<unsigned char*>(block.Get());
    colours = reinterpret_cast<RGBQUAD*>(bytes + layout.headerBytes);
    bits = bytes + layout.pixelOffset;
    pixelBlockBytes = block.Size() - layout.pixelOffset;
    width = layout.width;
    height = layout.height;
    return true;
}

bool ImageDib::Refill(int sameHeight, int sameWidth, int value, int bytesPerPixel) const {
    if (!bits || height != sameHeight || width != sameWidth) return false;
    std::memset(bits, value, static_cast<std::size_t>(PixelCount() * bytesPerPixel));
    return true;
}

bool ImageDib::PutInto(CcPropertyBag& bag, const DibKeys& keys, int bytesPerPixel) const {
    DibLayout layout;
    if (!bits || !ReadDibLayout(BytesOf(block), layout)) return bag.PutLong(keys.size, DibHeaderBytes) == KEST_OK;
    // A block that came from a stream with another form of header can be smaller than header, table and pixels in the
    // usual form.
    const Size64 usual = DibHeaderBytes + layout.ColourTableSize() + PixelCount() * bytesPerPixel;
    const auto bytes = static_cast<long>(usual < block.Size() ? usual : block.Size());
    return bag.PutLong(keys.size, bytes) == KEST_OK && bag.ReferToBlob(keys.data, block.Get(), bytes) == KEST_OK;
}

bool ImageDib::TakeFrom(CcPropertyBag& bag, const DibKeys& keys, int bytesPerPixel) const {
    Release();
    height = width = 0;
    long size = 0, stored = 0;
    if (bag.GetLong(keys.size, &size) < 0) return false;
    if (bag.GetPropLength(keys.data, KEST_PROPERTY_BLOB, &stored) < 0) return size == DibHeaderBytes;
    if (stored != size || !block.Allocate(size)) return false;
    bag.GetBlob(keys.data, block.Get(), size);
    if (Adopt(Layout(), bytesPerPixel)) return true;
    Release();
    return false;
}

}  // namespace kest
