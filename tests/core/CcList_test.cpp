// The object list: cursors, inserts, deletes, growth, streams, and positions that came from a stream that lies.
#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <string>
#include <vector>

#include "KestApi.h"
#include "support/Bytes.h"

using test::Bytes;
using test::Record;

namespace {

struct OpenList : CcList {
    using CcList::CcList;
    using CcList::iArraySize;
};

/// Counts its living objects.
struct Counted : CcHLObject {
    explicit Counted(const char* name) {
        SetName(name);
        ++alive;
    }
    ~Counted() override { --alive; }
    static int alive;
};
int Counted::alive = 0;

std::string NamesOf(CcList& list) {
    std::string names;
    for (int i = 0; i < list.GetNumberOfObjects(); ++i) names += list.GetAtIndex(i)->GetName();
    return names;
}

struct Letters {
    Counted a{"a"}, b{"b"}, c{"c"};
    CcList list;
    Letters() {
        for (Counted* letter : {&a, &b, &c}) list.InsertTail(letter);
    }
};

std::vector<std::uint8_t> StoredBytes(CcHLObject& object) {
    CcMemObjectStorage stream;
    EXPECT_EQ(stream.PutObject(&object), 0);
    unsigned char* block = nullptr;
    long length = 0;
    stream.GetStorageBufferRef(&block, &length);
    return {block, block + length - 1};
}

Bytes ListBag(int current, int count, int selected, int type) {
    return Record("CcPropertyBag", "",
                  Bytes()
                      .I32(4)
                      .Add(test::PropertyEntry("CcList::iCurrentObject", 0, 0, 4))
                      .Add(test::PropertyEntry("CcList::iNumberOfObjects", 0, 4, 4))
                      .Add(test::PropertyEntry("CcList::iSelectedObject", 0, 8, 4))
                      .Add(test::PropertyEntry("CcList::iDistructorFlag", 0, 12, 4))
                      .I32(16).I32(current).I32(count).I32(selected).I32(type));
}

}  // namespace

TEST(CcList, WalkingAndLookingUp) {
    CcList empty;
    EXPECT_EQ(empty.GetHead(), nullptr);
    EXPECT_EQ(empty.GetTail(), nullptr);
    EXPECT_EQ(empty.GetNext(), nullptr);
    EXPECT_EQ(empty.GetPrev(), nullptr);
    EXPECT_EQ(empty.GetViaName("a"), nullptr);
    EXPECT_EQ(empty.GetType(), 5);

    Letters with;
    EXPECT_EQ(with.list.GetHead(), &with.a);
    EXPECT_EQ(with.list.GetPrev(), nullptr);
    EXPECT_EQ(with.list.GetNext(), &with.b);
    EXPECT_EQ(with.list.GetNext(), &with.c);
    EXPECT_EQ(with.list.GetNext(), nullptr);
    EXPECT_EQ(with.list.GetCurrentObjectsIndex(), 2);
    EXPECT_EQ(with.list.GetPrev(), &with.b);
    EXPECT_EQ(with.list.GetViaName("C"), nullptr);
    EXPECT_EQ(with.list.GetCurrentObjectsIndex(), 1);
    EXPECT_EQ(with.list.GetViaName("c"), &with.c);
    EXPECT_EQ(with.list.GetCurrentObjectsIndex(), 2);
    EXPECT_EQ(with.list.GetAtIndex(3), nullptr);
    EXPECT_EQ(with.list.GetAtIndex(-1), nullptr);
    EXPECT_EQ(with.list.GetSelected(), nullptr);
    EXPECT_EQ(with.list.SelectObjectAtIndex(1), 0);
    EXPECT_EQ(with.list.GetTail(), &with.c);
    EXPECT_EQ(with.list.GetSelected(), &with.b);
    EXPECT_EQ(with.list.GetCurrentObjectsIndex(), 1);
    EXPECT_EQ(with.list.SelectObjectAtIndex(3), -1);
    EXPECT_EQ(with.list.SelectObjectAtIndex(-2), -1);
    EXPECT_EQ(with.list.GetSelectedObjectsIndex(), 1);
    EXPECT_EQ(with.list.SelectObjectAtIndex(-1), 0);
    EXPECT_EQ(with.list.GetSelectedObjectsIndex(), -1);
}

TEST(CcList, InsertsMoveCursorsAsStated) {
    Letters with;
    Counted x("x"), y("y"), z("z");
    with.list.SelectObjectAtIndex(1);  // b
    EXPECT_EQ(with.list.InsertHead(&x), 0);
    EXPECT_EQ(with.list.GetSelectedObjectsIndex(), 2);
    EXPECT_EQ(with.list.GetCurrentObjectsIndex(), 0);
    EXPECT_EQ(with.list.InsertAtIndex(&y, 2), 0);
    EXPECT_EQ(with.list.GetSelectedObjectsIndex(), 3);
    EXPECT_EQ(with.list.GetCurrentObjectsIndex(), 2);
    EXPECT_EQ(with.list.InsertAtIndex(&z, 5), -1);
    EXPECT_EQ(with.list.InsertAtIndex(&z, -1), -1);
    with.list.GetAtIndex(1);
    EXPECT_EQ(with.list.InsertSelected(&z), 0);
    EXPECT_EQ(with.list.GetSelectedObjectsIndex(), 1);
    EXPECT_EQ(with.list.GetCurrentObjectsIndex(), 1);
    EXPECT_EQ(NamesOf(with.list), "xzaybc");

    CcList empty;
    EXPECT_EQ(empty.InsertAtIndex(&x, 0), -1);
    EXPECT_EQ(empty.InsertSelected(&x), 0);
    EXPECT_EQ(empty.InsertHead(nullptr), 0);
    EXPECT_EQ(empty.GetNumberOfObjects(), 2);
    EXPECT_EQ(empty.GetViaName("x"), &x);
}

TEST(CcList, DeletesMoveCursorsAsStated) {
    {
        Letters with;
        with.list.SelectObjectAtIndex(2);
        EXPECT_EQ(with.list.DeleteAtIndex(0), 0);
        EXPECT_EQ(NamesOf(with.list), "bc");
        EXPECT_EQ(with.list.GetSelected(), &with.c);
        EXPECT_EQ(with.list.GetSelectedObjectsIndex(), 1);
        EXPECT_EQ(with.list.DeleteAtIndex(2), -1);
        EXPECT_EQ(with.list.DeleteSelected(), 0);
        EXPECT_EQ(with.list.GetCurrentObjectsIndex(), 0);
        EXPECT_EQ(with.list.GetSelectedObjectsIndex(), -1);
        EXPECT_EQ(with.list.DeleteSelected(), -1);
        EXPECT_EQ(with.list.DeleteTail(), 0);
        EXPECT_EQ(with.list.GetCurrentObjectsIndex(), -1);
        EXPECT_EQ(with.list.DeleteTail(), -1);
        EXPECT_EQ(with.list.DeleteHead(), -1);
        EXPECT_EQ(with.list.InsertSelected(&with.a), -1);
    }
    {
        Letters with;
        Counted second("b");
        with.list.InsertTail(&second);
        EXPECT_EQ(with.list.DeleteViaName("b"), 0);
        EXPECT_EQ(NamesOf(with.list), "acb");
        EXPECT_EQ(with.list.DeleteViaName("none"), -1);
        EXPECT_EQ(with.list.DeleteHead(), 0);
        EXPECT_EQ(with.list.GetCurrentObjectsIndex(), 0);
        EXPECT_EQ(with.list.DeleteTail(), 0);
        EXPECT_EQ(with.list.DeleteHead(), 0);
        EXPECT_EQ(with.list.GetCurrentObjectsIndex(), 0);
    }
}

TEST(CcList, DestructionTypeSaysWhoDeletes) {
    {
        CcList list;
        EXPECT_EQ(list.SetDestructionType(2), -1);
        EXPECT_EQ(list.SetDestructionType(1), 0);
        for (const char* name : {"1", "2", "3", "4"}) list.InsertTail(new Counted(name));
        list.InsertTail(nullptr);
        list.DeleteTail();
        list.DeleteHead();
        EXPECT_EQ(Counted::alive, 3);
        const CcList copy(list);
    }
    EXPECT_EQ(Counted::alive, 0);
}

TEST(CcList, KeepsOneSlotFree) {
    OpenList list;
    CcNumber number;
    for (int i = 0; i < 99; ++i) list.InsertTail(&number);
    EXPECT_EQ(list.iArraySize, 100);
    list.InsertTail(&number);
    EXPECT_EQ(list.iArraySize, 150);
    EXPECT_EQ(list.GetNumberOfObjects(), 100);
    EXPECT_EQ(list.GetAtIndex(99), &number);

    OpenList tiny(1, 1);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(tiny.InsertHead(&number), 0);
    EXPECT_EQ(tiny.GetNumberOfObjects(), 5);
}

TEST(CcList, SharedStepsStayInsideTheArray) {
    OpenList list(3, 1);
    CcNumber number;
    EXPECT_EQ(list.InsertObjectAtIndex(&number, 1), -1);
    EXPECT_EQ(list.InsertObjectAtIndex(&number, -1), -1);
    EXPECT_EQ(list.DeleteObjectAtIndex(0), -1);
    list.InsertTail(&number);
    list.InsertTail(&number);
    EXPECT_EQ(list.DeleteObjectAtIndex(1), 0);
    EXPECT_EQ(list.GetNumberOfObjects(), 2);
    EXPECT_EQ(list.GetTail(), nullptr);
}

TEST(CcList, StreamFormToTheByteAndBack) {
    CcRoiRect first, second;
    first.SetName("one");
    second.SetName("two");
    RECT rect = {1, 9, 5, 2};
    first.SetRoiImageCord(&rect);
    CcList list;
    list.SetName("rois");
    list.InsertTail(&first);
    list.InsertTail(&second);
    list.SelectObjectAtIndex(0);
    const auto rectRecord = [](const char* name, int left, int top, int right, int bottom) {
        return Record("CcRoiRect", name,
                      Record("CcPropertyBag", "",
                             Bytes()
                                 .I32(1)
                                 .Add(test::PropertyEntry("CcRoiRect::stImageRect", 5, 0, 16))
                                 .I32(16).I32(left).I32(top).I32(right).I32(bottom)));
    };
    const Bytes expected = Record("CcList", "rois",
                                  Bytes()
                                      .Add(ListBag(0, 2, 0, 0))
                                      .Add(rectRecord("one", 1, 9, 5, 2))
                                      .Add(rectRecord("two", 0, 0, 0, 0)));
    EXPECT_EQ(StoredBytes(list), expected);

    Bytes readable = expected;
    readable.U8(0);
    CcMemObjectStorage stream(readable.data(), static_cast<long>(readable.size()), 1);
    CcHLObject* made = nullptr;
    ASSERT_EQ(stream.GetNextObject(&made), 0);
    const std::unique_ptr<CcList> loaded(dynamic_cast<CcList*>(made));
    ASSERT_NE(loaded, nullptr);
    EXPECT_EQ(StoredBytes(*loaded), expected);
    EXPECT_EQ(static_cast<RECT*>(dynamic_cast<CcRoiRect*>(loaded->GetHead())->GetRoiImageCord())->top, 9);
    loaded->SetDestructionType(1);

    CcString text;
    list.InsertTail(&text);
    EXPECT_EQ(list.Store(&stream), -1);
    EXPECT_EQ(list.Store(nullptr), -1);
    EXPECT_EQ(list.Load(nullptr), -1);
}

TEST(CcList, PositionsFromAStreamThatLiesAreHarmless) {
    const int lies[] = {INT_MIN, -5, 3, 1000000, INT_MAX};
    for (int lie : lies) {
        Bytes bytes = ListBag(lie, 0, lie, lie).U8(0);
        CcMemObjectStorage stream(bytes.data(), static_cast<long>(bytes.size()), 1);
        CcList list;
        ASSERT_EQ(list.Load(&stream), 0);
        EXPECT_EQ(list.GetCurrentObjectsIndex(), lie);
        EXPECT_EQ(list.GetSelected(), nullptr);
        EXPECT_EQ(list.GetNext(), nullptr);
        EXPECT_EQ(list.GetPrev(), nullptr);
        EXPECT_EQ(list.DeleteSelected(), -1);
        CcNumber number;
        EXPECT_EQ(list.InsertSelected(&number), -1);
        EXPECT_EQ(list.InsertHead(&number), 0);
        EXPECT_EQ(list.GetHead(), &number);
        EXPECT_EQ(list.DeleteTail(), 0);
    }
}
