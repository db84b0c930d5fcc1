// Object streams in memory and in files: records to the byte, positions, result codes, and streams that lie.
#include "support/ClassTests.h"

using namespace test;

namespace {

Bytes BagData(int value) { return Bytes().I32(1).Add(PropertyEntry("v", 0, 0, 4)).I32(4).I32(value); }

}  // namespace

TEST(CcMemObjectStorage, PositionsAndMargins) {
    CcMemObjectStorage stream;
    char bytes[16] = "0123456789";
    EXPECT_EQ(stream.Write(bytes, 10), 0);
    EXPECT_EQ(stream.GetPos(), 10);
    EXPECT_EQ(ContentOf(stream).size(), 10u);
    ExpectAll(-3, {stream.SetPos(11), stream.SetPos(-1)});
    EXPECT_EQ(stream.SetPos(4), 0);
    EXPECT_EQ(stream.SetPos(5), -3);
    EXPECT_EQ(stream.Reset(), 0);
    ExpectAll(-2, {stream.Write(nullptr, 1), stream.Read(nullptr, 1)});
    ExpectAll(-3, {stream.Write(bytes, 0), stream.Read(bytes, 0)});
    EXPECT_EQ(stream.Read(bytes, LONG_MAX), -7);

    unsigned char ten[10] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    CcMemObjectStorage external(ten, 10, 1);
    char out[10];
    EXPECT_EQ(external.Read(out, 10), -7);
    EXPECT_EQ(external.Read(out, 9), 0);
    ExpectAll(-6, {external.Write(out, 1), external.GrowStorageBuffer(1)});
    ExpectAll(0, {external.Reset(), external.Write(out + 8, 1)});
    EXPECT_EQ(ten[0], 9);
}

TEST(CcMemObjectStorage, GrowsWhenAWriteWouldReachTheLastByte) {
    struct Open : CcMemObjectStorage {
        Open() : CcMemObjectStorage(10, 4) {}
        using CcMemObjectStorage::iBufferSize;
    } stream;
    char bytes[32] = {};
    for (const auto& [count, size] : {std::pair{9, 10}, {1, 14}, {20, 34}}) {
        EXPECT_EQ(stream.Write(bytes, count), 0);
        EXPECT_EQ(stream.iBufferSize, size);
    }
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

TEST(ObjectStorage, WhatCannotBeWritten) {
    CcMemObjectStorage stream;
    CcPropertyBag bag;
    CcString text;
    CcNumber number;
    EXPECT_EQ(stream.PutObject(nullptr), -2);
    bag.SetName(std::string(50, 'n').c_str());
    ExpectAll(-1, {stream.PutObject(&text), stream.PutObject(&number), stream.PutObject(&bag)});
    EXPECT_EQ(stream.GetPos(), 0);
    bag.SetName(std::string(49, 'n').c_str());
    EXPECT_EQ(stream.PutObject(&bag), 0);

    // A list that holds itself ends in a failure, not in an exhausted stack.
    CcList circle;
    circle.InsertTail(&circle);
    CcMemObjectStorage spiral;
    EXPECT_LT(spiral.PutObject(&circle), 0);
}

TEST(ObjectStorage, Factory) {
    CcMemObjectStorage stream;
    CcHLObject* made = nullptr;
    for (const char* name : {"CcGrayImage256", "CcRoiPoint", "CcList", "CcNumber", "CcString", "CcPropertyBag"}) {
        ASSERT_EQ(stream.CreateObject(name, &made), 0) << name;
        char written[50] = "";
        EXPECT_STREQ(made->GetClassNameA(written, 50) == 0 ? written : name, name);
        delete made;
    }
    for (const char* name : {"CcImage", "CcRoiBase", "CcHLObject", "cclist", ""}) {
        CcString marker;
        made = &marker;
        EXPECT_EQ(stream.CreateObject(name, &made), -1) << name;
        EXPECT_EQ(made, nullptr);
    }
    ExpectAll(-2, {stream.CreateObject(nullptr, &made), stream.CreateObject("CcList", nullptr)});
}

TEST(ObjectStorage, StreamsThatLie) {
    const Bytes good = Record("CcPropertyBag", "b", BagData(1));
    CcList list;
    CcHLObject* made = &list;
    HandMade wrong(Record("CcGraph", "g", {}));
    EXPECT_EQ(wrong.stream.GetNextObject(&list), -8);
    wrong.stream.Reset();
    EXPECT_EQ(wrong.stream.GetNextObject(static_cast<CcHLObject*>(nullptr)), -2);

    Bytes noHeader = good, noFooter = good, nested = Record("CcList", "", ListBag(0, 0, -1, 1));
    noHeader[16] = 'X';  // the tags count with their ends
    noFooter[good.size() - 101] = 'x';
    for (int depth = 0; depth < 300; ++depth) nested = Record("CcList", "", ListBag(0, 1, -1, 1).Add(nested));
    for (const auto& [record, result] : {std::pair{Bytes(), -7},
                                         {noHeader, -4},
                                         {noFooter, -4},
                                         {nested, -1},
                                         {Record("CcList", "", ListBag(0, INT_MAX, -1, 1)), -1},
                                         {Record(std::string(50, 'C'), "", BagData(1)), -1}})
        EXPECT_EQ(HandMade(record).stream.GetNextObject(&made), result);
    // A name that fills its field ends there.
    CcPropertyBag bag;
    EXPECT_EQ(LoadRecord(bag, noFooter), -4);
    EXPECT_EQ(LoadRecord(bag, Record("CcPropertyBag", std::string(50, 'n'), BagData(1))), 0);
    EXPECT_EQ(std::string(bag.GetName()), std::string(50, 'n'));
    for (std::size_t cut = 0; cut < good.size(); cut += 13) {
        Bytes head;
        head.assign(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(cut));
        EXPECT_LT(HandMade(head).stream.GetNextObject(&made), 0) << cut;
    }
    EXPECT_EQ(made, &list);
}

TEST(CcFileObjectStorage, OpeningAndResultCodes) {
    const TemporaryFile file("stream.ost");
    CcFileObjectStorage stream;
    char bytes[4] = {};
    EXPECT_EQ(stream.Open(nullptr, GENERIC_READ), -2);
    ExpectAll(-13, {stream.Close(), stream.Read(bytes, 1), stream.Write(bytes, 1), stream.SetPos(0), stream.GetPos()});
    EXPECT_EQ(stream.Open("no such folder/x", GENERIC_READ), -9);
    ASSERT_EQ(stream.Open(file.Path(), GENERIC_WRITE), 0);
    EXPECT_EQ(stream.Open(file.Path(), GENERIC_WRITE), -12);
    EXPECT_EQ(stream.Write(bytes, 4), 0);
    EXPECT_EQ(stream.GetPos(), 4);
    ExpectAll(-3, {stream.Write(bytes, 0), stream.SetPos(5)});
    EXPECT_EQ(stream.Write(nullptr, 4), -2);
    EXPECT_EQ(stream.Reset(), -14);
    EXPECT_EQ(stream.Read(bytes, 4), -10);
    EXPECT_EQ(stream.Close(), 0);
    ASSERT_EQ(stream.Open(file.Path(), GENERIC_READ), 0);
    EXPECT_EQ(stream.Write(bytes, 1), -11);
    // Where the header cannot be written the object is not asked for the rest.
    struct Watched : CcPropertyBag {
        int Store(CcObjectStorage*) override { return ++stores; }
        int stores = 0;
    } bag;
    CcString text;
    EXPECT_EQ(stream.PutObject(&text), -1);
    EXPECT_EQ(stream.PutObject(&bag), -11);
    EXPECT_EQ(bag.stores, 0);
    EXPECT_EQ(stream.Read(bytes, 4), 0);
    EXPECT_EQ(stream.Read(bytes, 1), -10);
}

TEST(ObjectStorage, NothingFollowsBytesThatWereLost) {
    // The caller's block takes header, counts and footer, but not the value between them.
    CcPropertyBag bag;
    bag.PutBlob("data", std::string(2000, 'q').data(), 2000);
    unsigned char block[1000];
    CcMemObjectStorage full(block, sizeof block, 1);
    EXPECT_EQ(full.PutObject(&bag), -6);
    EXPECT_EQ(full.GetPos(), 128 + 4 + 272 + 4);
    // The next object is another matter.
    CcPropertyBag small;
    EXPECT_EQ(full.PutObject(&small), 0);
}

#if defined(_WIN32)
TEST(CcFileObjectStorage, WherePositionsCannotBeSetBackNoObjectIsLost) {
    const Bytes records =
        Record("CcPropertyBag", "first", BagData(1)).Add(Record("CcPropertyBag", "second", BagData(2)));
    constexpr char name[] = "\\\\.\\pipe\\kest-records";
    const HANDLE server = CreateNamedPipeA(name, PIPE_ACCESS_OUTBOUND, PIPE_TYPE_BYTE, 1, 1 << 16, 1 << 16, 0, nullptr);
    CcFileObjectStorage stream;
    ASSERT_EQ(stream.Open(name, GENERIC_READ), 0);
    DWORD written = 0;
    WriteFile(server, records.data(), static_cast<DWORD>(records.size()), &written, nullptr);
    for (const char* expected : {"first", "second"}) {
        CcPropertyBag bag;
        EXPECT_EQ(stream.GetNextObject(&bag), 0);
        EXPECT_STREQ(bag.GetName(), expected);
    }
    ExpectAll(-1, {stream.Reset(), stream.GetPos()});

    // A file of which the position cannot be set back tells so, and goes on behind the object.
    struct Handle : CcFileObjectStorage {
        static HANDLE& Of(CcFileObjectStorage& stream) { return stream.*&Handle::hFile; }
    };
    const TemporaryFile file("objects.ost", {});
    CcFileObjectStorage onDisk;
    ASSERT_EQ(onDisk.Open(file.Path(), GENERIC_READ), 0);
    std::swap(Handle::Of(onDisk), Handle::Of(stream));
    WriteFile(server, records.data(), static_cast<DWORD>(records.size()), &written, nullptr);
    CloseHandle(server);
    CcPropertyBag first, second;
    EXPECT_EQ(onDisk.GetNextObject(&first), KEST_READ_FAILED);
    EXPECT_STREQ(first.GetName(), "first");
    EXPECT_EQ(onDisk.GetNextObject(&second), 0);
    EXPECT_STREQ(second.GetName(), "second");
}
#endif

TEST(CcFileObjectStorage, FileHoldsWhatTheMemoryStreamHolds) {
    const TemporaryFile file("objects.ost", Bytes().Fill(5000, 0xEE));
    struct Asking : CcPropertyBag {
        int Load(CcObjectStorage* storage) override {
            begin = storage->GetPos();
            return CcPropertyBag::Load(storage);
        }
        int begin = 0;
    } back;
    CcPropertyBag small, large;
    small.SetName("small");
    small.PutInt("v", 5);
    large.PutBlob("data", std::string(200000, 'q').data(), 200000);
    large.PutInt("after", 9);
    const Bytes first = StoredBytes(small), second = StoredBytes(large), both = Bytes(first).Add(second);
    CcFileObjectStorage stream;
    ASSERT_EQ(stream.Open(file.Path(), GENERIC_WRITE), 0);
    ASSERT_EQ(stream.PutObject(&small), 0);
    stream.Close();
    // A shorter stream leaves the old tail.
    EXPECT_EQ(file.Content(), Bytes(first).Fill(5000 - first.size(), 0xEE));
    ASSERT_EQ(stream.Open(file.Path(), GENERIC_READ | GENERIC_WRITE), 0);
    ExpectAll(0, {stream.PutObject(&small), stream.PutObject(&large)});
    EXPECT_EQ(stream.GetPos(), static_cast<int>(both.size()));
    EXPECT_EQ(stream.Reset(), -14);
    ASSERT_EQ(stream.GetNextObject(&back), 0);
    EXPECT_EQ(StoredBytes(back), first);
    EXPECT_EQ(back.begin, 128) << "behind the header";
    // What was read ahead does not count as read.
    EXPECT_EQ(stream.GetPos(), static_cast<int>(first.size()));
    ASSERT_EQ(stream.GetNextObject(&back), 0);
    EXPECT_EQ(StoredBytes(back), second);
    EXPECT_EQ(stream.GetNextObject(&back), -10);
    stream.Close();
    EXPECT_EQ(file.Content(), both);
}
