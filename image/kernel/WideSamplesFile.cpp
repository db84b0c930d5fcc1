// Raw sample files.
#include "image/kernel/WideSamplesFile.h"

#include <limits>

#include "core/kernel/ByteReader.h"

namespace kest {

Size64 RawHeader::SampleBytes(int bytesPerSample) const {
    const Size64 count = Product(height, width);
    if (height < 0 || width < 0 || count > LargestBlockBytes) return std::numeric_limits<Size64>::max();
    return count * bytesPerSample;
}

void WriteRawHeader(std::span<std::uint8_t, RawHeaderBytes> bytes, const RawHeader& header) {
    ByteWriter writer(bytes);
    for (const std::int32_t field : {header.code, header.height, header.width}) writer.Write(field);
}

bool IsRawFile(std::span<const std::uint8_t, RawHeaderBytes> bytes, Size64 bytesBehind, const RawHeader& expected,
               int bytesPerSample) {
    ByteReader reader(bytes);
    RawHeader header;
    return reader.Read(header.code) && reader.Read(header.height) && reader.Read(header.width) && header == expected &&
           header.SampleBytes(bytesPerSample) <= bytesBehind;
}

}  // namespace kest
