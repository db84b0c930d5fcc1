// Files that are replaced only by whole ones: what becomes of the old file, of its readers, and of the folder.
#include "support/ClassTests.h"
#include "support/Imports.h"

namespace {

std::string ContentOf(HANDLE file) {
    char text[64];
    DWORD length = 0;
    SetFilePointer(file, 0, nullptr, FILE_BEGIN);
    ReadFile(file, text, sizeof text, &length, nullptr);
    return {text, length};
}

/// A folder with one file in it.
struct Folder {
    Folder() {
        CreateDirectoryA("whole", nullptr);
        std::ofstream("whole\\a.txt") << "the old text";
    }
    ~Folder() {
        for (const char* path : {"whole\\a.txt", "whole\\b.txt"}) {
            SetFileAttributesA(path, FILE_ATTRIBUTE_NORMAL);
            DeleteFileA(path);
        }
        EXPECT_TRUE(RemoveDirectoryA("whole")) << "something was left beside the file";
    }
    static HANDLE Open(DWORD sharing) {
        return CreateFileA("whole\\a.txt", GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
    }
    static std::string Text(const char* path = "whole\\a.txt") {
        const auto bytes = test::TemporaryFile::ReadAll(path);
        return {bytes.begin(), bytes.end()};
    }
};

/// The system's answer to a name whose file is deleted, but held open by somebody.
HANDLE WINAPI CreateBesideALeftover(const char* path, DWORD access, DWORD sharing, SECURITY_ATTRIBUTES* security,
                                    DWORD disposition, DWORD attributes, HANDLE model) {
    if (!std::strstr(path, "~kest1"))
        return CreateFileA(path, access, sharing, security, disposition, attributes, model);
    SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_HANDLE_VALUE;
}

KestWholeFile::Result WriteOver(const char* path = "whole\\a.txt", const char* text = "new") {
    KestWholeFile file(path);
    file.Write(text, static_cast<long long>(std::strlen(text)));
    const int replaced = file.Replace();
    EXPECT_EQ(replaced, file.GetResult() == KestWholeFile::Replaced ? 0 : -1);
    return file.GetResult();
}

}  // namespace

TEST(KestWholeFile, ReplacesTheOldFileOrLeavesIt) {
    const Folder folder;
    EXPECT_EQ(WriteOver(), KestWholeFile::Replaced);
    EXPECT_EQ(Folder::Text(), "new");
    EXPECT_EQ(WriteOver("whole\\b.txt", ""), KestWholeFile::Replaced);
    EXPECT_EQ(Folder::Text("whole\\b.txt"), "");
    EXPECT_EQ(WriteOver("nul"), KestWholeFile::Replaced);
    for (const char* path : {"whole", "none\\a.txt", ""}) EXPECT_EQ(WriteOver(path), KestWholeFile::NotCreated) << path;
    {
        KestWholeFile failing("whole\\a.txt");
        EXPECT_EQ(failing.Write("more", 4), 0);
        EXPECT_EQ(Folder::Text(), "new");
        test::ExpectAll(-1, {failing.Write(nullptr, 5), failing.Write("more", 4), failing.Replace()});
        EXPECT_EQ(failing.GetResult(), KestWholeFile::NotWritten);
        KestWholeFile forgotten("whole\\a.txt");
        EXPECT_EQ(forgotten.Write("more", 4), 0);
    }
    EXPECT_EQ(Folder::Text(), "new");

    KestWholeFile lent("whole\\a.txt");
    const std::string path = lent.LendPath();
    EXPECT_EQ(path.substr(path.size() - 4), ".txt");
    std::ofstream(path) << "by another";
    EXPECT_EQ(Folder::Text(), "new");
    EXPECT_EQ(lent.Replace(), 0);
    EXPECT_EQ(Folder::Text(), "by another");
    {
        const test::ReplacedImport leftover(GetModuleHandleA("KestApi.dll"), "CreateFileA", &CreateBesideALeftover);
        EXPECT_STREQ(KestWholeFile("whole\\a.txt").LendPath(), "whole\\~kest2.txt");
    }
    SetFileAttributesA("whole\\a.txt", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(WriteOver(), KestWholeFile::NotCreated);
}

TEST(KestWholeFile, ReadersOfTheOldFile) {
    const Folder folder;
    // One that does not let the file go gets the bytes in place, shorter and longer ones.
    const HANDLE reader = Folder::Open(FILE_SHARE_READ | FILE_SHARE_WRITE);
    for (const char* text : {"short", "a text that is longer than the old one"}) {
        EXPECT_EQ(WriteOver("whole\\a.txt", text), KestWholeFile::Replaced);
        EXPECT_EQ(Folder::Text(), text);
        EXPECT_EQ(ContentOf(reader), text);
    }
    const KestWholeFile unshared("whole\\a.txt", 0);
    EXPECT_EQ(unshared.GetResult(), KestWholeFile::NotCreated);
    CloseHandle(reader);

    // One that lets it go keeps the old ones.
    const HANDLE keeper = Folder::Open(FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    EXPECT_EQ(WriteOver("whole\\a.txt", "newer"), KestWholeFile::Replaced);
    EXPECT_EQ(ContentOf(keeper), "a text that is longer than the old one");
    CloseHandle(keeper);

    const HANDLE alone = Folder::Open(FILE_SHARE_READ);
    EXPECT_EQ(WriteOver(), KestWholeFile::NotCreated);
    CloseHandle(alone);

    // One that comes while the new file is written, and lets nobody write: told before the first of several is
    // replaced.
    KestWholeFile late("whole\\a.txt"), first("whole\\b.txt");
    late.Write("late", 4);
    first.Write("first", 5);
    const HANDLE newcomer = Folder::Open(FILE_SHARE_READ);
    EXPECT_EQ(first.Complete(), 0);
    test::ExpectAll(-1, {late.Complete(), late.Replace()});
    EXPECT_EQ(ContentOf(newcomer), "newer");
    CloseHandle(newcomer);
}

TEST(KestWholeFile, AFileWithTwoNamesStaysOneFile) {
    const Folder folder;
    ASSERT_TRUE(CreateHardLinkA("whole\\b.txt", "whole\\a.txt", nullptr));
    {
        KestWholeFile failing("whole\\a.txt"), lent("whole\\a.txt");
        failing.Write("other", 5);
        EXPECT_EQ(failing.Write(nullptr, 5), -1);
        EXPECT_STRNE(lent.LendPath(), "whole\\a.txt");
    }
    EXPECT_EQ(Folder::Text("whole\\b.txt"), "the old text");
    for (const char* text : {"new", "a text that is longer than the old one"}) {
        EXPECT_EQ(WriteOver("whole\\a.txt", text), KestWholeFile::Replaced);
        EXPECT_EQ(Folder::Text("whole\\b.txt"), text);
    }
}

TEST(KestWholeFile, WhereNoOtherNameFits) {
    const Folder folder;
    std::string inFolder = "whole\\";
    while (inFolder.size() < 253) inFolder += ".\\";
    const std::string oldPath = inFolder + "a.txt", newPath = inFolder + "b.txt";
    for (const std::string& path : {oldPath, newPath}) {
        KestWholeFile failing(path.c_str());
        EXPECT_EQ(failing.Write("some", 4), 0);
        EXPECT_EQ(failing.Write(nullptr, 5), -1);
    }
    EXPECT_EQ(Folder::Text(), "the old text");
    EXPECT_EQ(GetFileAttributesA("whole\\b.txt"), INVALID_FILE_ATTRIBUTES);
    for (const std::string& path : {oldPath, newPath}) {
        EXPECT_EQ(WriteOver(path.c_str(), "whole"), KestWholeFile::Replaced);
        EXPECT_EQ(Folder::Text(path.c_str()), "whole");
    }
}
