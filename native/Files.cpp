// Whole files and files as streams, over the system's standard library.
#include "core/Files.h"

#include <fcntl.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

namespace kest {
namespace {

std::FILE* StreamOf(HANDLE file) { return static_cast<std::FILE*>(file); }

HANDLE Unbuffered(std::FILE* stream) {
    if (!stream) return INVALID_HANDLE_VALUE;
    // What is written is there at once, for whoever has the file open too.
    std::setvbuf(stream, nullptr, _IONBF, 0);
    return stream;
}

/// Reading and writing take turns only across a setting of the position.
std::FILE* Turn(HANDLE file) {
    std::clearerr(StreamOf(file));
    std::fseek(StreamOf(file), 0, SEEK_CUR);
    return StreamOf(file);
}

}  // namespace

void CloseFile(HANDLE file) {
    if (file != INVALID_HANDLE_VALUE) std::fclose(StreamOf(file));
}

HANDLE OpenForReading(const char* path) {
    return Unbuffered(path && IsPlainFile(path) ? std::fopen(path, "rb") : nullptr);
}

HANDLE OpenAsStream(const char* path, DWORD access) {
    const bool reads = (access & GENERIC_READ) != 0, writes = (access & GENERIC_WRITE) != 0;
    const int mode = !writes ? O_RDONLY : reads ? O_RDWR : O_WRONLY;
    constexpr int anyoneMayReadAndWrite = 0666;
    const int file = open(path, mode | O_CREAT, anyoneMayReadAndWrite);
    return file < 0 ? INVALID_HANDLE_VALUE : Unbuffered(fdopen(file, !writes ? "rb" : reads ? "r+b" : "wb"));
}

bool MayBeThere(const char* path) {
    const int error = errno;
    return IsPlainFile(path) || error == EACCES || error == EMFILE || error == ENOMEM || error == EIO;
}

bool IsPlainFile(const char* path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

bool IsOnDisk(HANDLE file) { return std::ftell(StreamOf(file)) >= 0; }

long ReadSome(HANDLE file, void* bytes, long count) {
    std::FILE* const stream = Turn(file);
    const std::size_t read = std::fread(bytes, 1, static_cast<std::size_t>(count), stream);
    return std::ferror(stream) ? -1 : static_cast<long>(read);
}

bool ReadExactly(HANDLE file, void* bytes, Size64 count) {
    const auto wanted = static_cast<std::size_t>(count);
    return count >= 0 && count <= LargestBlockBytes && std::fread(bytes, 1, wanted, Turn(file)) == wanted;
}

bool WriteExactly(HANDLE file, const void* bytes, Size64 count) {
    const auto wanted = static_cast<std::size_t>(count);
    return count >= 0 && count <= LargestBlockBytes && std::fwrite(bytes, 1, wanted, Turn(file)) == wanted;
}

Size64 SizeOfFile(HANDLE file) {
    const Size64 position = PositionIn(file);
    if (position < 0 || std::fseek(StreamOf(file), 0, SEEK_END) != 0) return -1;
    const Size64 size = PositionIn(file);
    std::fseek(StreamOf(file), static_cast<long>(position), SEEK_SET);
    return size;
}

Size64 BytesLeft(HANDLE file) {
    const Size64 size = SizeOfFile(file);
    return size < 0 ? 0 : size - PositionIn(file);
}

Size64 PositionIn(HANDLE file) { return std::ftell(StreamOf(file)); }
bool MoveToStart(HANDLE file) { return std::fseek(StreamOf(file), 0, SEEK_SET) == 0; }
bool MoveBy(HANDLE file, Size64 bytes) { return std::fseek(StreamOf(file), static_cast<long>(bytes), SEEK_CUR) == 0; }

}  // namespace kest
