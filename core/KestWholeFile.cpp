// Files that are replaced only by whole ones.
#include "KestWholeFile.h"

#include <cstdio>

#include "core/Files.h"
#include "core/kernel/PathParts.h"
#include "core/kernel/TextField.h"

namespace {

BY_HANDLE_FILE_INFORMATION InformationOf(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION found = {};
    if (!GetFileInformationByHandle(file, &found)) found.nNumberOfLinks = 1;
    return found;
}

/// Some systems open a read-only file for writing all the same.
bool IsReadOnly(HANDLE file) { return (InformationOf(file).dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0; }

bool IsOnDisk(HANDLE file) { return GetFileType(file) == FILE_TYPE_DISK; }

/// A device, and a file that others find under another name, stays the one that it is.
bool IsReplaceable(HANDLE file, const char* path) {
    const DWORD attributes = GetFileAttributesA(path);
    return IsOnDisk(file) && InformationOf(file).nNumberOfLinks == 1 && attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
}

/// False for a file that somebody holds open who does not let it go.
bool CanBeMoved(const char* path) {
    return kest::FileHandle(CreateFileA(path, DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
        .IsOpen();
}

}  // namespace

KestWholeFile::KestWholeFile(const char* pszPath, unsigned long ulSharing) : szPath{}, szNewPath{} {
    if (!pszPath || !kest::CopyIfFits(szPath, pszPath)) return;
    // Opened even when it will be replaced: what cannot be written to is not replaced either.
    const HANDLE old = kest::OpenToWrite(szPath, OPEN_EXISTING, ulSharing);
    bOldFile = old != INVALID_HANDLE_VALUE;
    if (!bOldFile && GetLastError() != ERROR_FILE_NOT_FOUND) return;
    const bool isRefused = bOldFile && IsReadOnly(old);
    const bool isNew = !isRefused && (!bOldFile || IsReplaceable(old, szPath)) && OpenNew();
    if (!bOldFile && !isNew) hFile = kest::OpenToWrite(szPath, CREATE_NEW, ulSharing);
    if (bOldFile && (isNew || isRefused)) CloseHandle(old);
    if (bOldFile && !isNew && !isRefused) hFile = old;
    if (hFile != INVALID_HANDLE_VALUE) eResult = Writing;
}

KestWholeFile::~KestWholeFile() { Abandon(); }

/// Makes a file with a name of its own in the folder of the path. False, and no such name, when that cannot be.
bool KestWholeFile::OpenNew() {
    const kest::PathParts parts = kest::SplitPath(szPath);
    const auto length = [](std::string_view text) { return static_cast<int>(text.size()); };
    for (unsigned number = 1; number < 1000; ++number) {
        const int needed = std::snprintf(szNewPath, sizeof szNewPath, "%.*s%.*s~kest%u%.*s", length(parts.drive),
                                         parts.drive.data(), length(parts.directory), parts.directory.data(), number,
                                         length(parts.extension), parts.extension.data());
        if (needed < 0 || needed >= static_cast<int>(sizeof szNewPath)) break;
        hFile = kest::OpenToWrite(szNewPath, CREATE_NEW, 0);
        if (hFile != INVALID_HANDLE_VALUE) return true;
        if (GetLastError() != ERROR_FILE_EXISTS) break;
    }
    szNewPath[0] = 0;
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
    const bool isCut = !IsOnDisk(hFile) || SetEndOfFile(hFile);
    const bool isClosed = CloseHandle(hFile) != FALSE;
    hFile = INVALID_HANDLE_VALUE;
    return isCut && isClosed;
}

int KestWholeFile::Complete() {
    if (eResult != Writing) return KEST_FAILED;
    if (bComplete) return KEST_OK;
    bComplete = CloseNew() && AskForReplacing();
    if (!bComplete) Abandon();
    return bComplete ? KEST_OK : KEST_FAILED;
}

/// False when the old file can neither be moved away nor written to.
bool KestWholeFile::AskForReplacing() {
    if (szNewPath[0] == 0) return true;
    // Asked before, since a replacing that fails can leave files behind.
    bMovable = !bOldFile || CanBeMoved(szPath);
    return bMovable ||
           kest::FileHandle(kest::OpenToWrite(szPath, OPEN_EXISTING, FILE_SHARE_READ | FILE_SHARE_WRITE)).IsOpen();
}

int KestWholeFile::Replace() {
    if (Complete() < 0) return KEST_FAILED;
    bool isInPlace = szNewPath[0] == 0 || (bMovable && MoveIntoPlace());
    if (!isInPlace && CopyIntoPlace()) {
        isInPlace = true;
        DeleteFileA(szNewPath);
    }
    if (isInPlace) {
        eResult = Replaced;
        return KEST_OK;
    }
    // A replacing that broke off can have taken the old file away; then the new one is all there is.
    if (bOldFile && GetFileAttributesA(szPath) == INVALID_FILE_ATTRIBUTES) szNewPath[0] = 0;
    Abandon();
    return KEST_FAILED;
}

bool KestWholeFile::MoveIntoPlace() {
    // Replacing keeps what belongs to the old file (attributes, permissions).
    if (bOldFile && ReplaceFileA(szPath, szNewPath, nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)) return true;
    return MoveFileExA(szNewPath, szPath, MOVEFILE_REPLACE_EXISTING) != FALSE;
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
    if (!isCopied) szNewPath[0] = 0;
    return isCopied;
}

void KestWholeFile::Abandon() {
    if (hFile != INVALID_HANDLE_VALUE) CloseHandle(hFile);
    hFile = INVALID_HANDLE_VALUE;
    if (eResult != Writing) return;
    if (szNewPath[0] != 0) DeleteFileA(szNewPath);
    eResult = NotWritten;
}
