// DIB headers and BMP files: what is accepted, and that nothing a file says leads outside its bytes.
#include "image/kernel/DibLayout.h"
#include "core/kernel/ByteReader.h"
#include "image/kernel/BmpFront.h"
#include "support/KernelTests.h"

using namespace kest;

namespace {

struct Header {
    std::uint32_t size = 40;
    std::int32_t width = 4, height = 3;
    std::uint16_t bits = 8;
    std::uint32_t compression = 0, colours = 0;

    std::vector<std::uint8_t> Bytes(std::size_t following) const {
        std::vector<std::uint8_t> bytes(40 + following);
        ByteWriter writer(bytes);
        writer.Write(size);
        writer.Write(width);
        writer.Write(height);
        writer.Write(std::uint16_t{1});
        writer.Write(bits);
        writer.Write(compression);
        for (int i = 0; i < 3; ++i) writer.Write(std::uint32_t{0});
        writer.Write(colours);
        return bytes;
    }
};

}  // namespace

TEST(DibLayout, HeaderRules) {
    DibLayout layout;
    ASSERT_TRUE(ReadDibLayout(Header{}.Bytes(0), layout));
    EXPECT_EQ(layout.colourCount, 256);
    EXPECT_EQ(layout.pixelOffset, 1064);
    // Only the low 16 bits of the sizes count.
    ASSERT_TRUE(ReadDibLayout(Header{.width = 0x10005, .height = -240}.Bytes(0), layout));
    EXPECT_EQ(layout.width, 5);
    EXPECT_EQ(layout.height, 65296);
    ASSERT_TRUE(ReadDibLayout(Header{.size = 124, .bits = 24, .colours = 7}.Bytes(0), layout));
    EXPECT_EQ(layout.colourCount, 7);
    EXPECT_EQ(layout.pixelOffset, 124 + 28);
    ASSERT_TRUE(ReadDibLayout(Header{.bits = 24}.Bytes(0), layout));
    EXPECT_EQ(layout.colourCount, 0);
    ASSERT_TRUE(ReadDibLayout(Header{.bits = 0xFFFF}.Bytes(0), layout));
    EXPECT_FALSE(LiesInBlock(layout, 1, LargestBlockBytes));
    // A header shorter than 36 bytes has no colour count of its own.
    ASSERT_TRUE(ReadDibLayout(Header{.size = 35, .colours = 9}.Bytes(0), layout));
    EXPECT_EQ(layout.colourCount, 256);

    const std::vector<std::uint8_t> core = {12, 0, 0, 0, 6, 0, 7, 0, 1, 0, 4, 0};
    ASSERT_TRUE(ReadDibLayout(core, layout));
    EXPECT_EQ(layout.width * 10 + layout.height, 67);
    EXPECT_EQ(layout.pixelOffset, 12 + 16 * 3);
    EXPECT_FALSE(ReadDibLayout(std::span(core).first(11), layout));
    EXPECT_FALSE(ReadDibLayout(Header{.size = 0}.Bytes(0), layout));
    EXPECT_FALSE(ReadDibLayout({}, layout));
}

TEST(BmpFormat, RandomHeadersNeverLeadOutside) {
    std::mt19937 random(20261121);
    int accepted = 0;
    for (int round = 0; round < 200000; ++round) {
        Header header;
        const auto any = [&] { return static_cast<std::uint32_t>(random()); };
        const auto odd = [&](std::uint32_t one) { return any() % one == 0; };
        header.width = odd(4) ? static_cast<int>(any()) : static_cast<int>(any() % 9);
        header.height = odd(4) ? static_cast<int>(any()) : static_cast<int>(any() % 9);
        if (odd(8)) header.size = any();
        if (odd(8)) header.bits = static_cast<std::uint16_t>(any());
        if (odd(4)) header.colours = odd(2) ? any() : any() % 300;
        const std::size_t following = odd(2) ? any() % 1100 : 1024 + any() % 70;
        const auto bytes = header.Bytes(following);
        const std::uint32_t pixels =
            (static_cast<std::uint32_t>(header.width) & 0xFFFF) * (static_cast<std::uint32_t>(header.height) & 0xFFFF);
        const std::uint32_t fileBytes = odd(4) ? any() : static_cast<std::uint32_t>(14 + bytes.size());
        DibLayout layout;
        // What is read of a file before it is known how much of it there is.
        std::vector<std::uint8_t> front(14);
        WriteBmpFileHeader(std::span(front).first<14>(), {fileBytes, fileBytes - pixels});
        front.insert(front.end(), bytes.begin(), bytes.end());
        if (odd(8)) front.resize(random() % 60);
        const auto there = static_cast<Size64>(front.size());
        front.resize(std::min<std::size_t>(front.size(), BmpFrontBytes));
        if (JudgeBmpFront(front, there, layout) != KEST_PICTURE_OPENS) continue;
        ++accepted;
        ASSERT_LE(layout.pixelOffset + layout.PixelCount(), static_cast<Size64>(bytes.size()));
        ASSERT_TRUE(layout.bitCount == 24 || front.size() == BmpFrontBytes);
    }
    EXPECT_GT(accepted, 100);
}
