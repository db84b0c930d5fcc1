// Fixed-size character fields: NUL-terminated where there is room, never read or written past their end.
#pragma once

#include <cstddef>
#include <cstring>

namespace kest {

/// Characters before the terminator; `size` when the field has none.
inline std::size_t FieldLength(const char* field, std::size_t size) {
    const void* end = std::memchr(field, 0, size);
    return end ? static_cast<std::size_t>(static_cast<const char*>(end) - field) : size;
}

/// Copies `text` with its terminator; false, and nothing changed, when it does not fit. Source and field may overlap.
template <std::size_t N>
bool CopyIfFits(char (&field)[N], const char* text) {
    const std::size_t length = FieldLength(text, N);
    if (length == N) return false;
    std::memmove(field, text, length + 1);
    return true;
}

/// Copies as many characters of `text` as fit, and a terminator.
template <std::size_t N>
void CopyCut(char (&field)[N], const char* text) {
    const std::size_t length = FieldLength(text, N - 1);
    std::memmove(field, text, length);
    field[length] = 0;
}

/// The text of a field of `size` characters that may lack its terminator, copied with one.
template <std::size_t N>
void CopyField(char (&text)[N], const char* field, std::size_t size) {
    const std::size_t length = FieldLength(field, size < N - 1 ? size : N - 1);
    std::memmove(text, field, length);
    text[length] = 0;
}

/// True when a field of `size` characters holds exactly `text`.
inline bool FieldEquals(const char* field, std::size_t size, const char* text) {
    const std::size_t length = FieldLength(field, size);
    return std::strncmp(field, text, length) == 0 && text[length] == 0;
}

}  // namespace kest
