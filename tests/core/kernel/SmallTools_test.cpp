// The small tools that everything else stands on.
#include "core/kernel/ByteReader.h"
#include "core/kernel/CheckedSize.h"
#include "core/kernel/Numbers.h"
#include "core/kernel/PathParts.h"
#include "support/KernelTests.h"

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
    test::ExpectAll(false,
                    {LiesInside(4, 7, 10), LiesInside(11, 0, 10), LiesInside(-1, 1, 10), LiesInside(1, INT64_MAX, 10)});
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

TEST(PathParts, SplitsAsThePlatformDoes) {
    const PathParts full = SplitPath("D:\\pics.old\\cell.2.bmp");
    EXPECT_EQ(full.directory, "\\pics.old\\");
    EXPECT_EQ(full.name, "cell.2");
    EXPECT_EQ(full.extension, ".bmp");
    EXPECT_EQ(SplitPath("name").name, "name");
    EXPECT_EQ(SplitPath("C:/a.b/").directory, "/a.b/");
}
