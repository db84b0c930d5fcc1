// The library's heap.
#include "KestHeapObject.h"

#include <cstdlib>

void* KestHeapObject::operator new(std::size_t size) noexcept { return std::malloc(size); }

void* KestHeapObject::operator new(std::size_t size, const std::nothrow_t&) noexcept { return std::malloc(size); }

void* KestHeapObject::operator new(std::size_t size, const char*, int) noexcept { return std::malloc(size); }

void KestHeapObject::operator delete(void* pBlock) noexcept { std::free(pBlock); }

void KestHeapObject::operator delete(void* pBlock, const std::nothrow_t&) noexcept { std::free(pBlock); }

void KestHeapObject::operator delete(void* pBlock, const char*, int) noexcept { std::free(pBlock); }
