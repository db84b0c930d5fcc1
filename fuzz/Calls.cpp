// Legal calls in any order: bytes choose the calls and their arguments.
#include <algorithm>
#include <array>
#include <memory>
#include <vector>

#include "Formats.h"
#include "KestApi.h"

namespace fuzz {
namespace {

/// Choices from bytes; 0 when they are used up.
class Choices {
public:
    explicit Choices(std::span<const std::uint8_t> newBytes) : bytes(newBytes) {}
    bool AreLeft() const { return !bytes.empty(); }
    int Byte() {
        if (bytes.empty()) return 0;
        const int first = bytes.front();
        bytes = bytes.subspan(1);
        return first;
    }
    int Below(int limit) { return Byte() % limit; }
    /// Mostly near the pictures, sometimes far outside.
    int Coordinate() {
        const int kind = Byte();
        return kind < 250 ? kind - 60 : (kind - 252) * 500000000 + Byte();
    }

private:
    std::span<const std::uint8_t> bytes;
};

struct Scene {
    std::unique_ptr<CcImage> image;
    CcCalibration calibration;
    CcList rois;
    CcRoiHistory history{&rois, 4};
    CcMemObjectStorage stream;
    std::unique_ptr<CcRoiBase> drawn;  ///< drags run on it
    CcPropertyBag bag;

    Scene() { rois.SetDestructionType(1); }
};

template <class Class>
std::unique_ptr<CcImage> MakeImage() {
    return std::make_unique<Class>();
}
constexpr std::unique_ptr<CcImage> (*imageMakers[])() = {
    MakeImage<CcGrayImage256>,   MakeImage<CcBinaryImage>,   MakeImage<CcGrayImageInt16>, MakeImage<CcGrayImageInt32>,
    MakeImage<CcGrayImageFloat>, MakeImage<Cc24BitRGBImage>, MakeImage<Cc24BitHSLImage>};

template <class Roi>
std::unique_ptr<CcRoiBase> MakeRoi() {
    return std::make_unique<Roi>();
}
constexpr std::unique_ptr<CcRoiBase> (*roiMakers[])() = {
    MakeRoi<CcRoiRect>,     MakeRoi<CcRoiEllipse>,      MakeRoi<CcRoiLine>,         MakeRoi<CcRoiPoint>,
    MakeRoi<CcRoiFreeHand>, MakeRoi<CcRoiFreeHandLine>, MakeRoi<CcRoiPolyFreeHand>, MakeRoi<CcRoiPolyLine>};

std::unique_ptr<CcRoiBase> ChooseRoi(Choices& choices) {
    const int kind = choices.Below(8);
    std::unique_ptr<CcRoiBase> roi = roiMakers[kind]();
    if (kind < 4) {
        RECT box = {choices.Coordinate(), choices.Coordinate(), choices.Coordinate(), choices.Coordinate()};
        roi->SetRoiImageCord(&box);
    } else {
        std::vector<POINT> points(static_cast<std::size_t>(1 + choices.Below(12)));
        for (POINT& point : points) point = {choices.Coordinate(), choices.Coordinate()};
        PixelGroupTag record = {0, 0, 0, static_cast<int>(points.size()), points.data(), nullptr};
        roi->SetRoiImageCord(&record);
    }
    return roi;
}

CcRoiBase* AnyRoi(Scene& scene, Choices& choices) {
    const int count = scene.rois.GetNumberOfObjects();
    return count > 0 ? static_cast<CcRoiBase*>(scene.rois.GetAtIndex(choices.Below(count))) : nullptr;
}

/// A copy shares its source's blocks, so it is used while the source is there and after the source has changed.
template <class Roi>
void CopyAs(CcRoiBase& roi, CcImage* image) {
    auto* source = dynamic_cast<Roi*>(&roi);
    if (!source) return;
    Roi copy(*source), assigned;
    assigned = copy;
    int count = 0;
    if (IsSmall(assigned)) assigned.GetXBoundary(3, &count);
    KestRoiMeasurement measured;
    KestMeasureRoi(image, &copy, &measured);
}

using Call = void (*)(Scene& scene, Choices& choices);

constexpr Call calls[] = {
    [](Scene& scene, Choices& choices) {
        scene.image = imageMakers[choices.Below(7)]();
        const int height = choices.Below(40), width = choices.Below(60);
        scene.image->MakeBlankBMP(height, width, choices.Byte(), "blank");
    },
    [](Scene& scene, Choices& choices) {
        if (scene.rois.GetNumberOfObjects() < 30) scene.rois.InsertTail(ChooseRoi(choices).release());
    },
    [](Scene& scene, Choices& choices) { scene.rois.DeleteAtIndex(choices.Coordinate()); },
    [](Scene& scene, Choices&) { scene.history.Remember(); },
    [](Scene& scene, Choices&) { scene.history.Undo(); },
    [](Scene& scene, Choices&) { scene.history.Redo(); },
    [](Scene& scene, Choices&) { scene.history.Cancel(); },
    [](Scene& scene, Choices& choices) {
        KestRoiMeasurement measured;
        CcRoiBase* roi = AnyRoi(scene, choices);
        KestMeasureRoi(scene.image.get(), roi, &measured);
        if (roi && scene.image) delete scene.image->GetRegion(roi, choices.Byte(), choices.Below(2));
    },
    [](Scene& scene, Choices& choices) {
        CcRoiBase* roi = AnyRoi(scene, choices);
        if (!roi) return;
        int count = 0;
        const int at = choices.Coordinate();
        if (IsSmall(*roi)) {
            roi->GetXBoundary(at, &count);
            roi->GetYBoundary(at, &count);
        }
        CcRoiRows(roi).GetSpans(at, &count);
        KestRoiLengthWorld(roi, &scene.calibration);
    },
    [](Scene& scene, Choices& choices) {
        CcRoiBase* roi = AnyRoi(scene, choices);
        if (!roi) return;
        CopyAs<CcRoiRect>(*roi, scene.image.get());
        CopyAs<CcRoiFreeHand>(*roi, scene.image.get());
        CopyAs<CcRoiPolyLine>(*roi, scene.image.get());
    },
    [](Scene& scene, Choices& choices) {
        CcRoiBase *roi = AnyRoi(scene, choices), *other = AnyRoi(scene, choices);
        if (roi && other && roi->GetROIType() == other->GetROIType()) roi->SetRoiImageCord(other->GetRoiImageCord());
    },
    [](Scene& scene, Choices& choices) {
        if (choices.Below(2) == 0)
            scene.stream.PutObject(&scene.rois);
        else if (scene.image)
            scene.stream.PutObject(scene.image.get());
        scene.stream.Reset();
        CcHLObject* read = nullptr;
        if (scene.stream.GetNextObject(&read) == 0) delete read;
        scene.stream.Reset();
    },
    [](Scene& scene, Choices& choices) {
        if (!scene.image) return;
        (*scene.image)(choices.Coordinate(), choices.Coordinate());
        *scene.image = static_cast<float>(choices.Coordinate());
        scene.image->GetMaxPixelValue();
    },
    [](Scene& scene, Choices& choices) {
        if (!scene.image) return;
        scene.image->BeginThresholding(nullptr, static_cast<unsigned short>(100 + choices.Below(6)));
        scene.image->ThresholdImage(nullptr, static_cast<float>(choices.Byte()), static_cast<float>(choices.Byte()),
                                    255, 0, 0);
        if (choices.Below(2)) scene.image->EndThresholding();
    },
    [](Scene& scene, Choices& choices) {
        std::array<tagPoints, 4> image, world;
        for (tagPoints& point : image)
            point = {static_cast<float>(choices.Coordinate()), static_cast<float>(choices.Coordinate())};
        for (tagPoints& point : world) point = {static_cast<float>(choices.Byte()), static_cast<float>(choices.Byte())};
        scene.calibration.DoCalibration(image.data(), world.data(), 4, 1 + choices.Below(50), 1 + choices.Below(50));
        if (scene.image) scene.image->SetCalibrationObject(&scene.calibration);
    },
    [](Scene& scene, Choices& choices) {
        // A drag, now and then left unfinished; what it drew joins the list.
        if (!scene.image) return;
        const unsigned short mode = static_cast<unsigned short>(choices.Below(3));
        const int zoom = 1 + choices.Below(4), x = 8 * choices.Byte() - 1000, y = 8 * choices.Byte() - 1000;
        const auto mouse = [&] { return POINT{4 * choices.Byte() - 300, 4 * choices.Byte() - 300}; };
        CcRoiBase* const other = AnyRoi(scene, choices);
        scene.drawn = roiMakers[choices.Below(8)]();
        const int dragMode = choices.Below(2) ? KEST_DRAG_CREATE : choices.Below(4);
        scene.drawn->StartMouseDrag(Window(), x, y, mode, scene.image.get(), mouse(), dragMode, other, zoom);
        for (int i = choices.Below(6); i > 0; --i)
            scene.drawn->DoMouseDrag(Window(), x, y, mode, scene.image.get(), mouse(), choices.Below(2));
        if (choices.Below(8)) scene.drawn->StopMouseDrag(Window(), x, y, mode, scene.image.get(), mouse());
        if (scene.rois.GetNumberOfObjects() < 30) scene.rois.InsertTail(scene.drawn.release());
    },
    [](Scene& scene, Choices& choices) {
        const std::vector<std::uint8_t> blob(static_cast<std::size_t>(1 + choices.Byte()), 7);
        const char* const keys[] = {"a", "b", "c"};
        scene.bag.PutBlob(keys[choices.Below(3)], blob.data(), static_cast<long>(blob.size()));
        CcPropertyBag copy(scene.bag), assigned;
        assigned = copy;
        long length = 0;
        assigned.GetPropLength("a", 5, &length);
        scene.stream.PutObject(&assigned);
    },
    [](Scene& scene, Choices& choices) {
        if (choices.Below(2)) {
            scene.rois.SelectObjectAtIndex(choices.Coordinate());
            scene.rois.DeleteSelected();
        } else if (scene.image) {
            CcList& own = *scene.image->GetListROI();
            own.InsertHead(ChooseRoi(choices).release());
        }
    },
};

}  // namespace

void PlayCalls(std::span<const std::uint8_t> bytes) {
    Choices choices(bytes.first(std::min<std::size_t>(bytes.size(), 2000)));
    Scene scene;
    while (choices.AreLeft()) calls[choices.Below(static_cast<int>(std::size(calls)))](scene, choices);
}

}  // namespace fuzz
