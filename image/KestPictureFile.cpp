// Which image class opens a picture file.
#include "KestPictureFile.h"

#include <algorithm>
#include <cstring>

#include "core/Files.h"
#include "core/kernel/TextField.h"
#include "image/RawFiles.h"
#include "image/kernel/BmpFront.h"

namespace kest {
namespace {

/// By KestPictureReason.
constexpr const char* reasons[] = {
    "",
    "It cannot be opened or read.",
    "It is no BMP file.",
    "It has fewer bytes than its header says.",
    "It has more than 65535 columns or rows, or more bytes than fit into memory.",
    "Its header has not the form of 40 bytes.",
    "Its pixels are compressed or have masks.",
    "It has neither 8 nor 24 bits a pixel.",
    "Its top row comes first.",
    "Its rows are padded to multiples of four bytes.",
    "Its sizes contradict each other, or it has no pixels.",
    "It has other than 256 colours with 8 bits a pixel, or any with 24.",
    "Its pixels do not follow the header and its colours at once.",
    "The samples beside it cannot be opened or read.",
};
static_assert(std::size(reasons) == KEST_PICTURE_SAMPLES_NOT_READ + 1);

using Front = std::uint8_t[BmpFrontBytes];

KestPictureReason JudgeFront(const char* path, Front& front, DibLayout& layout) {
    const FileHandle file(OpenForReading(path));
    const Size64 size = file.IsOpen() ? SizeOfFile(file) : -1;
    if (size < 0) return KEST_PICTURE_NOT_READ;
    const Size64 there = std::min<Size64>(size, BmpFrontBytes);
    if (!ReadExactly(file, front, there)) return KEST_PICTURE_NOT_READ;
    return JudgeBmpFront({front, static_cast<std::size_t>(there)}, size, layout);
}

/// The class of an 8-bit file by the samples beside it.
KestPictureReason JudgeSamples(const char* path, KestPictureFile& judged) {
    for (const RawKind& kind : {Int16Raw, Int32Raw, FloatRaw}) {
        const RawHeader header = {kind.code, judged.iHeight, judged.iWidth};
        const RawReading reading = ReadRawFile(RawPath(path, kind.extension), header, nullptr, kind.bytesPerSample);
        if (reading == RawReading::Unreadable) return KEST_PICTURE_SAMPLES_NOT_READ;
        if (reading == RawReading::Unfit) continue;
        judged.eType = kind.code;
        judged.llBytes += header.SampleBytes(kind.bytesPerSample);
        break;
    }
    return KEST_PICTURE_OPENS;
}

void JudgeColours(std::span<const std::uint8_t, ColourTableBytes> table, KestPictureFile& judged) {
    std::memcpy(judged.stColours, table.data(), table.size());
    if (judged.eType != KEST_IMAGE_NONE) return;
    const ColourMeaning meaning = MeaningOfColours(table);
    judged.eType = meaning == ColourMeaning::TwoLevels ? KEST_IMAGE_BINARY : KEST_IMAGE_GRAY256;
    judged.bOwnColours = meaning == ColourMeaning::Colours;
}

KestPictureReason Judge(const char* path, KestPictureFile& judged) {
    std::uint8_t front[BmpFrontBytes];
    DibLayout layout;
    if (!path || FieldLength(path, KEST_NAME_SIZE) == KEST_NAME_SIZE) return KEST_PICTURE_NOT_READ;
    KestPictureReason reason = JudgeFront(path, front, layout);
    if (reason != KEST_PICTURE_OPENS) return reason;
    judged.iHeight = layout.height;
    judged.iWidth = layout.width;
    judged.llBytes = layout.PixelCount() * (layout.bitCount / 8);
    if (layout.bitCount == 24) {
        judged.eType = KEST_IMAGE_RGB;
        return reason;
    }
    reason = JudgeSamples(path, judged);
    if (reason == KEST_PICTURE_OPENS) JudgeColours(std::span(front).last<ColourTableBytes>(), judged);
    return reason;
}

}  // namespace
}  // namespace kest

int KestJudgePictureFile(const char* pszPath, KestPictureFile* pFile) {
    if (!pFile) return KEST_FAILED;
    *pFile = {};
    const KestPictureReason reason = kest::Judge(pszPath, *pFile);
    if (reason != KEST_PICTURE_OPENS) *pFile = {};
    pFile->eReason = reason;
    pFile->pszReason = kest::reasons[reason];
    return reason == KEST_PICTURE_OPENS ? KEST_OK : KEST_FAILED;
}
