// Raw sample files of the wide images.
#include "image/RawFiles.h"

#include <cstdio>

#include "core/Files.h"
#include "core/kernel/PathParts.h"

namespace kest {
namespace {

/// After a failed opening.
bool IsAbsent(const char* path) {
    const DWORD error = GetLastError();
    const DWORD attributes = GetFileAttributesA(path);
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ||
           (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0);
}

}  // namespace

RawPath::RawPath(const char* bmpPath, const char* extension) {
    const PathParts parts = SplitPath(bmpPath);
    std::snprintf(path, sizeof path, "%.*s%.*s%.*s%s", static_cast<int>(parts.drive.size()), parts.drive.data(),
                  static_cast<int>(parts.directory.size()), parts.directory.data(),
                  static_cast<int>(parts.name.size()), parts.name.data(), extension);
}

RawReading ReadRawFile(const char* path, const RawHeader& header, void* samples, int bytesPerSample) {
    const FileHandle file(OpenForReading(path));
    if (!file.IsOpen()) return IsAbsent(path) ? RawReading::Unfit : RawReading::Unreadable;
    LARGE_INTEGER size;
    if (!GetFileSizeEx(file, &size)) return RawReading::Unreadable;
    if (size.QuadPart < RawHeaderBytes) return RawReading::Unfit;
    std::uint8_t headerBytes[RawHeaderBytes];
    if (!ReadExactly(file, headerBytes, RawHeaderBytes)) return RawReading::Unreadable;
    if (!IsRawFile(headerBytes, size.QuadPart - RawHeaderBytes, header, bytesPerSample)) return RawReading::Unfit;
    return ReadExactly(file, samples, header.SampleBytes(bytesPerSample)) ? RawReading::Read : RawReading::Unreadable;
}

void WriteRaw(const RawHeader& header, const void* samples, int bytesPerSample, KestWholeFile& file) {
    std::uint8_t headerBytes[RawHeaderBytes];
    WriteRawHeader(headerBytes, header);
    file.Write(headerBytes, RawHeaderBytes);
    file.Write(samples, header.SampleBytes(bytesPerSample));
}

}  // namespace kest
