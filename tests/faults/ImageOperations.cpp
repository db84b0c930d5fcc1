// The operations of the seven image classes.

#include "faults/Scenes.h"
#include "support/ClassTests.h"

namespace test {
namespace {

/// What is on the clipboard, as far as the system tells without a copy.
std::string ClipboardText() { return IsClipboardFormatAvailable(CF_BITMAP) ? "a bitmap" : "none"; }

std::string PixelsOf(const Picture& picture) {
    return {reinterpret_cast<const char*>(picture.pixels.data()), picture.pixels.size() * sizeof picture.pixels[0]};
}

template <class Image, class Roi>
Operation CutRegion(const std::string& name) {
    return {name, [] {
                auto image = SceneImage<Image>();
                std::shared_ptr<CcRoiBase> roi = SceneRoi<Roi>(*image);
                auto region = std::make_shared<std::unique_ptr<CcImage>>();
                return Scene{[=] {
                                 region->reset(image->GetRegion(roi.get(), 3, 0));
                                 return *region ? 0 : -1;
                             },
                             [=] { return SamplesOf(region->get()); }};
            }};
}

/// The colour and wide images' Show says 0 whatever becomes of the drawing.
template <class Image>
constexpr bool ReportsDrawing() {
    return std::is_same_v<Image, CcGrayImage256> || std::is_same_v<Image, CcBinaryImage>;
}

template <class Image>
Operation ShowInto(const std::string& name, unsigned short table, unsigned short mode) {
    return {name + " Show " + std::to_string(table) + " mode " + std::to_string(mode),
            [=] {
                auto image = SceneImage<Image>();
                image->GetOverlay()[3 * sceneWidth + 5] = 13;
                auto paper = std::make_shared<MemoryPicture>(sceneWidth, sceneHeight);
                return Scene{[=] {
                                 const int shown = image->Show(*paper, SceneWindow(), table, mode, 1, 1, 2);
                                 const int marked = image->ShowOverlay(*paper, SceneWindow(), mode, 1, 1, 2);
                                 return shown < 0 ? shown : marked;
                             },
                             [=] { return PixelsOf(paper->Snapshot()); }};
            },
            ReportsDrawing<Image>() ? PartlyDone : PartlyDone | Drawn};
}

template <class Image>
void Add(std::vector<Operation>& list, const std::string& name, const std::string& rawExtension = {}) {
    list.push_back({name + " MakeBlankBMP",
                    [] {
                        auto image = SceneImage<Image>();
                        return Scene{[=] { return image->MakeBlankBMP(5, 8, 2, "blank"); },
                                     [=] { return SamplesOf(image.get()); }};
                    },
                    PartlyDone});

    // Both files of a wide image, or none; but its samples make a BMP file that could not be created dispensable.
    const auto fileState = [rawExtension](const TemporaryFile& bmp, const TemporaryFile& raw) {
        if (rawExtension.empty()) return ContentOf(bmp);
        return ContentOf(raw) == ContentOf(*OldFile("untouched")) ? ContentOf(bmp) : ContentOf(raw);
    };
    list.push_back(
        {name + " SaveBMPFile",
         [=] {
             auto image = SceneImage<Image>();
             auto bmp = OldFile("fault.bmp"), raw = OldFile("fault" + (rawExtension.empty() ? ".x" : rawExtension));
             return Scene{[=] { return image->SaveBMPFile(bmp->Path()); }, [=] { return fileState(*bmp, *raw); }};
         },
         SilentIfOpen});
    list.push_back({name + " OpenBMPFile",
                    [=] {
                        auto bmp = OldFile("fault.bmp"),
                             raw = OldFile("fault" + (rawExtension.empty() ? ".x" : rawExtension));
                        SceneImage<Image>()->SaveBMPFile(bmp->Path());
                        auto image = std::make_shared<Image>();
                        return Scene{[=] { return image->OpenBMPFile(bmp->Path()); },
                                     [=, keep = raw] { return SamplesOf(image.get()); }};
                    },
                    PartlyDone});

    for (unsigned short table = 100; table <= 104; ++table)
        for (unsigned short mode = 0; mode <= 1; ++mode)
            if (mode == 1 || table == 101) list.push_back(ShowInto<Image>(name, table, mode));
    list.push_back({name + " Show in a window",
                    [] {
                        auto image = SceneImage<Image>();
                        return Scene{[=] { return image->Show(SceneWindow(), 101, 1, 0, 0, 1); }, [] { return ""; }};
                    },
                    PartlyDone});
    list.push_back({name + " Print", [] {
                        auto image = SceneImage<Image>();
                        const int before = PagesPrinted();
                        return Scene{[=] { return image->Print(SceneWindow(), 101, 0, 0, 0, 1); },
                                     [=] { return std::to_string(PagesPrinted() - before); }};
                    }});
    list.push_back(
        {name + " CopyToClipboard", [] {
             auto image = SceneImage<Image>();
             OpenClipboard(nullptr);
             EmptyClipboard();
             CloseClipboard();
             return Scene{[=] { return image->CopyToClipboard(SceneWindow(), 101, nullptr); }, ClipboardText};
         }});
    list.push_back(CutRegion<Image, CcRoiRect>(name + " GetRegion of a rectangle"));
    list.push_back(CutRegion<Image, CcRoiEllipse>(name + " GetRegion of an ellipse"));
    list.push_back(CutRegion<Image, CcRoiPolyFreeHand>(name + " GetRegion of an outline"));
    list.push_back({name + " thresholding",
                    [] {
                        auto image = SceneImage<Image>();
                        return Scene{
                            [=] {
                                ThresholdTag bands[] = {{10, 20, 255, 0, 0}, {30, 40, 0, 255, 0}};
                                // The binary image has one band only, and says so in a box.
                                constexpr int bandCount = std::is_same_v<Image, CcBinaryImage> ? 0 : 2;
                                for (const int result :
                                     {image->BeginThresholding(SceneWindow(), 101),
                                      image->ThresholdImage(SceneWindow(), 5, 9, 1, 2, 3),
                                      bandCount ? image->ThresholdImageMulti(SceneWindow(), bands, bandCount) : 0,
                                      image->EndThresholding()})
                                    if (result < 0) return result;
                                return 0;
                            },
                            [=] { return SamplesOf(image.get()); }};
                    },
                    PartlyDone});
    list.push_back({name + " CreateOverlay", [] {
                        auto image = SceneImage<Image>();
                        return Scene{[=] { return image->CreateOverlay(); }, [=] { return ""; }};
                    }});
    list.push_back(
        {name + " into a stream",
         [] {
             auto image = SceneImage<Image>();
             auto* roi = new CcRoiRect;
             roi->SetName("r");
             image->GetListROI()->InsertTail(roi);
             auto stream = std::make_shared<CcMemObjectStorage>(10, 10);
             return Scene{[=] { return stream->PutObject(image.get()); }, [=] { return Text(ContentOf(*stream)); }};
         },
         PartlyDone});
    list.push_back(ReadBack(name, [] { return RecordOf(*SceneImage<Image>()); }));
}

}  // namespace

std::vector<Operation> ImageOperations() {
    std::vector<Operation> list;
    Add<CcGrayImage256>(list, "CcGrayImage256");
    Add<CcBinaryImage>(list, "CcBinaryImage");
    Add<Cc24BitRGBImage>(list, "Cc24BitRGBImage");
    Add<Cc24BitHSLImage>(list, "Cc24BitHSLImage");
    Add<CcGrayImageInt16>(list, "CcGrayImageInt16", ".i16");
    Add<CcGrayImageInt32>(list, "CcGrayImageInt32", ".i32");
    Add<CcGrayImageFloat>(list, "CcGrayImageFloat", ".flt");
    list.push_back({"KestJudgePictureFile", [] {
                        auto bmp = OldFile("fault.bmp"), raw = OldFile("fault.i16");
                        SceneImage<CcGrayImageInt16>()->SaveBMPFile(bmp->Path());
                        auto judged = std::make_shared<KestPictureFile>();
                        return Scene{[=] { return KestJudgePictureFile(bmp->Path(), judged.get()); },
                                     [=, keep = raw] { return std::to_string(judged->eType); }};
                    }});
    return list;
}

}  // namespace test
