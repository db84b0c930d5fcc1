// The main function of the Windows test programs: dialogs are answered, a crash names the running test, and a test that
// takes more than a minute ends the program with a message.
#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <cstdio>
#include <string>

#include "support/Dialogs.h"
#include "support/RunningStep.h"

namespace {

constexpr DWORD longestTestMilliseconds = 180000;

std::atomic<DWORD> testStarted{0};

std::string RunningTest() {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    if (!info) return "no test";
    return std::string(info->test_suite_name()) + "." + info->name() + " " + test::runningStep;
}

LONG WINAPI ReportCrash(EXCEPTION_POINTERS* exception) {
    std::fprintf(stderr, "CRASH 0x%lX at %p in %s\n", exception->ExceptionRecord->ExceptionCode,
                 exception->ExceptionRecord->ExceptionAddress, RunningTest().c_str());
    std::fflush(stderr);
    TerminateProcess(GetCurrentProcess(), 3);
    return EXCEPTION_EXECUTE_HANDLER;
}

DWORD WINAPI Watch(void*) {
    constexpr DWORD stepMilliseconds = 500;
    DWORD watched = 0, waited = 0;
    for (;;) {
        Sleep(stepMilliseconds);
        const DWORD started = testStarted;
        // Steps are counted instead of time: a machine that is held up altogether hangs no test.
        waited = started == watched ? waited + stepMilliseconds : 0;
        watched = started;
        if (started != 0 && waited > longestTestMilliseconds) {
            std::fprintf(stderr, "HANG: %s ran for more than %lu s\n", RunningTest().c_str(),
                         longestTestMilliseconds / 1000);
            std::fflush(stderr);
            TerminateProcess(GetCurrentProcess(), 4);
        }
    }
}

/// Starts the clock for each test, and lets no test end with a box that it did not expect.
class Environment : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override {
        test::TakeBoxes();
        test::runningStep.clear();
        testStarted = GetTickCount() | 1;
    }
    void OnTestEnd(const testing::TestInfo& info) override {
        testStarted = 0;
        for (const test::Box& box : test::TakeBoxes())
            ADD_FAILURE() << info.name() << " left a message box: [" << box.caption << "] " << box.text;
    }
};

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    SetUnhandledExceptionFilter(ReportCrash);
    test::InstallDialogHook();
    testing::UnitTest::GetInstance()->listeners().Append(new Environment);
    CloseHandle(CreateThread(nullptr, 0, Watch, nullptr, 0, nullptr));
    return RUN_ALL_TESTS();
}
