// The table of a property bag: making entries, looking them up, and checking a table that came from a stream.
#pragma once

#include <span>

#include "KestTypes.h"
#include "core/kernel/CheckedSize.h"

namespace kest {

/// True when `name` with its terminator fits an entry.
bool IsPropertyName(const char* name);

/// Fills an entry; the name's field is zero behind its terminator. `name` fits.
void MakeProperty(tagPROPERTY& entry, const char* name, int type, int offset, int length);

/// Index of the first entry of exactly that name and type, -1 when there is none.
int FindProperty(std::span<const tagPROPERTY> table, const char* name, int type);

/// True when the entries' values, none shorter than a byte, lie one after another and fill a buffer of `bufferBytes`
/// bytes exactly. Only then may offsets and lengths of the table be used.
bool TableMatchesBuffer(std::span<const tagPROPERTY> table, Size64 bufferBytes);

}  // namespace kest
