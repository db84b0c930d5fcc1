// The Image menu.
#include "MainWindow.h"
#include "Resource.h"
#include "commands/Commands.h"
#include "document/Conversion.h"
#include "platform/Boxes.h"
#include "platform/Busy.h"

namespace kestview {
namespace {

/// `like`: a document of the same size whose calibration holds for the picture too, or null.
void AddPicture(MainWindow& main, std::unique_ptr<CcImage> image, Document* like) {
    auto document = std::make_unique<Document>(std::move(image));
    if (like) document->CalibrateLike(*like);
    document->SetModified(true);
    main.AddDocument(std::move(document));
}

}  // namespace

/// The pixels under the selected ROI as a picture of their own.
void ImageRegion(MainWindow& main, int) {
    Document& document = *main.Active();
    const PlainPixels plain(document);
    const Busy busy("Cutting out", SampleBytes(document.Image()));
    std::unique_ptr<CcImage> region(document.Image().GetRegion(document.SelectedRoi(), 0, 0));
    const SIZE size = region ? SizeOf(*region) : SIZE{0, 0};
    if (size.cx < 1 || size.cy < 1) {
        ShowError(main, "There is no area under this ROI that could be a picture.");
        return;
    }
    AddPicture(main, std::move(region), nullptr);
}

void ImageConvert(MainWindow& main, int id) {
    Document& document = *main.Active();
    const PlainPixels plain(document);
    auto converted = ConvertImage(document.Image(), id - ID_IMAGE_CONVERT_GRAY256);
    if (!converted) {
        ShowError(main, "There is not enough memory for the converted picture.");
        return;
    }
    // "coins (float gray)", also when the picture is a converted one itself.
    const auto suffix = [](CcImage& image) { return std::string(" (") + ImageClassOf(image).label + ")"; };
    std::string name = document.Name();
    if (name.ends_with(suffix(document.Image()))) name.resize(name.size() - suffix(document.Image()).size());
    converted->SetName((name.substr(0, 200) + suffix(*converted)).c_str());
    AddPicture(main, std::move(converted), &document);
}

bool CanConvert(MainWindow& main, int id) {
    return main.Active() && main.Active()->Class().type != id - ID_IMAGE_CONVERT_GRAY256;
}

bool IsClass(MainWindow& main, int id) {
    return main.Active() && main.Active()->Class().type == id - ID_IMAGE_CONVERT_GRAY256;
}

void ImageChannel(MainWindow& main, int id) {
    main.Active()->SetChannel(id - ID_IMAGE_CHANNEL_LUMINANCE);
    main.Threshold().Refresh(EverythingChanged);
}

/// Channels 0 to 3 belong to RGB pictures, 4 to 6 to HSL pictures.
bool HasChannel(MainWindow& main, int id) {
    if (!main.Active()) return false;
    const int type = main.Active()->Class().type;
    return id - ID_IMAGE_CHANNEL_LUMINANCE <= 3 ? type == KEST_IMAGE_RGB : type == KEST_IMAGE_HSL;
}

bool IsChannel(MainWindow& main, int id) {
    return main.Active() && main.Active()->Channel() == id - ID_IMAGE_CHANNEL_LUMINANCE;
}

}  // namespace kestview
