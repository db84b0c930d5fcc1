// The Image menu.
#include "commands/Commands.h"
#include "document/Conversion.h"
#include "document/Region.h"
#include "platform/Boxes.h"
#include "res/Resource.h"
#include "window/MainWindow.h"

namespace kestview {

/// The pixels under the selected ROI as a picture of their own.
void ImageRegion(MainWindow& main, int) {
    Document& document = *main.Active();
    CcRoiBase& roi = *document.SelectedRoi();
    std::unique_ptr<CcImage> region = CutOut(document, roi);
    if (!region) {
        ShowError(main, "There is no area under this ROI that could be a picture.");
        return;
    }
    const RECT* bounds = roi.GetBoundingRect();
    main.AddNewPicture(std::move(region), &document, bounds ? POINT{bounds->left, bounds->bottom} : POINT{});
}

void ImageConvert(MainWindow& main, int id) {
    Document& document = *main.Active();
    std::unique_ptr<CcImage> converted;
    {
        const PlainPixels plain(document);
        converted = ConvertImage(document.Image(), id - ID_IMAGE_CONVERT_GRAY256);
    }
    if (!converted) {
        ShowError(main, "There is not enough memory for the converted picture.");
        return;
    }
    // "coins (float gray)", also when the picture is a converted one itself.
    const auto suffix = [](CcImage& image) { return std::string(" (") + ImageClassOf(image).label + ")"; };
    std::string name = document.Name();
    if (name.ends_with(suffix(document.Image()))) name.resize(name.size() - suffix(document.Image()).size());
    converted->SetName((name.substr(0, 200) + suffix(*converted)).c_str());
    main.AddNewPicture(std::move(converted), &document);
}

bool CanConvert(MainWindow& main, int id) {
    return main.Active() && main.Active()->Class().type != id - ID_IMAGE_CONVERT_GRAY256;
}

bool IsClass(MainWindow& main, int id) {
    return main.Active() && main.Active()->Class().type == id - ID_IMAGE_CONVERT_GRAY256;
}

void ImageChannel(MainWindow& main, int id) {
    main.Active()->SetChannel(id - ID_IMAGE_CHANNEL_LUMINANCE);
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
