// The object list: cursors, inserts, deletes, growth, streams, and positions that came from a stream that lies.
#include "support/ClassTests.h"

using namespace test;

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

/// The names, then the positions of the current and the selected object.
std::string StateOf(CcList& list) {
    const int current = list.GetCurrentObjectsIndex();
    std::string names;
    for (int i = 0; i < list.GetNumberOfObjects(); ++i) names += list.GetAtIndex(i)->GetName();
    list.GetAtIndex(current);
    return names + ' ' + std::to_string(current) + ' ' + std::to_string(list.GetSelectedObjectsIndex());
}

struct Letters {
    Counted a{"a"}, b{"b"}, c{"c"};
    CcList list;
    Letters() {
        for (Counted* letter : {&a, &b, &c}) list.InsertTail(letter);
    }
    /// What a step gave, and the list behind it.
    void Expect(const auto& result, const std::decay_t<decltype(result)>& wanted, const char* state) {
        EXPECT_EQ(result, wanted) << state;
        EXPECT_EQ(StateOf(list), state);
    }
};

}  // namespace

TEST(CcList, WalksAndLooksUp) {
    CcList empty;
    constexpr CcHLObject* none = nullptr;
    ExpectAll(none, {empty.GetHead(), empty.GetTail(), empty.GetNext(), empty.GetPrev(), empty.GetViaName("a")});
    Letters with;
    CcList& list = with.list;
    with.Expect(list.GetHead(), &with.a, "abc 0 -1");
    with.Expect(list.GetPrev(), none, "abc 0 -1");
    with.Expect(list.GetNext(), &with.b, "abc 1 -1");
    with.Expect(list.GetNext(), &with.c, "abc 2 -1");
    with.Expect(list.GetNext(), nullptr, "abc 2 -1");
    with.Expect(list.GetPrev(), &with.b, "abc 1 -1");
    with.Expect(list.GetViaName("C"), nullptr, "abc 1 -1");
    with.Expect(list.GetViaName("c"), &with.c, "abc 2 -1");
    for (const int outside : {3, -1}) with.Expect(list.GetAtIndex(outside), nullptr, "abc 2 -1");
    EXPECT_EQ(list.GetSelected(), nullptr);
    with.Expect(list.SelectObjectAtIndex(1), 0, "abc 1 1");
    with.Expect(list.GetTail(), &with.c, "abc 2 1");
    with.Expect(list.GetSelected(), &with.b, "abc 1 1");
    for (const int outside : {3, -2}) with.Expect(list.SelectObjectAtIndex(outside), -1, "abc 1 1");
    with.Expect(list.SelectObjectAtIndex(-1), 0, "abc 1 -1");
}

TEST(CcList, InsertsMoveCursorsAsStated) {
    Letters with;
    Counted x("x"), y("y"), z("z");
    with.list.SelectObjectAtIndex(1);  // b
    with.Expect(with.list.InsertHead(&x), 0, "xabc 0 2");
    with.Expect(with.list.InsertAtIndex(&y, 2), 0, "xaybc 2 3");
    for (const int outside : {5, -1}) with.Expect(with.list.InsertAtIndex(&z, outside), -1, "xaybc 2 3");
    with.list.GetAtIndex(1);
    with.Expect(with.list.InsertSelected(&z), 0, "xzaybc 1 1");

    CcList empty;
    EXPECT_EQ(empty.InsertAtIndex(&x, 0), -1);
    ExpectAll(0, {empty.InsertSelected(&x), empty.InsertHead(nullptr)});
    EXPECT_EQ(empty.GetViaName("x"), &x);
    EXPECT_EQ(empty.GetCurrentObjectsIndex(), 1);
}

TEST(CcList, DeletesMoveCursorsAsStated) {
    Letters with, more;
    with.list.SelectObjectAtIndex(2);
    EXPECT_EQ(with.list.DeleteAtIndex(0), 0);
    with.Expect(with.list.GetSelected(), &with.c, "bc 1 1");
    with.Expect(with.list.DeleteAtIndex(2), -1, "bc 1 1");
    with.Expect(with.list.DeleteSelected(), 0, "b 0 -1");
    with.Expect(with.list.DeleteSelected(), -1, "b 0 -1");
    with.Expect(with.list.DeleteTail(), 0, " -1 -1");
    with.Expect(with.list.DeleteTail(), -1, " -1 -1");
    with.Expect(with.list.DeleteHead(), -1, " -1 -1");
    with.Expect(with.list.InsertSelected(&with.a), -1, " -1 -1");

    Counted second("b");
    more.list.InsertTail(&second);
    more.Expect(more.list.DeleteViaName("b"), 0, "acb 1 -1");
    more.Expect(more.list.DeleteViaName("none"), -1, "acb 1 -1");
    more.Expect(more.list.DeleteHead(), 0, "cb 0 -1");
    more.Expect(more.list.DeleteTail(), 0, "c 0 -1");
    more.Expect(more.list.DeleteHead(), 0, " 0 -1");
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

TEST(CcList, GrowsInTimeAndStaysInsideTheArray) {
    OpenList list;
    CcNumber number;
    for (int i = 0; i < 99; ++i) list.InsertTail(&number);
    EXPECT_EQ(list.iArraySize, 100);
    list.InsertTail(&number);
    EXPECT_EQ(list.iArraySize, 150);
    EXPECT_EQ(list.GetAtIndex(99), &number);

    CcList none(0, 1);
    EXPECT_EQ(TakeBoxes(), (Boxes{{"Memory Error", "Can't Lock Memory for List Object"}}));
    EXPECT_EQ(none.InsertTail(&number), 0);

    OpenList tiny(1, 1);
    ExpectAll(
        -1, {tiny.DeleteObjectAtIndex(0), tiny.InsertObjectAtIndex(&number, 1), tiny.InsertObjectAtIndex(&number, -1)});
    for (int i = 0; i < 5; ++i) EXPECT_EQ(tiny.InsertHead(&number), 0);
    // The step itself leaves the count to its caller.
    EXPECT_EQ(tiny.DeleteObjectAtIndex(4), 0);
    EXPECT_EQ(tiny.GetNumberOfObjects(), 5);
    EXPECT_EQ(tiny.GetTail(), nullptr);
}

TEST(CcList, SelectionGoesThroughStreamsAndMembersMustBeStorable) {
    CcRoiRect first, second;
    CcList list;
    list.InsertTail(&first);
    list.InsertTail(&second);
    list.SelectObjectAtIndex(1);
    list.GetHead();
    const auto loaded = Made<CcList>(StoredBytes(list));
    EXPECT_EQ(StateOf(*loaded), StateOf(list));
    loaded->SetDestructionType(1);

    CcString text;
    list.InsertTail(&text);
    CcMemObjectStorage stream;
    ExpectAll(-1, {list.Store(&stream), list.Store(nullptr), list.Load(nullptr)});
}

TEST(CcList, AnImageTakesOnlyRoisAndNothingOfOthersStays) {
    const Bytes bag = Record("CcPropertyBag", "", Bytes().I32(0).I32(0));
    const auto record = [](const Bytes& member, int count) {
        const Bytes dib = Bytes().I32(1).Add(PropertyEntry("DIB_SIZE", 1, 0, 4)).I32(4).I32(40);
        return Record("CcGrayImage256", "i",
                      Record("CcPropertyBag", "", dib).Add(Record("CcList", "", ListBag(0, count, -1, 0).Add(member))));
    };
    // The lists say that they do not own their members.
    Bytes nested = bag;
    for (int depth = 0; depth < 5; ++depth) nested = Record("CcList", "", ListBag(0, 2, -1, 0).Add(nested).Add(bag));
    CcRoiRect rect;
    const Bytes roi = StoredBytes(rect);
    // The last one breaks off behind a nested list.
    const Bytes breaksOff = Record("CcList", "", ListBag(0, 3, -1, 0).Add(nested));
    Census before;
    for (int round = 0; round < 3; ++round) {
        if (round == 1) before = TakeCensus();
        CcHLObject* made = nullptr;
        for (const Bytes& bad : {record(bag, 2), record(nested, 2), record(Bytes(roi).Add(nested), 2), breaksOff})
            EXPECT_LT(HandMade(bad).stream.GetNextObject(&made), 0);
    }
    EXPECT_EQ(TakeCensus(), before);
    const auto loaded = Made<CcGrayImage256>(record(Bytes(roi).Add(roi), 2));
    EXPECT_EQ(loaded->GetListROI()->GetNumberOfObjects(), 2);
    const int alive = CcRoiBase::iNumOfROIs;
    loaded->GetListROI()->DeleteTail();
    EXPECT_EQ(CcRoiBase::iNumOfROIs, alive - 1) << "an image owns its ROIs";

    // So does its list by itself, whatever list is assigned to it.
    const Bytes other = Record("CcList", "", ListBag(0, 1, -1, 1).Add(bag));
    CcGrayImage256 fresh;
    for (CcList* const rois : {fresh.GetListROI(), loaded->GetListROI()}) {
        CcList plain;
        plain = *rois;
        EXPECT_LT(LoadRecord(*rois, other), 0);
        *rois = plain;
        EXPECT_LT(LoadRecord(*rois, other), 0);
        EXPECT_EQ(LoadRecord(plain, other), 0);
        // A list that was assigned to owns nothing.
        delete plain.GetHead();
    }
}

TEST(CcList, PositionsFromAStreamThatLiesAreHarmless) {
    for (const int lie : {INT_MIN, -5, 3, 1000000, INT_MAX}) {
        CcList list;
        ASSERT_EQ(list.Load(HandMade(ListBag(lie, 0, lie, lie)).Stream()), 0);
        EXPECT_EQ(list.GetCurrentObjectsIndex(), lie);
        CcNumber number;
        ExpectAll<CcHLObject*>(nullptr, {list.GetSelected(), list.GetNext(), list.GetPrev()});
        ExpectAll(-1, {list.DeleteSelected(), list.InsertSelected(&number)});
        EXPECT_EQ(list.InsertHead(&number), 0);
        EXPECT_EQ(list.GetHead(), &number);
        EXPECT_EQ(list.DeleteTail(), 0);
    }
}
