// Raw sample files of the wide images.
#include "image/RawFiles.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "core/Files.h"
#include "core/kernel/PathParts.h"

namespace kest {
namespace {

/// After a failed opening: whether there is a file, or may be one. At a path that cannot be there is none.
bool MayBeThere(const char* path) {
    const DWORD error = GetLastError();
    const DWORD attributes = GetFileAttributesA(path);
    if (attributes != INVALID_FILE_ATTRIBUTES) return (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    constexpr DWORD refusals[] = {ERROR_ACCESS_DENIED,       ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION,
                                  ERROR_TOO_MANY_OPEN_FILES, ERROR_NOT_ENOUGH_MEMORY, ERROR_NO_SYSTEM_RESOURCES,
                                  ERROR_NOT_READY,           ERROR_READ_FAULT,        ERROR_CRC};
    return std::find(std::begin(refusals), std::end(refusals), error) != std::end(refusals);
}

}  // namespace

RawPath::RawPath(const char* bmpPath, const char* extension) {
    const PathParts parts = SplitPath(bmpPath);
    std::snprintf(path, sizeof path, "%.*s%.*s%.*s%s", static_cast<int>(parts.drive.size()), parts.drive.data(),
                  static_cast<int>(parts.directory.size()), parts.directory.data(), static_cast<int>(parts.name.size()),
                  parts.name.data(), extension);
}

RawReading ReadRawFile(const char* path, const RawHeader& header, void* samples, int bytesPerSample) {
    const FileHandle file(OpenForReading(path));
    if (!file.IsOpen()) return MayBeThere(path) ? RawReading::Unreadable : RawReading::Unfit;
    LARGE_INTEGER size;
    if (!GetFileSizeEx(file, &size)) return RawReading::Unreadable;
    if (size.QuadPart < RawHeaderBytes) return RawReading::Unfit;
    std::uint8_t headerBytes[RawHeaderBytes];
    if (!ReadExactly(file, headerBytes, RawHeaderBytes)) return RawReading::Unreadable;
    if (!IsRawFile(headerBytes, size.QuadPart - RawHeaderBytes, header, bytesPerSample)) return RawReading::Unfit;
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
