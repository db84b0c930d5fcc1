// The slot of a virtual function, counted as the headers count them: slot 0 is the destructor.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

namespace test {

/// In this compiler's tables the destructor takes the first two entries; a pointer to a virtual member is 1 plus the
/// function's offset in the table.
template <class Function>
int SlotOf(Function function) {
    std::intptr_t words[2] = {};
    static_assert(sizeof function == sizeof words);
    std::memcpy(words, &function, sizeof words);
    return static_cast<int>((words[0] - 1) / static_cast<std::intptr_t>(sizeof(void*))) - 1;
}

/// The functions stand in consecutive slots.
template <class... Functions>
void ExpectSlots(int first, Functions... functions) {
    for (const int slot : {SlotOf(functions)...}) EXPECT_EQ(slot, first++);
}

}  // namespace test
