// Opening and saving pictures: the library's own files through the library, all others through the system's decoders.
#include "document/PictureFiles.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>

#include "document/WicPictures.h"
#include "platform/Busy.h"
#include "platform/Text.h"
#include "platform/WholeFile.h"

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
    return KEST_IMAGE_NONE;
}

/// The class that reads the file; KEST_IMAGE_NONE when the library does not.
KestImageType LibraryClassOf(const std::string& path) {
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
    if (U32(info) != infoHeaderBytes || U32(info + 16) != 0 || width < 1 || height < 1) return KEST_IMAGE_NONE;
    if (U32(header + 2) != fileBytes || fileBytes - pixelsAt != width * height * (bits / 8)) return KEST_IMAGE_NONE;
    const std::uint32_t colours = U32(info + 32);
    if (bits == 8 && pixelsAt == fileHeaderBytes + infoHeaderBytes + paletteBytes && (colours == 0 || colours == 256)) {
        for (const int wide : wideTypes)
            if (FileExists(SamplesPath(path, wide))) return static_cast<KestImageType>(wide);
        unsigned char palette[paletteBytes] = {};
        file.seekg(fileHeaderBytes + infoHeaderBytes);
        file.read(reinterpret_cast<char*>(palette), sizeof palette);
        return ClassOfColours(palette);
    }
    if (bits == 24 && pixelsAt == fileHeaderBytes + infoHeaderBytes && colours == 0) return KEST_IMAGE_RGB;
    return KEST_IMAGE_NONE;
}

}  // namespace

const char* const openFilters =
    "Pictures and sessions|*.bmp;*.png;*.jpg;*.jpeg;*.tif;*.tiff;*.gif;*.kvs|"
    "Pictures|*.bmp;*.png;*.jpg;*.jpeg;*.tif;*.tiff;*.gif|"
    "KestView sessions (*.kvs)|*.kvs|All files (*.*)|*.*|";

std::unique_ptr<CcImage> OpenPicture(const std::string& path, std::string& error) {
    if (!FileExists(path)) {
        error = "There is no file\n" + path;
        return nullptr;
    }
    const KestImageType type = LibraryClassOf(path);
    if (type == KEST_IMAGE_NONE) return DecodePicture(path, error);
    const Busy busy("Opening " + FileNameOf(path), BytesOfFile(path));
    auto image = MakeImage(type);
    if (!image) {
        error = FileNameOf(path) + " could not be opened.";
        return nullptr;
    }
    // A refusal shows the library's own box, and needs no second one.
    return image->OpenBMPFile(path.c_str()) == 0 ? std::move(image) : nullptr;
}

bool SavePicture(CcImage& image, const std::string& path, std::string& error) {
    const Busy busy("Saving " + FileNameOf(path), SampleBytes(image));
    // The colour table in the file is that of the last drawing: drawing with the gray or the file's own colours puts a
    // proper one there.
    const HDC dc = CreateCompatibleDC(nullptr);
    RECT pixel = {0, 0, 1, 1};
    image.Show(dc, &pixel, 100, 1, 0, 0, 1);
    DeleteDC(dc);
    const bool replacesPicture = FileExists(path);
    const SIZE size = SizeOf(image);
    const long long pixels = static_cast<long long>(size.cx) * size.cy;
    const ImageClass& imageClass = ImageClassOf(image);
    const bool isWritten = WriteWhole(path, [&](const std::string& newPath) {
        // The result is 0 also when the disk is full.
        if (image.SaveBMPFile(newPath.c_str()) < 0) return false;
        if (!imageClass.isWide) return BytesOfFile(newPath) > SampleBytes(image);
        const std::string newSamples = SamplesPath(newPath, imageClass.type);
        const bool isWhole = BytesOfFile(newPath) > pixels && BytesOfFile(newSamples) > SampleBytes(image);
        if (isWhole &&
            MoveFileExA(newSamples.c_str(), SamplesPath(path, imageClass.type).c_str(), MOVEFILE_REPLACE_EXISTING))
            return true;
        DeleteFileA(newSamples.c_str());
        return false;
    });
    if (!isWritten) {
        error = "The picture could not be written to\n" + path;
        return false;
    }
    // The replaced picture's samples would be taken for this one's. Other files of that name are not touched.
    for (const int wide : wideTypes)
        if (replacesPicture && wide != imageClass.type) DeleteFileA(SamplesPath(path, wide).c_str());
    return true;
}

}  // namespace kestview
