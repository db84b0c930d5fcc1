// The property bag: values, growth, its form in a stream, and streams that lie.
#include "support/ClassTests.h"

using namespace test;

namespace {

/// Shows the bookkeeping that the class keeps for derived classes.
struct OpenBag : CcPropertyBag {
    using CcPropertyBag::iNumProps;
    using CcPropertyBag::iPropBufferSize;
    using CcPropertyBag::iPropTableSize;
};

int LoadFrom(OpenBag& bag, const Bytes& bytes) { return bag.Load(HandMade(bytes).Stream()); }
Bytes StoredData(CcPropertyBag& bag) {
    CcMemObjectStorage stream;
    EXPECT_EQ(bag.Store(&stream), 0);
    return ContentOf(stream);
}

}  // namespace

TEST(CcPropertyBag, FirstPutOfANameAndTypeWins) {
    OpenBag bag;
    int number = 0;
    float real = 0;
    double wide = 0;
    EXPECT_EQ(bag.GetInt("a", &number), -7);
    ExpectAll(0, {bag.PutInt("a", 1), bag.PutInt("a", 2), bag.PutFloat("a", 0.5F)});
    ExpectAll(0, {bag.GetInt("a", &number), bag.GetFloat("a", &real)});
    EXPECT_EQ(number, 1);
    EXPECT_EQ(real, 0.5F);
    ExpectAll(-7, {bag.GetDouble("a", &wide), bag.GetInt("A", &number)});
    EXPECT_EQ(bag.iNumProps, 3);
}

TEST(CcPropertyBag, ResultsOfBadArguments) {
    OpenBag bag;
    char buffer[8];
    ExpectAll(-2, {bag.PutInt(nullptr, 1), bag.PutString("a", nullptr), bag.PutBlob("a", nullptr, 1),
                   bag.GetPropA("a", 0, nullptr, 4), bag.Load(nullptr), bag.Store(nullptr)});
    ExpectAll(
        -3, {bag.PutBlob("a", buffer, 0), bag.PutBlob(std::string(260, 'k').c_str(), "x", 1), bag.GrowPropBuffer(-1)});
    EXPECT_EQ(bag.PutBlob(std::string(259, 'k').c_str(), "x", 1), 0);
    EXPECT_EQ(bag.GrowPropTable(INT_MAX), -5);
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
    ExpectAll(0, {bag.GetBlob("b", blob, 4), std::memcmp(blob, "\1\2\3.", 4)});
    long length = 0;
    EXPECT_EQ(bag.GetPropLength("b", 5, &length), 0);
    EXPECT_EQ(length, 3);
}

TEST(CcPropertyBag, GrowsAsStated) {
    OpenBag bag;
    EXPECT_EQ(bag.iPropBufferSize, 100000);
    bag.PutBlob("full", std::string(100000, 'b').data(), 100000);
    EXPECT_EQ(bag.iPropBufferSize, 200000);
    for (int i = 1; i < 20; ++i) bag.PutInt("n", i);
    EXPECT_EQ(bag.iPropTableSize, 20);
    bag.PutInt("n", 20);
    EXPECT_EQ(bag.iPropTableSize, 40);
}

TEST(CcPropertyBag, StreamFormToTheByte) {
    CcPropertyBag bag;
    bag.PutInt("i", -2);
    bag.PutLong("l", 0x01020304);
    bag.PutFloat("f", 1.5F);
    bag.PutDouble("d", -0.25);
    bag.PutString("s", "ab");
    bag.PutBlob("b", "\xFE", 1);
    Bytes expected = Bytes().I32(6);
    int offset = 0, type = 0;
    for (const auto& [name, length] : {std::pair{"i", 4}, {"l", 4}, {"f", 4}, {"d", 8}, {"s", 3}, {"b", 1}}) {
        expected.Add(PropertyEntry(name, type++, offset, length));
        offset += length;
    }
    expected.I32(24).I32(-2).I32(0x01020304).I32(0x3FC00000).I32(0).I32(0xBFD00000).Text("ab", 3).U8(0xFE);
    EXPECT_EQ(StoredData(bag), expected);

    OpenBag loaded;
    loaded.PutInt("old", 1);
    EXPECT_EQ(LoadFrom(loaded, expected), 0);
    int old;
    EXPECT_EQ(loaded.GetInt("old", &old), -7);
    EXPECT_EQ(StoredData(loaded), expected);
    EXPECT_EQ(loaded.PutInt("new", 7), 0);
    EXPECT_EQ(loaded.iPropTableSize, 26);
    EXPECT_EQ(loaded.iPropBufferSize, 100024);
}

TEST(CcPropertyBag, ABlobThatStaysWhereItIs) {
    const std::string blob(150000, 'r');
    CcPropertyBag copied;
    OpenBag referring;
    EXPECT_EQ(referring.ReferToBlob("b", nullptr, 1), -2);
    EXPECT_EQ(referring.ReferToBlob("b", blob.data(), 0), -3);
    copied.PutInt("i", 5);
    referring.PutInt("i", 5);
    copied.PutBlob("b", blob.data(), 150000);
    EXPECT_EQ(referring.ReferToBlob("b", blob.data(), 150000), 0);
    EXPECT_EQ(referring.iPropBufferSize, 100000);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(StoredBytes(referring), StoredBytes(copied));
        std::string back(150000, 0);
        EXPECT_EQ(referring.GetBlob("b", back.data(), 150000), 0);
        EXPECT_EQ(back, blob);
        copied.PutInt("j", 6);
        referring.PutInt("j", 6);
    }
}

TEST(CcPropertyBag, StreamsThatLieLeaveAnEmptyUsableBag) {
    const auto one = [](int offset, int length, int bytes) {
        return Bytes().I32(1).Add(PropertyEntry("a", 0, offset, length)).I32(bytes).Fill(8, 0x11);
    };
    const auto two = [](int offset, int length, int bytes) {
        const Bytes first = PropertyEntry("a", 0, 0, 4), second = PropertyEntry("b", 5, offset, length);
        return Bytes().I32(2).Add(first).Add(second).I32(bytes).Fill(12, 0x11);
    };
    const Bytes entry = Bytes().I32(1).Add(PropertyEntry("a", 0, 0, 4));
    for (const Bytes& lie :
         {Bytes(), Bytes().I32(0).I32(0), Bytes().I32(-1).I32(8).Fill(8, 1), Bytes().I32(INT_MAX).Fill(600, 1), entry,
          Bytes(entry).I32(1000).Fill(4, 1), one(0, 4, INT_MAX), one(0, 4, -4), one(4, 4, 4), one(-4, 4, 4),
          one(0, 5, 4), one(0, 0, 4), one(0, -4, 4), one(INT_MAX, INT_MAX, 4), two(4, 6, 9), two(4, 6, 11),
          two(3, 6, 10), two(4, INT_MAX, 10), two(4, 0, 4)}) {
        OpenBag bag;
        int value = 0;
        EXPECT_EQ(LoadFrom(bag, lie), 0);
        EXPECT_EQ(bag.iNumProps, 0);
        bag.PutInt("a", 5);
        bag.GetInt("a", &value);
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
    { const CcPropertyBag copy(source); }
    OpenBag grown(source);
    for (int i = 0; i < 30; ++i) EXPECT_EQ(grown.PutInt("more", i), 0);
    for (OpenBag* bag : {&source, &grown}) {
        int value = 0;
        EXPECT_EQ(bag->GetInt("a", &value), 0);
        EXPECT_EQ(value, 1);
    }
    EXPECT_EQ(source.iNumProps, 1);
}
