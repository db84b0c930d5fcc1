// The list of tools: its positions, and inserts and deletes compared with a vector's.
#include "support/ClassTests.h"

namespace {

int deleted = 0;

struct CountedTool : CLOADDLL {
    ~CountedTool() override { ++deleted; }
};

std::vector<CLOADDLL*> ContentOf(CDLLLST& list) {
    std::vector<CLOADDLL*> content;
    for (int i = 0; i < list.GetNumberOfElements(); ++i) content.push_back(list.GetAt(i));
    return content;
}

TEST(CDLLLST, WalksAndSelects) {
    CDLLLST list;
    EXPECT_EQ(list.GetHead(), nullptr);
    EXPECT_EQ(list.GetTail(), nullptr);
    EXPECT_EQ(list.GetNext(), nullptr);
    EXPECT_EQ(list.GetPrev(), nullptr);
    test::ExpectAll(-1, {list.DelAt(0), list.GetSelectedElement()});

    CLOADDLL* const tools[] = {new CLOADDLL, new CLOADDLL, new CLOADDLL};
    for (CLOADDLL* tool : tools) EXPECT_EQ(list.InsertTail(tool), 0);
    EXPECT_EQ(list.GetHead(), tools[0]);
    EXPECT_EQ(list.GetNext(), tools[1]);
    EXPECT_EQ(list.GetAt(0), tools[0]);  // does not move
    EXPECT_EQ(list.GetAt(3), nullptr);
    EXPECT_EQ(list.GetAt(-1), nullptr);
    EXPECT_EQ(list.GetNext(), tools[2]);
    EXPECT_EQ(list.GetNext(), nullptr);
    EXPECT_EQ(list.GetPrev(), tools[1]);
    EXPECT_EQ(list.GetTail(), tools[2]);
    EXPECT_EQ(list.DelAt(2), 0);
    EXPECT_EQ(list.GetNext(), nullptr);  // the position stays behind the last tool
    EXPECT_EQ(list.GetPrev(), tools[1]);

    EXPECT_EQ(list.SelectElement(1), 0);
    EXPECT_EQ(list.SelectElement(2), -1);
    EXPECT_EQ(list.GetSelectedElement(), 1);
    EXPECT_EQ(list.SelectElement(-1), 0);
    EXPECT_EQ(list.GetSelectedElement(), -1);
}

TEST(CDLLLST, InsertsAndDeletesUpToItsHundredTools) {
    deleted = 0;
    CountedTool notInList, dropped;
    {
        CDLLLST list;
        std::vector<CLOADDLL*> model;
        for (int i = 0; i < 100; ++i) {
            const int place = i * 7 % (i + 1);
            auto* tool = i == 50 ? nullptr : new CountedTool;
            EXPECT_EQ(list.InsertAt(place, tool), 0);
            model.insert(model.begin() + place, tool);
        }
        EXPECT_EQ(ContentOf(list), model);
        test::ExpectAll(-1,
                        {list.InsertTail(&notInList), list.InsertAt(0, &notInList), list.DelAt(101), list.DelAt(-1)});
        EXPECT_EQ(list.DelAt(99), 0);
        model.pop_back();

        // The number of tools as index takes the last one out alive, from a full list too.
        test::ExpectAll(0, {list.InsertTail(&dropped), list.DelAt(100)});
        EXPECT_EQ(deleted, 1);
        test::ExpectAll(-1, {list.InsertAt(100, &notInList), list.InsertAt(-1, &notInList)});

        for (const int place : {0, 50, 96}) {
            EXPECT_EQ(list.DelAt(place), 0);
            model.erase(model.begin() + place);
        }
        EXPECT_EQ(ContentOf(list), model);
        CDLLLST copy(list);
        EXPECT_EQ(copy.DelAt(0), 0);  // the tool is the list's, and stays
    }
    EXPECT_EQ(deleted, 99);
}

}  // namespace
