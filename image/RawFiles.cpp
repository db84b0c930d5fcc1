// Raw sample files of the wide images.
#include "image/RawFiles.h"

#include <cstdio>

#include "KestTypes.h"
#include "core/Files.h"
#include "core/kernel/PathParts.h"

namespace kest {
namespace {

/// Drive, directory and name of a BMP file, with another extension.
class RawPath {
public:
    RawPath(const char* bmpPath, const char* extension) {
        const PathParts parts = SplitPath(bmpPath);
        std::snprintf(path, sizeof path, "%.*s%.*s%.*s%s", static_cast<int>(parts.drive.size()), parts.drive.data(),
                      static_cast<int>(parts.directory.size()), parts.directory.data(),
                      static_cast<int>(parts.name.size()), parts.name.data(), extension);
    }
    operator const char*() const { return path; }

private:
    char path[KEST_NAME_SIZE + 8];
};

}  // namespace

bool ReadRawFile(const char* bmpPath, const char* extension, const RawHeader& header, void* samples,
                 int bytesPerSample) {
    const FileHandle file(OpenForReading(RawPath(bmpPath, extension)));
    std::uint8_t headerBytes[RawHeaderBytes];
    return file.IsOpen() && ReadExactly(file, headerBytes, RawHeaderBytes) &&
           IsRawFile(headerBytes, BytesLeft(file), header, bytesPerSample) &&
           ReadExactly(file, samples, header.SampleBytes(bytesPerSample));
}

bool WriteRawFile(const char* bmpPath, const char* extension, const RawHeader& header, const void* samples,
                  int bytesPerSample) {
    const FileHandle file(OpenForWriting(RawPath(bmpPath, extension)));
    if (!file.IsOpen()) return false;
    std::uint8_t headerBytes[RawHeaderBytes];
    WriteRawHeader(headerBytes, header);
    WriteExactly(file, headerBytes, RawHeaderBytes);
    WriteExactly(file, samples, header.SampleBytes(bytesPerSample));
    FinishWriting(file);
    return true;
}

}  // namespace kest
