// Files that are replaced only by whole ones: written beside the old one, then renamed.
#include "KestWholeFile.h"

#include <cstdio>
#include <filesystem>
#include <utility>

#include "core/Files.h"
#include "core/kernel/TextField.h"

KestWholeFile::KestWholeFile(const char* pszPath, unsigned long) : szPath{}, szNewPath{} {
    if (!pszPath || !kest::CopyIfFits(szPath, pszPath)) return;
    std::error_code error;
    const auto old = std::filesystem::status(szPath, error);
    if (std::filesystem::is_directory(old)) return;
    // A device is written to at once.
    const bool isDevice = std::filesystem::exists(old) && !std::filesystem::is_regular_file(old);
    if (!isDevice) std::snprintf(szNewPath, sizeof szNewPath, "%.*s~kest", KEST_NAME_SIZE - 6, szPath);
    std::FILE* const made = std::fopen(isDevice ? szPath : szNewPath, "wb");
    if (!made) return;
    std::setvbuf(made, nullptr, _IONBF, 0);
    hFile = made;
    eResult = Writing;
}

bool KestWholeFile::IsDevice() const { return szNewPath[0] == 0; }

KestWholeFile::~KestWholeFile() { Abandon(); }

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
    auto* const stream = static_cast<std::FILE*>(std::exchange(hFile, INVALID_HANDLE_VALUE));
    return stream == INVALID_HANDLE_VALUE || std::fclose(stream) == 0;
}

int KestWholeFile::Complete() {
    if (eResult != Writing) return KEST_FAILED;
    if (CloseNew()) return KEST_OK;
    Abandon();
    return KEST_FAILED;
}

int KestWholeFile::Replace() {
    if (Complete() < 0) return KEST_FAILED;
    if (!IsDevice() && std::rename(szNewPath, szPath) != 0) {
        Abandon();
        return KEST_FAILED;
    }
    eResult = Replaced;
    return KEST_OK;
}

void KestWholeFile::Abandon() {
    CloseNew();
    if (eResult != Writing) return;
    if (!IsDevice()) std::remove(szNewPath);
    eResult = NotWritten;
}
