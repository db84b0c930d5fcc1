// What the operations work on, and what they leave, as bytes.
#pragma once

#include "faults/Faults.h"
#include "support/ClassTests.h"

namespace test {

constexpr int sceneWidth = 40, sceneHeight = 30;

inline std::string Text(const std::vector<std::uint8_t>& bytes) { return {bytes.begin(), bytes.end()}; }

/// A window that all scenes share.
inline TestWindow& SceneWindow() {
    static TestWindow window(sceneWidth, sceneHeight);
    return window;
}

/// Any object's record.
inline std::string RecordOf(CcHLObject& object) { return Text(StoredBytes(object)); }

inline int BytesPerSample(CcImage& image) {
    switch (image.GetImageType()) {
        case KEST_IMAGE_RGB:
        case KEST_IMAGE_HSL: return 3;
        case KEST_IMAGE_INT16: return 2;
        case KEST_IMAGE_INT32:
        case KEST_IMAGE_FLOAT: return 4;
        default: return 1;
    }
}

/// Name, size and samples.
inline std::string SamplesOf(CcImage* image) {
    if (!image) return "no image";
    int height = 0, width = 0;
    image->GetHeightWidth(&height, &width);
    const auto* samples = static_cast<const char*>(image->GetBitMapImageData());
    std::string text =
        std::string(image->GetName()) + " " + std::to_string(width) + " x " + std::to_string(height) + " ";
    if (samples) text.append(samples, static_cast<std::size_t>(width * height * BytesPerSample(*image)));
    return text;
}

/// An image with known samples.
template <class Image>
std::shared_ptr<Image> SceneImage() {
    auto image = std::make_shared<Image>();
    image->MakeBlankBMP(sceneHeight, sceneWidth, 1, "scene");
    auto* bytes = static_cast<std::uint8_t*>(image->GetBitMapImageData());
    // The binary image has the values 0 and 1; large exponents are no numbers to show.
    const int most = image->GetImageType() == KEST_IMAGE_BINARY ? 2 : 61;
    for (int i = 0; i < sceneWidth * sceneHeight * BytesPerSample(*image); ++i)
        bytes[i] = static_cast<std::uint8_t>(i % most);
    return image;
}

/// A ROI drawn with the mouse from (5, 5) over (30, 8) to (22, 20) of the window.
template <class Roi>
std::shared_ptr<Roi> SceneRoi(CcImage& image) {
    auto roi = std::make_shared<Roi>();
    const HWND window = SceneWindow();
    roi->StartMouseDrag(window, 0, 0, 1, &image, {5, 5}, KEST_DRAG_CREATE, nullptr, 1);
    roi->DoMouseDrag(window, 0, 0, 1, &image, {30, 8}, 1);
    roi->DoMouseDrag(window, 0, 0, 1, &image, {22, 20}, 1);
    roi->StopMouseDrag(window, 0, 0, 1, &image, {22, 20});
    roi->SetName("roi");
    return roi;
}

/// What a file held before it is written anew.
inline std::shared_ptr<TemporaryFile> OldFile(const std::string& name) {
    return std::make_shared<TemporaryFile>(name, Bytes().Text("what was there before", 21));
}

inline std::string ContentOf(const TemporaryFile& file) { return Text(file.Content()); }

/// Makes an object from a record; the state is what it stores.
inline Operation ReadBack(const std::string& name, std::function<std::string()> makeRecord) {
    return {name + " from a stream", [makeRecord] {
                const std::string record = makeRecord();
                auto stream = std::make_shared<HandMade>(Bytes().Add({record.begin(), record.end()}));
                auto made = std::make_shared<std::unique_ptr<CcHLObject>>();
                return Scene{[=] {
                                 CcHLObject* object = nullptr;
                                 const int result = stream->Stream()->GetNextObject(&object);
                                 made->reset(object);
                                 return result;
                             },
                             [=] { return *made ? RecordOf(**made) : "none"; }};
            }};
}

}  // namespace test
