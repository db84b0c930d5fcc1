// Blobs of a property bag that came from a stream.
#pragma once

#include "CcPropertyBag.h"

namespace kest {

/// Copies a blob of exactly `length` bytes; false, and nothing copied, when there is none of that length.
inline bool TakeWholeBlob(CcPropertyBag& bag, const char* key, void* bytes, long length) {
    constexpr int blobTag = 5;
    long stored = 0;
    return bag.GetPropLength(key, blobTag, &stored) == KEST_OK && stored == length &&
           bag.GetBlob(key, bytes, length) == KEST_OK;
}

}  // namespace kest
