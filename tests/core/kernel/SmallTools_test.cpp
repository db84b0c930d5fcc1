// The small tools that everything else stands on.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <climits>

#include "core/kernel/ByteReader.h"
#include "core/kernel/CheckedSize.h"
#include "core/kernel/Numbers.h"
#include "core/kernel/PathParts.h"
#include "core/kernel/PropertyTable.h"
#include "core/kernel/TextField.h"

using namespace kest;

TEST(Numbers, TruncationIsDefinedForEveryValue) {
    EXPECT_EQ(TruncateToInt(2.9), 2);
    EXPECT_EQ(TruncateToInt(-2.9), -2);
    EXPECT_EQ(TruncateToInt(2147483647.9), INT_MAX);
    EXPECT_EQ(TruncateToInt(-2147483648.9), INT_MIN);
    for (double tooLarge : {2147483648.0, -2147483649.0, 1e300, -1e300, double(INFINITY), double(NAN)})
        EXPECT_EQ(TruncateToInt(tooLarge), INT_MIN);
    EXPECT_EQ(TruncateToByte(256.0), 0);
    EXPECT_EQ(TruncateToByte(300.7), 44);
    EXPECT_EQ(TruncateToByte(-1.0), 255);
}

TEST(CheckedSize, InsideIsDecidedWithoutOverflow) {
    EXPECT_TRUE(LiesInside(4, 6, 10));
    EXPECT_FALSE(LiesInside(4, 7, 10));
    EXPECT_FALSE(LiesInside(11, 0, 10));
    EXPECT_FALSE(LiesInside(-1, 1, 10));
    EXPECT_FALSE(LiesInside(1, INT64_MAX, 10));
    EXPECT_EQ(Saturate(Product(INT_MAX, INT_MAX)), INT_MAX);
    EXPECT_EQ(Saturate(Product(INT_MIN, INT_MAX)), INT_MIN);
}

TEST(ByteReader, NeverReadsPastTheEnd) {
    const std::array<std::uint8_t, 7> bytes = {0x01, 0x02, 0x03, 0x04, 0xFF, 0xFE, 0xFD};
    ByteReader reader(bytes);
    std::uint32_t word = 0;
    std::uint16_t half = 9;
    ASSERT_TRUE(reader.Read(word));
    EXPECT_EQ(word, 0x04030201u);
    EXPECT_FALSE(reader.Read(word));
    EXPECT_EQ(word, 0x04030201u);
    ASSERT_TRUE(reader.Read(half));
    EXPECT_EQ(half, 0xFEFF);
    EXPECT_FALSE(reader.Skip(2));
    EXPECT_EQ(reader.Remaining(), 1u);
}

TEST(TextField, FieldsWithoutTerminatorEndAtTheirWidth) {
    const char field[4] = {'a', 'b', 'c', 'd'};
    EXPECT_TRUE(FieldEquals(field, 4, "abcd"));
    EXPECT_FALSE(FieldEquals(field, 4, "abcde"));
    EXPECT_FALSE(FieldEquals(field, 4, "abc"));
    char text[5];
    CopyField(text, field, 4);
    EXPECT_STREQ(text, "abcd");
    char narrow[4] = "old";
    EXPECT_FALSE(CopyIfFits(narrow, "four"));
    EXPECT_STREQ(narrow, "old");
    CopyCut(narrow, "four");
    EXPECT_STREQ(narrow, "fou");
}

TEST(PathParts, SplitsAsThePlatformDoes) {
    const PathParts full = SplitPath("D:\\pics.old\\cell.2.bmp");
    EXPECT_EQ(full.drive, "D:");
    EXPECT_EQ(full.directory, "\\pics.old\\");
    EXPECT_EQ(full.name, "cell.2");
    EXPECT_EQ(full.extension, ".bmp");
    const PathParts bare = SplitPath("name");
    EXPECT_EQ(bare.name, "name");
    EXPECT_TRUE(bare.extension.empty());
    EXPECT_EQ(SplitPath("C:/a.b/").directory, "/a.b/");
}

TEST(PropertyTable, OnlyATableThatFillsItsBufferIsUsed) {
    tagPROPERTY table[2];
    MakeProperty(table[0], "a", 0, 0, 4);
    MakeProperty(table[1], "b", 5, 4, 6);
    EXPECT_TRUE(TableMatchesBuffer(table, 10));
    EXPECT_FALSE(TableMatchesBuffer(table, 9));
    EXPECT_FALSE(TableMatchesBuffer(table, 11));
    table[1].iPropOffset = 3;
    EXPECT_FALSE(TableMatchesBuffer(table, 10));
    table[1].iPropOffset = 4;
    table[1].iPropLength = INT_MAX;
    EXPECT_FALSE(TableMatchesBuffer(table, 10));
    table[1].iPropLength = 0;
    EXPECT_FALSE(TableMatchesBuffer(table, 4));
}
