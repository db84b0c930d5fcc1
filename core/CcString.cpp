// CcString: a named text.
#include "CcString.h"

#include <cstring>

#include "core/kernel/TextField.h"

CcString::CcString() : szString{} { SetType(KEST_TYPE_STRING); }

char* CcString::GetString() { return szString; }

int CcString::SetString(const char* pszText) {
    if (!pszText) return KEST_OK;
    // The last byte is never written, so it stays the terminator of a text that fills the field.
    constexpr std::size_t limit = sizeof szString - 1;
    const std::size_t length = kest::FieldLength(pszText, limit);
    std::memmove(szString, pszText, length);
    std::memset(szString + length, 0, limit - length);
    return KEST_OK;
}
