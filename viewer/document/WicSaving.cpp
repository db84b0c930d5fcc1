// Pictures that are written for other programs: PNG, TIFF and JPEG.
#include "document/WicSaving.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <vector>

#include "document/Wic.h"
#include "platform/Busy.h"
#include "platform/Text.h"

namespace kestview {
namespace {

/// The rows of a picture, top row first, as encoders take them.
class Rows {
public:
    /// Gray levels also for a binary picture, where the format has nothing smaller.
    Rows(CcImage& image, bool hasBits)
        : type(image.GetImageType()),
          size(SizeOf(image)),
          bits(8 * image.SizeOf()),
          pixels(static_cast<const unsigned char*>(image.GetBitMapImageData())) {
        if (type == KEST_IMAGE_BINARY && hasBits) bits = 1;
    }
    Rows(SIZE newSize, int bitsPerPixel, const void* rows)
        : size(newSize), bits(bitsPerPixel), pixels(static_cast<const unsigned char*>(rows)) {}

    SIZE Size() const { return size; }
    std::size_t RowBytes() const {
        return (static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(bits) + 7) / 8;
    }
    const GUID* Format() const {
        if (bits == 1) return &GUID_WICPixelFormatBlackWhite;
        if (bits == 8) return &GUID_WICPixelFormat8bppGray;
        return bits == 16 ? &GUID_WICPixelFormat16bppGray : &GUID_WICPixelFormat24bppBGR;
    }

    void Copy(int fromTop, unsigned char* to) const {
        const std::size_t rowBytes = RowBytes(), columns = static_cast<std::size_t>(size.cx);
        const auto row = static_cast<std::size_t>(size.cy - 1 - fromTop);
        if (type != KEST_IMAGE_BINARY) {
            std::memcpy(to, pixels + row * rowBytes, rowBytes);
            if (swapsBytes)
                for (std::size_t i = 0; i + 1 < rowBytes; i += 2) std::swap(to[i], to[i + 1]);
            return;
        }
        const unsigned char* values = pixels + row * columns;  // 1 is black
        if (bits == 8) {
            std::transform(values, values + columns, to, [](unsigned char value) { return value == 1 ? 0 : 255; });
            return;
        }
        std::fill_n(to, rowBytes, 0);
        for (std::size_t x = 0; x < columns; ++x)
            if (values[x] != 1) to[x / 8] = static_cast<unsigned char>(to[x / 8] | 0x80 >> x % 8);
    }

    bool swapsBytes = false;

private:
    int type = KEST_IMAGE_GRAY256;
    SIZE size;
    int bits;
    const unsigned char* pixels;
};

constexpr int rowsAtOnce = 64;

/// Lets `take` have the rows in groups. False when it does not take one.
template <class Take>
bool ForGroups(const Rows& rows, Busy* busy, Take take) {
    const std::size_t rowBytes = rows.RowBytes();
    const int height = rows.Size().cy;
    std::vector<unsigned char> group(rowBytes * static_cast<std::size_t>(std::min(rowsAtOnce, height)));
    for (int top = 0; top < height; top += rowsAtOnce) {
        const int count = std::min(rowsAtOnce, height - top);
        for (int i = 0; i < count; ++i) rows.Copy(top + i, group.data() + rowBytes * static_cast<std::size_t>(i));
        if (!take(group.data(), count)) return false;
        if (busy) busy->Report(top + count, height);
    }
    return true;
}

/// JPEG keeps nearly all of a picture at this setting; other encoders have no such setting.
void SetQuality(IPropertyBag2* options) {
    wchar_t name[] = L"ImageQuality";
    PROPBAG2 property = {};
    property.pstrName = name;
    VARIANT quality = {};
    quality.vt = VT_R4;
    quality.fltVal = 0.95f;
    if (options) options->Write(1, &property, &quality);
}

Written NoEncoder() { return Written::Not("This system has no imaging component that writes such files."); }

Written Encode(IWICImagingFactory* factory, IStream* stream, const GUID& container, const Rows& rows, Busy* busy) {
    Com<IWICBitmapEncoder> encoder;
    Com<IWICBitmapFrameEncode> frame;
    Com<IPropertyBag2> options;
    const SIZE size = rows.Size();
    if (factory->CreateEncoder(container, nullptr, &encoder) < 0) return NoEncoder();
    if (encoder->Initialize(stream, WICBitmapEncoderNoCache) < 0 || encoder->CreateNewFrame(&frame, &options) < 0)
        return false;
    if (IsEqualGUID(container, GUID_ContainerFormatJpeg)) SetQuality(options);
    GUID format = *rows.Format();
    if (frame->Initialize(options) < 0 || frame->SetSize(static_cast<UINT>(size.cx), static_cast<UINT>(size.cy)) < 0)
        return false;
    if (frame->SetPixelFormat(&format) < 0 || !IsEqualGUID(format, *rows.Format())) return NoEncoder();
    const auto rowBytes = static_cast<UINT>(rows.RowBytes());
    const auto write = [&](unsigned char* group, int count) {
        const auto lines = static_cast<UINT>(count);
        return frame->WritePixels(lines, rowBytes, rowBytes * lines, group) >= 0;
    };
    return ForGroups(rows, busy, write) && frame->Commit() >= 0 && encoder->Commit() >= 0;
}

/// Some imaging components write 16-bit samples with their bytes as they stand in memory, where the file has the high
/// one first. One sample tells.
bool SwapsSamples(IWICImagingFactory* factory) {
    const std::uint16_t sample = 0x0102;
    std::uint16_t back = 0;
    Com<IStream> stream;
    Com<IWICBitmapDecoder> decoder;
    Com<IWICBitmapFrameDecode> frame;
    if (CreateStreamOnHGlobal(nullptr, TRUE, &stream) < 0 ||
        !Encode(factory, stream, GUID_ContainerFormatPng, Rows({1, 1}, 16, &sample), nullptr).isWhole)
        return false;
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    return factory->CreateDecoderFromStream(stream, nullptr, WICDecodeMetadataCacheOnDemand, &decoder) >= 0 &&
           decoder->GetFrame(0, &frame) >= 0 &&
           frame->CopyPixels(nullptr, sizeof back, sizeof back, reinterpret_cast<BYTE*>(&back)) >= 0 && back == 0x0201;
}

Written EncodeByComponent(CcImage& image, OtherFormat format, const std::string& path, Busy& busy) {
    Com<IWICImagingFactory> factory;
    Com<IWICStream> stream;
    if (!MakeWicFactory(factory)) return NoEncoder();
    if (factory->CreateStream(&stream) < 0 || stream->InitializeFromFilename(Wide(path).c_str(), GENERIC_WRITE) < 0)
        return false;
    Rows rows(image, format != OtherFormat::Jpeg);
    rows.swapsBytes = image.GetImageType() == KEST_IMAGE_INT16 && SwapsSamples(factory);
    const GUID& container = format == OtherFormat::Png    ? GUID_ContainerFormatPng
                            : format == OtherFormat::Tiff ? GUID_ContainerFormatTiff
                                                          : GUID_ContainerFormatJpeg;
    return Encode(factory, stream, container, rows, &busy);
}

/// One page of gray samples: the header, the samples in strips of rows, the places and lengths of the strips, and the
/// tags, which come last.
bool WriteSampleTiff(CcImage& image, const std::string& path, Busy& busy) {
    constexpr std::uint32_t headerBytes = 8, shortType = 3, longType = 4;
    std::ofstream file(path, std::ios::binary);
    const auto number = [&](std::uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i) file.put(static_cast<char>(value >> 8 * i));
    };
    const Rows rows(image, false);
    const SIZE size = rows.Size();
    const auto width = static_cast<std::uint32_t>(size.cx), height = static_cast<std::uint32_t>(size.cy),
               rowBytes = static_cast<std::uint32_t>(rows.RowBytes()), stripBytes = rowBytes * rowsAtOnce,
               strips = (height + rowsAtOnce - 1) / rowsAtOnce,
               placesAt = headerBytes + rowBytes * height + rowBytes * height % 2, lengthsAt = placesAt + 4 * strips;
    file << "II*" << '\0';
    number(lengthsAt + 4 * strips, 4);
    ForGroups(rows, &busy, [&](unsigned char* group, int count) {
        file.write(reinterpret_cast<const char*>(group), static_cast<std::streamsize>(rowBytes) * count);
        return file.good();
    });
    if (rowBytes * height % 2 != 0) file.put(0);  // what follows begins at even places
    for (std::uint32_t i = 0; i < strips; ++i) number(headerBytes + stripBytes * i, 4);
    for (std::uint32_t i = 0; i < strips; ++i) number(std::min(stripBytes, rowBytes * height - stripBytes * i), 4);

    const std::uint32_t bits = 8 * rowBytes / width, isFloat = image.GetImageType() == KEST_IMAGE_FLOAT;
    const struct {
        std::uint32_t tag, type, count, value;
    } tags[] = {{256, longType, 1, width},
                {257, longType, 1, height},
                {258, shortType, 1, bits},
                {259, shortType, 1, 1},  // not compressed
                {262, shortType, 1, 1},  // 0 is black
                {273, longType, strips, strips == 1 ? headerBytes : placesAt},
                {277, shortType, 1, 1},
                {278, longType, 1, rowsAtOnce},
                {279, longType, strips, strips == 1 ? rowBytes * height : lengthsAt},
                {339, shortType, 1, isFloat ? 3u : 1u}};
    number(static_cast<std::uint32_t>(std::size(tags)), 2);
    for (const auto& entry : tags) {
        number(entry.tag, 2);
        number(entry.type, 2);
        number(entry.count, 4);
        number(entry.value, 4);
    }
    number(0, 4);  // no other page
    file.close();
    return !file.fail();
}

}  // namespace

bool HoldsValuesOf(OtherFormat format, const ImageClass& imageClass) {
    if (!imageClass.isWide) return true;
    return (imageClass.type == KEST_IMAGE_INT16 && format != OtherFormat::Jpeg) ||
           (imageClass.type == KEST_IMAGE_FLOAT && format == OtherFormat::Tiff);
}

Written EncodePicture(CcImage& image, OtherFormat format, const std::string& path) {
    Busy busy("Saving " + FileNameOf(path));
    if (format == OtherFormat::Tiff && ImageClassOf(image).isWide) return WriteSampleTiff(image, path, busy);
    return EncodeByComponent(image, format, path, busy);
}

}  // namespace kestview
