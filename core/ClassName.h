// The class-name protocol that every storable class answers.
#pragma once

#include <cstring>

#include "KestTypes.h"

namespace kest {

/// Writes `className` with its terminator into a buffer of `length` characters; -1 for a null or too small buffer.
inline int WriteClassName(char* buffer, long length, const char* className) {
    const std::size_t nameLength = std::strlen(className);
    if (!buffer || length <= static_cast<long>(nameLength)) return KEST_FAILED;
    std::memcpy(buffer, className, nameLength + 1);
    return KEST_OK;
}

}  // namespace kest
