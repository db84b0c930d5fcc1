// Buffers of the works: random bytes from a fixed seed, and the copy that is the limit.
#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <random>
#include <span>
#include <vector>

#include "Work.h"

namespace bench {

constexpr int wide = 4000, high = 3000;  // 12 megapixels
constexpr std::size_t pixels = std::size_t{wide} * high;

template <class Value>
using Buffer = std::shared_ptr<std::vector<Value>>;

template <class Value>
Buffer<Value> MakeBuffer(std::size_t size) {
    return std::make_shared<std::vector<Value>>(size);
}

inline Buffer<std::uint8_t> RandomBytes(std::size_t size, unsigned seed) {
    auto buffer = MakeBuffer<std::uint8_t>(size);
    std::mt19937 random(seed);
    for (auto& byte : *buffer) byte = static_cast<std::uint8_t>(random() >> 7);
    return buffer;
}

/// Copies all bytes of one buffer into another.
template <class From, class To>
Run CopyOf(Buffer<From> from, Buffer<To> to) {
    return [from, to] {
        std::memcpy(to->data(), from->data(), std::min(from->size() * sizeof(From), to->size() * sizeof(To)));
    };
}

}  // namespace bench
