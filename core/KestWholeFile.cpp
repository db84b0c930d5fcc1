// Files that are replaced only by whole ones.
#include "KestWholeFile.h"

#include <cstdio>

#include "core/Files.h"
#include "core/kernel/PathParts.h"
#include "core/kernel/TextField.h"

namespace {

/// Whether there is a file at the path, and what may be done with it.
enum class Present { Nothing, PlainFile, InPlaceOnly, Refused };

Present WhatIsAt(const char* path, DWORD sharing) {
    const kest::FileHandle file(kest::OpenToWrite(path, OPEN_EXISTING, sharing));
    if (!file.IsOpen()) {
        const DWORD error = GetLastError();
        return error == ERROR_FILE_NOT_FOUND ? Present::Nothing : Present::Refused;
    }
    BY_HANDLE_FILE_INFORMATION found;
    if (GetFileType(file) != FILE_TYPE_DISK || !GetFileInformationByHandle(file, &found)) return Present::InPlaceOnly;
    // A file with several names, or one that a link leads to, stays the file that it is.
    const DWORD attributes = GetFileAttributesA(path);
    const bool isLinked = found.nNumberOfLinks > 1 || attributes == INVALID_FILE_ATTRIBUTES ||
                          (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    return isLinked ? Present::InPlaceOnly : Present::PlainFile;
}

}  // namespace

KestWholeFile::KestWholeFile(const char* pszPath, unsigned long ulSharing) : szPath{}, szNewPath{} {
    if (!pszPath || !kest::CopyIfFits(szPath, pszPath)) return;
    const Present present = WhatIsAt(szPath, ulSharing);
    if (present == Present::Refused) return;
    if (present == Present::InPlaceOnly || !OpenNew()) {
        szNewPath[0] = 0;
        hFile = kest::OpenToWrite(szPath, OPEN_ALWAYS, ulSharing);
    }
    if (hFile != INVALID_HANDLE_VALUE) eResult = Writing;
}

KestWholeFile::~KestWholeFile() { Abandon(); }

/// Makes a file with a name of its own in the folder of the path.
bool KestWholeFile::OpenNew() {
    const kest::PathParts parts = kest::SplitPath(szPath);
    const auto length = [](std::string_view text) { return static_cast<int>(text.size()); };
    for (unsigned number = 1; number < 1000; ++number) {
        const int needed = std::snprintf(szNewPath, sizeof szNewPath, "%.*s%.*s~kest%u%.*s", length(parts.drive),
                                         parts.drive.data(), length(parts.directory), parts.directory.data(), number,
                                         length(parts.extension), parts.extension.data());
        if (needed < 0 || needed >= static_cast<int>(sizeof szNewPath)) return false;
        hFile = kest::OpenToWrite(szNewPath, CREATE_NEW, 0);
        if (hFile != INVALID_HANDLE_VALUE) return true;
        if (GetLastError() != ERROR_FILE_EXISTS) return false;
    }
    return false;
}

int KestWholeFile::Write(const void* pBytes, long long llBytes) {
    if (eResult != Writing) return KEST_FAILED;
    if (llBytes == 0 || (pBytes && kest::WriteExactly(hFile, pBytes, llBytes))) return KEST_OK;
    Abandon();
    return KEST_FAILED;
}

const char* KestWholeFile::LendPath() {
    if (eResult != Writing) return nullptr;
    CloseNew();
    return szNewPath[0] ? szNewPath : szPath;
}

/// False when the file is not what was written to it.
bool KestWholeFile::CloseNew() {
    if (hFile == INVALID_HANDLE_VALUE) return true;
    // A file that is written in place can be longer than what was written now.
    const bool isCut = SetEndOfFile(hFile) != FALSE;
    const bool isClosed = CloseHandle(hFile) != FALSE;
    hFile = INVALID_HANDLE_VALUE;
    return isCut && isClosed;
}

int KestWholeFile::Replace() {
    if (eResult != Writing) return KEST_FAILED;
    if (!CloseNew()) {
        Abandon();
        return KEST_FAILED;
    }
    // ReplaceFile keeps what belongs to the old file (attributes, permissions); it needs one.
    if (szNewPath[0] == 0 || ReplaceFileA(szPath, szNewPath, nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) ||
        MoveFileExA(szNewPath, szPath, MOVEFILE_REPLACE_EXISTING) || CopyIntoPlace()) {
        eResult = Replaced;
        return KEST_OK;
    }
    Abandon();
    return KEST_FAILED;
}

/// For a file that others hold open. Its space is taken before its first byte changes.
bool KestWholeFile::CopyIntoPlace() {
    const kest::FileHandle from(kest::OpenForReading(szNewPath));
    const kest::FileHandle to(kest::OpenToWrite(szPath, OPEN_EXISTING, FILE_SHARE_READ | FILE_SHARE_WRITE));
    LARGE_INTEGER newSize, oldSize;
    if (!from.IsOpen() || !to.IsOpen() || !GetFileSizeEx(from, &newSize) || !GetFileSizeEx(to, &oldSize)) return false;
    const LARGE_INTEGER start = {};
    if (newSize.QuadPart > oldSize.QuadPart &&
        (!SetFilePointerEx(to, newSize, nullptr, FILE_BEGIN) || !SetEndOfFile(to)))
        return false;
    if (!SetFilePointerEx(to, start, nullptr, FILE_BEGIN)) return false;

    unsigned char step[0x4000];
    bool isCopied = true;
    for (kest::Size64 left = newSize.QuadPart; left > 0 && isCopied;) {
        const kest::Size64 count = left < kest::Size64{sizeof step} ? left : kest::Size64{sizeof step};
        isCopied = kest::ReadExactly(from, step, count) && kest::WriteExactly(to, step, count);
        left -= count;
    }
    isCopied = isCopied && SetEndOfFile(to);
    // What is whole stays: beside a file that is half the old one and half the new one, the new one is all there is.
    if (!isCopied)
        szNewPath[0] = 0;
    else
        DeleteFileA(szNewPath);
    return isCopied;
}

void KestWholeFile::Abandon() {
    if (hFile != INVALID_HANDLE_VALUE) CloseHandle(hFile);
    hFile = INVALID_HANDLE_VALUE;
    if (eResult != Writing) return;
    if (szNewPath[0] != 0) DeleteFileA(szNewPath);
    eResult = NotWritten;
}
