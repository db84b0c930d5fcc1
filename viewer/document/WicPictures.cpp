// Pictures that the system's imaging component (WIC) decodes.
#include "document/WicPictures.h"

#include <windows.h>

#include <wincodec.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "platform/Busy.h"
#include "platform/Text.h"

namespace kestview {
namespace {

/// A COM interface that is released with its holder.
template <class Interface>
class Com {
public:
    Com() = default;
    ~Com() {
        if (held) held->Release();
    }
    Com(const Com&) = delete;
    Com& operator=(const Com&) = delete;
    Interface** operator&() { return &held; }
    Interface* operator->() const { return held; }
    operator Interface*() const { return held; }

private:
    Interface* held = nullptr;
};

/// Into which class and as which pixels a decoder's format is taken.
struct Target {
    int type;
    const GUID* format;
    int bytesPerPixel;
};

bool IsOneOf(const GUID& format, std::initializer_list<const GUID*> formats) {
    return std::any_of(formats.begin(), formats.end(), [&](const GUID* known) { return IsEqualGUID(format, *known); });
}

Target TargetOf(const GUID& format, bool hasGrayPalette) {
    const GUID* const anyColours = &GUID_WICPixelFormat32bppBGRA;  // the form that every converter knows
    if (IsOneOf(format, {&GUID_WICPixelFormatBlackWhite}) ||
        (IsOneOf(format, {&GUID_WICPixelFormat1bppIndexed}) && hasGrayPalette))
        return {KEST_IMAGE_BINARY, anyColours, 4};
    if (IsOneOf(format, {&GUID_WICPixelFormat2bppGray, &GUID_WICPixelFormat4bppGray}) || hasGrayPalette)
        return {KEST_IMAGE_GRAY256, anyColours, 4};
    if (IsOneOf(format, {&GUID_WICPixelFormat8bppGray})) return {KEST_IMAGE_GRAY256, &GUID_WICPixelFormat8bppGray, 1};
    if (IsOneOf(format, {&GUID_WICPixelFormat16bppGray})) return {KEST_IMAGE_INT16, &GUID_WICPixelFormat16bppGray, 2};
    // Not every converter knows this one, so its upper bytes are taken here.
    if (IsOneOf(format, {&GUID_WICPixelFormat48bppRGB})) return {KEST_IMAGE_RGB, &GUID_WICPixelFormat48bppRGB, 6};
    if (IsOneOf(format, {&GUID_WICPixelFormat32bppGrayFloat, &GUID_WICPixelFormat16bppGrayHalf,
                         &GUID_WICPixelFormat16bppGrayFixedPoint, &GUID_WICPixelFormat32bppGrayFixedPoint}))
        return {KEST_IMAGE_FLOAT, &GUID_WICPixelFormat32bppGrayFloat, 4};
    if (IsOneOf(format, {&GUID_WICPixelFormat24bppBGR})) return {KEST_IMAGE_RGB, &GUID_WICPixelFormat24bppBGR, 3};
    // What is transparent is taken as if it were not.
    return {KEST_IMAGE_RGB, anyColours, 4};
}

/// `middle`: the level between the lightest and the darkest.
bool HasGrayPalette(IWICImagingFactory* factory, IWICBitmapFrameDecode* frame, const GUID& format, int& middle) {
    if (!IsOneOf(format, {&GUID_WICPixelFormat1bppIndexed, &GUID_WICPixelFormat2bppIndexed,
                          &GUID_WICPixelFormat4bppIndexed, &GUID_WICPixelFormat8bppIndexed}))
        return false;
    Com<IWICPalette> palette;
    WICColor colours[256];
    UINT count = 0;
    if (factory->CreatePalette(&palette) < 0 || frame->CopyPalette(palette) < 0 ||
        palette->GetColors(256, colours, &count) < 0)
        return false;
    const auto [darkest, lightest] =
        std::minmax_element(colours, colours + count, [](WICColor a, WICColor b) { return (a & 255) < (b & 255); });
    if (count > 0) middle = static_cast<int>((*darkest & 255) + (*lightest & 255) + 1) / 2;
    return std::all_of(colours, colours + count, [](WICColor colour) {
        return (colour & 255) == (colour >> 8 & 255) && (colour & 255) == (colour >> 16 & 255);
    });
}

/// Copies the decoder's rows, top row first, into the image's, bottom row first and unpadded.
bool TakeRows(IWICBitmapSource* source, const Target& target, int middle, CcImage& image, Busy& busy) {
    const SIZE size = SizeOf(image);
    const auto bytesPerPixel = static_cast<std::size_t>(target.bytesPerPixel),
               components = static_cast<std::size_t>(image.SizeOf());  // bytes of the image's pixels
    const auto sourceBytes = static_cast<UINT>(size.cx * target.bytesPerPixel);
    const std::size_t rowBytes = static_cast<std::size_t>(size.cx) * components;
    // Decoders want rows that begin at multiples of four bytes.
    const UINT stride = (sourceBytes + 3) & ~3u;
    constexpr int rowsAtOnce = 64;
    std::vector<unsigned char> rows(static_cast<std::size_t>(stride) * rowsAtOnce);
    auto* pixels = static_cast<unsigned char*>(image.GetBitMapImageData());
    for (int top = 0; top < size.cy; top += rowsAtOnce) {
        const int count = std::min<int>(rowsAtOnce, size.cy - top);
        const WICRect rect = {0, top, static_cast<INT>(size.cx), count};
        if (source->CopyPixels(&rect, stride, stride * static_cast<UINT>(count), rows.data()) < 0) return false;
        for (int i = 0; i < count; ++i) {
            unsigned char* to = pixels + static_cast<std::size_t>(size.cy - 1 - top - i) * rowBytes;
            const unsigned char* from = rows.data() + static_cast<std::size_t>(i) * stride;
            if (components == bytesPerPixel)
                std::memcpy(to, from, rowBytes);
            else
                for (std::size_t at = 0; at < rowBytes; ++at) {
                    const std::size_t pixel = at / components, component = at % components;
                    // Of red, green and blue with 16 bits each the upper bytes; else the first bytes of a pixel.
                    to[at] = from[pixel * bytesPerPixel + (bytesPerPixel == 6 ? (2 - component) * 2 + 1 : component)];
                }
            // A binary picture's value 1 is its black, or its darker gray.
            if (target.type == KEST_IMAGE_BINARY)
                std::transform(to, to + rowBytes, to, [&](unsigned char level) { return level < middle ? 1 : 0; });
        }
        busy.Report(top + count, size.cy);
    }
    return true;
}

}  // namespace

std::unique_ptr<CcImage> DecodePicture(const std::string& path, std::string& error) {
    Busy busy("Opening " + FileNameOf(path));
    Com<IWICImagingFactory> factory;
    if (CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                         reinterpret_cast<void**>(&factory)) < 0) {
        error = "This system has no imaging component that could decode " + FileNameOf(path) + ".";
        return nullptr;
    }
    error = FileNameOf(path) + " is not a picture that this system can decode, or it is damaged.";
    Com<IWICBitmapDecoder> decoder;
    Com<IWICBitmapFrameDecode> frame;
    GUID format = {};
    UINT width = 0, height = 0;
    if (factory->CreateDecoderFromFilename(Wide(path).c_str(), nullptr, GENERIC_READ, WICDecodeMetadataCacheOnDemand,
                                           &decoder) < 0 ||
        decoder->GetFrame(0, &frame) < 0 || frame->GetPixelFormat(&format) < 0 || frame->GetSize(&width, &height) < 0)
        return nullptr;
    int middle = 128;
    const bool hasGrayPalette = HasGrayPalette(factory, frame, format, middle);
    const Target target = TargetOf(format, hasGrayPalette);
    Com<IWICFormatConverter> converter;
    IWICBitmapSource* source = frame;
    if (!IsEqualGUID(format, *target.format)) {
        if (factory->CreateFormatConverter(&converter) < 0 ||
            converter->Initialize(frame, *target.format, WICBitmapDitherTypeNone, nullptr, 0,
                                  WICBitmapPaletteTypeCustom) < 0)
            return nullptr;
        source = converter;
    }
    constexpr UINT largestSide = 65535;
    if (width < 1 || height < 1 || width > largestSide || height > largestSide) {
        error = FileNameOf(path) + " is larger than this program can hold.";
        return nullptr;
    }
    auto image = MakeImage(target.type, static_cast<int>(height), static_cast<int>(width), FileTitleOf(path));
    if (!image) {
        error = "There is not enough memory for " + FileNameOf(path) + ".";
        return nullptr;
    }
    if (!TakeRows(source, target, middle, *image, busy)) return nullptr;
    image->ReScaleImageOnShow();
    error.clear();
    return image;
}

}  // namespace kestview
