// The root class, the value objects, and the slot order that hosts' own classes rely on.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "KestApi.h"
#include "support/Slots.h"

TEST(CcHLObject, SlotOrder) {
    EXPECT_EQ(test::SlotOf(&CcHLObject::Load), 1);
    EXPECT_EQ(test::SlotOf(&CcHLObject::Store), 2);
    EXPECT_EQ(test::SlotOf(&CcHLObject::GetClassNameA), 3);
    EXPECT_EQ(test::SlotOf(&CcHLObject::GetObjectName), 4);
    EXPECT_EQ(test::SlotOf(&CcHLObject::SetObjectName), 5);
    EXPECT_EQ(test::SlotOf(&CcObjectStorage::Read), 1);
    EXPECT_EQ(test::SlotOf(&CcObjectStorage::Write), 2);
    EXPECT_EQ(test::SlotOf(&CcObjectStorage::SetPos), 3);
    EXPECT_EQ(test::SlotOf(&CcObjectStorage::GetPos), 4);
}

TEST(CcHLObject, NamesAreRefusedNotCut) {
    CcHLObject object;
    EXPECT_STREQ(object.GetName(), "");
    const std::string longest(259, 'n'), tooLong(260, 'n');
    EXPECT_EQ(object.SetName(longest.c_str()), 0);
    EXPECT_EQ(object.SetName(tooLong.c_str()), -1);
    EXPECT_EQ(object.SetObjectName(tooLong.c_str()), -1);
    EXPECT_EQ(object.SetName(nullptr), -1);
    EXPECT_EQ(object.GetName(), longest);
    EXPECT_EQ(object.SetName(object.GetName() + 200), 0);
    EXPECT_EQ(std::strlen(object.GetName()), 59u);

    object.SetName("abcd");
    char buffer[5] = "????";
    EXPECT_EQ(object.GetObjectName(buffer, 4), -1);
    EXPECT_EQ(object.GetObjectName(nullptr, 5), -1);
    EXPECT_EQ(object.GetObjectName(buffer, 0), -1);
    EXPECT_STREQ(buffer, "????");
    EXPECT_EQ(object.GetObjectName(buffer, 5), 0);
    EXPECT_STREQ(buffer, "abcd");
    object.SetName("");
    EXPECT_EQ(object.GetObjectName(buffer, 1), 0);
    EXPECT_STREQ(buffer, "");
}

TEST(Blocks, ACopyIsAssignedAnewThoughTheHandleWasUsedAgain) {
    KestGlobalBlock block;
    ASSERT_NE(block.Allocate(5000), nullptr);
    KestGlobalBlock copy(block);
    ASSERT_NE(block.Allocate(10), nullptr);
    copy = block;
    EXPECT_EQ(copy.Size(), 10);
    EXPECT_EQ(copy.Get(), block.Get());
    EXPECT_FALSE(copy.Owns());
    block = copy;
    EXPECT_TRUE(block.Owns());
}

TEST(CcHLObject, CountTypeAndCopies) {
    CcHLObject object;
    EXPECT_EQ(object.DecReferenceCount(), -1);
    EXPECT_EQ(object.GetReferenceCount(), 0);
    EXPECT_EQ(object.IncReferenceCount(), 0);
    object.SetType(42);
    object.SetName("one");
    const CcHLObject copy(object);
    CcHLObject assigned;
    assigned = object;
    for (CcHLObject twin : {copy, assigned}) {
        EXPECT_EQ(twin.GetReferenceCount(), 1);
        EXPECT_EQ(twin.GetType(), 42);
        EXPECT_STREQ(twin.GetName(), "one");
    }
    EXPECT_EQ(object.DecReferenceCount(), 0);
    char buffer[8] = "x";
    EXPECT_EQ(object.Load(nullptr), -1);
    EXPECT_EQ(object.Store(nullptr), -1);
    EXPECT_EQ(object.GetClassNameA(buffer, 8), -1);
    EXPECT_STREQ(buffer, "x");
}

TEST(ValueObjects, TextAndNumber) {
    CcNumber number;
    EXPECT_EQ(number.GetType(), 7);
    EXPECT_EQ(number.GetValue(), 0.0F);
    EXPECT_EQ(number.SetValue(2.5F), 0);
    EXPECT_EQ(number.GetValue(), 2.5F);

    CcString text;
    EXPECT_EQ(text.GetType(), 8);
    EXPECT_STREQ(text.GetString(), "");
    EXPECT_EQ(text.SetString(std::string(400, 'x').c_str()), 0);
    EXPECT_EQ(std::string(text.GetString()), std::string(259, 'x'));
    EXPECT_EQ(text.SetString("short"), 0);
    EXPECT_STREQ(text.GetString(), "short");
    EXPECT_EQ(text.SetString(text.GetString() + 2), 0);
    EXPECT_STREQ(text.GetString(), "ort");
}
