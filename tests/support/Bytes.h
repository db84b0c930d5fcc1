// Bytes written out by hand, and files that hold them.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace test {

/// Little-endian bytes, one field after another.
class Bytes : public std::vector<std::uint8_t> {
public:
    Bytes& U8(unsigned value) { return Put(value, 1); }
    Bytes& U16(unsigned value) { return Put(value, 2); }
    Bytes& I32(long long value) { return Put(static_cast<unsigned>(value), 4); }
    Bytes& F32(float value) {
        unsigned bits;
        std::memcpy(&bits, &value, 4);
        return Put(bits, 4);
    }
    /// `text` in a field of `width` bytes, zero behind it.
    Bytes& Text(const std::string& text, std::size_t width) {
        for (std::size_t i = 0; i < width; ++i) push_back(static_cast<std::uint8_t>(i < text.size() ? text[i] : 0));
        return *this;
    }
    /// All of `text`, zeros too.
    Bytes& Text(const std::string& text) { return Text(text, text.size()); }
    Bytes& Add(const std::vector<std::uint8_t>& more) {
        for (const std::uint8_t byte : more) push_back(byte);
        return *this;
    }
    Bytes& Fill(std::size_t count, unsigned value) {
        insert(end(), count, static_cast<std::uint8_t>(value));
        return *this;
    }

private:
    Bytes& Put(unsigned value, int bytes) {
        for (int i = 0; i < bytes; ++i) push_back(static_cast<std::uint8_t>(value >> (8 * i)));
        return *this;
    }
};

/// One entry of a property bag's table.
inline Bytes PropertyEntry(const std::string& name, int type, int offset, int length) {
    return Bytes().Text(name, 260).I32(type).I32(offset).I32(length);
}

/// An object's record in a stream around its data.
inline Bytes Record(const std::string& className, const std::string& objectName,
                    const std::vector<std::uint8_t>& data) {
    const Bytes names = Bytes().Text(className, 50).Text(objectName, 50);
    Bytes record = Bytes().Text("OST_OBJECTHEADER", 17).Add(names).Fill(11, 0).Add(data);
    return record.Text("OST_OBJECTFOOTER", 17).Add(names);
}

/// A file in the current directory that is gone at the end of the test.
class TemporaryFile {
public:
    explicit TemporaryFile(std::string fileName) : name(std::move(fileName)) { std::remove(name.c_str()); }
    TemporaryFile(std::string fileName, const std::vector<std::uint8_t>& content) : TemporaryFile(std::move(fileName)) {
        std::ofstream(name, std::ios::binary)
            .write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
    }
    ~TemporaryFile() { std::remove(name.c_str()); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const char* Path() const { return name.c_str(); }
    bool Exists() const { return std::ifstream(name).good(); }
    std::vector<std::uint8_t> Content() const { return ReadAll(name); }

    static std::vector<std::uint8_t> ReadAll(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

private:
    std::string name;
};

}  // namespace test
