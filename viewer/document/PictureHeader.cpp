// What a picture file tells in front of its pixels.
#include "document/PictureHeader.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>

namespace kestview {
namespace {

/// More parts than the files of cameras and programs have; a hostile file ends here.
constexpr int mostParts = 20000;
constexpr std::uint32_t mostTags = 4096;

/// The numbers in a file. Beyond its end they are 0, and the end is noted. Files are made of parts of a few bytes by
/// the million, so the bytes around the last place are kept.
class FileNumbers {
public:
    explicit FileNumbers(const std::string& path) : file(path, std::ios::binary) {}

    bool IsPastEnd() const { return isPastEnd; }
    /// What was looked for in vain is not missed.
    void ForgetEnd() { isPastEnd = false; }
    bool isBigEndian = true;

    std::uint32_t U8(std::uint64_t at) { return Number(at, 1); }
    std::uint32_t U16(std::uint64_t at) { return Number(at, 2); }
    std::uint32_t U32(std::uint64_t at) { return Number(at, 4); }

    /// Whether these bytes stand there.
    template <std::size_t size>
    bool Has(std::uint64_t at, const char (&text)[size]) {
        char bytes[size - 1] = {};
        return Read(at, bytes, size - 1) && std::memcmp(bytes, text, size - 1) == 0;
    }

private:
    bool Read(std::uint64_t at, char* bytes, std::size_t count) {
        if (at < keptAt || at + count > keptAt + keptCount) Keep(at);
        const bool isRead = count <= keptCount;
        if (isRead) std::memcpy(bytes, kept + (at - keptAt), count);
        isPastEnd = isPastEnd || !isRead;
        return isRead;
    }
    void Keep(std::uint64_t at) {
        file.clear();
        keptAt = at;
        keptCount = 0;
        if (!file.seekg(static_cast<std::streamoff>(at))) return;
        file.read(kept, sizeof kept);
        keptCount = static_cast<std::size_t>(file.gcount());
    }
    std::uint32_t Number(std::uint64_t at, std::size_t count) {
        char bytes[4] = {};
        if (!Read(at, bytes, count)) return 0;
        std::uint32_t number = 0;
        for (std::size_t i = 0; i < count; ++i)
            number = number << 8 | static_cast<unsigned char>(bytes[isBigEndian ? i : count - 1 - i]);
        return number;
    }

    std::ifstream file;
    bool isPastEnd = false;
    char kept[8192];
    std::uint64_t keptAt = 0;
    std::size_t keptCount = 0;
};

double PixelBytes(double width, double height, int bytesPerPixel) { return width * height * bytesPerPixel; }

/// As they are decoded: palettes and fewer than 8 bits become colours of 4 bytes.
int BytesPerPixel(std::uint32_t samples, std::uint32_t bits) {
    constexpr std::uint32_t mostSamples = 16, mostBits = 64;
    // Two samples are gray and an opacity.
    if (bits < 8 || bits > mostBits || samples < 1 || samples == 2 || samples > mostSamples) return 4;
    return static_cast<int>(samples * bits / 8);
}

/// A directory of tags, in a TIFF file or in what cameras add to other files. Places in it count from `start`.
void ReadTags(FileNumbers& file, std::uint64_t start, unsigned page, PictureHeader& header) {
    constexpr std::uint32_t shortType = 3, entryBytes = 12;
    if (file.Has(start, "II*\0"))
        file.isBigEndian = false;
    else if (!file.Has(start, "MM\0*"))
        return;
    std::uint64_t directory = file.U32(start + 4);
    for (unsigned i = 0; i < page && directory != 0; ++i)
        directory = file.U32(start + directory + 2 + entryBytes * file.U16(start + directory));
    if (directory == 0 || file.IsPastEnd()) return;

    std::uint32_t width = 0, height = 0, bits = 1, samples = 1;
    const std::uint32_t count = std::min(file.U16(start + directory), mostTags);
    for (std::uint32_t i = 0; i < count && !file.IsPastEnd(); ++i) {
        const std::uint64_t entry = start + directory + 2 + entryBytes * i;
        const bool isShort = file.U16(entry + 2) == shortType;
        const auto value = [&] { return isShort ? file.U16(entry + 8) : file.U32(entry + 8); };
        switch (file.U16(entry)) {
            case 256: width = value(); break;
            case 257: height = value(); break;
            case 258:  // up to two stand in the entry, more elsewhere
                bits = isShort && file.U32(entry + 4) > 2 ? file.U16(start + file.U32(entry + 8)) : value();
                break;
            case 274:
                if (const std::uint32_t orientation = value(); orientation >= 1 && orientation <= 8)
                    header.orientation = static_cast<int>(orientation);
                break;
            case 277: samples = value(); break;
            default: break;
        }
    }
    header.pixelBytes = PixelBytes(width, height, BytesPerPixel(samples, bits));
}

/// The orientation that a camera's tags tell; their sizes are often those of a small preview.
void ReadCameraTags(FileNumbers& file, std::uint64_t start, PictureHeader& header) {
    PictureHeader tags;
    ReadTags(file, start, 0, tags);
    header.orientation = tags.orientation;
    file.isBigEndian = true;
    file.ForgetEnd();
}

constexpr char pngSignature[] = "\x89PNG\r\n\x1A\n";

void ReadPng(FileNumbers& file, std::uint64_t start, PictureHeader& header) {
    constexpr std::uint32_t samplesOfType[] = {1, 0, 3, 0, 2, 0, 4};  // 3, a palette, is decoded into colours
    const std::uint32_t type = file.U8(start + 25);
    const std::uint32_t samples = type < std::size(samplesOfType) ? samplesOfType[type] : 0;
    header.pixelBytes =
        PixelBytes(file.U32(start + 16), file.U32(start + 20), BytesPerPixel(samples, file.U8(start + 24)));
    std::uint64_t chunk = start + 8;
    for (int i = 0; i < mostParts && !file.IsPastEnd(); ++i) {
        constexpr std::uint32_t exif = 0x65584966;  // "eXIf"
        if (file.U32(chunk + 4) == exif) return ReadCameraTags(file, chunk + 8, header);
        chunk += 12ULL + file.U32(chunk);
    }
}

/// Decoders pass over bytes that belong to no segment, and so does this. The first camera tags count.
void ReadJpeg(FileNumbers& file, PictureHeader& header) {
    constexpr std::uint32_t startOfScan = 0xDA, endOfImage = 0xD9, application1 = 0xE1;
    bool hasTags = false;
    // Each turn goes on by a byte at least, so the file's end ends this.
    for (std::uint64_t at = 2; !file.IsPastEnd();) {
        const std::uint32_t marker = file.U8(at) == 0xFF ? file.U8(at + 1) : 0;
        if (marker == 0 || marker == 0xFF) {
            ++at;
            continue;
        }
        if (marker == startOfScan || marker == endOfImage) return;
        at += 2;
        // The restart markers and one more have nothing behind them.
        if ((marker >= 0xD0 && marker <= 0xD7) || marker == 0x01) continue;
        // The frame is told by any of the markers C0 to CF but three.
        if (marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC) {
            header.pixelBytes = PixelBytes(file.U16(at + 5), file.U16(at + 3), BytesPerPixel(file.U8(at + 7), 8));
        }
        if (marker == application1 && !hasTags && file.Has(at + 2, "Exif\0\0")) {
            hasTags = true;
            ReadCameraTags(file, at + 8, header);
        }
        at += file.U16(at);
    }
}

/// Decoders hold the palette indices of all pictures at once, and one of them in colours: count the largest. The screen
/// that the file begins with says nothing about them.
void ReadGif(FileNumbers& file, PictureHeader& header) {
    constexpr std::uint32_t extension = 0x21, picture = 0x2C;
    file.isBigEndian = false;
    double indices = 0, largest = 0;
    const auto tableBytes = [](std::uint32_t flags) { return flags & 0x80 ? 3ULL << ((flags & 7) + 1) : 0ULL; };
    for (std::uint64_t at = 13 + tableBytes(file.U8(10)); !file.IsPastEnd(); ++at) {
        if (file.U8(at) == extension) {
            at += 2;
        } else if (file.U8(at) == picture) {
            const double pixels = PixelBytes(file.U16(at + 5), file.U16(at + 7), 1);
            indices += pixels;
            largest = std::max(largest, pixels);
            header.pixelBytes = indices + 4 * largest;
            at += 11 + tableBytes(file.U8(at + 9));
        } else {
            return;
        }
        while (const std::uint32_t bytes = file.U8(at)) at += 1 + bytes;
    }
}

/// The header of a DIB. Those of icons tell twice their height, and are always decoded into colours with an opacity.
void ReadDib(FileNumbers& file, std::uint64_t start, bool isIcon, PictureHeader& header) {
    constexpr std::uint32_t shortHeader = 12, leastHeader = 40;
    file.isBigEndian = false;
    const bool isShort = file.U32(start) == shortHeader;
    if (!isShort && file.U32(start) < leastHeader) return;
    const auto side = [&](std::uint64_t at) {
        return std::abs(static_cast<double>(static_cast<std::int32_t>(file.U32(start + at))));
    };
    const double width = isShort ? file.U16(start + 4) : side(4), height = isShort ? file.U16(start + 6) : side(8);
    const std::uint32_t bits = file.U16(start + (isShort ? 10 : 14));
    header.pixelBytes =
        isIcon ? PixelBytes(width, height / 2, 4) : PixelBytes(width, height, bits > 8 ? BytesPerPixel(1, bits) : 4);
}

/// Icons hold whole PNG files, and DIBs.
void ReadIcon(FileNumbers& file, unsigned page, PictureHeader& header) {
    file.isBigEndian = false;
    const std::uint64_t start = page < file.U16(4) ? file.U32(6 + 16ULL * page + 12) : 0;
    file.isBigEndian = true;
    if (start == 0) return;
    if (file.Has(start, pngSignature))
        ReadPng(file, start, header);
    else
        ReadDib(file, start, true, header);
}

}  // namespace

PictureHeader ReadPictureHeader(const std::string& path, unsigned page) {
    FileNumbers file(path);
    PictureHeader header;
    if (file.Has(0, pngSignature)) {
        ReadPng(file, 0, header);
    } else if (file.Has(0, "\xFF\xD8")) {
        ReadJpeg(file, header);
    } else if (file.Has(0, "GIF8")) {
        ReadGif(file, header);
    } else if (file.Has(0, "BM")) {
        ReadDib(file, 14, false, header);
    } else if (file.Has(0, "\0\0\1\0")) {
        ReadIcon(file, page, header);
    } else {
        ReadTags(file, 0, page, header);
    }
    return header;
}

}  // namespace kestview
