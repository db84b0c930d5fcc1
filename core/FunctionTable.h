// Which class made an object: every class has a table of virtual functions of its own. Run-time type information is not
// asked, since a host may be built without any.
#pragma once

#include <cstring>

#include "core/Module.h"

namespace kest {

/// The table of an object that has virtual functions: that of the class that it was made as, library's or host's.
inline const void* FunctionTableOf(const void* object) {
    const void* table;
    std::memcpy(&table, object, sizeof table);
    return table;
}

/// True when the object was made as a class of the library, so that no operation of it is a host's.
inline bool IsOfLibraryClass(const void* object) { return IsInLibrary(FunctionTableOf(object)); }

}  // namespace kest
