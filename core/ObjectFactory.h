// Makes an object from its class name, as streams do.
#pragma once

#include <span>

class CcHLObject;

namespace kest {

/// A class and what makes an object of it; null without memory.
struct ListedClass {
    const char* name;
    CcHLObject* (*make)();
};

/// Every class that a stream can make; names are compared exactly, from the top. The list stands above all folders, in
/// library/ClassList.cpp.
std::span<const ListedClass> ClassList();

/// Sets `made` to a new object of the class (KEST_OK), or to null for an unknown name (-1) or without memory
/// (KEST_NO_MEMORY).
int MakeObject(const char* className, CcHLObject*& made);

/// Deletes an object that MakeObject made, and all that it has loaded since: the members of a list, and of lists in it,
/// whatever destruction type the stream gave them. Null is fine.
void DeleteMade(CcHLObject* object);

}  // namespace kest
