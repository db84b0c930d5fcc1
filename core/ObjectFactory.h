// Makes an object from its class name, as streams do.
#pragma once

class CcHLObject;

namespace kest {

/// Sets `made` to a new object of the class (KEST_OK), or to null for an unknown name (-1) or without memory
/// (KEST_NO_MEMORY).
int MakeObject(const char* className, CcHLObject*& made);

}  // namespace kest
