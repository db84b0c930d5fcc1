// The Image menu.
#include "commands/AllMenus.h"
#include "commands/Conditions.h"
#include "document/Conversion.h"
#include "document/Region.h"
#include "platform/Boxes.h"
#include "res/Resource.h"

namespace kestview {
namespace {

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

void ImageChannel(MainWindow& main, int id) { main.Active()->SetChannel(id - ID_IMAGE_CHANNEL_LUMINANCE); }

/// Channels 0 to 3 belong to RGB pictures, 4 to 6 to HSL pictures.
bool HasChannel(MainWindow& main, int id) {
    if (!main.Active()) return false;
    const int type = main.Active()->Class().type;
    return id - ID_IMAGE_CHANNEL_LUMINANCE <= 3 ? type == KEST_IMAGE_RGB : type == KEST_IMAGE_HSL;
}

bool IsChannel(MainWindow& main, int id) {
    return main.Active() && main.Active()->Channel() == id - ID_IMAGE_CHANNEL_LUMINANCE;
}

constexpr Command convertEntries[] = {
    {ID_IMAGE_CONVERT_GRAY256, "&8-bit Gray", "", "A copy with 8-bit gray pixels", ImageConvert, CanConvert, IsClass},
    {ID_IMAGE_CONVERT_BINARY, "&Binary", "", "A copy with 1 for everything but 0", ImageConvert, CanConvert, IsClass},
    {ID_IMAGE_CONVERT_RGB, "24-bit &RGB", "", "A copy with red, green and blue", ImageConvert, CanConvert, IsClass},
    {ID_IMAGE_CONVERT_HSL, "24-bit &HSL", "", "A copy with hue, saturation and lightness", ImageConvert, CanConvert,
     IsClass},
    {ID_IMAGE_CONVERT_INT16, "&16-bit Gray", "", "A copy with unsigned 16-bit samples", ImageConvert, CanConvert,
     IsClass},
    {ID_IMAGE_CONVERT_INT32, "&32-bit Gray", "", "A copy with signed 32-bit samples", ImageConvert, CanConvert,
     IsClass},
    {ID_IMAGE_CONVERT_FLOAT, "&Float Gray", "", "A copy with floating-point samples", ImageConvert, CanConvert,
     IsClass},
};

constexpr Command channelEntries[] = {
    {ID_IMAGE_CHANNEL_LUMINANCE, "&Luminance", "", "Threshold and profile see the luminance", ImageChannel, HasChannel,
     IsChannel},
    {ID_IMAGE_CHANNEL_RED, "&Red", "", "Threshold and profile see red", ImageChannel, HasChannel, IsChannel},
    {ID_IMAGE_CHANNEL_GREEN, "&Green", "", "Threshold and profile see green", ImageChannel, HasChannel, IsChannel},
    {ID_IMAGE_CHANNEL_BLUE, "&Blue", "", "Threshold and profile see blue", ImageChannel, HasChannel, IsChannel},
    line,
    {ID_IMAGE_CHANNEL_HUE, "&Hue", "", "Threshold and profile see the hue", ImageChannel, HasChannel, IsChannel},
    {ID_IMAGE_CHANNEL_SATURATION, "&Saturation", "", "Threshold and profile see the saturation", ImageChannel,
     HasChannel, IsChannel},
    {ID_IMAGE_CHANNEL_LIGHTNESS, "L&ightness", "", "Threshold and profile see the lightness", ImageChannel, HasChannel,
     IsChannel},
};

constexpr Command imageEntries[] = {
    {ID_IMAGE_REGION, "Re&gion to New Window", "Ctrl+R",
     "Open the pixels under the selected ROI as a picture of their own", ImageRegion, HasSelection},
    line,
    Submenu("&Convert To", convertEntries),
    Submenu("C&hannel", channelEntries),
};

}  // namespace

Menu ImageMenu() { return {"&Image", imageEntries}; }

}  // namespace kestview
