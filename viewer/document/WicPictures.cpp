// Pictures that the system's imaging component (WIC) decodes.
#include "document/WicPictures.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "document/PictureHeader.h"
#include "document/Wic.h"
#include "platform/Busy.h"
#include "platform/Text.h"

namespace kestview {
namespace {

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

/// Where in the image's bytes the pixels of a file belong: those of its first row and column, and how far the next
/// column and row are from there. The image has its bottom row first.
struct Placing {
    long long origin, perColumn, perRow;
};

/// `orientation`: 1 to 8, see PictureHeader; `size`: of the upright picture.
Placing PlacingOf(int orientation, SIZE size, int bytesPerPixel) {
    const bool isTurned = orientation >= 5,
               isMirrored = orientation == 2 || orientation == 3 || orientation == 6 || orientation == 7,
               isUpsideDown = orientation == 3 || orientation == 4 || orientation == 7 || orientation == 8;
    const long long right = bytesPerPixel, down = -static_cast<long long>(size.cx) * bytesPerPixel;
    const long long alongX = isMirrored ? -right : right, alongY = isUpsideDown ? -down : down;
    const long long left = isMirrored ? size.cx - 1 : 0, top = isUpsideDown ? 0 : size.cy - 1;
    return {left * right - top * down, isTurned ? alongY : alongX, isTurned ? alongX : alongY};
}

/// Puts colours with an opacity behind them on white. True when any was transparent.
bool PutOnWhite(unsigned char* pixels, std::size_t bytes) {
    bool isTransparent = false;
    for (unsigned char* pixel = pixels; pixel < pixels + bytes; pixel += 4) {
        const unsigned opacity = pixel[3];
        if (opacity == 255) continue;
        isTransparent = true;
        for (int i = 0; i < 3; ++i)
            pixel[i] = static_cast<unsigned char>((pixel[i] * opacity + 255 * (255 - opacity) + 127) / 255);
    }
    return isTransparent;
}

/// The pixels of a page on their way into an image.
class Pixels {
public:
    Pixels(const Target& newTarget, int newMiddle, CcImage& newImage, int orientation)
        : target(newTarget),
          middle(newMiddle),
          components(newImage.SizeOf()),
          placing(PlacingOf(orientation, SizeOf(newImage), components)),
          bytes(static_cast<unsigned char*>(newImage.GetBitMapImageData())) {}

    /// Takes all rows of the decoder, top row first.
    bool Take(IWICBitmapSource* source, UINT width, UINT height, Busy& busy) {
        // Decoders want rows that begin at multiples of four bytes.
        const UINT stride = (width * static_cast<UINT>(target.bytesPerPixel) + 3) & ~3u;
        constexpr UINT rowsAtOnce = 64;
        std::vector<unsigned char> rows(static_cast<std::size_t>(stride) * rowsAtOnce);
        for (UINT top = 0; top < height; top += rowsAtOnce) {
            const UINT count = std::min(rowsAtOnce, height - top);
            const WICRect rect = {0, static_cast<INT>(top), static_cast<INT>(width), static_cast<INT>(count)};
            if (source->CopyPixels(&rect, stride, stride * count, rows.data()) < 0) return false;
            if (target.bytesPerPixel == 4 && target.type != KEST_IMAGE_FLOAT)
                hasTransparency = PutOnWhite(rows.data(), static_cast<std::size_t>(stride) * count) || hasTransparency;
            for (UINT i = 0; i < count; ++i) Place(rows.data() + static_cast<std::size_t>(i) * stride, top + i, width);
            busy.Report(top + count, height);
        }
        return true;
    }

    bool hasTransparency = false;

private:
    void Place(const unsigned char* from, UINT row, UINT width) {
        unsigned char* to = bytes + placing.origin + placing.perRow * row;
        for (UINT x = 0; x < width; ++x, from += target.bytesPerPixel, to += placing.perColumn) {
            if (target.type == KEST_IMAGE_BINARY)  // value 1 is the picture's black, or its darker gray
                *to = *from < middle ? 1 : 0;
            else
                for (int i = 0; i < components; ++i)
                    // Of red, green and blue with 16 bits each the upper bytes; else the first bytes of a pixel.
                    to[i] = from[target.bytesPerPixel == 6 ? (2 - i) * 2 + 1 : i];
        }
    }

    const Target& target;
    int middle, components;
    Placing placing;
    unsigned char* bytes;
};

constexpr double mostBytesUnasked = 512.0 * 1024 * 1024;

/// A page that a decoder has opened, and what is known of its pixels.
struct Page {
    Com<IWICBitmapFrameDecode> frame;
    GUID format = {};
    UINT width = 0, height = 0;
    int middle = 128;
    Target target = {};

    bool Open(IWICImagingFactory* factory, IWICBitmapDecoder* decoder, UINT index) {
        if (decoder->GetFrame(index, &frame) < 0 || frame->GetPixelFormat(&format) < 0 ||
            frame->GetSize(&width, &height) < 0)
            return false;
        target = TargetOf(format, HasGrayPalette(factory, frame, format, middle));
        return true;
    }
    double PixelBytes() const { return static_cast<double>(width) * height * target.bytesPerPixel; }
};

/// The page's pixels, upright, in the class that its format asks for.
std::unique_ptr<CcImage> Decode(IWICImagingFactory* factory, Page& page, int orientation, const std::string& path,
                                Busy& busy, std::string& error, std::string& warning) {
    Com<IWICFormatConverter> converter;
    IWICBitmapSource* source = page.frame;
    if (!IsEqualGUID(page.format, *page.target.format)) {
        if (factory->CreateFormatConverter(&converter) < 0 ||
            converter->Initialize(page.frame, *page.target.format, WICBitmapDitherTypeNone, nullptr, 0,
                                  WICBitmapPaletteTypeCustom) < 0)
            return nullptr;
        source = converter;
    }
    constexpr UINT largestSide = 65535;
    if (page.width < 1 || page.height < 1 || page.width > largestSide || page.height > largestSide) {
        error = FileNameOf(path) + " is larger than this program can hold.";
        return nullptr;
    }
    auto width = static_cast<int>(page.width), height = static_cast<int>(page.height);
    if (orientation >= 5) std::swap(width, height);
    auto image = MakeImage(page.target.type, height, width, FileTitleOf(path));
    if (!image) {
        error = "There is not enough memory for " + FileNameOf(path) + ".";
        return nullptr;
    }
    Pixels pixels(page.target, page.middle, *image, orientation);
    if (!pixels.Take(source, page.width, page.height, busy)) return nullptr;
    if (pixels.hasTransparency) warning = "The transparent parts of " + FileNameOf(path) + " were put on white.";
    image->ReScaleImageOnShow();
    return image;
}

}  // namespace

bool IsWanted(double bytes, const std::string& path, const PictureQuestions& ask, std::string& error) {
    if (bytes <= mostBytesUnasked) return true;
    const std::string large =
        Format("The pixels of %s take %.0f MB of memory.", FileNameOf(path).c_str(), bytes / (1 << 20));
    if (!ask.mayOpen) error = large;
    return ask.mayOpen && ask.mayOpen(large + "\n\nOpen it?");
}

std::unique_ptr<CcImage> DecodePicture(const std::string& path, std::string& error, std::string& warning,
                                       const PictureQuestions& ask) {
    // Some decoders take memory for all pixels at once, so the file itself is asked first.
    PictureHeader header = ReadPictureHeader(path, 0);
    double agreed = 0;
    const auto isWanted = [&](double bytes) {
        if (bytes > agreed && !IsWanted(bytes, path, ask, error)) return false;
        agreed = std::max(agreed, bytes);
        return true;
    };
    if (!isWanted(header.pixelBytes)) return nullptr;
    Busy busy("Opening " + FileNameOf(path));
    Com<IWICImagingFactory> factory;
    if (!MakeWicFactory(factory)) {
        error = "This system has no imaging component that could decode " + FileNameOf(path) + ".";
        return nullptr;
    }
    const std::string damaged = FileNameOf(path) + " is not a picture that this system can decode, or it is damaged.";
    Com<IWICBitmapDecoder> decoder;
    UINT pages = 0;
    if (factory->CreateDecoderFromFilename(Wide(path).c_str(), nullptr, GENERIC_READ, WICDecodeMetadataCacheOnDemand,
                                           &decoder) < 0 ||
        decoder->GetFrameCount(&pages) < 0 || pages < 1) {
        error = damaged;
        return nullptr;
    }
    int number = 1;
    if (pages > 1 && ask.page) number = ask.page(static_cast<int>(pages));
    if (number < 1 || number > static_cast<int>(pages)) return nullptr;
    const auto index = static_cast<UINT>(number - 1);
    if (index > 0) header = ReadPictureHeader(path, index);
    if (!isWanted(header.pixelBytes)) return nullptr;

    Page page;
    if (!page.Open(factory, decoder, index)) {
        error = damaged;
        return nullptr;
    }
    if (!isWanted(page.PixelBytes())) return nullptr;
    error = damaged;
    auto image = Decode(factory, page, header.orientation, path, busy, error, warning);
    if (!image) return nullptr;
    if (pages > 1) {
        const std::string which = Format("page %d of %u", number, pages);
        image->SetName((FileTitleOf(path) + " (" + which + ")").c_str());
        if (!ask.page)
            warning += (warning.empty() ? "This is " : "\n\nThis is ") + which + " of " + FileNameOf(path) + ".";
    }
    error.clear();
    return image;
}

}  // namespace kestview
