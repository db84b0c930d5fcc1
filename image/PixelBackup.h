// The copy of a colour image's pixels that thresholding starts from and puts back.
#pragma once

#include <cstdint>
#include <cstring>
#include <span>

#include "KestBlocks.h"
#include "KestTypes.h"

namespace kest {

/// The three members of an image that keep the copy, and the pixels that it is a copy of.
struct PixelBackup {
    int& isActive;
    KestGlobalBlock& block;
    unsigned char*& bytes;
    std::span<std::uint8_t> pixels;

    void Free() {
        block.Release();
        bytes = nullptr;
        isActive = 0;
    }

    int Make() {
        Free();
        bytes = static_cast<unsigned char*>(block.Allocate(static_cast<long long>(pixels.size())));
        if (!bytes) return KEST_FAILED;
        std::memcpy(bytes, pixels.data(), pixels.size());
        isActive = 1;
        return KEST_OK;
    }

    /// False also when the image has got another size since.
    bool Fits() const {
        return isActive == 1 && bytes && !pixels.empty() && block.Size() == static_cast<long long>(pixels.size());
    }

    void PutBack() const {
        if (Fits()) std::memcpy(pixels.data(), bytes, pixels.size());
    }
};

}  // namespace kest
