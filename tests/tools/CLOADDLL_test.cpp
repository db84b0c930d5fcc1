// Tool libraries, good and bad ones, loaded and called.
#include <new>

#include "libraries/ToolLog.h"
#include "support/ClassTests.h"

using namespace test;

namespace {

const char recordingTool[] = "RecordingTool.dll";
const HWND parent = GetDesktopWindow();

void ExpectAbsent(CLOADDLL& tool) {
    EXPECT_EQ(tool.CallDllMainFunction(parent, nullptr), nullptr);
    ExpectAll(-1, {tool.SendMessageToTools(1, 2, 3), tool.SendProxyMessage(1, 2, 3), tool.CloseAllOpenTools()});
}

/// A path to a library beside this program, made long with separators.
std::string PathOfLength(std::size_t length, const std::string& library) {
    char program[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    std::string folder = program;
    folder.erase(folder.rfind('\\'));
    return folder + std::string(length - folder.size() - library.size(), '\\') + library;
}

/// A loader in memory that was used before, so that a field left unset is seen.
class OnDirtyMemory {
public:
    OnDirtyMemory() {
        std::memset(memory, 0xCD, sizeof memory);
        tool = new (memory) CLOADDLL;
    }
    ~OnDirtyMemory() { tool->~CLOADDLL(); }
    CLOADDLL* operator->() { return tool; }
    CLOADDLL& operator*() { return *tool; }

private:
    alignas(CLOADDLL) unsigned char memory[sizeof(CLOADDLL)];
    CLOADDLL* tool;
};

TEST(CLOADDLL, IsEmptyAtFirstAndKeepsTheHostsSettings) {
    OnDirtyMemory tool;
    EXPECT_STREQ(tool->GetMenuText(), "Void");
    EXPECT_STREQ(tool->GetToolBarName(), "");
    EXPECT_EQ(tool->GetMenuItemNumber(), 0u);
    EXPECT_EQ(tool->GetToolBitMap(), nullptr);
    EXPECT_EQ(tool->GetToolBitMapSelected(), nullptr);
    EXPECT_EQ(tool->IsAutoStartEnabled(), 0);
    EXPECT_EQ(tool->UNLoadDll(), -1);
    ExpectAbsent(*tool);

    EXPECT_EQ(tool->SetMenuID(40001), 0);
    EXPECT_EQ(tool->GetMenuItemNumber(), 40001u);
    EXPECT_EQ(tool->EnableAutoStart(-3), 0);
    EXPECT_EQ(tool->IsAutoStartEnabled(), -3);
    EXPECT_EQ(tool->SetToolBarName(std::string(300, 'n').c_str()), 0);
    EXPECT_EQ(tool->GetToolBarName(), std::string(255, 'n'));
    EXPECT_EQ(tool->SetToolBarName(nullptr), -1);
}

TEST(CLOADDLL, ForwardsEveryCallToTheTool) {
    OnDirtyMemory tool;
    ASSERT_EQ(tool->LoadDll(recordingTool), 0);
    EXPECT_STREQ(tool->GetMenuText(), "Record");
    EXPECT_EQ(tool->GetToolBitMap(), reinterpret_cast<HBITMAP>(0x1234));
    EXPECT_EQ(tool->GetToolBitMapSelected(), reinterpret_cast<HBITMAP>(0x5678));

    ToolLog log = {};
    EXPECT_EQ(tool->CallDllMainFunction(parent, &log), parent);
    ExpectAll(0, {tool->SendMessageToTools(WM_USER, 0xFFFFFFFF, -5), tool->SendProxyMessage(WM_APP, 7, 0x7FFFFFFF),
                  tool->CloseAllOpenTools()});
    const ToolCall expected[] = {
        {'m', 0, 0, 0}, {'s', WM_USER, 0xFFFFFFFF, -5}, {'p', WM_APP, 7, 0x7FFFFFFF}, {'c', 0, 0, 0}};
    ASSERT_EQ(log.count, 4);
    EXPECT_EQ(std::memcmp(log.calls, expected, sizeof expected), 0);

    // The tool was handed an empty record with the caller's own path.
    tagToolInfo handed = {};
    handed.pszDllPath = recordingTool;
    EXPECT_EQ(std::memcmp(&log.received, &handed, sizeof handed), 0);

    EXPECT_EQ(tool->UNLoadDll(), 0);
    EXPECT_EQ(GetModuleHandleA(recordingTool), nullptr);
    ExpectAbsent(*tool);
    EXPECT_EQ(tool->UNLoadDll(), -1);
}

TEST(CLOADDLL, KeepsAMenuTextWithoutTerminatorAndEmptySlots) {
    OnDirtyMemory tool;
    ASSERT_EQ(tool->LoadDll(recordingTool), 0);
    ASSERT_EQ(tool->UNLoadDll(), 0);
    // What the first tool left in the record is not the second one's.
    ASSERT_EQ(tool->LoadDll("EndlessText.dll"), 0);
    EXPECT_EQ(tool->GetMenuText(), std::string(79, 'x'));
    EXPECT_EQ(tool->GetToolBitMap(), nullptr);
    EXPECT_EQ(tool->GetToolBitMapSelected(), nullptr);
    ExpectAbsent(*tool);
}

TEST(CLOADDLL, ShowsWhatCannotBeLoaded) {
    CLOADDLL missing, tooLong, noEntry;
    ExpectAll(-1, {missing.LoadDll(nullptr), missing.LoadDll("NoSuchTool.dll")});
    EXPECT_EQ(TakeBoxes(), (Boxes{{"Error Loading Tool:", "NoSuchTool.dll"}}));
    EXPECT_STREQ(missing.GetMenuText(), "Void");

    // The longest path that is loaded; one that would name the same file if it were cut off is not.
    const std::string longest = PathOfLength(254, recordingTool), path = PathOfLength(255, recordingTool);
    EXPECT_EQ(CLOADDLL().LoadDll(longest.c_str()), 0);
    EXPECT_EQ(tooLong.LoadDll(path.c_str()), -1);
    EXPECT_EQ(TakeBoxes(), (Boxes{{"Error Loading Tool:", path}}));

    EXPECT_EQ(noEntry.LoadDll("NoEntry.dll"), -1);
    EXPECT_EQ(TakeBoxes(), (Boxes{{"NoEntry.dll", "Can't get address of KestInitialize"}}));
    ExpectAbsent(noEntry);
    EXPECT_NE(GetModuleHandleA("NoEntry.dll"), nullptr);
    EXPECT_EQ(noEntry.UNLoadDll(), 0);
}

TEST(CLOADDLL, IsReleasedTwiceAfterUNLoadDllButOnceByItsCopies) {
    const HMODULE module = LoadLibraryA(recordingTool);
    ASSERT_EQ(LoadLibraryA(recordingTool), module);
    {
        CLOADDLL tool;
        ASSERT_EQ(tool.LoadDll(recordingTool), 0);
        const CLOADDLL copy(tool);
        CLOADDLL assigned;
        assigned = tool;
        EXPECT_STREQ(assigned.GetMenuText(), "Record");
        EXPECT_EQ(tool.UNLoadDll(), 0);
    }
    // Three references less two.
    EXPECT_NE(GetModuleHandleA(recordingTool), nullptr);
    EXPECT_TRUE(FreeLibrary(module));
    EXPECT_EQ(GetModuleHandleA(recordingTool), nullptr);
}

}  // namespace
