// The table of a property bag.
#include "core/kernel/PropertyTable.h"

#include <cstring>

#include "core/kernel/TextField.h"

namespace kest {

bool IsPropertyName(const char* name) { return FieldLength(name, KEST_NAME_SIZE) < KEST_NAME_SIZE; }

void MakeProperty(tagPROPERTY& entry, const char* name, int type, int offset, int length) {
    std::memset(&entry, 0, sizeof entry);
    std::memcpy(entry.szPropName, name, FieldLength(name, KEST_NAME_SIZE - 1));
    entry.iPropType = type;
    entry.iPropOffset = offset;
    entry.iPropLength = length;
}

int FindProperty(std::span<const tagPROPERTY> table, const char* name, int type) {
    for (std::size_t i = 0; i < table.size(); ++i)
        if (table[i].iPropType == type && FieldEquals(table[i].szPropName, KEST_NAME_SIZE, name))
            return static_cast<int>(i);
    return -1;
}

bool TableMatchesBuffer(std::span<const tagPROPERTY> table, Size64 bufferBytes) {
    Size64 used = 0;
    for (const tagPROPERTY& entry : table) {
        if (entry.iPropLength < 1 || entry.iPropOffset != used) return false;
        used += entry.iPropLength;
    }
    return used == bufferBytes;
}

}  // namespace kest
