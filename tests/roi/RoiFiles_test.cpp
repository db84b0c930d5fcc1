// Files and streams of all ROI classes: to the byte, refused without a change, in use or on a full disk.
#include "roi/RoiKinds.h"

using namespace test;

namespace {

Bytes ExpectedRecord(const Kind& kind) { return kind.isOutline ? OutlinePoints() : kind.record; }

Bytes FileOf(const Kind& kind, float version = 1.0F, const std::string& name = "roi") {
    const int third = kind.isOutline ? 4 : static_cast<int>(kind.record.size());
    return Bytes().F32(version).I32(kind.type).I32(third).Text(name, 260).Add(ExpectedRecord(kind));
}

}  // namespace

TEST(RoiFiles, NamesTypesFilesAndStreamsToTheByte) {
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.className);
        const auto roi = Make(kind), next = Make(kind, false);
        EXPECT_EQ(roi->GetROIType(), kind.type);
        const std::string pattern = kind.namePattern, name = roi->GetName(), nextName = next->GetName();
        EXPECT_EQ(name.substr(0, pattern.size()), pattern);
        EXPECT_EQ(std::stoi(nextName.substr(pattern.size())), std::stoi(name.substr(pattern.size())) + 1);

        roi->SetName("roi");
        const TemporaryFile file("one.roi", Bytes().Fill(999, 7));
        EXPECT_EQ(roi->Save(file.Path()), 0);
        EXPECT_EQ(file.Content(), FileOf(kind));
        EXPECT_EQ(next->Restore(file.Path()), 0);
        EXPECT_STREQ(next->GetName(), "roi");
        EXPECT_EQ(RecordBytes(kind, *next), ExpectedRecord(kind));
        EXPECT_EQ(roi->Save("no such folder/x"), -1);

        const auto loaded = Make(kind, false);
        EXPECT_EQ(LoadRecord(*loaded, StoredBytes(*roi)), 0);
        EXPECT_EQ(RecordBytes(kind, *loaded), ExpectedRecord(kind));
        ExpectAll(-1, {loaded->Load(nullptr), loaded->Store(nullptr), loaded->SetRoiImageCord(nullptr)});
        EXPECT_EQ(loaded->UpdateImageIfNeeded(nullptr, 0, 0, 1, nullptr, 1), 0);
    }
}

TEST(RoiFiles, WhatIsRefusedChangesNothing) {
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.className);
        const auto roi = Make(kind);
        roi->SetName("kept");
        Bytes otherType = FileOf(kind), tooFew = FileOf(kind), tooMany = FileOf(kind), negative = FileOf(kind);
        otherType[4] = static_cast<std::uint8_t>((kind.type + 1) % 8);
        tooFew.pop_back();
        tooMany[11] = 0x7F;
        negative[11] = 0xFF;
        for (const Bytes& bad :
             {otherType, tooFew, tooMany, negative, FileOf(kind, 1.5F), FileOf(kind, NAN), Bytes()}) {
            const TemporaryFile file("bad.roi", bad);
            EXPECT_EQ(roi->Restore(file.Path()), -1);
        }
        EXPECT_STREQ(roi->GetName(), "kept");
        const Bytes stored = StoredBytes(*roi);
        Bytes otherKey = stored, shortRecord = stored, noFooter = stored;
        otherKey[128 + 128 + 4] = 'X';
        shortRecord[128 + 128 + 4 + 268] = 3;  // the entry's length: the bag then contradicts itself
        noFooter.erase(noFooter.end() - 200, noFooter.end());
        for (const Bytes& bad : {otherKey, shortRecord, noFooter}) EXPECT_LT(LoadRecord(*roi, bad), 0);
        EXPECT_EQ(RecordBytes(kind, *roi), ExpectedRecord(kind));
        const TemporaryFile fullName("full.roi", FileOf(kind, 1.0F, std::string(260, 'f')));
        EXPECT_EQ(roi->Restore(fullName.Path()), 0);
        EXPECT_EQ(roi->GetName(), std::string(259, 'f'));
        if (!kind.isOutline) continue;
        // A count that the points do not bear out, and one that no block could hold.
        for (const int count : {-1, 3, 5, 0x10000000, INT_MAX}) {
            Bytes lie = stored;
            const std::size_t at = 128 + 128 + 4 + 2 * 272 + 4 + 12;
            for (int i = 0; i < 4; ++i) lie[at + i] = static_cast<std::uint8_t>(count >> (8 * i));
            EXPECT_LT(LoadRecord(*roi, lie), 0) << count;
        }
        EXPECT_EQ(RecordBytes(kind, *roi), ExpectedRecord(kind));
    }
}

TEST(RoiFiles, FilesInUseOrOnAFullDiskOrWithoutMemory) {
    const Boxes lost = {{"File I/O Error", "Problem writing ROI to file"}};
    CcRoiFreeHand roi;
    SetRecord(kinds[5], roi, std::vector<POINT>(50000, {7, 8}), {}, {});
    const TemporaryFile file("used.roi", Bytes().Fill(5, 7));
#if defined(_WIN32)
    // Elsewhere nobody keeps others from writing.
    {
        const HANDLE reader = CreateFileA(file.Path(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                          OPEN_EXISTING, 0, nullptr);
        EXPECT_EQ(roi.Save(file.Path()), -1);
        EXPECT_EQ(roi.PrintPerimiterPointsToFile(file.Path()), 0);
        CloseHandle(reader);
    }
#endif
    EXPECT_EQ(TakeBoxes(), Boxes());
    EXPECT_EQ(roi.Save(fullDisk), 0);
    EXPECT_EQ(TakeBoxes(), lost);
    EXPECT_EQ(roi.PrintPerimiterPointsToFile(fullDisk), -1);
    EXPECT_EQ(TakeBoxes(), lost);

    struct Refusing : CcRoiFreeHand {
        bool refuses = false;
        int SetRoiImageCord(void* record) override { return refuses ? -1 : CcRoiFreeHand::SetRoiImageCord(record); }
    } full;
    SetRecord(kinds[5], full, {{1, 2}, {3, 4}}, {}, {});
    full.refuses = true;
    EXPECT_EQ(roi.Save(file.Path()), 0);
    EXPECT_EQ(full.Restore(file.Path()), -1);
    EXPECT_EQ(RecordBytes(kinds[5], full), Bytes().I32(1).I32(2).I32(3).I32(4));
}

TEST(RoiFiles, EmptyOutlines) {
    for (const Kind& kind : kinds) {
        if (!kind.isOutline) continue;
        SCOPED_TRACE(kind.className);
        const auto empty = Make(kind, false);
        int count = 5;
        EXPECT_EQ(empty->GetCurrentBoundingRect(), nullptr);
        EXPECT_EQ(empty->GetXBoundary(0, &count), nullptr);
        EXPECT_EQ(count, 0);
        PixelGroupTag record = {0, 0, 0, 0, nullptr, nullptr};
        EXPECT_EQ(empty->SetRoiImageCord(&record), -1);
        record.iNumOfPoints = 5;
        EXPECT_EQ(empty->SetRoiImageCord(&record), -1);
        const auto full = Make(kind);
        EXPECT_EQ(LoadRecord(*full, StoredBytes(*empty)), 0);
        EXPECT_EQ(full->GetBoundingRect(), nullptr);
        // Its file is that of another one without points, and takes none away.
        empty->SetName("nothing");
        const TemporaryFile file("empty.roi", Bytes());
        EXPECT_EQ(empty->Save(file.Path()), 0);
        const auto other = Make(kind);
        const std::string name = other->GetName();
        EXPECT_EQ(other->Restore(file.Path()), -1);
        EXPECT_EQ(other->GetName(), name);
        EXPECT_EQ(RecordBytes(kind, *other), ExpectedRecord(kind));
        EXPECT_EQ(full->Restore(file.Path()), 0);
        EXPECT_STREQ(full->GetName(), "nothing");
    }
}

TEST(RoiFiles, PerimeterAsText) {
    CcRoiPolyLine roi;
    SetOutline(roi, {{4, -5}, {5, 6}});
    const TemporaryFile file("perimeter.txt");
    for (const char* path : {file.Path(), "no such folder/x", static_cast<const char*>(nullptr)})
        EXPECT_EQ(roi.PrintPerimiterPointsToFile(path), 0);
    const auto content = file.Content();
    EXPECT_EQ(std::string(content.begin(), content.end()), "0\t4\t-5\r\n1\t5\t6\r\n");
}
