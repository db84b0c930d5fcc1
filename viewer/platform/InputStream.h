// An object stream that only reads a file: one that is not there stays absent, and others may have it open.
#pragma once

#include <fstream>
#include <string>

#include "KestApi.h"

namespace kestview {

class InputStream : public CcObjectStorage {
public:
    explicit InputStream(const std::string& path) : file(path, std::ios::binary) {}
    bool IsOpen() const { return file.is_open(); }

    int Read(void* bytes, long length) override {
        return file.read(static_cast<char*>(bytes), length) ? KEST_OK : KEST_READ_FAILED;
    }
    int Write(void*, long) override { return KEST_FAILED; }
    int SetPos(long position) override { return file.seekg(position) ? KEST_OK : KEST_FAILED; }
    int GetPos() override { return static_cast<int>(file.tellg()); }

private:
    std::ifstream file;
};

}  // namespace kestview
