// Hosts that are built otherwise than the library: without run-time type information, for wide characters, and with a
// `new` that tells where it stands. The build compiles this file so.
#include <gtest/gtest.h>

#include <cstring>
#include <utility>
#include <vector>

#include "KestApi.h"
#include "support/Streams.h"

#if !defined(UNICODE) || defined(__cpp_rtti)
#error "compile this file with UNICODE and without run-time type information"
#endif

namespace {

#ifdef __clang__
#pragma clang diagnostic ignored "-Wkeyword-macro"  // hosts do so
#endif
#define new new (__FILE__, __LINE__)
/// A picture of 300 x 300 with a rectangle and a line: large and small pieces in its record.
CcGrayImage256* NewPicture() {
    auto* picture = new CcGrayImage256;
    picture->MakeBlankBMP(300, 300, 77, "p");
    picture->GetListROI()->InsertTail(new CcRoiRect);
    picture->GetListROI()->InsertTail(new CcRoiLine);
    return picture;
}
#undef new

class OwnStream : public CcObjectStorage {
public:
    std::vector<std::uint8_t> bytes;

    int Read(void* buffer, long length) override {
        if (taken + static_cast<std::size_t>(length) > bytes.size()) return -7;
        std::memcpy(buffer, bytes.data() + taken, static_cast<std::size_t>(length));
        taken += static_cast<std::size_t>(length);
        return 0;
    }
    int Write(void* buffer, long length) override {
        const auto* first = static_cast<const std::uint8_t*>(buffer);
        bytes.insert(bytes.end(), first, first + length);
        return 0;
    }

private:
    std::size_t taken = 0;
};

/// Transfers what is large itself.
class OwnFileStream : public CcFileObjectStorage {
public:
    int Read(void* buffer, long length) override {
        DWORD done = 0;
        if (length < 300) return CcFileObjectStorage::Read(buffer, length);
        return ReadFile(hFile, buffer, static_cast<DWORD>(length), &done, nullptr) ? 0 : -10;
    }
    int Write(void* buffer, long length) override {
        DWORD done = 0;
        if (length < 300) return CcFileObjectStorage::Write(buffer, length);
        return WriteFile(hFile, buffer, static_cast<DWORD>(length), &done, nullptr) ? 0 : -11;
    }
};

template <class Stream>
void ExpectPictureBack(Stream& stream, const std::vector<std::uint8_t>& record) {
    CcHLObject* back = nullptr;
    ASSERT_EQ(stream.GetNextObject(&back), 0);
    char name[50];
    EXPECT_EQ(back->GetClassNameA(name, 50), 0);
    EXPECT_STREQ(name, "CcGrayImage256");
    EXPECT_EQ(test::StoredBytes(*back), record);
    delete back;
}

}  // namespace

TEST(OtherHosts, StreamClassesOfTheirOwn) {
    auto* picture = NewPicture();
    const auto record = test::StoredBytes(*picture);

    OwnStream own;
    EXPECT_EQ(own.PutObject(picture), 0);
    EXPECT_EQ(own.bytes, record);
    ExpectPictureBack(own, record);

    const test::TemporaryFile path("other-host.ost");
    OwnFileStream file;
    ASSERT_EQ(file.Open(path.Path(), GENERIC_READ | GENERIC_WRITE), 0);
    EXPECT_EQ(file.PutObject(picture), 0);
    EXPECT_EQ(file.Reset(), -14);
    ExpectPictureBack(file, record);
    file.Close();
    EXPECT_EQ(path.Content(), record);
    delete picture;
}

TEST(OtherHosts, RoisThatListTheirOwnPixels) {
    struct Stairs : CcRoiRect {
        int* GetXBoundary(int iRow, int* piCount) override {
            const int count = iRow % 4;
            for (int i = 0; i < count; ++i) columns[i] = 2 * i + iRow - 1;
            *piCount = count;
            return columns;
        }
        int columns[4];
    } roi;
    CcGrayImage256 image;
    ASSERT_EQ(image.MakeBlankBMP(8, 8, 0, "image"), 0);
    auto* bytes = static_cast<unsigned char*>(image.GetBitMapImageData());
    for (int i = 0; i < 64; ++i) bytes[i] = static_cast<unsigned char>(i);
    RECT rect = {0, 7, 7, 0};
    roi.SetRoiImageCord(&rect);
    CcImage* region = image.GetRegion(&roi, 200, 0);
    ASSERT_NE(region, nullptr);
    EXPECT_EQ((*region)(1, 1), 200.0F);  // a single column: nothing is copied
    for (const auto& [x, y] : {std::pair{1, 2}, {2, 3}, {4, 3}})
        EXPECT_EQ((*region)(x, y), static_cast<float>(8 * y + x));
    for (const auto& [x, y] : {std::pair{3, 2}, {6, 3}}) EXPECT_EQ((*region)(x, y), 200.0F);
    delete region;
    // Entries outside the image are left out.
    KestRoiMeasurement measured;
    ASSERT_EQ(KestMeasureRoi(&image, &roi, &measured), 0);
    EXPECT_EQ(measured.llPixels, 1 + 2 + 3 + 1 + 2 + 1);
    EXPECT_EQ(measured.dLengthPixels, 32.0);
    EXPECT_EQ(KestOutlineCorners(&roi, nullptr, 0), 0);
}
