// Opening and saving pictures: the library's own files through the library, all others through the system's decoders.
#include "document/PictureFiles.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>

#include "document/WicSaving.h"
#include "platform/Busy.h"
#include "platform/Drawing.h"
#include "platform/SavedFile.h"
#include "platform/Text.h"

namespace kestview {
namespace {

constexpr int fileHeaderBytes = 14, infoHeaderBytes = 40, paletteBytes = 1024;
constexpr int wideTypes[] = {KEST_IMAGE_INT16, KEST_IMAGE_INT32, KEST_IMAGE_FLOAT};

std::uint32_t U32(const unsigned char* bytes) {
    return static_cast<std::uint32_t>(bytes[0] | bytes[1] << 8 | bytes[2] << 16) | static_cast<std::uint32_t>(bytes[3])
                                                                                       << 24;
}

std::string SamplesPath(const std::string& path, int wideType) {
    return WithoutExtension(path) + ImageClassOf(wideType)->rawSuffix;
}

/// The class whose look a file's 256 colours are: gray from 0 to 255, or a binary picture's black for 1 and white for
/// the rest. Any other colours mean something that the values alone do not say.
KestImageType ClassOfColours(const unsigned char (&palette)[paletteBytes]) {
    const auto isAllOf = [&](auto levelOf) {
        for (int value = 0; value < 256; ++value)
            for (int component = 0; component < 3; ++component)
                if (palette[4 * value + component] != levelOf(value)) return false;
        return true;
    };
    if (isAllOf([](int value) { return value; })) return KEST_IMAGE_GRAY256;
    if (isAllOf([](int value) { return value == 1 ? 0 : 255; })) return KEST_IMAGE_BINARY;
    // A gray image that was saved just after it had been shown through a table of grays has 256 indices of two bytes
    // where its colours were.
    bool isIndices = palette[0] == 0;
    for (int i = 0; i < 256; ++i)
        isIndices = isIndices && palette[2 * i + 1] == 0 && (i == 0 || palette[2 * i] >= palette[2 * i - 2]);
    return isIndices ? KEST_IMAGE_GRAY256 : KEST_IMAGE_NONE;
}

/// Whether the samples of that class beside a picture are the picture's own: their file begins with class, height and
/// width.
bool HasSamples(const std::string& path, int wideType, long long width, long long height) {
    const std::string samplesPath = SamplesPath(path, wideType);
    std::int32_t header[3] = {};
    std::ifstream(samplesPath, std::ios::binary).read(reinterpret_cast<char*>(header), sizeof header);
    const long long bytesPerSample = wideType == KEST_IMAGE_INT16 ? 2 : 4;
    return header[0] == wideType && header[1] == height && header[2] == width &&
           BytesOfFile(samplesPath) >= static_cast<long long>(sizeof header) + width * height * bytesPerSample;
}

/// The class that reads the file; KEST_IMAGE_NONE when the library does not. `ownColours`: blue, green, red and a spare
/// byte of each value, of an 8-bit file whose values mean colours.
KestImageType LibraryClassOf(const std::string& path, std::vector<unsigned char>& ownColours) {
    std::ifstream file(path, std::ios::binary);
    unsigned char header[fileHeaderBytes + infoHeaderBytes] = {};
    if (!file.read(reinterpret_cast<char*>(header), sizeof header) || header[0] != 'B' || header[1] != 'M')
        return KEST_IMAGE_NONE;
    file.seekg(0, std::ios::end);
    const auto fileBytes = static_cast<long long>(file.tellg());
    const unsigned char* info = header + fileHeaderBytes;
    const long long pixelsAt = U32(header + 10), width = static_cast<std::int32_t>(U32(info + 4)),
                    height = static_cast<std::int32_t>(U32(info + 8));
    const int bits = info[14] | info[15] << 8;
    if (U32(info) != infoHeaderBytes || U32(info + 16) != 0 || width < 1 || height < 1 || bits < 8)
        return KEST_IMAGE_NONE;
    const long long rowBytes = width * (bits / 8);
    if (U32(header + 2) != fileBytes || fileBytes < pixelsAt || (fileBytes - pixelsAt) % rowBytes != 0 ||
        (fileBytes - pixelsAt) / rowBytes != height)
        return KEST_IMAGE_NONE;
    const std::uint32_t colours = U32(info + 32);
    if (bits == 8 && pixelsAt == fileHeaderBytes + infoHeaderBytes + paletteBytes && (colours == 0 || colours == 256)) {
        for (const int wide : wideTypes)
            if (HasSamples(path, wide, width, height)) return static_cast<KestImageType>(wide);
        unsigned char palette[paletteBytes] = {};
        file.seekg(fileHeaderBytes + infoHeaderBytes);
        file.read(reinterpret_cast<char*>(palette), sizeof palette);
        const KestImageType type = ClassOfColours(palette);
        if (type == KEST_IMAGE_NONE) ownColours.assign(std::begin(palette), std::end(palette));
        return type == KEST_IMAGE_NONE ? KEST_IMAGE_GRAY256 : type;
    }
    if (bits == 24 && pixelsAt == fileHeaderBytes + infoHeaderBytes && colours == 0) return KEST_IMAGE_RGB;
    return KEST_IMAGE_NONE;
}

/// How much memory the pixels of a file take that the library reads, and their colours beside them.
double BytesToOpen(const std::string& path, const ImageClass& imageClass, bool hasOwnColours) {
    const long long bytes = (hasOwnColours ? 4 : 1) * BytesOfFile(path);
    return static_cast<double>(imageClass.isWide ? bytes + BytesOfFile(SamplesPath(path, imageClass.type)) : bytes);
}

/// The colours that the file means by its values.
std::unique_ptr<CcImage> InColours(CcImage& values, const std::vector<unsigned char>& colours) {
    const SIZE size = SizeOf(values);
    auto coloured = MakeImage(KEST_IMAGE_RGB, size.cy, size.cx, values.GetName());
    if (!coloured) return nullptr;
    const auto* from = static_cast<const unsigned char*>(values.GetBitMapImageData());
    auto* to = static_cast<unsigned char*>(coloured->GetBitMapImageData());
    for (long long i = 0; i < static_cast<long long>(size.cx) * size.cy; ++i)
        to = std::copy_n(&colours[4 * static_cast<std::size_t>(*from++)], 3, to);
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

std::unique_ptr<CcImage> OpenPicture(const std::string& path, std::string& error, std::string& warning,
                                     const PictureQuestions& ask) {
    if (!FileExists(path)) {
        error = "There is no file\n" + path;
        return nullptr;
    }
    // The library takes paths of that many bytes; the decoders take any.
    std::vector<unsigned char> ownColours;
    const KestImageType type = path.size() < KEST_NAME_SIZE ? LibraryClassOf(path, ownColours) : KEST_IMAGE_NONE;
    if (type == KEST_IMAGE_NONE) return DecodePicture(path, error, warning, ask);
    if (!IsWanted(BytesToOpen(path, *ImageClassOf(type), !ownColours.empty()), path, ask, error)) return nullptr;
    if (!ImageClassOf(type)->isWide)
        for (const int wide : wideTypes)
            if (FileExists(SamplesPath(path, wide)))
                warning = "The samples in " + FileNameOf(SamplesPath(path, wide)) +
                          " are not this picture's, or are damaged.\n\nThe picture was opened without them.";
    const Busy busy("Opening " + FileNameOf(path), BytesOfFile(path));
    auto image = MakeImage(type);
    if (!image) {
        error = FileNameOf(path) + " could not be opened.";
        return nullptr;
    }
    // A refusal shows the library's own box, and needs no second one.
    if (image->OpenBMPFile(path.c_str()) < 0) return nullptr;
    if (!ownColours.empty() && !(image = InColours(*image, ownColours)))
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
