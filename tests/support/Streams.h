// Objects in memory streams: the bytes that they write, and objects read from bytes written out by hand.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "KestApi.h"
#include "support/Bytes.h"

namespace test {

/// Everything that a stream holds.
inline Bytes ContentOf(CcMemObjectStorage& stream) {
    unsigned char* block = nullptr;
    long length = 0;
    EXPECT_EQ(stream.GetStorageBufferRef(&block, &length), 0);
    Bytes content;
    content.assign(block, block + length - 1);
    return content;
}

/// The record that an object writes.
inline Bytes StoredBytes(CcHLObject& object) {
    CcMemObjectStorage stream;
    EXPECT_EQ(stream.PutObject(&object), 0);
    return ContentOf(stream);
}

/// A stream over bytes written by hand.
struct HandMade {
    explicit HandMade(Bytes content) : bytes(content.U8(0)), stream(bytes.data(), static_cast<long>(bytes.size()), 1) {}
    CcMemObjectStorage* Stream() { return &stream; }
    Bytes bytes;  ///< ends with a byte that no stream reads
    CcMemObjectStorage stream;
};

/// The result of reading a record into an object.
inline int LoadRecord(CcHLObject& object, const Bytes& bytes) { return HandMade(bytes).stream.GetNextObject(&object); }

/// The object that a record makes.
template <class Object>
std::unique_ptr<Object> Made(const Bytes& record) {
    CcHLObject* made = nullptr;
    EXPECT_EQ(HandMade(record).stream.GetNextObject(&made), 0);
    auto* object = dynamic_cast<Object*>(made);
    EXPECT_NE(object, nullptr);
    return std::unique_ptr<Object>(object);
}

/// What a list writes in front of its members.
inline Bytes ListBag(int current, int count, int selected, int type) {
    Bytes bag = Bytes().I32(4);
    int offset = -4;
    for (const char* key :
         {"CcList::iCurrentObject", "CcList::iNumberOfObjects", "CcList::iSelectedObject", "CcList::iDistructorFlag"})
        bag.Add(PropertyEntry(key, 0, offset += 4, 4));
    return Record("CcPropertyBag", "", bag.I32(16).I32(current).I32(count).I32(selected).I32(type));
}

}  // namespace test
