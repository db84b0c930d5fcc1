// Files that are replaced only by whole ones, and why one could not be.
#include "platform/SavedFile.h"

#include <windows.h>

#include <climits>

#include "KestWholeFile.h"
#include "platform/Guards.h"
#include "platform/Text.h"

namespace kestview {
namespace {

std::string ReasonOf(DWORD error) {
    switch (error) {
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_USER_MAPPED_FILE: return "Another program is using the file.";
        case ERROR_ACCESS_DENIED: return "You are not allowed to write there.";
        case ERROR_PATH_NOT_FOUND:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME: return "There is no such folder.";
        case ERROR_WRITE_PROTECT: return "The disk is write-protected.";
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL: return "The disk is full.";
        case ERROR_INVALID_NAME: return "No file can have this name.";
        default: return Format("The system gives error %lu as the reason.", error);
    }
}

std::string SizeText(long long bytes) {
    constexpr long long kilo = 1024, mega = kilo * kilo;
    return bytes < mega ? Format("%lld KB", (bytes + kilo - 1) / kilo) : Format("%lld MB", (bytes + mega - 1) / mega);
}

/// Tries what a writer does first. A file that is there stays as it is; a new one is gone at once.
DWORD ErrorOfOpening(const std::string& path) {
    const auto errorOf = [&](DWORD disposition, DWORD flags) -> DWORD {
        const HANDLE opened = CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                          disposition, flags, nullptr);
        if (opened == INVALID_HANDLE_VALUE) return GetLastError();
        const HeldFile file(opened);
        return ERROR_SUCCESS;
    };
    const DWORD error = errorOf(OPEN_EXISTING, 0);
    return error == ERROR_FILE_NOT_FOUND ? errorOf(CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE) : error;
}

/// On the disk of `path`; very many when the system does not tell.
long long FreeBytes(const std::string& path) {
    const std::string folder = FolderOf(FullPathOf(path));
    ULARGE_INTEGER free;
    const bool isTold = GetDiskFreeSpaceExA(folder.c_str(), &free, nullptr, nullptr) && free.QuadPart <= LLONG_MAX;
    return isTold ? static_cast<long long>(free.QuadPart) : LLONG_MAX;
}

std::string WhyTooLarge(const std::string& path, long long bytes) {
    const long long free = FreeBytes(path);
    if (free >= bytes) return "";
    return "The disk is full: " + SizeText(bytes) + " are needed, " + SizeText(free) + " are free.";
}

/// To be asked while the part of a file that could be written still takes its room. What is left then is less than the
/// piece that a writer had at hand.
bool IsDiskFull(const std::string& path) {
    constexpr long long usualPiece = 64 << 10;
    return FreeBytes(path) < usualPiece;
}

}  // namespace

std::string WhyNotWritable(const std::string& path, long long bytes) {
    if (path.size() >= KEST_NAME_SIZE)
        return Format("Its path is longer than %d bytes; choose a shorter name or another folder.", KEST_NAME_SIZE - 1);
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY))
        return "A folder has this name.";
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY))
        return "The file is read-only.";
    if (const DWORD error = ErrorOfOpening(path)) return ReasonOf(error);
    return WhyTooLarge(path, bytes);
}

std::string NotWritten(const std::string& what, const std::string& path, const std::string& reason) {
    return what + " could not be written to\n" + path + (reason.empty() ? "" : "\n\n" + reason);
}

bool SaveWhole(const std::string& what, const std::string& path, long long bytes,
               const std::function<Written(const std::string& newPath)>& write, std::string& error) {
    std::string reason = WhyNotWritable(path, bytes);
    if (reason.empty()) {
        KestWholeFile file(path.c_str());
        const char* newPath = file.LendPath();
        const Written written = newPath ? write(newPath) : false;
        if (written.isWhole && file.Replace() == KEST_OK) return true;
        const bool isDiskFull = IsDiskFull(path);
        file.Abandon();
        reason = written.reason;
        // What the disk or another program did meanwhile.
        if (reason.empty()) reason = WhyNotWritable(path, bytes);
        if (reason.empty() && isDiskFull) reason = "The disk is full.";
        error.clear();
        if (reason.empty() && written.isTold) return false;
        if (reason.empty()) reason = "Not all of it could be written; the disk may be full.";
    }
    error = NotWritten(what, path, reason);
    return false;
}

long long BytesOfFile(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA found;
    if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &found)) return -1;
    return static_cast<long long>(found.nFileSizeHigh) << 32 | found.nFileSizeLow;
}

}  // namespace kestview
