// Opening and saving pictures: the library's own files through the library, all others through the system's decoders.
#include "document/PictureFiles.h"

#include <cstdint>
#include <cstring>
#include <fstream>

#include "document/WicPictures.h"
#include "platform/Drawing.h"
#include "platform/Text.h"

namespace kestview {
namespace {

constexpr int fileHeaderBytes = 14, infoHeaderBytes = 40, paletteBytes = 1024;

std::uint32_t U32(const unsigned char* bytes) {
    return static_cast<std::uint32_t>(bytes[0] | bytes[1] << 8 | bytes[2] << 16) | static_cast<std::uint32_t>(bytes[3])
                                                                                       << 24;
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
    if (bits == 8 && pixelsAt == fileHeaderBytes + infoHeaderBytes + paletteBytes && (colours == 0 || colours == 256))
        return KEST_IMAGE_GRAY256;
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
    int type = LibraryClassOf(path);
    if (type == KEST_IMAGE_NONE) return DecodePicture(path, error);
    if (type == KEST_IMAGE_GRAY256)
        for (const int wide : {KEST_IMAGE_INT16, KEST_IMAGE_INT32, KEST_IMAGE_FLOAT})
            if (FileExists(WithoutExtension(path) + ImageClassOf(wide)->rawSuffix)) type = wide;
    auto image = MakeImage(type);
    if (!image) {
        error = FileNameOf(path) + " could not be opened.";
        return nullptr;
    }
    // A refusal shows the library's own box, and needs no second one.
    return image->OpenBMPFile(path.c_str()) == 0 ? std::move(image) : nullptr;
}

bool SavePicture(CcImage& image, const std::string& path, std::string& error) {
    // The colour table in the file is that of the last drawing: drawing with the gray or the file's own colours puts a
    // proper one there.
    const HDC dc = CreateCompatibleDC(nullptr);
    RECT pixel = {0, 0, 1, 1};
    image.Show(dc, &pixel, 100, 1, 0, 0, 1);
    DeleteDC(dc);
    const bool replacesPicture = DeleteFileA(path.c_str());
    // The result is 0 also when the file cannot be created.
    if (image.SaveBMPFile(path.c_str()) == 0 && FileExists(path)) {
        // The replaced picture's samples would be taken for this one's. Other files of that name are not touched.
        for (const int wide : {KEST_IMAGE_INT16, KEST_IMAGE_INT32, KEST_IMAGE_FLOAT})
            if (replacesPicture && wide != image.GetImageType())
                DeleteFileA((WithoutExtension(path) + ImageClassOf(wide)->rawSuffix).c_str());
        return true;
    }
    error = "The picture could not be written to\n" + path;
    return false;
}

}  // namespace kestview
