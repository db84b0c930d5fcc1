// Where objects that host and library hand to each other are allocated.
#pragma once

#include <cstddef>
#include <new>

#include "KestExport.h"

/// Base of the classes whose objects live in the library's heap, so that either side of the DLL may delete what the
/// other made. It adds nothing to an object. When memory is short `new` yields null and constructs nothing.
class KEST_API KestHeapObject {
public:
    /// A block of the library's heap; null when memory is short.
    static void* operator new(std::size_t size) noexcept;
    /// The same.
    static void* operator new(std::size_t size, const std::nothrow_t&) noexcept;
    /// The same, for hosts whose debug builds let `new` name the file and line where it stands.
    static void* operator new(std::size_t size, const char* pszFile, int iLine) noexcept;
    /// In place, in memory of the caller.
    static void* operator new(std::size_t, void* pPlace) noexcept { return pPlace; }
    /// Gives the block back to the library's heap, whoever calls it.
    static void operator delete(void* pBlock) noexcept;
    /// The same.
    static void operator delete(void* pBlock, const std::nothrow_t&) noexcept;
    /// The same.
    static void operator delete(void* pBlock, const char* pszFile, int iLine) noexcept;
    /// Nothing to give back.
    static void operator delete(void*, void*) noexcept {}

protected:
    KestHeapObject() = default;
    KestHeapObject(const KestHeapObject&) = default;
    KestHeapObject& operator=(const KestHeapObject&) = default;
    ~KestHeapObject() = default;
};
