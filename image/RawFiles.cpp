// Raw sample files of the wide images.
#include "image/RawFiles.h"

#include <cstdio>

#include "core/Files.h"
#include "core/kernel/PathParts.h"

namespace kest {

RawPath::RawPath(const char* bmpPath, const char* extension) {
    const PathParts parts = SplitPath(bmpPath);
    std::snprintf(path, sizeof path, "%.*s%.*s%.*s%s", static_cast<int>(parts.drive.size()), parts.drive.data(),
                  static_cast<int>(parts.directory.size()), parts.directory.data(), static_cast<int>(parts.name.size()),
                  parts.name.data(), extension);
}

RawReading ReadRawFile(const char* path, const RawHeader& header, void* samples, int bytesPerSample) {
    const FileHandle file(OpenForReading(path));
    if (!file.IsOpen()) return MayBeThere(path) ? RawReading::Unreadable : RawReading::Unfit;
    const Size64 size = SizeOfFile(file);
    if (size < 0) return RawReading::Unreadable;
    if (size < RawHeaderBytes) return RawReading::Unfit;
    std::uint8_t headerBytes[RawHeaderBytes];
    if (!ReadExactly(file, headerBytes, RawHeaderBytes)) return RawReading::Unreadable;
    if (!IsRawFile(headerBytes, size - RawHeaderBytes, header, bytesPerSample)) return RawReading::Unfit;
    if (!samples) return RawReading::Read;
    return ReadExactly(file, samples, header.SampleBytes(bytesPerSample)) ? RawReading::Read : RawReading::Unreadable;
}

void WriteRaw(const RawHeader& header, const void* samples, int bytesPerSample, KestWholeFile& file) {
    std::uint8_t headerBytes[RawHeaderBytes];
    WriteRawHeader(headerBytes, header);
    file.Write(headerBytes, RawHeaderBytes);
    file.Write(samples, header.SampleBytes(bytesPerSample));
}

}  // namespace kest
