// The records that open and close an object in a stream.
#include "core/kernel/ObjectRecord.h"

#include <cstring>

namespace kest {
namespace {

constexpr char headerTag[] = "OST_OBJECTHEADER";
constexpr char footerTag[] = "OST_OBJECTFOOTER";
static_assert(sizeof headerTag == sizeof tagOST_OBJECTHEADER::szTag);
static_assert(sizeof footerTag == sizeof tagOST_OBJECTFOOTER::szTag);

}  // namespace

void BeginRecord(tagOST_OBJECTHEADER& header) {
    std::memset(&header, 0, sizeof header);
    std::memcpy(header.szTag, headerTag, sizeof headerTag);
}

void BeginRecord(tagOST_OBJECTFOOTER& footer) {
    std::memset(&footer, 0, sizeof footer);
    std::memcpy(footer.szTag, footerTag, sizeof footerTag);
}

bool HasTag(const tagOST_OBJECTHEADER& header) { return std::memcmp(header.szTag, headerTag, sizeof headerTag) == 0; }

bool HasTag(const tagOST_OBJECTFOOTER& footer) { return std::memcmp(footer.szTag, footerTag, sizeof footerTag) == 0; }

}  // namespace kest
