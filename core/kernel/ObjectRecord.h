// The records that open and close an object in a stream.
#pragma once

#include "KestTypes.h"

namespace kest {

/// Zero-fills the record and sets its tag.
void BeginRecord(tagOST_OBJECTHEADER& header);
void BeginRecord(tagOST_OBJECTFOOTER& footer);

/// True when the record carries exactly its tag, terminator included.
bool HasTag(const tagOST_OBJECTHEADER& header);
bool HasTag(const tagOST_OBJECTFOOTER& footer);

}  // namespace kest
