// Makes an object from its class name, as streams do.
#pragma once

class CcHLObject;

namespace kest {

/// Sets `made` to a new object of the class (KEST_OK), or to null for an unknown name (-1) or without memory
/// (KEST_NO_MEMORY).
int MakeObject(const char* className, CcHLObject*& made);

/// Deletes an object that MakeObject made, and all that it has loaded since: the members of a list, and of lists in it,
/// whatever destruction type the stream gave them. Null is fine.
void DeleteMade(CcHLObject* object);

}  // namespace kest
