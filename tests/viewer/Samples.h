// Small pictures with known values: documents of KestView, and TIFF files written by hand.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "document/Document.h"
#include "support/Bytes.h"

namespace test {

using namespace kestview;

constexpr int allTypes[] = {KEST_IMAGE_GRAY256, KEST_IMAGE_INT32, KEST_IMAGE_FLOAT, KEST_IMAGE_RGB,
                            KEST_IMAGE_BINARY,  KEST_IMAGE_INT16, KEST_IMAGE_HSL};
constexpr int rows = 11, columns = 13;

/// Values that a class of 8 bits could not hold, where the class holds more.
inline std::unique_ptr<Document> MakeDocument(int type) {
    auto image = MakeImage(type, rows, columns, "sample");
    for (int i = 0; i < rows * columns; ++i) {
        void* pixels = image->GetBitMapImageData();
        switch (type) {
            case KEST_IMAGE_INT16:
                static_cast<unsigned short*>(pixels)[i] = static_cast<unsigned short>(i * 400);
                break;
            case KEST_IMAGE_INT32:
                static_cast<int*>(pixels)[i] = (i - 70) * 1000003;
                break;
            case KEST_IMAGE_FLOAT:
                static_cast<float*>(pixels)[i] = static_cast<float>(i) / 7 - 3;
                break;
            case KEST_IMAGE_BINARY:
                static_cast<unsigned char*>(pixels)[i] = i % 3 == 0;
                break;
            case KEST_IMAGE_GRAY256:
                static_cast<unsigned char*>(pixels)[i] = static_cast<unsigned char>(i * 7);
                break;
            default:
                for (int c = 0; c < 3; ++c)
                    static_cast<unsigned char*>(pixels)[3 * i + c] = static_cast<unsigned char>(i * (5 + 2 * c));
        }
    }
    if (auto* hsl = dynamic_cast<Cc24BitHSLImage*>(image.get())) hsl->DoConvert();
    image->ReScaleImageOnShow();
    return std::make_unique<Document>(std::move(image));
}

inline std::string PixelBytes(CcImage& image) {
    return std::string(static_cast<const char*>(image.GetBitMapImageData()),
                       static_cast<std::size_t>(SampleBytes(image)));
}

/// A page of a TIFF file: rows of samples, top row first.
struct Page {
    int width, height, bits, samples;
    Bytes data;
    int orientation = 1;
};

inline Bytes Tiff(const std::vector<Page>& pages) {
    Bytes file;
    file.Text("II", 2).U16(42);
    auto place = [&] { return static_cast<long long>(file.size()); };
    for (const Page& page : pages) {
        const bool isColour = page.samples >= 3;
        const long long dataAt = place() + 4, bitsAt = dataAt + static_cast<long long>(page.data.size());
        file.I32(bitsAt + 2 * page.samples).Add(page.data);
        for (int i = 0; i < page.samples; ++i)
            file.U16(static_cast<unsigned>(page.bits));
        const auto entry = [&](unsigned tag, unsigned kind, int count, long long value) {
            file.U16(tag).U16(kind).I32(count).I32(value);
        };
        file.U16(page.samples == 4 ? 11 : 10);
        entry(256, 3, 1, page.width), entry(257, 3, 1, page.height);
        entry(258, 3, page.samples, isColour ? bitsAt : page.bits);
        entry(259, 3, 1, 1), entry(262, 3, 1, isColour ? 2 : 1), entry(273, 4, 1, dataAt);
        entry(274, 3, 1, page.orientation), entry(277, 3, 1, page.samples), entry(278, 3, 1, page.height);
        entry(279, 4, 1, static_cast<long long>(page.data.size()));
        if (page.samples == 4) entry(338, 3, 1, 2);  // the fourth is the opacity
    }
    file.I32(0);
    return file;
}

inline Bytes Samples(int bits, const std::vector<unsigned>& values) {
    Bytes bytes;
    for (const unsigned value : values)
        bits == 8 ? bytes.U8(value) : bytes.U16(value);
    return bytes;
}

}  // namespace test
