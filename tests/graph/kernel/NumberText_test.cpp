// Texts of numbers: exact both ways, and only plain decimal numbers are taken.
#include "graph/kernel/NumberText.h"
#include "support/KernelTests.h"

namespace {

std::string TextOf(float value) {
    kest::NumberText text;
    kest::WriteNumber(text, value);
    return text;
}

TEST(NumberText, IsShortAndExact) {
    EXPECT_EQ(TextOf(0.1F) + ' ' + TextOf(500) + ' ' + TextOf(-1234567) + ' ' + TextOf(16777216) + ' ' + TextOf(1e30F),
              "0.1 500 -1234567 16777216 1e+30");
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (!std::isfinite(value)) continue;
        ASSERT_EQ(kest::ParseReal(TextOf(value).c_str()), value);
    }
    for (const float value : {FLT_MAX, -FLT_MAX, FLT_MIN, FLT_TRUE_MIN, INFINITY, -INFINITY, NAN})
        EXPECT_EQ(kest::ParseReal(TextOf(value).c_str()).value_or(7) == value, std::isfinite(value)) << value;
}

TEST(NumberText, TakesPlainNumbersOnly) {
    EXPECT_EQ(kest::ParseReal(" +2.5e1\t"), 25.0F);
    EXPECT_EQ(kest::ParseReal("-.5"), -0.5F);
    for (const char* text : {"", " ", ".", "-", "1,5", "1 2", "0x10", "nan", "inf", "1e", "1e999", "4e38", "--1", "1-"})
        EXPECT_FALSE(kest::ParseReal(text)) << text;

    EXPECT_EQ(kest::ParseWhole("-3", -5, 5), -3);
    EXPECT_EQ(kest::ParseWhole("2147483647", INT_MIN, INT_MAX), INT_MAX);
    for (const char* text : {"", "6", "-6", "1.0", "1e0", "2147483648", "99999999999999999999"})
        EXPECT_FALSE(kest::ParseWhole(text, -5, 5)) << text;
}

}  // namespace
