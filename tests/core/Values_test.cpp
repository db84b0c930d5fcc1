// The root class, the value objects, and the slot order that hosts' own classes rely on.
#include "support/ClassTests.h"

using namespace test;

TEST(CcHLObject, SlotOrder) {
    ExpectSlots(1, &CcHLObject::Load, &CcHLObject::Store, &CcHLObject::GetClassNameA, &CcHLObject::GetObjectName,
                &CcHLObject::SetObjectName);
    ExpectSlots(1, &CcObjectStorage::Read, &CcObjectStorage::Write, &CcObjectStorage::SetPos, &CcObjectStorage::GetPos);
}

TEST(CcHLObject, NamesAreRefusedNotCut) {
    CcHLObject object;
    const std::string longest(259, 'n'), tooLong(260, 'n');
    EXPECT_EQ(object.SetName(longest.c_str()), 0);
    ExpectAll(-1, {object.SetName(tooLong.c_str()), object.SetObjectName(tooLong.c_str()), object.SetName(nullptr)});
    EXPECT_EQ(object.GetName(), longest);
    EXPECT_EQ(object.SetName(object.GetName() + 255), 0);

    char buffer[5] = "????";
    ExpectAll(-1, {object.GetObjectName(buffer, 4), object.GetObjectName(nullptr, 5), object.GetObjectName(buffer, 0)});
    EXPECT_STREQ(buffer, "????");
    EXPECT_EQ(object.GetObjectName(buffer, 5), 0);
    EXPECT_STREQ(buffer, "nnnn");
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

TEST(ValueObjects, TextsAreCut) {
    CcString text;
    EXPECT_EQ(text.SetString(std::string(400, 'x').c_str()), 0);
    EXPECT_EQ(std::string(text.GetString()), std::string(259, 'x'));
    EXPECT_EQ(text.SetString(text.GetString() + 256), 0);
    EXPECT_STREQ(text.GetString(), "xxx");
}
