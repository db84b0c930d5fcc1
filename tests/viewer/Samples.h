// Small pictures with known values, as documents of KestView.
#pragma once

#include <memory>
#include <string>

#include "document/Document.h"

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

}  // namespace test
