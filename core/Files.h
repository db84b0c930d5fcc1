// Whole files and files as streams. Files.cpp has Windows', native/Files.cpp the standard library's.
#pragma once

#include "KestPlatform.h"
#include "core/kernel/CheckedSize.h"
#include "core/kernel/Guard.h"

namespace kest {

/// INVALID_HANDLE_VALUE is fine.
void CloseFile(HANDLE file);

/// A file handle.
class FileHandle : Guard {
public:
    explicit FileHandle(HANDLE opened) : handle(opened) {}
    ~FileHandle() { CloseFile(handle); }
    bool IsOpen() const { return handle != INVALID_HANDLE_VALUE; }
    operator HANDLE() const { return handle; }

private:
    HANDLE handle;
};

/// For reading from the start; others may read and write it meanwhile. INVALID_HANDLE_VALUE when it cannot be had, as
/// for the next.
HANDLE OpenForReading(const char* path);

/// From the start, for nobody else; made when it is missing. `access` is GENERIC_READ, GENERIC_WRITE or both.
HANDLE OpenAsStream(const char* path, DWORD access);

/// After a failed opening: whether there is a file, or may be one. At a path that cannot be there is none.
bool MayBeThere(const char* path);

/// Whether there is something at the path, and it is no folder.
bool IsPlainFile(const char* path);

/// False for a pipe or device, which has no size and no position.
bool IsOnDisk(HANDLE file);

/// The number of bytes read, which is smaller than `count` at the end of the file; -1 when the read failed.
long ReadSome(HANDLE file, void* bytes, long count);

bool ReadExactly(HANDLE file, void* bytes, Size64 count);
bool WriteExactly(HANDLE file, const void* bytes, Size64 count);

/// -1 when it cannot be told.
Size64 SizeOfFile(HANDLE file);
/// Bytes from the file's position to its end; 0 when they cannot be told.
Size64 BytesLeft(HANDLE file);

/// The position's low 32 bits; -1 when it cannot be told.
Size64 PositionIn(HANDLE file);
bool MoveToStart(HANDLE file);
bool MoveBy(HANDLE file, Size64 bytes);

}  // namespace kest
