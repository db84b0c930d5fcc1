// Whole files and files as streams.
#include "core/Files.h"

#include <algorithm>
#include <iterator>

namespace kest {

void CloseFile(HANDLE file) {
    if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
}

HANDLE OpenForReading(const char* path) {
    return CreateFileA(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

HANDLE OpenAsStream(const char* path, DWORD access) {
    return CreateFileA(path, access, 0, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

bool MayBeThere(const char* path) {
    const DWORD error = GetLastError();
    const DWORD attributes = GetFileAttributesA(path);
    if (attributes != INVALID_FILE_ATTRIBUTES) return (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    constexpr DWORD refusals[] = {ERROR_ACCESS_DENIED,       ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION,
                                  ERROR_TOO_MANY_OPEN_FILES, ERROR_NOT_ENOUGH_MEMORY, ERROR_NO_SYSTEM_RESOURCES,
                                  ERROR_NOT_READY,           ERROR_READ_FAULT,        ERROR_CRC};
    return std::find(std::begin(refusals), std::end(refusals), error) != std::end(refusals);
}

bool IsPlainFile(const char* path) {
    const DWORD attributes = GetFileAttributesA(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool IsOnDisk(HANDLE file) { return GetFileType(file) == FILE_TYPE_DISK; }

long ReadSome(HANDLE file, void* bytes, long count) {
    DWORD read = 0;
    return ReadFile(file, bytes, static_cast<DWORD>(count), &read, nullptr) ? static_cast<long>(read) : -1;
}

bool ReadExactly(HANDLE file, void* bytes, Size64 count) {
    DWORD read = 0;
    return count >= 0 && count <= LargestBlockBytes &&
           ReadFile(file, bytes, static_cast<DWORD>(count), &read, nullptr) && read == static_cast<DWORD>(count);
}

bool WriteExactly(HANDLE file, const void* bytes, Size64 count) {
    DWORD written = 0;
    return count >= 0 && count <= LargestBlockBytes &&
           WriteFile(file, bytes, static_cast<DWORD>(count), &written, nullptr) && written == static_cast<DWORD>(count);
}

Size64 SizeOfFile(HANDLE file) {
    LARGE_INTEGER size;
    return GetFileSizeEx(file, &size) ? size.QuadPart : -1;
}

Size64 BytesLeft(HANDLE file) {
    LARGE_INTEGER size, position;
    const LARGE_INTEGER none = {};
    if (!GetFileSizeEx(file, &size) || !SetFilePointerEx(file, none, &position, FILE_CURRENT)) return 0;
    return size.QuadPart - position.QuadPart;
}

Size64 PositionIn(HANDLE file) {
    const DWORD position = SetFilePointer(file, 0, nullptr, FILE_CURRENT);
    return position == INVALID_SET_FILE_POINTER ? Size64{-1} : Size64{position};
}

bool MoveToStart(HANDLE file) { return SetFilePointer(file, 0, nullptr, FILE_BEGIN) != INVALID_SET_FILE_POINTER; }

bool MoveBy(HANDLE file, Size64 bytes) {
    // Files may be longer than 32 bits tell.
    LARGE_INTEGER distance;
    distance.QuadPart = bytes;
    return SetFilePointerEx(file, distance, nullptr, FILE_CURRENT) != FALSE;
}

}  // namespace kest
