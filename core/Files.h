// Whole-file input and output.
#pragma once

#include <windows.h>

#include "core/GdiGuards.h"
#include "core/kernel/CheckedSize.h"

namespace kest {

/// A file handle (CloseHandle).
class FileHandle : Guard {
public:
    explicit FileHandle(HANDLE opened) : handle(opened) {}
    ~FileHandle() {
        if (IsOpen()) CloseHandle(handle);
    }
    bool IsOpen() const { return handle != INVALID_HANDLE_VALUE; }
    operator HANDLE() const { return handle; }

private:
    HANDLE handle;
};

/// For reading from the start; others may read and write it meanwhile.
inline HANDLE OpenForReading(const char* path) {
    return CreateFileA(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

/// For writing; `disposition` says what becomes of a file that is there, `sharing` what others may do with it meanwhile.
/// Only KestWholeFile uses it: no writer of the library writes over a file.
inline HANDLE OpenToWrite(const char* path, DWORD disposition, DWORD sharing) {
    return CreateFileA(path, GENERIC_WRITE, sharing, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
}

inline bool ReadExactly(HANDLE file, void* bytes, Size64 count) {
    DWORD read = 0;
    return count >= 0 && count <= LargestBlockBytes &&
           ReadFile(file, bytes, static_cast<DWORD>(count), &read, nullptr) && read == static_cast<DWORD>(count);
}

inline bool WriteExactly(HANDLE file, const void* bytes, Size64 count) {
    DWORD written = 0;
    return count >= 0 && count <= LargestBlockBytes &&
           WriteFile(file, bytes, static_cast<DWORD>(count), &written, nullptr) && written == static_cast<DWORD>(count);
}

/// Bytes from the file's position to its end.
inline Size64 BytesLeft(HANDLE file) {
    LARGE_INTEGER size, position;
    const LARGE_INTEGER none = {};
    if (!GetFileSizeEx(file, &size) || !SetFilePointerEx(file, none, &position, FILE_CURRENT)) return 0;
    return size.QuadPart - position.QuadPart;
}

/// Whether there is something at the path, and it is no folder.
inline bool IsPlainFile(const char* path) {
    const DWORD attributes = GetFileAttributesA(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

}  // namespace kest
