// Small pictures with known values: documents of KestView, and TIFF files written by hand.
#pragma once

#include "document/Document.h"
#include "document/Session.h"
#include "support/ClassTests.h"

namespace test {

using namespace kestview;

constexpr int allTypes[] = {KEST_IMAGE_GRAY256, KEST_IMAGE_INT32, KEST_IMAGE_FLOAT, KEST_IMAGE_RGB,
                            KEST_IMAGE_BINARY,  KEST_IMAGE_INT16, KEST_IMAGE_HSL};
constexpr int rows = 11, columns = 13;

constexpr int wideTypes[] = {KEST_IMAGE_INT16, KEST_IMAGE_INT32, KEST_IMAGE_FLOAT};
constexpr int pixelCount = rows * columns;

/// Values that a class of 8 bits could not hold, where the class holds more.
inline std::unique_ptr<Document> MakeDocument(int type) {
    auto image = MakeImage(type, rows, columns, "sample");
    void* pixels = image->GetBitMapImageData();
    const auto fill = [](auto* first, int count, auto value) {
        for (int i = 0; i < count; ++i) first[i] = static_cast<std::decay_t<decltype(*first)>>(value(i));
    };
    auto* bytes = static_cast<unsigned char*>(pixels);
    switch (type) {
        case KEST_IMAGE_INT16:
            fill(static_cast<unsigned short*>(pixels), pixelCount, [](int i) { return i * 400; });
            break;
        case KEST_IMAGE_INT32:
            fill(static_cast<int*>(pixels), pixelCount, [](int i) { return (i - 70) * 1000003; });
            break;
        case KEST_IMAGE_FLOAT:
            fill(static_cast<float*>(pixels), pixelCount, [](int i) { return static_cast<float>(i) / 7.0F - 3; });
            break;
        case KEST_IMAGE_BINARY: fill(bytes, pixelCount, [](int i) { return i % 3 == 0; }); break;
        case KEST_IMAGE_GRAY256: fill(bytes, pixelCount, [](int i) { return i * 7; }); break;
        default: fill(bytes, 3 * pixelCount, [](int i) { return i / 3 * (5 + 2 * (i % 3)); });
    }
    if (type == KEST_IMAGE_HSL) static_cast<Cc24BitHSLImage&>(*image).DoConvert();
    image->ReScaleImageOnShow();
    return std::make_unique<Document>(std::move(image));
}

inline std::string PixelBytes(CcImage& image) {
    return std::string(static_cast<const char*>(image.GetBitMapImageData()),
                       static_cast<std::size_t>(SampleBytes(image)));
}

/// The document, saved in a session and opened again.
inline std::unique_ptr<Document> Reopened(Document& document) {
    const TemporaryFile file("reopened.kvs");
    std::string error, warning;
    EXPECT_TRUE(SaveSession(document, file.Path(), error)) << error;
    auto opened = OpenSession(file.Path(), error, warning);
    EXPECT_TRUE(opened) << error;
    EXPECT_EQ(warning, "");
    return opened;
}

/// Half a unit a pixel, along both sides.
inline std::unique_ptr<CcCalibration> HalfUnits() {
    tagPoints image[4] = {{0, 0}, {10, 0}, {10, 9}, {0, 9}}, world[4] = {{0, 0}, {5, 0}, {5, 4.5f}, {0, 4.5f}};
    auto calibration = std::make_unique<CcCalibration>();
    EXPECT_EQ(calibration->DoCalibration(image, world, 4, columns, rows), 0);
    return calibration;
}

/// The image through one of its display tables.
inline Picture Through(Document& document, unsigned short table) {
    const MemoryPicture screen(columns, rows);
    RECT all = {0, 0, columns, rows};
    document.Image().Show(screen, &all, table, 1, 0, 0, 1);
    return screen.Snapshot();
}

/// The levels of a gray picture, bottom row first as in the image.
inline std::string LevelsOf(const Picture& picture) {
    std::string levels;
    for (int i = 0; i < pixelCount; ++i) levels += static_cast<char>(picture.At(i % columns, rows - 1 - i / columns));
    return levels;
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
        for (int i = 0; i < page.samples; ++i) file.U16(static_cast<unsigned>(page.bits));
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
    for (const unsigned value : values) bits == 8 ? bytes.U8(value) : bytes.U16(value);
    return bytes;
}

}  // namespace test
