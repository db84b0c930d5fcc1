// Files that are replaced only by whole ones.
#include "KestWholeFile.h"

#include <cstdio>
#include <cstring>
#include <string_view>
#include <utility>

#include "core/Files.h"
#include "core/kernel/PathParts.h"
#include "core/kernel/TextField.h"

namespace {

/// `disposition` says what becomes of a file that is there, `sharing` what others may do with it meanwhile.
HANDLE OpenToWrite(const char* path, DWORD disposition, DWORD sharing) {
    return CreateFileA(path, GENERIC_WRITE, sharing, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
}

BY_HANDLE_FILE_INFORMATION InformationOf(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION found = {};
    if (!GetFileInformationByHandle(file, &found)) found.nNumberOfLinks = 1;
    return found;
}

/// Some systems open a read-only file for writing all the same.
bool IsReadOnly(HANDLE file) { return (InformationOf(file).dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0; }

/// A file that others find under another name stays the one that it is.
bool HasOtherNames(HANDLE file, const char* path) {
    const DWORD attributes = GetFileAttributesA(path);
    return InformationOf(file).nNumberOfLinks != 1 || attributes == INVALID_FILE_ATTRIBUTES ||
           (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

/// False for a file that somebody holds open who does not let it go.
bool CanBeMoved(const char* path) {
    return kest::FileHandle(CreateFileA(path, DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
        .IsOpen();
}

/// The bytes are there, then, but nobody's position has moved.
bool Lengthen(const char* path, LARGE_INTEGER size) {
    const kest::FileHandle file(OpenToWrite(path, OPEN_EXISTING, FILE_SHARE_READ | FILE_SHARE_WRITE));
    return file.IsOpen() && SetFilePointerEx(file, size, nullptr, FILE_BEGIN) && SetEndOfFile(file);
}

std::string_view FolderOf(const char* path) {
    const kest::PathParts parts = kest::SplitPath(path);
    return {path, parts.drive.size() + parts.directory.size()};
}

/// Makes a file with a number for its name and the extension of `model`, and opens it. INVALID_HANDLE_VALUE when the
/// folder allows none, or the path would be too long.
template <std::size_t Size>
HANDLE OpenNumbered(std::string_view folder, const char* model, char (&path)[Size]) {
    const std::string_view extension = kest::SplitPath(model).extension;
    const auto length = [](std::string_view text) { return static_cast<int>(text.size()); };
    int refusals = 0;
    for (unsigned number = 1; number < 1000; ++number) {
        const int needed = std::snprintf(path, sizeof path, "%.*s~kest%u%.*s", length(folder), folder.data(), number,
                                         length(extension), extension.data());
        if (needed < 0 || needed >= static_cast<int>(sizeof path)) break;
        const HANDLE file = OpenToWrite(path, CREATE_NEW, 0);
        if (file != INVALID_HANDLE_VALUE) return file;
        // Access is denied to a deleted file that somebody holds open as well; the next name may be free.
        const DWORD error = GetLastError();
        if (error != ERROR_FILE_EXISTS && (error != ERROR_ACCESS_DENIED || ++refusals > 8)) break;
    }
    path[0] = 0;
    return INVALID_HANDLE_VALUE;
}

}  // namespace

KestWholeFile::KestWholeFile(const char* pszPath, unsigned long ulSharing) : szPath{}, szNewPath{} {
    if (!pszPath || !kest::CopyIfFits(szPath, pszPath)) return;
    // Opened even though it will be replaced: what cannot be written to is not replaced either.
    const HANDLE old = OpenToWrite(szPath, OPEN_EXISTING, ulSharing);
    if (old == INVALID_HANDLE_VALUE) {
        if (GetLastError() == ERROR_FILE_NOT_FOUND) OpenForNewFile(ulSharing);
    } else if (!kest::IsOnDisk(old)) {
        hFile = old;
    } else {
        OpenForOldFile(old);
        CloseHandle(old);
    }
    if (hFile != INVALID_HANDLE_VALUE) eResult = Writing;
}

KestWholeFile::~KestWholeFile() { Abandon(); }

void KestWholeFile::OpenForNewFile(unsigned long ulSharing) {
    hFile = OpenNumbered(FolderOf(szPath), szPath, szNewPath);
    bMovable = true;
    if (hFile != INVALID_HANDLE_VALUE) return;
    hFile = OpenToWrite(szPath, CREATE_NEW, ulSharing);
    // Nobody had it before: like any new file it goes when it does not become whole.
    if (hFile != INVALID_HANDLE_VALUE) kest::CopyCut(szNewPath, szPath);
}

void KestWholeFile::OpenForOldFile(HANDLE hOld) {
    if (IsReadOnly(hOld)) return;
    bOldFile = true;
    bMovable = !HasOtherNames(hOld, szPath);
    hFile = OpenNumbered(FolderOf(szPath), szPath, szNewPath);
    if (hFile != INVALID_HANDLE_VALUE) return;
    bMovable = false;
    char folder[PathSize];
    const DWORD length = GetTempPathA(sizeof folder, folder);
    if (length > 0 && length < sizeof folder) hFile = OpenNumbered({folder, length}, szPath, szNewPath);
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
    return IsDevice() ? szPath : szNewPath;
}

bool KestWholeFile::CloseNew() {
    return hFile == INVALID_HANDLE_VALUE || CloseHandle(std::exchange(hFile, INVALID_HANDLE_VALUE));
}

int KestWholeFile::Complete() {
    if (eResult != Writing) return KEST_FAILED;
    if (bComplete) return KEST_OK;
    bComplete = CloseNew() && AskForReplacing();
    if (!bComplete) Abandon();
    return bComplete ? KEST_OK : KEST_FAILED;
}

bool KestWholeFile::IsDevice() const { return szNewPath[0] == 0; }

/// What was written has the path already.
bool KestWholeFile::IsInPlace() const { return IsDevice() || std::strcmp(szNewPath, szPath) == 0; }

/// False when the old file can neither be moved away nor written to.
bool KestWholeFile::AskForReplacing() {
    if (IsInPlace()) return true;
    // Asked before, since a replacing that fails can leave files behind.
    bMovable = bMovable && (!bOldFile || CanBeMoved(szPath));
    return bMovable ||
           kest::FileHandle(OpenToWrite(szPath, OPEN_EXISTING, FILE_SHARE_READ | FILE_SHARE_WRITE)).IsOpen();
}

int KestWholeFile::Replace() {
    if (Complete() < 0) return KEST_FAILED;
    if (IsInPlace() || (bMovable && MoveIntoPlace())) {
        szNewPath[0] = 0;
        eResult = Replaced;
        return KEST_OK;
    }
    if (CopyIntoPlace()) {
        eResult = Replaced;
        DeleteNew();
        return KEST_OK;
    }
    // A replacing that broke off can have taken the old file away; then the new one is all there is.
    if (bOldFile && GetFileAttributesA(szPath) == INVALID_FILE_ATTRIBUTES) szNewPath[0] = 0;
    Abandon();
    return KEST_FAILED;
}

bool KestWholeFile::MoveIntoPlace() {
    // Replacing keeps what belongs to the old file (attributes, permissions).
    if (bOldFile && ReplaceFileA(szPath, szNewPath, nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr))
        return true;
    return MoveFileExA(szNewPath, szPath, MOVEFILE_REPLACE_EXISTING) != FALSE;
}

/// For a file that has other names, or that others hold open. Its space is taken before its first byte changes.
bool KestWholeFile::CopyIntoPlace() {
    const kest::FileHandle from(kest::OpenForReading(szNewPath));
    const kest::FileHandle to(OpenToWrite(szPath, OPEN_EXISTING, FILE_SHARE_READ | FILE_SHARE_WRITE));
    LARGE_INTEGER newSize, oldSize;
    if (!from.IsOpen() || !to.IsOpen() || !GetFileSizeEx(from, &newSize) || !GetFileSizeEx(to, &oldSize)) return false;
    if (newSize.QuadPart > oldSize.QuadPart && !Lengthen(szPath, newSize)) return false;

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
    CloseNew();
    DeleteNew();
    if (eResult == Writing) eResult = NotWritten;
}

/// What somebody holds open is tried again later.
void KestWholeFile::DeleteNew() {
    if (szNewPath[0] != 0 && DeleteFileA(szNewPath)) szNewPath[0] = 0;
}
