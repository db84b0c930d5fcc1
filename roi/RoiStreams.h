// Blobs of a property bag that came from a stream.
#pragma once

#include "CcPropertyBag.h"

namespace kest {

/// Whether there is a blob of exactly `length` bytes.
inline bool IsBlobOf(CcPropertyBag& bag, const char* key, long long length) {
    long stored = 0;
    return bag.GetPropLength(key, KEST_PROPERTY_BLOB, &stored) == KEST_OK && stored == length;
}

/// Copies a blob of exactly `length` bytes; false, and nothing copied, when there is none of that length.
inline bool TakeWholeBlob(CcPropertyBag& bag, const char* key, void* bytes, long length) {
    return IsBlobOf(bag, key, length) && bag.GetBlob(key, bytes, length) == KEST_OK;
}

}  // namespace kest
