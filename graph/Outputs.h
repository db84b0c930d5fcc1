// Values that a getter hands out through pointers, any of which may be null.
#pragma once

namespace kest {

template <class Value>
void Put(Value* destination, const Value& value) {
    if (destination) *destination = value;
}

}  // namespace kest
