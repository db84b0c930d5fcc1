// Whether an object of a caller is of exactly one of the library's classes, so that none of its operations is overridden.
#pragma once

#include <cstring>
#include <typeinfo>

namespace kest {

/// True when the object was made as a `Class` and not as something derived from it. Nothing of the caller's run-time type
/// information is read, since a host may be built without any: each table of virtual functions has the address of its
/// class's type information (or null) before its first function, and that address is only compared.
template <class Class, class Base>
bool IsExactly(const Base& object) {
    const void* const* functions;
    std::memcpy(&functions, static_cast<const void*>(&object), sizeof functions);
    return functions[-1] == &typeid(Class);
}

}  // namespace kest
