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

/// An operation on objects of its own, a `Made` for each trial.
template <class Made>
Operation On(const std::string& name, unsigned allowed, std::string (*state)(Made&), std::function<int(Made&)> run) {
    return {name,
            [=] {
                const auto made = std::make_shared<Made>();
                return Scene{[=] { return run(*made); }, [=] { return state(*made); }};
            },
            allowed};
}

/// The state of what is not looked at afterwards.
template <class Made>
std::string Unseen(Made&) {
    return "";
}

/// The file `file` of what was made.
template <class Made>
std::string FileOf(Made& made) {
    return ContentOf(*made.file);
}

/// Puts `Made`'s object into a stream.
template <class Made>
Operation IntoStream(const std::string& name) {
    struct Put : Made {
        CcMemObjectStorage stream{10, 10};
    };
    return On<Put>(
        name + " into a stream", PartlyDone, [](Put& put) { return Text(ContentOf(put.stream)); },
        [](Put& put) { return put.stream.PutObject(&put.Object()); });
}

/// Makes an object from the record of `Made`'s; the state is what it stores.
template <class Made>
Operation FromStream(const std::string& name) {
    struct Read {
        HandMade stream{StoredBytes(Made().Object())};
        std::unique_ptr<CcHLObject> made;
    };
    return On<Read>(
        name + " from a stream", Nothing, [](Read& read) { return read.made ? RecordOf(*read.made) : "none"; },
        [](Read& read) {
            CcHLObject* object = nullptr;
            const int result = read.stream.Stream()->GetNextObject(&object);
            read.made.reset(object);
            return result;
        });
}

}  // namespace test
