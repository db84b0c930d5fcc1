// Opening and saving pictures: the library's own files through the library, all others through the system's decoders.
#include "document/PictureFiles.h"

#include <algorithm>

#include "document/WicSaving.h"
#include "platform/Busy.h"
#include "platform/Drawing.h"
#include "platform/SavedFile.h"
#include "platform/Text.h"

namespace kestview {
namespace {

constexpr int wideTypes[] = {KEST_IMAGE_INT16, KEST_IMAGE_INT32, KEST_IMAGE_FLOAT};

std::string SamplesPath(const std::string& path, int wideType) {
    return WithoutExtension(path) + ImageClassOf(wideType)->rawSuffix;
}

/// The colours that the file means by its values.
std::unique_ptr<CcImage> InColours(CcImage& values, const RGBQUAD (&colours)[256]) {
    const SIZE size = SizeOf(values);
    auto coloured = MakeImage(KEST_IMAGE_RGB, size.cy, size.cx, values.GetName());
    if (!coloured) return nullptr;
    const auto* from = static_cast<const unsigned char*>(values.GetBitMapImageData());
    auto* to = static_cast<RGBTRIPLE*>(coloured->GetBitMapImageData());
    std::transform(from, from + static_cast<long long>(size.cx) * size.cy, to, [&](unsigned char value) {
        return RGBTRIPLE{colours[value].rgbBlue, colours[value].rgbGreen, colours[value].rgbRed};
    });
    return coloured;
}

constexpr const char* pictureName = "The picture";

/// How a picture is written, by its file's extension.
struct SaveFormat {
    const char* extension;
    bool isBmp;  ///< by the library
    OtherFormat other;
};

constexpr SaveFormat saveFormats[] = {
    {".bmp", true, {}},
    {".png", false, OtherFormat::Png},
    {".tif", false, OtherFormat::Tiff},
    {".tiff", false, OtherFormat::Tiff},
    {".jpg", false, OtherFormat::Jpeg},
    {".jpeg", false, OtherFormat::Jpeg},
};

/// Null for any other extension.
const SaveFormat* SaveFormatOf(const std::string& path) {
    const std::string extension = ExtensionOf(path);
    for (const SaveFormat& format : saveFormats)
        if (extension == format.extension) return &format;
    return nullptr;
}

bool SaveBmp(CcImage& image, const std::string& path, std::string& error) {
    const auto write = [&](const std::string& newPath) -> Written {
        if (image.SaveBMPFile(newPath.c_str()) < 0) return Written::NotAsTold();
        return BytesOfFile(newPath) > SampleBytes(image);
    };
    return SaveWhole(pictureName, path, SampleBytes(image), write, error);
}

/// The library names the samples' file as the picture's, and puts both in place.
bool SaveWideBmp(CcImage& image, const std::string& path, std::string& error) {
    const std::string samples = SamplesPath(path, image.GetImageType());
    const SIZE size = SizeOf(image);
    const auto whyNot = [&] {
        // Both are on the same disk, and each is replaced only when both are whole.
        const std::string why = WhyNotWritable(path, SampleBytes(image) + static_cast<long long>(size.cx) * size.cy);
        return why.empty() ? WhyNotWritable(samples, SampleBytes(image)) : why;
    };
    std::string why = whyNot();
    if (why.empty()) {
        const bool isTold = image.SaveBMPFile(path.c_str()) < 0;
        if (!isTold && BytesOfFile(samples) > SampleBytes(image)) return true;
        why = whyNot();
        error.clear();
        if (isTold && why.empty()) return false;
    }
    error = NotWritten(pictureName, path, why);
    return false;
}

}  // namespace

const char* const openFilters =
    "Pictures and sessions|*.bmp;*.png;*.jpg;*.jpeg;*.tif;*.tiff;*.gif;*.kvs|"
    "Pictures|*.bmp;*.png;*.jpg;*.jpeg;*.tif;*.tiff;*.gif|"
    "KestView sessions (*.kvs)|*.kvs|All files (*.*)|*.*|";

const char* const saveFilters =
    "Bitmap files (*.bmp)|*.bmp|PNG files (*.png)|*.png|TIFF files (*.tif)|*.tif;*.tiff|"
    "JPEG files (*.jpg)|*.jpg;*.jpeg|";

std::unique_ptr<CcImage> OpenPicture(const std::string& path, const KestPictureFile& file, std::string& error,
                                     std::string& warning, const PictureQuestions& ask) {
    if (!FileExists(path)) {
        error = "There is no file\n" + path;
        return nullptr;
    }
    if (file.eReason == KEST_PICTURE_SAMPLES_NOT_READ) {
        error = FileNameOf(path) + " could not be opened.\n\n" + file.pszReason;
        return nullptr;
    }
    if (file.eType == KEST_IMAGE_NONE) return DecodePicture(path, error, warning, ask);
    const double bytes = static_cast<double>(file.llBytes) * (file.bOwnColours ? 4 : 1);
    if (!IsWanted(bytes, path, ask, error)) return nullptr;
    if (!ImageClassOf(file.eType)->isWide)
        for (const int wide : wideTypes)
            if (FileExists(SamplesPath(path, wide)))
                warning = "The samples in " + FileNameOf(SamplesPath(path, wide)) +
                          " are not this picture's, or are damaged.\n\nThe picture was opened without them.";
    const Busy busy("Opening " + FileNameOf(path), file.llBytes);
    auto image = MakeImage(file.eType);
    if (!image) {
        error = FileNameOf(path) + " could not be opened.";
        return nullptr;
    }
    // A refusal shows the library's own box, and needs no second one.
    if (image->OpenBMPFile(path.c_str()) < 0) return nullptr;
    if (file.bOwnColours && !(image = InColours(*image, file.stColours)))
        error = "There is not enough memory for " + FileNameOf(path) + ".";
    if (image) image->SetName(FileTitleOf(path).c_str());
    return image;
}

bool SavePicture(CcImage& image, const std::string& path, std::string& error) {
    const SaveFormat* format = SaveFormatOf(path);
    if (!format) {
        error = "Pictures are written as .bmp, .png, .tif and .jpg files; " + FileNameOf(path) +
                " has none of these extensions.";
        return false;
    }
    const Busy busy("Saving " + FileNameOf(path), SampleBytes(image));
    DrawPlainly(image);
    if (format->isBmp)
        return ImageClassOf(image).isWide ? SaveWideBmp(image, path, error) : SaveBmp(image, path, error);
    if (!HoldsValuesOf(format->other, ImageClassOf(image))) {
        error = Format(
            "Files with the extension %s cannot hold the values of a %s picture.\n\nSave it as .bmp, with its "
            "samples beside it, or convert it first (Image > Convert To).",
            format->extension, ImageClassOf(image).label);
        return false;
    }
    const auto write = [&](const std::string& newPath) { return EncodePicture(image, format->other, newPath); };
    // How small the pixels become is known only afterwards.
    return SaveWhole(pictureName, path, 0, write, error);
}

bool KeepsWholePicture(CcImage& image, const std::string& path) {
    const SaveFormat* format = SaveFormatOf(path);
    const bool losesDetail = format && !format->isBmp && format->other == OtherFormat::Jpeg;
    return format && !losesDetail && image.GetImageType() != KEST_IMAGE_HSL;
}

bool IsBmpPath(const std::string& path) {
    const SaveFormat* format = SaveFormatOf(path);
    return format && format->isBmp;
}

std::vector<std::string> ForeignSamples(CcImage& image, const std::string& path) {
    std::vector<std::string> found;
    if (ImageClassOf(image).isColour || !IsBmpPath(path)) return found;
    for (const int wide : wideTypes) {
        // A picture's own samples are saved over with it.
        const bool isOwn = wide == image.GetImageType() && FileExists(path);
        if (!isOwn && FileExists(SamplesPath(path, wide))) found.push_back(SamplesPath(path, wide));
    }
    return found;
}

}  // namespace kestview
