// The property bag: values, growth, its form in a stream, and streams that lie.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>

#include "KestApi.h"
#include "support/Bytes.h"

using test::Bytes;
using test::PropertyEntry;

namespace {

/// Shows the bookkeeping that the class keeps for derived classes.
struct OpenBag : CcPropertyBag {
    using CcPropertyBag::iNumProps;
    using CcPropertyBag::iPropBufferSize;
    using CcPropertyBag::iPropBufferUsed;
    using CcPropertyBag::iPropTableSize;
};

int LoadFrom(OpenBag& bag, Bytes bytes) {
    bytes.U8(0);  // a memory stream never reads its last byte
    CcMemObjectStorage stream(bytes.data(), static_cast<long>(bytes.size()), 1);
    return bag.Load(&stream);
}

std::vector<std::uint8_t> StoredBytes(CcPropertyBag& bag) {
    CcMemObjectStorage stream;
    EXPECT_EQ(bag.Store(&stream), 0);
    unsigned char* block = nullptr;
    long length = 0;
    stream.GetStorageBufferRef(&block, &length);
    return {block, block + length - 1};
}

}  // namespace

TEST(CcPropertyBag, FirstPutOfANameAndTypeWins) {
    OpenBag bag;
    EXPECT_EQ(bag.PutInt("a", 1), 0);
    EXPECT_EQ(bag.PutInt("a", 2), 0);
    EXPECT_EQ(bag.PutFloat("a", 0.5F), 0);
    int number = 0;
    float real = 0;
    double wide = 0;
    EXPECT_EQ(bag.GetInt("a", &number), 0);
    EXPECT_EQ(number, 1);
    EXPECT_EQ(bag.GetFloat("a", &real), 0);
    EXPECT_EQ(real, 0.5F);
    EXPECT_EQ(bag.GetDouble("a", &wide), -7);
    EXPECT_EQ(bag.GetInt("A", &number), -7);
    EXPECT_EQ(bag.iNumProps, 3);
}

TEST(CcPropertyBag, ResultsOfBadArguments) {
    OpenBag bag;
    char buffer[8];
    int number;
    EXPECT_EQ(bag.GetInt("a", &number), -7);
    EXPECT_EQ(bag.PutInt(nullptr, 1), -2);
    EXPECT_EQ(bag.PutString("a", nullptr), -2);
    EXPECT_EQ(bag.PutBlob("a", nullptr, 1), -2);
    EXPECT_EQ(bag.PutBlob("a", buffer, 0), -3);
    EXPECT_EQ(bag.PutBlob(std::string(259, 'k').c_str(), "x", 1), 0);
    EXPECT_EQ(bag.PutBlob(std::string(260, 'k').c_str(), "x", 1), -3);
    EXPECT_EQ(bag.GetPropA("a", 0, nullptr, 4), -2);
    EXPECT_EQ(bag.GetPropA("a", 0, buffer, 0), -3);
    EXPECT_EQ(bag.GrowPropTable(0), -3);
    EXPECT_EQ(bag.GrowPropBuffer(-1), -3);
    EXPECT_EQ(bag.GrowPropTable(INT_MAX), -5);
    EXPECT_EQ(bag.Load(nullptr), -2);
    EXPECT_EQ(bag.Store(nullptr), -2);
    EXPECT_EQ(bag.iNumProps, 1);
    EXPECT_EQ(bag.iPropTableSize, 20);
}

TEST(CcPropertyBag, TextsAndBlobs) {
    CcPropertyBag bag;
    bag.PutString("t", "seven77");
    bag.PutBlob("b", "\1\2\3", 3);
    char text[8];
    std::memset(text, '?', sizeof text);
    EXPECT_EQ(bag.GetString("t", text, 7), -8);
    EXPECT_EQ(std::string(text, 8), std::string("\0\0\0\0\0\0\0?", 8));
    EXPECT_EQ(bag.GetString("t", text, 8), 0);
    EXPECT_STREQ(text, "seven77");
    EXPECT_EQ(bag.GetString("none", text, 8), -7);
    EXPECT_STREQ(text, "");
    char blob[5] = "....";
    EXPECT_EQ(bag.GetBlob("b", blob, 2), -8);
    EXPECT_EQ(bag.GetBlob("b", blob, 4), 0);
    EXPECT_EQ(std::memcmp(blob, "\1\2\3.", 4), 0);
    long length = 0;
    EXPECT_EQ(bag.GetPropLength("b", 5, &length), 0);
    EXPECT_EQ(length, 3);
}

TEST(CcPropertyBag, GrowsAsStated) {
    OpenBag bag;
    EXPECT_EQ(bag.iPropTableSize, 20);
    EXPECT_EQ(bag.iPropBufferSize, 100000);
    const std::string blob(100000, 'b');
    bag.PutBlob("full", blob.data(), 100000);
    EXPECT_EQ(bag.iPropBufferSize, 200000);
    for (int i = 1; i < 20; ++i) bag.PutInt("n", i);
    EXPECT_EQ(bag.iPropTableSize, 20);
    bag.PutInt("n", 20);
    EXPECT_EQ(bag.iPropTableSize, 40);
    std::string back(100000, 0);
    EXPECT_EQ(bag.GetBlob("full", back.data(), 100000), 0);
    EXPECT_EQ(back, blob);
}

TEST(CcPropertyBag, StreamFormToTheByte) {
    CcPropertyBag bag;
    bag.PutInt("i", -2);
    bag.PutLong("l", 0x01020304);
    bag.PutFloat("f", 1.5F);
    bag.PutDouble("d", -0.25);
    bag.PutString("s", "ab");
    bag.PutBlob("b", "\xFE", 1);
    const Bytes expected = Bytes()
                               .I32(6)
                               .Add(PropertyEntry("i", 0, 0, 4))
                               .Add(PropertyEntry("l", 1, 4, 4))
                               .Add(PropertyEntry("f", 2, 8, 4))
                               .Add(PropertyEntry("d", 3, 12, 8))
                               .Add(PropertyEntry("s", 4, 20, 3))
                               .Add(PropertyEntry("b", 5, 23, 1))
                               .I32(24)
                               .I32(-2)
                               .I32(0x01020304)
                               .I32(0x3FC00000)
                               .I32(0)
                               .I32(static_cast<int>(0xBFD00000))
                               .Text("ab", 3)
                               .U8(0xFE);
    EXPECT_EQ(StoredBytes(bag), expected);

    OpenBag loaded;
    loaded.PutInt("old", 1);
    EXPECT_EQ(LoadFrom(loaded, expected), 0);
    EXPECT_EQ(loaded.iPropTableSize, 6);
    EXPECT_EQ(loaded.iPropBufferSize, 24);
    double real = 0;
    EXPECT_EQ(loaded.GetDouble("d", &real), 0);
    EXPECT_EQ(real, -0.25);
    int old;
    EXPECT_EQ(loaded.GetInt("old", &old), -7);
    EXPECT_EQ(StoredBytes(loaded), expected);
    EXPECT_EQ(loaded.PutInt("new", 7), 0);
    EXPECT_EQ(loaded.iPropTableSize, 26);
    EXPECT_EQ(loaded.iPropBufferSize, 100024);
}

TEST(CcPropertyBag, StreamsThatLieLeaveAnEmptyUsableBag) {
    const auto one = [](int offset, int length, int bytes) {
        return Bytes().I32(1).Add(PropertyEntry("a", 0, offset, length)).I32(bytes).Fill(8, 0x11);
    };
    const Bytes lies[] = {
        Bytes(),
        Bytes().I32(0).I32(0),
        Bytes().I32(-1).I32(8).Fill(8, 1),
        Bytes().I32(INT_MAX).Fill(600, 1),
        Bytes().I32(2).Add(PropertyEntry("a", 0, 0, 4)).I32(4).Fill(4, 1),
        Bytes().I32(1).Add(PropertyEntry("a", 0, 0, 4)),
        Bytes().I32(1).Add(PropertyEntry("a", 0, 0, 4)).I32(1000).Fill(4, 1),
        one(0, 4, INT_MAX),
        one(0, 4, -4),
        one(4, 4, 4),
        one(-4, 4, 4),
        one(0, 5, 4),
        one(0, 0, 4),
        one(0, -4, 4),
        one(INT_MAX, INT_MAX, 4),
    };
    for (const Bytes& lie : lies) {
        OpenBag bag;
        EXPECT_EQ(LoadFrom(bag, lie), 0);
        EXPECT_EQ(bag.iNumProps, 0);
        EXPECT_EQ(bag.iPropBufferUsed, 0);
        int value = 0;
        EXPECT_EQ(bag.GetInt("a", &value), -7);
        EXPECT_EQ(bag.PutInt("a", 5), 0);
        EXPECT_EQ(bag.GetInt("a", &value), 0);
        EXPECT_EQ(value, 5);
    }
}

TEST(CcPropertyBag, NamesAndTextsWithoutTerminator) {
    const std::string wideName(260, 'w');
    OpenBag bag;
    EXPECT_EQ(LoadFrom(bag, Bytes().I32(1).Add(PropertyEntry(wideName, 4, 0, 4)).I32(4).Text("abcd", 4)), 0);
    ASSERT_EQ(bag.iNumProps, 1);
    char text[4];
    EXPECT_EQ(bag.GetString(wideName.c_str(), text, 4), 0);
    EXPECT_STREQ(text, "abc");
    EXPECT_EQ(bag.GetString(wideName.substr(1).c_str(), text, 4), -7);
}

TEST(CcPropertyBag, ACopySharesAndBothCanBeDestroyed) {
    OpenBag source;
    source.PutInt("a", 1);
    {
        CcPropertyBag copy(source);
        int value = 0;
        EXPECT_EQ(copy.GetInt("a", &value), 0);
        EXPECT_EQ(value, 1);
    }
    OpenBag grown(source);
    for (int i = 0; i < 30; ++i) EXPECT_EQ(grown.PutInt("more", i), 0);
    int value = 0;
    EXPECT_EQ(source.GetInt("a", &value), 0);
    EXPECT_EQ(grown.GetInt("a", &value), 0);
    EXPECT_EQ(source.iNumProps, 1);
}
