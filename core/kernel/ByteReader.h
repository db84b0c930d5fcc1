// Reads little-endian values out of bytes that came from a file, and never past their end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace kest {

/// A cursor over bytes. Each read advances it, or returns false and leaves value and cursor as they were.
class ByteReader {
public:
    explicit ByteReader(std::span<const std::uint8_t> source) : rest(source) {}

    bool Read(std::uint16_t& value) { return ReadLittleEndian(value); }
    bool Read(std::uint32_t& value) { return ReadLittleEndian(value); }
    bool Read(std::int32_t& value) {
        std::uint32_t bits;
        if (!Read(bits)) return false;
        value = static_cast<std::int32_t>(bits);
        return true;
    }
    bool Read(float& value) {
        static_assert(sizeof(float) == sizeof(std::uint32_t));
        std::uint32_t bits;
        if (!Read(bits)) return false;
        std::memcpy(&value, &bits, sizeof bits);
        return true;
    }
    bool ReadBytes(void* destination, std::size_t count) {
        if (count > rest.size()) return false;
        if (count) std::memcpy(destination, rest.data(), count);
        rest = rest.subspan(count);
        return true;
    }
    bool Skip(std::size_t count) {
        if (count > rest.size()) return false;
        rest = rest.subspan(count);
        return true;
    }
    std::size_t Remaining() const { return rest.size(); }

private:
    template <class Unsigned>
    bool ReadLittleEndian(Unsigned& value) {
        if (rest.size() < sizeof value) return false;
        Unsigned result = 0;
        for (std::size_t i = 0; i < sizeof value; ++i)
            result = static_cast<Unsigned>(result | static_cast<Unsigned>(static_cast<Unsigned>(rest[i]) << (8 * i)));
        value = result;
        rest = rest.subspan(sizeof value);
        return true;
    }

    std::span<const std::uint8_t> rest;
};

/// Writes little-endian values one after another into a block that its caller made large enough.
class ByteWriter {
public:
    explicit ByteWriter(std::span<std::uint8_t> destination) : rest(destination) {}

    void Write(std::uint16_t value) { WriteLittleEndian(value); }
    void Write(std::uint32_t value) { WriteLittleEndian(value); }
    void Write(std::int32_t value) { WriteLittleEndian(static_cast<std::uint32_t>(value)); }
    void Write(float value) {
        std::uint32_t bits;
        std::memcpy(&bits, &value, sizeof bits);
        WriteLittleEndian(bits);
    }
    void WriteBytes(const void* source, std::size_t count) {
        if (count) std::memcpy(rest.data(), source, count);
        rest = rest.subspan(count);
    }

private:
    template <class Unsigned>
    void WriteLittleEndian(Unsigned value) {
        for (std::size_t i = 0; i < sizeof value; ++i) rest[i] = static_cast<std::uint8_t>(value >> (8 * i));
        rest = rest.subspan(sizeof value);
    }

    std::span<std::uint8_t> rest;
};

}  // namespace kest
