// The readers of all formats.
#include "Formats.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "KestApi.h"

namespace fuzz {
namespace {

using ByteSpan = std::span<const std::uint8_t>;

/// Bytes in a file of the current folder, which script/fuzz puts into memory.
class PlayedFile {
public:
    PlayedFile(std::string newName, ByteSpan bytes) : name(std::move(newName)) {
        if (std::FILE* file = std::fopen(name.c_str(), "wb")) {
            std::fwrite(bytes.data(), 1, bytes.size(), file);
            std::fclose(file);
        }
    }
    ~PlayedFile() { std::remove(name.c_str()); }
    PlayedFile(const PlayedFile&) = delete;
    PlayedFile& operator=(const PlayedFile&) = delete;
    const char* Path() const { return name.c_str(); }

private:
    std::string name;
};

void UseRoi(CcRoiBase& roi, CcImage& image) {
    KestRoiMeasurement measured;
    KestMeasureRoi(&image, &roi, &measured);
    KestRoiLengthPixels(&roi);
    int count = 0;
    for (const int at : {-1, 0, 3, 1000000}) {
        if (!IsSmall(roi)) break;
        roi.GetXBoundary(at, &count);
        roi.GetYBoundary(at, &count);
    }
    CcRoiRows rows(&roi);
    for (const int at : {-1, 0, 3}) rows.GetSpans(at, &count);
    delete image.GetRegion(&roi, 7, 0);
    roi.GetBoundingRect();
}

void UseImage(CcImage& image) {
    int height = 0, width = 0;
    image.GetHeightWidth(&height, &width);
    image(0, 0);
    image(width - 1, height - 1);
    image = 3.0F;
    image.GetMinPixelValue();
    image.GetMaxPixelValue();
    ThresholdTag band = {};
    band.fHigh = 100;
    image.BeginThresholding(nullptr, 101);
    image.ThresholdImage(nullptr, 5, 90, 255, 0, 0);
    image.ThresholdImageMulti(nullptr, &band, 1);
    image.EndThresholding();
    CcRoiEllipse ellipse;
    RECT box = {-5, height, width + 5, 1};
    ellipse.SetRoiImageCord(&box);
    UseRoi(ellipse, image);
    CcList& rois = *image.GetListROI();
    for (int i = 0; i < rois.GetNumberOfObjects() && i < 20; ++i)
        UseRoi(static_cast<CcRoiBase&>(*rois.GetAtIndex(i)), image);
    image.SaveBMPFile("again.bmp");
}

/// Whatever a stream may hold, by what the object says it is.
void Use(CcHLObject& object, int depth = 0) {
    CcGrayImage256 picture;
    if (auto* image = dynamic_cast<CcImage*>(&object)) {
        UseImage(*image);
    } else if (auto* roi = dynamic_cast<CcRoiBase*>(&object)) {
        picture.MakeBlankBMP(20, 30, 5, "under it");
        UseRoi(*roi, picture);
    } else if (auto* list = dynamic_cast<CcList*>(&object)) {
        for (int i = 0; i < list->GetNumberOfObjects() && i < 20 && depth < 5; ++i)
            Use(*list->GetAtIndex(i), depth + 1);
        list->GetSelected();
        list->GetViaName("b");
    } else if (auto* bag = dynamic_cast<CcPropertyBag*>(&object)) {
        char text[40];
        int number;
        long length;
        bag->GetString("a", text, sizeof text);
        bag->GetInt("v", &number);
        bag->GetPropLength("b", 5, &length);
        bag->PutInt("new", 1);
    }
    CcMemObjectStorage again;
    again.PutObject(&object);
}

void PlayStream(ByteSpan bytes) {
    std::vector<std::uint8_t> content(bytes.begin(), bytes.end());
    content.push_back(0);  // that no stream reads
    CcMemObjectStorage stream(content.data(), static_cast<long>(content.size()), 1);
    for (int i = 0; i < 50; ++i) {
        CcHLObject* object = nullptr;
        const int result = stream.GetNextObject(&object);
        const std::unique_ptr<CcHLObject> owner(object);
        if (result < 0 || !object) break;
        Use(*object);
    }
    // Into objects that are there already.
    CcGrayImage256 image;
    stream.Reset();
    stream.GetNextObject(&image);
    UseImage(image);
}

void PlayStreamFile(ByteSpan bytes) {
    const PlayedFile file("played.ost", bytes);
    CcFileObjectStorage stream;
    if (stream.Open(file.Path(), GENERIC_READ) < 0) return;
    CcHLObject* object = nullptr;
    while (stream.GetNextObject(&object) >= 0 && object) {
        Use(*object);
        delete object;
        object = nullptr;
    }
    delete object;
}

template <class... Images>
void PlayPicture(ByteSpan bytes) {
    const PlayedFile file("played.bmp", bytes);
    const auto play = [&](auto image) {
        if (image.OpenBMPFile(file.Path()) == 0) UseImage(image);
    };
    (play(Images()), ...);
}

/// A wide image's samples beside a picture of 8 x 5 pixels.
template <class Image>
void PlayOneRaw(ByteSpan bytes, const char* name) {
    {
        Image blank;
        blank.MakeBlankBMP(5, 8, 3, "blank");
        blank.SaveBMPFile("wide.bmp");
    }
    const PlayedFile samples(name, bytes);
    Image image;
    if (image.OpenBMPFile("wide.bmp") == 0) UseImage(image);
}
void PlayRaw(ByteSpan bytes) {
    PlayOneRaw<CcGrayImageInt16>(bytes, "wide.i16");
    PlayOneRaw<CcGrayImageInt32>(bytes, "wide.i32");
    PlayOneRaw<CcGrayImageFloat>(bytes, "wide.flt");
}

template <class... Rois>
void PlayRois(ByteSpan bytes) {
    const PlayedFile file("played.roi", bytes);
    CcGrayImage256 picture;
    picture.MakeBlankBMP(20, 30, 5, "under it");
    const auto play = [&](auto roi) {
        if (roi.Restore(file.Path()) != 0) return;
        UseRoi(roi, picture);
        roi.Save("again.roi");
    };
    (play(Rois()), ...);
}
void PlayRoi(ByteSpan bytes) {
    PlayRois<CcRoiRect, CcRoiEllipse, CcRoiLine, CcRoiPoint, CcRoiFreeHand, CcRoiFreeHandLine, CcRoiPolyFreeHand,
             CcRoiPolyLine>(bytes);
}

void PlayCalibration(ByteSpan bytes) {
    const PlayedFile file("played.cal", bytes);
    CcCalibration calibration;
    if (calibration.Open(file.Path()) != 0) return;
    for (const int at : {-1, 0, 5, 100000}) calibration.GetAreaOfPixel(at, 2);
    float x, y;
    calibration.ConvertPoint(3, 4, &x, &y);
    calibration.ReverseConvertPoint(3, 4, &x, &y);
    calibration.Save("again.cal");
}

void PlayAppearance(ByteSpan bytes) {
    const PlayedFile file("played.gap", bytes);
    CcGraph graph;
    if (graph.RestoreAppearance(file.Path()) == 0) graph.SaveAppearance("again.gap");
}

constexpr Format formats[] = {
    {"bmp8", PlayPicture<CcGrayImage256, CcBinaryImage, CcGrayImageInt16>},
    {"bmp24", PlayPicture<Cc24BitRGBImage, Cc24BitHSLImage>},
    {"raw", PlayRaw},
    {"stream", PlayStream},
    {"streamfile", PlayStreamFile},
    {"roi", PlayRoi},
    {"cal", PlayCalibration},
    {"appearance", PlayAppearance},
    {"calls", PlayCalls},
};

}  // namespace

bool IsSmall(CcRoiBase& roi) {
    const RECT* const box = roi.GetCurrentBoundingRect();
    return !box || (std::abs(1LL * box->right - box->left) < 100000 && std::abs(1LL * box->bottom - box->top) < 100000);
}

std::span<const Format> Formats() { return formats; }

const Format* FormatCalled(const char* name) {
    for (const Format& format : formats)
        if (std::strcmp(format.name, name) == 0) return &format;
    return nullptr;
}

}  // namespace fuzz
