// Object streams in memory and in files: records to the byte, positions, result codes, and streams that lie.
#include <gtest/gtest.h>
#include <windows.h>

#include <climits>
#include <cstring>
#include <string>

#include "KestApi.h"
#include "support/Bytes.h"

using test::Bytes;
using test::Record;

namespace {

std::vector<std::uint8_t> ContentOf(CcMemObjectStorage& stream) {
    unsigned char* block = nullptr;
    long length = 0;
    EXPECT_EQ(stream.GetStorageBufferRef(&block, &length), 0);
    return {block, block + length - 1};
}

Bytes BagData(int value) { return Bytes().I32(1).Add(test::PropertyEntry("v", 0, 0, 4)).I32(4).I32(value); }

Bytes ListData(int count, const std::vector<std::uint8_t>& members = {}) {
    const char* keys[] = {"CcList::iCurrentObject", "CcList::iNumberOfObjects", "CcList::iSelectedObject",
                          "CcList::iDistructorFlag"};
    Bytes bag = Bytes().I32(4);
    for (int i = 0; i < 4; ++i) bag.Add(test::PropertyEntry(keys[i], 0, 4 * i, 4));
    bag.I32(16).I32(0).I32(count).I32(-1).I32(1);
    return Bytes().Add(Record("CcPropertyBag", "", bag)).Add(members);
}

/// A stream over bytes written by hand.
struct HandMade {
    explicit HandMade(Bytes content)
        : bytes(content.U8(0)), stream(bytes.data(), static_cast<long>(bytes.size()), 1) {}
    Bytes bytes;
    CcMemObjectStorage stream;
};

}  // namespace

TEST(CcMemObjectStorage, PositionsAndMargins) {
    CcMemObjectStorage stream;
    char bytes[16] = "0123456789";
    unsigned char* block = nullptr;
    long length = 0;
    EXPECT_EQ(stream.Write(bytes, 10), 0);
    EXPECT_EQ(stream.GetPos(), 10);
    EXPECT_EQ(stream.GetStorageBufferRef(&block, &length), 0);
    EXPECT_EQ(length, 11);
    EXPECT_EQ(stream.SetPos(11), -3);
    EXPECT_EQ(stream.SetPos(-1), -3);
    EXPECT_EQ(stream.SetPos(4), 0);
    EXPECT_EQ(stream.SetPos(5), -3);
    EXPECT_EQ(stream.Reset(), 0);
    EXPECT_EQ(stream.Write(nullptr, 1), -2);
    EXPECT_EQ(stream.Write(bytes, 0), -3);
    EXPECT_EQ(stream.Read(nullptr, 1), -2);
    EXPECT_EQ(stream.Read(bytes, 0), -3);
    EXPECT_EQ(stream.Read(bytes, LONG_MAX), -7);
    EXPECT_EQ(stream.GetStorageBufferRef(nullptr, &length), -2);

    unsigned char ten[10] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    CcMemObjectStorage external(ten, 10, 1);
    char out[10];
    EXPECT_EQ(external.Read(out, 10), -7);
    EXPECT_EQ(external.Read(out, 9), 0);
    EXPECT_EQ(external.Write(out, 1), -6);
    EXPECT_EQ(external.Reset(), 0);
    EXPECT_EQ(external.Write(out + 8, 1), 0);
    EXPECT_EQ(ten[0], 9);
    EXPECT_EQ(external.GrowStorageBuffer(1), -6);
}

TEST(CcMemObjectStorage, GrowsWhenAWriteWouldReachTheLastByte) {
    struct Open : CcMemObjectStorage {
        Open() : CcMemObjectStorage(10, 4) {}
        using CcMemObjectStorage::iBufferSize;
    } stream;
    char bytes[32] = {};
    EXPECT_EQ(stream.Write(bytes, 9), 0);
    EXPECT_EQ(stream.iBufferSize, 10);
    EXPECT_EQ(stream.Write(bytes, 1), 0);
    EXPECT_EQ(stream.iBufferSize, 14);
    EXPECT_EQ(stream.Write(bytes, 20), 0);
    EXPECT_EQ(stream.iBufferSize, 34);
    EXPECT_EQ(stream.GrowStorageBuffer(0), -3);
    EXPECT_EQ(stream.GrowStorageBuffer(LONG_MAX), -5);
    EXPECT_EQ(stream.iBufferSize, 34);

    CcMemObjectStorage taken(CcMemObjectStorage::AllocateBuffer(4), 4, 0);
    EXPECT_EQ(taken.Write(bytes, 32), 0);
    EXPECT_EQ(ContentOf(taken).size(), 32u);
    CcMemObjectStorage none(0, 10);
    unsigned char* block;
    long length;
    EXPECT_EQ(none.GetStorageBufferRef(&block, &length), -1);
    EXPECT_EQ(none.Write(bytes, 3), 0);
}

TEST(ObjectStorage, RecordToTheByteAndBack) {
    CcPropertyBag bag;
    bag.SetName("my bag");
    bag.PutInt("v", 77);
    CcMemObjectStorage stream;
    ASSERT_EQ(stream.PutObject(&bag), 0);
    EXPECT_EQ(ContentOf(stream), Record("CcPropertyBag", "my bag", BagData(77)));

    // The block as handed out reads back in a stream of its own.
    unsigned char* block = nullptr;
    long length = 0;
    stream.GetStorageBufferRef(&block, &length);
    CcMemObjectStorage second(block, length, 1);
    CcHLObject* made = nullptr;
    ASSERT_EQ(second.GetNextObject(&made), 0);
    EXPECT_STREQ(made->GetName(), "my bag");
    int value = 0;
    EXPECT_EQ(dynamic_cast<CcPropertyBag*>(made)->GetInt("v", &value), 0);
    EXPECT_EQ(value, 77);
    delete made;
    CcPropertyBag existing;
    EXPECT_EQ(second.GetNextObject(&existing), -7);
    second.Reset();
    EXPECT_EQ(second.GetNextObject(&existing), 0);
    EXPECT_STREQ(existing.GetName(), "my bag");
}

TEST(ObjectStorage, WhatCannotBeWritten) {
    CcMemObjectStorage stream;
    CcPropertyBag bag;
    CcString text;
    CcNumber number;
    EXPECT_EQ(stream.PutObject(nullptr), -2);
    EXPECT_EQ(stream.PutObject(&text), -1);
    EXPECT_EQ(stream.PutObject(&number), -1);
    bag.SetName(std::string(50, 'n').c_str());
    EXPECT_EQ(stream.PutObject(&bag), -1);
    EXPECT_EQ(stream.GetPos(), 0);
    bag.SetName(std::string(49, 'n').c_str());
    EXPECT_EQ(stream.PutObject(&bag), 0);
    EXPECT_EQ(stream.WriteObjectData(nullptr, 1), -2);
    EXPECT_EQ(stream.ReadObjectHeader(nullptr), -2);
    EXPECT_EQ(stream.WriteObjectFooter(nullptr), -2);

    // A list that holds itself ends in a failure, not in an exhausted stack.
    CcList circle;
    circle.InsertTail(&circle);
    CcMemObjectStorage spiral;
    EXPECT_LT(spiral.PutObject(&circle), 0);
}

TEST(ObjectStorage, Factory) {
    CcMemObjectStorage stream;
    CcHLObject* made = nullptr;
    for (const char* name :
         {"CcGrayImage256", "CcRoiRect", "CcRoiLine", "CcRoiFreeHandLine", "CcRoiPolyLine", "CcRoiEllipse",
          "CcRoiFreeHand", "CcRoiPolyFreeHand", "CcRoiPoint", "CcList", "CcNumber", "CcString", "CcPropertyBag"}) {
        ASSERT_EQ(stream.CreateObject(name, &made), 0) << name;
        char written[50] = "";
        const bool isNamed = made->GetClassNameA(written, 50) == 0;
        EXPECT_STREQ(isNamed ? written : name, name);
        EXPECT_TRUE(isNamed || std::strncmp(name, "CcRoi", 5) != 0) << name;
        delete made;
    }
    for (const char* name : {"CcImage", "CcRoiBase", "CcHLObject", "cclist", ""}) {
        CcString marker;
        made = &marker;
        EXPECT_EQ(stream.CreateObject(name, &made), -1) << name;
        EXPECT_EQ(made, nullptr);
    }
    EXPECT_EQ(stream.CreateObject(nullptr, &made), -2);
    EXPECT_EQ(stream.CreateObject("CcList", nullptr), -2);
}

TEST(ObjectStorage, StreamsThatLie) {
    const Bytes good = Record("CcPropertyBag", "b", BagData(1));
    CcList list;
    CcHLObject* made = &list;
    {
        HandMade wrong(Record("CcGraph", "g", {}));
        EXPECT_EQ(wrong.stream.GetNextObject(&list), -8);
        wrong.stream.Reset();
        EXPECT_EQ(wrong.stream.GetNextObject(static_cast<CcHLObject*>(nullptr)), -2);
    }
    {
        Bytes tag = good;
        tag[16] = 'X';
        HandMade noTag(tag);
        EXPECT_EQ(noTag.stream.GetNextObject(&made), -4);
    }
    {
        Bytes tag = good;
        tag[tag.size() - 117] = 'x';
        HandMade noFooter(tag);
        EXPECT_EQ(noFooter.stream.GetNextObject(&made), -4);
        HandMade again(tag);
        CcPropertyBag bag;
        EXPECT_EQ(again.stream.GetNextObject(&bag), -4);
    }
    {
        // Names that fill their fields end there.
        HandMade fullName(Record("CcPropertyBag", std::string(50, 'n'), BagData(1)));
        CcPropertyBag bag;
        EXPECT_EQ(fullName.stream.GetNextObject(&bag), 0);
        EXPECT_EQ(std::string(bag.GetName()), std::string(50, 'n'));
        HandMade fullClass(Record(std::string(50, 'C'), "", BagData(1)));
        EXPECT_EQ(fullClass.stream.GetNextObject(&made), -1);
    }
    {
        HandMade hugeCount(Record("CcList", "", ListData(INT_MAX)));
        EXPECT_EQ(hugeCount.stream.GetNextObject(&made), -1);
    }
    {
        Bytes nested = Record("CcList", "", ListData(0));
        for (int depth = 0; depth < 300; ++depth) nested = Record("CcList", "", ListData(1, nested));
        HandMade deep(nested);
        EXPECT_EQ(deep.stream.GetNextObject(&made), -1);
    }
    for (std::size_t cut = 0; cut < good.size(); cut += 13) {
        Bytes head;
        head.assign(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(cut));
        HandMade shortened(head);
        EXPECT_LT(shortened.stream.GetNextObject(&made), 0) << cut;
    }
    EXPECT_EQ(made, &list);
}

TEST(CcFileObjectStorage, OpeningAndResultCodes) {
    const test::TemporaryFile file("stream.ost");
    CcFileObjectStorage stream;
    char bytes[4] = {};
    EXPECT_EQ(stream.Open(nullptr, GENERIC_READ), -2);
    EXPECT_EQ(stream.Close(), -13);
    EXPECT_EQ(stream.Read(bytes, 1), -13);
    EXPECT_EQ(stream.Write(bytes, 1), -13);
    EXPECT_EQ(stream.SetPos(0), -13);
    EXPECT_EQ(stream.GetPos(), -13);
    EXPECT_EQ(stream.Open("no such folder\\x", GENERIC_READ), -9);
    ASSERT_EQ(stream.Open(file.Path(), GENERIC_WRITE), 0);
    EXPECT_EQ(stream.Open(file.Path(), GENERIC_WRITE), -12);
    EXPECT_EQ(stream.Write(bytes, 4), 0);
    EXPECT_EQ(stream.GetPos(), 4);
    EXPECT_EQ(stream.Write(bytes, 0), -3);
    EXPECT_EQ(stream.Write(nullptr, 4), -2);
    EXPECT_EQ(stream.SetPos(5), -3);
    EXPECT_EQ(stream.Reset(), -14);
    EXPECT_EQ(stream.Read(bytes, 4), -10);
    EXPECT_EQ(stream.Close(), 0);
    ASSERT_EQ(stream.Open(file.Path(), GENERIC_READ), 0);
    EXPECT_EQ(stream.Write(bytes, 1), -11);
    CcPropertyBag bag;
    EXPECT_EQ(stream.PutObject(&bag), -11);
    EXPECT_EQ(stream.Read(bytes, 4), 0);
    EXPECT_EQ(stream.Read(bytes, 1), -10);
}

TEST(CcFileObjectStorage, FileHoldsWhatTheMemoryStreamHolds) {
    const Bytes longOld = Bytes().Fill(5000, 0xEE);
    const test::TemporaryFile file("objects.ost", longOld);
    CcPropertyBag small, large;
    small.SetName("small");
    small.PutInt("v", 5);
    const std::string blob(200000, 'q');
    large.PutBlob("data", blob.data(), 200000);
    large.PutInt("after", 9);
    CcMemObjectStorage memory;
    ASSERT_EQ(memory.PutObject(&small), 0);
    {
        CcFileObjectStorage stream;
        ASSERT_EQ(stream.Open(file.Path(), GENERIC_WRITE), 0);
        ASSERT_EQ(stream.PutObject(&small), 0);
        EXPECT_EQ(stream.GetPos(), memory.GetPos());
    }
    // A shorter stream leaves the old tail.
    const auto onDisk = file.Content();
    ASSERT_EQ(onDisk.size(), longOld.size());
    const auto expected = ContentOf(memory);
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), onDisk.begin()));
    EXPECT_EQ(onDisk[expected.size()], 0xEE);
    {
        CcFileObjectStorage stream;
        ASSERT_EQ(stream.Open(file.Path(), GENERIC_READ | GENERIC_WRITE), 0);
        ASSERT_EQ(stream.PutObject(&small), 0);
        ASSERT_EQ(stream.PutObject(&large), 0);
        ASSERT_EQ(memory.PutObject(&large), 0);
        EXPECT_EQ(stream.GetPos(), memory.GetPos());

        EXPECT_EQ(stream.Reset(), -14);
        CcHLObject* made = nullptr;
        ASSERT_EQ(stream.GetNextObject(&made), 0);
        EXPECT_STREQ(made->GetName(), "small");
        delete made;
        // What was read ahead does not count as read.
        CcMemObjectStorage one;
        one.PutObject(&small);
        EXPECT_EQ(stream.GetPos(), one.GetPos());
        char tag[17];
        EXPECT_EQ(stream.Read(tag, 17), 0);
        EXPECT_STREQ(tag, "OST_OBJECTHEADER");
        stream.Reset();
        CcPropertyBag back;
        ASSERT_EQ(stream.GetNextObject(&back), 0);
        ASSERT_EQ(stream.GetNextObject(&back), 0);
        std::string read(200000, 0);
        EXPECT_EQ(back.GetBlob("data", read.data(), 200000), 0);
        EXPECT_EQ(read, blob);
        EXPECT_EQ(stream.GetNextObject(&back), -10);
    }
    EXPECT_EQ(file.Content(), ContentOf(memory));
}
