// What stands in front of a BMP file's pixels.
#include "image/kernel/BmpFront.h"

#include <limits>

#include "core/kernel/ByteReader.h"

namespace kest {
namespace {

constexpr int largestSide = std::numeric_limits<std::uint16_t>::max();

/// The sizes as the info header has them; the layout has their low 16 bits.
struct StatedSize {
    std::int32_t width = 0, height = 0;

    explicit StatedSize(std::span<const std::uint8_t> dib) {
        ByteReader reader(dib);
        reader.Skip(4);
        reader.Read(width);
        reader.Read(height);
    }
};

bool IsPadded(const BmpFileHeader& header, const DibLayout& layout) {
    const Size64 rowBytes = Size64{layout.width} * layout.bitCount / 8, paddedRowBytes = (rowBytes + 3) / 4 * 4;
    return paddedRowBytes != rowBytes &&
           paddedRowBytes * layout.height <= Size64{header.fileBytes} - header.pixelOffset;
}

/// Of a file of a form and depth that a reader has.
KestPictureReason JudgeSizes(const BmpFileHeader& header, const StatedSize& stated, const DibLayout& layout,
                             bool isAccepted) {
    if (stated.height < 0) return KEST_PICTURE_TOP_DOWN;
    if (stated.width > largestSide || stated.height > largestSide) return KEST_PICTURE_TOO_LARGE;
    if (stated.width < 1 || stated.height < 1) return KEST_PICTURE_WRONG_SIZES;
    if (!isAccepted) return IsPadded(header, layout) ? KEST_PICTURE_PADDED : KEST_PICTURE_WRONG_SIZES;
    if (!HasUsualColours(layout)) return KEST_PICTURE_OTHER_COLOURS;
    const bool isTogether = header.pixelOffset == BmpFileHeaderBytes + layout.pixelOffset;
    return isTogether ? KEST_PICTURE_OPENS : KEST_PICTURE_PIXELS_APART;
}

}  // namespace

KestPictureReason JudgeBmpFront(std::span<const std::uint8_t> front, Size64 fileBytes, DibLayout& layout) {
    if (front.size() < 2 || front[0] != 'B' || front[1] != 'M') return KEST_PICTURE_NOT_BMP;
    BmpFileHeader header;
    if (front.size() < BmpFileHeaderBytes || !ReadBmpFileHeader(front.first<BmpFileHeaderBytes>(), header))
        return KEST_PICTURE_CUT_SHORT;
    if (header.DibBytes() > LargestBlockBytes) return KEST_PICTURE_TOO_LARGE;
    if (header.fileBytes > fileBytes) return KEST_PICTURE_CUT_SHORT;
    if (header.DibBytes() < DibHeaderBytes) return KEST_PICTURE_WRONG_SIZES;

    const auto dib = front.subspan(BmpFileHeaderBytes);
    const BmpVerdict verdict = JudgeBmp(header, dib, AnyBmpDepth, layout);
    switch (verdict) {
        case BmpVerdict::WrongHeaderSize: return KEST_PICTURE_OTHER_HEADER;
        case BmpVerdict::Compressed: return KEST_PICTURE_COMPRESSED;
        case BmpVerdict::WrongDepth: return KEST_PICTURE_OTHER_DEPTH;
        case BmpVerdict::Accepted:
        case BmpVerdict::WrongSize: break;
    }
    return JudgeSizes(header, StatedSize(dib), layout, verdict == BmpVerdict::Accepted);
}

}  // namespace kest
