// The one rule for memory that the library itself makes: an allocator that returns null, never the run-time library's
// `new`, whose throwing and "nothrow" forms both end the process when memory is really gone. Single objects derive from
// KestHeapObject; arrays are these. The build refuses object files that call the run-time library's `new`.
#pragma once

#include <cstdlib>
#include <type_traits>
#include <utility>

#include "core/kernel/CheckedSize.h"

namespace kest {

/// An owned array of plain values, all zero at first. Empty after a failed Allocate.
template <class Value>
class HeapArray {
    static_assert(std::is_trivially_copyable_v<Value> && std::is_trivially_destructible_v<Value>);

public:
    HeapArray() = default;
    explicit HeapArray(Size64 count) { Allocate(count); }
    HeapArray(HeapArray&& other) noexcept : values(std::exchange(other.values, nullptr)) {}
    HeapArray& operator=(HeapArray&& other) noexcept {
        std::swap(values, other.values);
        return *this;
    }
    ~HeapArray() { std::free(values); }

    /// Gives back what is held, then makes `count` zero values. False when memory is short or `count` is not positive.
    bool Allocate(Size64 count) {
        std::free(std::exchange(values, nullptr));
        if (count > 0 && count <= LargestBlockBytes / static_cast<Size64>(sizeof(Value)))
            values = static_cast<Value*>(std::calloc(static_cast<std::size_t>(count), sizeof(Value)));
        return values != nullptr;
    }

    Value* Get() const { return values; }
    explicit operator bool() const { return values != nullptr; }
    Value& operator[](std::size_t index) const { return values[index]; }

private:
    Value* values = nullptr;
};

}  // namespace kest
