// The operations of the seven image classes.

#include "faults/Scenes.h"

namespace test {
namespace {

/// What is on the clipboard, as far as the system tells without a copy.
template <class Made>
std::string ClipboardText(Made&) {
    return IsClipboardFormatAvailable(CF_BITMAP) ? "a bitmap" : "none";
}

template <class Made>
std::string Samples(Made& made) {
    return SamplesOf(made.image.get());
}

template <class Made>
std::string PaperPixels(Made& made) {
    const Picture picture = made.paper.Snapshot();
    return {reinterpret_cast<const char*>(picture.pixels.data()), picture.pixels.size() * sizeof picture.pixels[0]};
}

/// How a class's raw samples are named; the others have none.
template <class Image>
constexpr const char* rawFile = "fault.x";
template <>
constexpr const char* rawFile<CcGrayImageInt16> = "fault.i16";
template <>
constexpr const char* rawFile<CcGrayImageInt32> = "fault.i32";
template <>
constexpr const char* rawFile<CcGrayImageFloat> = "fault.flt";

template <class Image>
struct OneImage {
    std::shared_ptr<Image> image = SceneImage<Image>();
    CcHLObject& Object() { return *image; }
};

template <class Image>
struct InFiles : OneImage<Image> {
    std::shared_ptr<TemporaryFile> bmp = OldFile("fault.bmp"), raw = OldFile(rawFile<Image>);

    /// Both files of a wide image, or none; but its samples make a BMP file that could not be created dispensable.
    static std::string Files(InFiles& made) {
        return ContentOf(*made.raw) == ContentOf(*OldFile("untouched")) ? ContentOf(*made.bmp) : ContentOf(*made.raw);
    }
};

template <class Image, class Roi>
Operation CutRegion(const std::string& name) {
    struct Made {
        std::shared_ptr<Image> source = SceneImage<Image>();
        std::shared_ptr<Roi> roi = SceneRoi<Roi>(*source);
        std::unique_ptr<CcImage> image;
    };
    return On<Made>(name, Nothing, Samples, [](auto& made) {
        made.image.reset(made.source->GetRegion(made.roi.get(), 3, 0));
        return made.image ? 0 : -1;
    });
}

template <class Image>
void Add(std::vector<Operation>& list, const std::string& name) {
    using Made = OneImage<Image>;
    constexpr bool isBinary = std::is_same_v<Image, CcBinaryImage>;
    struct Opened : InFiles<Image> {
        Opened() {
            this->image->SaveBMPFile(this->bmp->Path());
            this->image = std::make_shared<Image>();
        }
    };
    struct OnPaper : Made {
        MemoryPicture paper{sceneWidth, sceneHeight};
        OnPaper() { this->image->GetOverlay()[3 * sceneWidth + 5] = 13; }
    };
    struct Printed : Made {
        int before = PagesPrinted();
    };
    struct Copied : Made {
        Copied() { EmptyTheClipboard(); }
    };
    struct WithRoi : Made {
        WithRoi() {
            auto* roi = new CcRoiRect;
            roi->SetName("r");
            this->image->GetListROI()->InsertTail(roi);
        }
    };
    list.push_back(On<Made>(name + " MakeBlankBMP", PartlyDone, Samples,
                            [](auto& made) { return made.image->MakeBlankBMP(5, 8, 2, "blank"); }));
    list.push_back(On<InFiles<Image>>(name + " SaveBMPFile", SilentIfOpen, InFiles<Image>::Files,
                                      [](auto& made) { return made.image->SaveBMPFile(made.bmp->Path()); }));
    list.push_back(On<Opened>(name + " OpenBMPFile", PartlyDone, Samples,
                              [](auto& made) { return made.image->OpenBMPFile(made.bmp->Path()); }));
    // The colour and wide images' Show says 0 whatever becomes of the drawing.
    const bool reportsDrawing = isBinary || std::is_same_v<Image, CcGrayImage256>;
    for (unsigned short table = 100; table <= 104; ++table)
        for (unsigned short mode = 0; mode <= 1; ++mode) {
            if (mode == 0 && table != 101) continue;
            const std::string show = name + " Show " + std::to_string(table) + " mode " + std::to_string(mode);
            list.push_back(
                On<OnPaper>(show, reportsDrawing ? PartlyDone : PartlyDone | Drawn, PaperPixels, [=](auto& made) {
                    const int shown = made.image->Show(made.paper, SceneWindow(), table, mode, 1, 1, 2);
                    const int marked = made.image->ShowOverlay(made.paper, SceneWindow(), mode, 1, 1, 2);
                    return shown < 0 ? shown : marked;
                }));
        }
    list.push_back(On<Made>(name + " Show in a window", PartlyDone, Unseen,
                            [](auto& made) { return made.image->Show(SceneWindow(), 101, 1, 0, 0, 1); }));
    list.push_back(On<Printed>(
        name + " Print", Nothing, [](Printed& made) { return std::to_string(PagesPrinted() - made.before); },
        [](auto& made) { return made.image->Print(SceneWindow(), 101, 0, 0, 0, 1); }));
    list.push_back(On<Copied>(name + " CopyToClipboard", Nothing, ClipboardText,
                              [](auto& made) { return made.image->CopyToClipboard(SceneWindow(), 101, nullptr); }));
    list.push_back(CutRegion<Image, CcRoiRect>(name + " GetRegion of a rectangle"));
    list.push_back(CutRegion<Image, CcRoiEllipse>(name + " GetRegion of an ellipse"));
    list.push_back(CutRegion<Image, CcRoiPolyFreeHand>(name + " GetRegion of an outline"));
    list.push_back(On<Made>(name + " thresholding", PartlyDone, Samples, [](auto& made) {
        ThresholdTag bands[] = {{10, 20, 255, 0, 0}, {30, 40, 0, 255, 0}};
        // The binary image has one band only, and says so in a box.
        for (const int result :
             {made.image->BeginThresholding(SceneWindow(), 101),
              made.image->ThresholdImage(SceneWindow(), 5, 9, 1, 2, 3),
              isBinary ? 0 : made.image->ThresholdImageMulti(SceneWindow(), bands, 2), made.image->EndThresholding()})
            if (result < 0) return result;
        return 0;
    }));
    list.push_back(
        On<Made>(name + " CreateOverlay", Nothing, Unseen, [](auto& made) { return made.image->CreateOverlay(); }));
    list.push_back(IntoStream<WithRoi>(name));
    list.push_back(FromStream<Made>(name));
}

}  // namespace

std::vector<Operation> ImageOperations() {
    std::vector<Operation> list;
    Add<CcGrayImage256>(list, "CcGrayImage256");
    Add<CcBinaryImage>(list, "CcBinaryImage");
    Add<Cc24BitRGBImage>(list, "Cc24BitRGBImage");
    Add<Cc24BitHSLImage>(list, "Cc24BitHSLImage");
    Add<CcGrayImageInt16>(list, "CcGrayImageInt16");
    Add<CcGrayImageInt32>(list, "CcGrayImageInt32");
    Add<CcGrayImageFloat>(list, "CcGrayImageFloat");
    struct Judged : InFiles<CcGrayImageInt16> {
        KestPictureFile verdict = {};
        Judged() { image->SaveBMPFile(bmp->Path()); }
    };
    list.push_back(On<Judged>(
        "KestJudgePictureFile", Nothing, [](Judged& made) { return std::to_string(made.verdict.eType); },
        [](Judged& made) { return KestJudgePictureFile(made.bmp->Path(), &made.verdict); }));
    return list;
}

}  // namespace test
